// Reminders for the tests: records armed as their editors arm them, and a reminder window without a window.
#include "support/Reminders.h"

#include "core/DateText.h"
#include "planner/entries/ReminderEntry.h"

TaskTexts ArmedTask(TaskTexts task, const std::string& date, const std::string& time) {
    task.reminder = "True";
    task.reminder_date = date;
    task.reminder_time = time;
    task.reminder_alarm = ItemReminderAlarm(DateValue(date), time);
    return task;
}

AssignmentTexts ArmedAssignment(AssignmentTexts assignment, const std::string& date,
                                const std::string& time) {
    assignment.reminder = "True";
    assignment.reminderdate = date;
    assignment.remindertime = time;
    assignment.reminderalarm = ItemReminderAlarm(DateValue(date), time);
    return assignment;
}

void ArmEvent(int index) {
    EventLists& events = Store.EventRecord;
    const EventReminderFields fields = SetEventReminder(
        DateValue(events.date.Item(index)), events.time.Item(index), events.reminder_time.Item(index));
    events.reminder.Replace(index, "True");
    events.reminder_alarm.Replace(index, fields.reminder_alarm);
    events.reminder_list.Replace(index, fields.reminder_list);
    events.reminder_currentday.Replace(index, fields.reminder_currentday);
    events.reminder_nextday.Replace(index, fields.reminder_nextday);
    events.reminder_nextalarm.Replace(index, fields.reminder_nextalarm);
}

int AddArmedEvent(const EventTexts& event) {
    const int index = AddEventRecord(event);
    ArmEvent(index);
    return index;
}

void ReminderWindow::Tick() {
    CheckReminders(Now(), flags, rows);
}

void ReminderWindow::QuietTick() {
    Tick();
    flags.ReminderShowWindow = false;
    flags.ReminderTasksChanged = false;
    flags.ReminderHomeworkChanged = false;
    flags.ReminderEventsChanged = false;
}

std::vector<std::string> ReminderWindow::Standing() const {
    std::vector<std::string> standing;
    for (int row = 1; row <= rows.ReminderIds.Count(); ++row) {
        standing.push_back(rows.ReminderModes.Item(row) + " " + rows.ReminderIds.Item(row));
    }
    return standing;
}
