// What the buttons of the reminder window change in the store and in the rows.
#include "planner/reminders/ReminderActions.h"

#include "core/DateText.h"
#include "core/Values.h"
#include "planner/entries/DurationEntry.h"
#include "planner/entries/ReminderEntry.h"
#include "planner/reminders/AdvanceEventReminder.h"
#include "planner/reminders/ReminderItems.h"
#include "planner/rows/ClassLink.h"
#include "planner/rows/RowOrder.h"

#include <algorithm>
#include <unordered_map>

namespace {

using std::chrono::days;
using std::chrono::floor;

// Of the whole records alone.
template <class Lists>
int PositionOf(const Lists& lists, std::string_view id) {
    const auto end = lists.id.begin() + WholeRecords(lists);
    const auto found = std::find(lists.id.begin(), end, id);
    return found == end ? 0 : static_cast<int>(found - lists.id.begin()) + 1;
}

bool& FileChanged(std::string_view mode, ReminderFlags& flags) {
    if (mode == EventMode) {
        return flags.ReminderEventsChanged;
    }
    return mode == TaskMode ? flags.ReminderTasksChanged : flags.ReminderHomeworkChanged;
}

void SnoozeItem(const ItemReminderLists& items, int position, Moment alarm) {
    items.reminder.Replace(position, BooleanText(true));
    items.reminderDate.Replace(position, StoredDate(floor<days>(alarm)));
    items.reminderTime.Replace(position, StoredTime(alarm - floor<days>(alarm)));
    items.reminderAlarm.Replace(position, StoredMoment(alarm));
    items.reminderList.Replace(position, BooleanText(false));
}

void SnoozeEvent(int position, Moment alarm) {
    EventLists& events = Store.EventRecord;
    events.reminder.Replace(position, BooleanText(true));
    events.reminder_alarm.Replace(position, StoredMoment(alarm));
    events.reminder_list.Replace(position, BooleanText(false));
}

// The positions of the whole records by their ids; of two alike the first.
template <class Lists>
std::unordered_map<std::string_view, int> PositionsById(const Lists& lists) {
    std::unordered_map<std::string_view, int> positions;
    const int records = WholeRecords(lists);
    positions.reserve(static_cast<std::size_t>(records));
    for (int position = 1; position <= records; ++position) {
        positions.emplace(lists.id.Item(position), position);
    }
    return positions;
}

void RemoveEvent(int position) {
    EventLists& events = Store.EventRecord;
    events.reminder_list.Replace(position, BooleanText(false));
    if (IsSeries(position)) {
        FollowNextOccurrence(position);
    }
}

// Does nothing for position 0.
void RemoveRecord(std::string_view mode, int position, ReminderFlags& flags) {
    if (position == 0) {
        return;
    }
    if (mode == EventMode) {
        RemoveEvent(position);
    } else {
        ItemReminders(mode).reminderList.Replace(position, BooleanText(false));
    }
    FileChanged(mode, flags) = true;
}

} // namespace

void SnoozeReminder(std::string_view mode, std::string_view id, std::string_view interval, Moment now,
                    ReminderFlags& flags) {
    const Moment alarm = RequireStorable(now + SnoozeInterval(interval));
    const int position = ReminderPosition(mode, id);
    if (position == 0) {
        return;
    }
    if (mode == EventMode) {
        SnoozeEvent(position, alarm);
    } else {
        SnoozeItem(ItemReminders(mode), position, alarm);
    }
    FileChanged(mode, flags) = true;
}

void RemoveReminder(std::string_view mode, std::string_view id, ReminderFlags& flags) {
    RemoveRecord(mode, ReminderPosition(mode, id), flags);
}

void RemoveAllReminders(const ReminderListRows& rows, ReminderFlags& flags) {
    const auto tasks = PositionsById(Store.TaskRecord);
    const auto homework = PositionsById(Store.Assignment);
    const auto events = PositionsById(Store.EventRecord);
    for (int row = 1; row <= rows.ReminderIds.Count(); ++row) {
        const std::string& mode = rows.ReminderModes.Item(row);
        const auto& positions = mode == EventMode ? events : mode == TaskMode ? tasks : homework;
        const auto found = positions.find(rows.ReminderIds.Item(row));
        RemoveRecord(mode, found == positions.end() ? 0 : found->second, flags);
    }
}

void EmptyReminderRows(ReminderListRows& rows, ReminderFlags& flags) {
    rows = {};
    flags.ReminderSelectedRow = 0;
}

int ReminderPosition(std::string_view mode, std::string_view id) {
    if (mode == EventMode) {
        return PositionOf(Store.EventRecord, id);
    }
    return mode == TaskMode ? PositionOf(Store.TaskRecord, id) : PositionOf(Store.Assignment, id);
}

void TakeOutReminderRow(ReminderListRows& rows, int row, ReminderFlags& flags) {
    ForEachList(rows, [row](auto& list) { list.Remove(row); });
    flags.ReminderSelectedRow = std::min(flags.ReminderSelectedRow, rows.ReminderIds.Count());
}

void TakeOutTermRows(ReminderListRows& rows, ReminderFlags& flags) {
    const auto events = PositionsById(Store.EventRecord);
    const ReminderItem selected = ItemOfRow(rows, flags.ReminderSelectedRow);
    RowOrder kept;
    for (int row = 1; row <= rows.ReminderIds.Count(); ++row) {
        const std::string& mode = rows.ReminderModes.Item(row);
        const auto event = mode == EventMode ? events.find(rows.ReminderIds.Item(row)) : events.end();
        const bool meeting =
            event != events.end() && IsClassMeeting(Store.EventRecord.type.Item(event->second));
        if (mode != HomeworkMode && !meeting) {
            kept.push_back(row);
        }
    }
    if (kept.empty()) {
        rows = {};
    }
    ForEachList(rows, [&](auto& list) { Reorder(list, kept); });
    flags.ReminderSelectedRow = RowOfItem(rows, selected);
}
