// Classes, assignments and tasks for the tests, and their way into the store.
#include "support/StoreRecords.h"

#include "core/RowLists.h"
#include "core/Values.h"

int AddClassRecord(const ClassTexts& record) {
    ClassLists& classes = Store.ClassRecord;
    classes.id.Add(record.id);
    classes.term.Add(record.term);
    classes.name.Add(record.name);
    classes.credits.Add(record.credits);
    classes.forecolor.Add(record.forecolor);
    classes.backcolor.Add(record.backcolor);
    classes.notes.Add(record.notes);
    return classes.id.Count();
}

int AddAssignmentRecord(const AssignmentTexts& record) {
    AssignmentLists& assignments = Store.Assignment;
    assignments.id.Add(std::to_string(NextId(NextAssignmentID)));
    assignments.class_.Add(record.class_);
    assignments.date.Add(record.date);
    assignments.desc.Add(record.desc);
    assignments.type.Add(record.type);
    assignments.priority.Add(record.priority);
    assignments.est_time.Add(record.est_time);
    assignments.time_left.Add(record.time_left);
    assignments.percent_complete.Add(record.percent_complete);
    assignments.done.Add(record.done);
    assignments.score.Add(record.score);
    assignments.total.Add(record.total);
    assignments.grade.Add(record.grade);
    assignments.reminder.Add(record.reminder);
    assignments.reminderdate.Add(record.reminderdate);
    assignments.remindertime.Add(record.remindertime);
    assignments.reminderalarm.Add(record.reminderalarm);
    assignments.reminderlist.Add(record.reminderlist);
    assignments.notes.Add(record.notes);
    return assignments.id.Count();
}

int AddTaskRecord(const TaskTexts& record) {
    TaskLists& tasks = Store.TaskRecord;
    tasks.id.Add(std::to_string(NextId(NextTaskID)));
    tasks.date.Add(record.date);
    tasks.desc.Add(record.desc);
    tasks.date_exists.Add(record.date_exists);
    tasks.type.Add(record.type);
    tasks.priority.Add(record.priority);
    tasks.percent_complete.Add(record.percent_complete);
    tasks.done.Add(record.done);
    tasks.reminder.Add(record.reminder);
    tasks.reminder_date.Add(record.reminder_date);
    tasks.reminder_time.Add(record.reminder_time);
    tasks.reminder_alarm.Add(record.reminder_alarm);
    tasks.reminder_list.Add(record.reminder_list);
    tasks.notes.Add(record.notes);
    return tasks.id.Count();
}

void ResetStore() {
    Store = {};
    FileWrittenFlags = {};
    LastReads = {};
    SetDefaultTypeTable();
    NextTermID = NextClassID = NextAssignmentID = NextTaskID = NextEventID = 1;
    ChooseActiveTerm("");
    SetupActiveClasses();
    SetFirstOpenFlags();
    StartupComplete = false;
    CalledFromReminders = false;
    ReminderOpenMode.clear();
    ReminderOpenId.clear();
    ReminderIndex = 0;
    ShuttingDown = false;
    ClearLists(HomeworkRowLists);
    ClearLists(StudyRowLists);
    ClearLists(TaskRowLists);
    ClearLists(EventRowLists);
    ClearLists(EventBoxLists);
    ClearLists(ReminderRowLists);
}
