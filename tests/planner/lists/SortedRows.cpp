// Rows in the row lists for the tests of the sorts.
#include "planner/lists/SortedRows.h"

void AddHomeworkRow(const AssignmentTexts& assignment, const std::string& className) {
    HomeworkRows.Add(AddAssignmentRecord(assignment));
    RowClass.Add(className);
    RowForeColor.Add(HomeworkRows.Count());
    RowBackColor.Add(HomeworkRows.Count() * 10);
    RowTimeLeft.Add("00:0" + std::to_string(HomeworkRows.Count()));
}

void AddStudyRow(const AssignmentTexts& assignment, const std::string& className, const std::string& time,
                 const std::string& date) {
    AddHomeworkRow(assignment, className);
    RowTimeLeft.Clear();
    StudySessionLists& log = Store.StudySessionRecord;
    log.id.Add("1");
    log.assignment.Add(std::to_string(HomeworkRows.Count()));
    log.time.Add(time);
    log.date.Add(date);
    StudyRowTime.Add(log.time.Count());
    StudyRowDate.Add(log.date.Count());
}

void AddTaskRow(const TaskTexts& task, const std::string& shownType) {
    TaskRows.Add(AddTaskRecord(task));
    TaskRowType.Add(shownType);
    TaskRowForeColor.Add(TaskRows.Count());
    TaskRowBackColor.Add(TaskRows.Count() * 10);
}

void AddEventRowOf(const EventTexts& event, const std::string& shownType, Date date) {
    EventRows.Add(AddEventRecord(event));
    EventRowDate.Add(date);
    EventRowType.Add(shownType);
    EventRowForeColor.Add(EventRows.Count());
    EventRowBackColor.Add(EventRows.Count() * 10);
}

void AddReminderRow(const std::string& kind, const std::string& className, const std::string& type,
                    const std::string& text, int days) {
    ReminderRows.Add(ReminderRows.Count() + 1);
    ReminderRowKind.Add(kind);
    ReminderRowClass.Add(className);
    ReminderRowType.Add(type);
    ReminderRowText.Add(text);
    ReminderRowDays.Add(days);
    ReminderRowDate.Add(Wednesday + std::chrono::days{days});
    ReminderRowForeColor.Add(ReminderRows.Count());
    ReminderRowBackColor.Add(ReminderRows.Count() * 10);
}
