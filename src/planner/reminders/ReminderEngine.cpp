// The reminder engine: which reminders stand on the list, which fire now, and what that changes in the store.
#include "planner/reminders/ReminderEngine.h"

#include "core/DateText.h"
#include "core/Values.h"
#include "planner/dates/DateHelpers.h"
#include "planner/recurrence/EventOccursOn.h"
#include "planner/reminders/AdvanceEventReminder.h"
#include "planner/reminders/ReminderItems.h"
#include "planner/reminders/ReminderPhrases.h"
#include "planner/rows/ClassLink.h"
#include "planner/rows/RowLook.h"
#include "planner/rows/RowTexts.h"

#include <cstdint>
#include <optional>

namespace {

using std::chrono::floor;
using std::chrono::minutes;

// One scan of the store.
struct Scan {
    Moment now;
    Date today;
    std::string nowText; // in the stored form
    ReminderFlags& flags;
    ReminderListRows& rows;
    std::optional<ClassPositions> classes; // once an assignment needs them
};

constexpr std::string_view StoredMomentForm = "dddd/dd/dd dd:dd:00"; // "d" for any digit

int TwoDigitsAt(std::string_view text, std::size_t place) {
    return (text[place] - '0') * 10 + text[place + 1] - '0';
}

// True for nearly every stored moment: the stored form, with a day that every month has. Such a text compares
// with the stored form of the present as its moment does with the present.
bool IsComparableMoment(std::string_view text) {
    if (text.size() != StoredMomentForm.size()) {
        return false;
    }
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (StoredMomentForm[i] == 'd' ? !IsDigit(text[i]) : text[i] != StoredMomentForm[i]) {
            return false;
        }
    }
    const bool hasYear = TwoDigitsAt(text, 0) >= 1; // from 100 on
    const int month = TwoDigitsAt(text, 5);
    const int day = TwoDigitsAt(text, 8);
    return hasYear && month >= 1 && month <= 12 && day >= 1 && day <= 28 && TwoDigitsAt(text, 11) < 24 &&
           TwoDigitsAt(text, 14) < 60;
}

bool IsDue(const std::string& alarm, const Scan& scan) {
    return IsComparableMoment(alarm) ? alarm <= scan.nowText : MomentValue(alarm) <= scan.now;
}

// --- Rows --------------------------------------------------------------------------------------------------

struct ReminderRow {
    std::string id;
    std::string_view mode;
    std::string name;
    std::string when{};
    double sortKey = 0;
    RowLook look{};
};

void AppendRow(Scan& scan, ReminderRow row) {
    if (scan.flags.ReminderFirstTick) {
        scan.flags.ReminderFirstTick = false;
        scan.flags.ReminderShowWindow = true;
    }
    ReminderListRows& rows = scan.rows;
    rows.ReminderIds.Add(std::move(row.id));
    rows.ReminderModes.Add(std::string(row.mode));
    rows.ReminderNames.Add(std::move(row.name));
    rows.ReminderTypes.Add(std::move(row.look.name));
    rows.ReminderWhens.Add(std::move(row.when));
    rows.ReminderSortKeys.Add(row.sortKey);
    rows.ReminderForeColors.Add(row.look.forecolor);
    rows.ReminderBackColors.Add(row.look.backcolor);
}

void MarkFired(Scan& scan, bool& fileChanged) {
    fileChanged = true;
    scan.flags.ReminderShowWindow = true;
    scan.flags.ReminderSelectedRow = 0;
}

// --- Tasks and homework ------------------------------------------------------------------------------------

// True when the item stands on the list; one that is due fires, and so does one that is armed while it
// stands.
bool ItemStands(const ItemReminderLists& items, int position, Scan& scan, bool& fileChanged) {
    if (items.desc.Item(position) == DeletedRecord) {
        return false;
    }
    const bool armed = IsTrue(items.reminder.Item(position));
    const bool stands = (armed && IsDue(items.reminderAlarm.Item(position), scan)) ||
                        IsTrue(items.reminderList.Item(position));
    if (stands && armed) {
        MarkFired(scan, fileChanged);
        items.reminder.Replace(position, BooleanText(false));
        items.reminderList.Replace(position, BooleanText(true));
    }
    return stands;
}

void TellDay(ReminderRow& row, const std::string& date, const Scan& scan) {
    const int days = DayDiff(scan.today, DateValue(date));
    row.when = DayPhrase(days);
    row.sortKey = days;
}

void CheckTasks(Scan& scan) {
    const ItemReminderLists items = ItemReminders(TaskMode);
    for (int position = 1, records = WholeRecords(Store.TaskRecord); position <= records; ++position) {
        if (!ItemStands(items, position, scan, scan.flags.ReminderTasksChanged)) {
            continue;
        }
        ReminderRow row{items.id.Item(position), TaskMode, std::string(TaskName(position))};
        if (IsTrue(Store.TaskRecord.date_exists.Item(position))) {
            TellDay(row, items.date.Item(position), scan);
        } else {
            row.when = "No Date";
        }
        const std::string& type = Store.TaskRecord.type.Item(position);
        row.look = type == NoType ? RowLook{} : TaskTypeLook(type);
        AppendRow(scan, std::move(row));
    }
}

void CheckHomework(Scan& scan) {
    const ItemReminderLists items = ItemReminders(HomeworkMode);
    for (int position = 1, records = WholeRecords(Store.Assignment); position <= records; ++position) {
        if (!ItemStands(items, position, scan, scan.flags.ReminderHomeworkChanged)) {
            continue;
        }
        if (!scan.classes) {
            scan.classes = ClassPositionsById();
        }
        ReminderRow row{items.id.Item(position), HomeworkMode, std::string(AssignmentName(position))};
        TellDay(row, items.date.Item(position), scan);
        row.look = ClassLook(ClassPositionOf(*scan.classes, Store.Assignment.class_.Item(position)));
        AppendRow(scan, std::move(row));
    }
}

// --- Events ------------------------------------------------------------------------------------------------

// A snoozed occurrence comes back, unless the series has given it up since; then the next one follows.
bool FireSnoozedOccurrence(int position) {
    EventLists& events = Store.EventRecord;
    if (IsException(events.exceptions.Item(position), DateValue(events.reminder_currentday.Item(position)))) {
        FollowNextOccurrence(position);
        return false;
    }
    events.reminder_list.Replace(position, BooleanText(true));
    return true;
}

// Fires what is due of an event that does not stand yet; true when it stands now.
bool FireEvent(int position, bool nextIsDue, Moment now) {
    EventLists& events = Store.EventRecord;
    if (nextIsDue) {
        return AdvanceEventReminder(position, now);
    }
    if (IsSeries(position)) {
        return FireSnoozedOccurrence(position);
    }
    events.reminder.Replace(position, BooleanText(false));
    events.reminder_list.Replace(position, BooleanText(true));
    return true;
}

// True when the event stands on the list. A series that stands is left alone until the student acts on it.
bool EventStands(int position, Scan& scan) {
    const EventLists& events = Store.EventRecord;
    if (events.desc.Item(position) == DeletedRecord) {
        return false;
    }
    const std::string& type = events.type.Item(position);
    if (IsTrue(events.reminder_list.Item(position))) {
        return BelongsToActiveTerm(type);
    }
    if (!IsTrue(events.reminder.Item(position))) {
        return false;
    }
    const bool nextIsDue = IsSeries(position) && IsDue(events.reminder_nextalarm.Item(position), scan);
    const bool due = nextIsDue || IsDue(events.reminder_alarm.Item(position), scan);
    if (!due || !BelongsToActiveTerm(type)) {
        return false;
    }
    if (!FireEvent(position, nextIsDue, scan.now)) {
        scan.flags.ReminderEventsChanged = true;
        return false;
    }
    MarkFired(scan, scan.flags.ReminderEventsChanged);
    return true;
}

Moment MomentOfEvent(int position) {
    return Moment{ReminderDayOf(position)} + TimeValue(Store.EventRecord.time.Item(position));
}

void CheckEvents(Scan& scan) {
    const EventLists& events = Store.EventRecord;
    for (int position = 1, records = WholeRecords(events); position <= records; ++position) {
        if (!EventStands(position, scan)) {
            continue;
        }
        const Moment moment = MomentOfEvent(position);
        const std::int64_t away = (floor<minutes>(moment) - floor<minutes>(scan.now)).count();
        AppendRow(scan, {events.id.Item(position), EventMode, std::string(EventName(position)),
                         MomentPhrase(away, DayDiff(scan.now, moment)), static_cast<double>(away),
                         EventTypeLook(events.type.Item(position))});
    }
}

} // namespace

Date ReminderDayOf(int position) {
    const EventLists& events = Store.EventRecord;
    return DateValue((IsSeries(position) ? events.reminder_currentday : events.date).Item(position));
}

void CheckReminders(Moment now, ReminderFlags& flags, ReminderListRows& rows) {
    rows = {};
    Scan scan{now, floor<std::chrono::days>(now), StoredMoment(now), flags, rows, std::nullopt};
    CheckTasks(scan);
    CheckHomework(scan);
    CheckEvents(scan);
}
