// What the buttons of the reminder window change in the store and in the rows.
#include "planner/reminders/ReminderActions.h"

#include "core/DateText.h"
#include "core/Values.h"
#include "planner/entries/DurationEntry.h"
#include "planner/entries/ReminderEntry.h"
#include "planner/reminders/AdvanceEventReminder.h"
#include "planner/reminders/ReminderItems.h"

#include <algorithm>

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

void RemoveEvent(int position) {
    EventLists& events = Store.EventRecord;
    events.reminder_list.Replace(position, BooleanText(false));
    if (IsSeries(position)) {
        FollowNextOccurrence(position);
    }
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
    const int position = ReminderPosition(mode, id);
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
