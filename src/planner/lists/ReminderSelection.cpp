// The rows of the Reminders list: all that is due by a day, homework, tasks and events together.
#include "planner/lists/ReminderSelection.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/RowLists.h"
#include "core/Values.h"
#include "planner/dates/DateHelpers.h"
#include "planner/recurrence/EventWalk.h"
#include "planner/reminders/ReminderItems.h"
#include "planner/rows/ClassLink.h"
#include "planner/rows/Colors.h"
#include "planner/rows/RowLook.h"
#include "planner/rows/RowTexts.h"

namespace {

struct ReminderRow {
    int position;
    std::string_view kind;
    std::string className;
    std::string type;
    std::string text;
    Date date;
};

void ClearRowsAndCounters() {
    ClearLists(ReminderRowLists);
    ReminderHomeworkCount = 0;
    ReminderTaskCount = 0;
    ReminderEventCount = 0;
}

void AddRow(ReminderRow row, const RowLook& look, Date day) {
    ReminderRows.Add(row.position);
    ReminderRowKind.Add(std::string(row.kind));
    ReminderRowClass.Add(std::move(row.className));
    ReminderRowType.Add(std::move(row.type));
    ReminderRowText.Add(std::move(row.text));
    ReminderRowDays.Add(DayDiff(day, row.date));
    ReminderRowDate.Add(row.date);
    ReminderRowForeColor.Add(look.forecolor);
    ReminderRowBackColor.Add(look.backcolor);
}

bool IsDue(Date date, std::string_view reminder, Date day) {
    return date - std::chrono::days{LeadDays(reminder)} <= day;
}

bool Takes(const ListFilter& filter, std::string_view source) {
    return filter.comboList == "All" || filter.comboList == source;
}

void SelectTaskReminders(Date day, bool taken) {
    const TaskLists& tasks = Store.TaskRecord;
    for (int position = 1, records = WholeRecords(tasks); position <= records; ++position) {
        if (tasks.desc.Item(position) == DeletedRecord || IsTrue(tasks.done.Item(position)) ||
            !IsTrue(tasks.date_exists.Item(position))) {
            continue;
        }
        const Date date = DateValue(tasks.date.Item(position));
        if (!IsDue(date, tasks.reminder.Item(position), day)) {
            continue;
        }
        ++ReminderTaskCount;
        if (taken) {
            const RowLook look = TaskTypeLook(tasks.type.Item(position));
            AddRow({position, TaskMode, "", look.name, std::string(TaskName(position)), date}, look, day);
        }
    }
}

void SelectHomeworkReminders(Date day, bool taken) {
    const AssignmentLists& assignments = Store.Assignment;
    const ClassPositions classes = ClassPositionsById();
    for (int position = 1, records = WholeRecords(assignments); position <= records; ++position) {
        if (assignments.desc.Item(position) == DeletedRecord || IsTrue(assignments.done.Item(position))) {
            continue;
        }
        const Date date = DateValue(assignments.date.Item(position));
        if (!IsDue(date, assignments.reminder.Item(position), day)) {
            continue;
        }
        ++ReminderHomeworkCount;
        if (taken) {
            const RowLook look = ClassLook(ClassPositionOf(classes, assignments.class_.Item(position)));
            AddRow({position, HomeworkMode, look.name, assignments.type.Item(position),
                    std::string(AssignmentName(position)), date},
                   look, day);
        }
    }
}

void AddEventReminderToList(const EventReminder& reminder, Date day) {
    const EventLists& events = Store.EventRecord;
    const std::string& type = events.type.Item(reminder.position);
    const RowLook look = EventTypeLook(type);
    AddRow({reminder.position, EventMode, IsClassMeeting(type) ? look.name : "", look.name,
            std::string(EventName(reminder.position)), reminder.date},
           look, day);
}

BoxText OpenItems(int count) {
    return {std::to_string(count), count != 0 ? ColorNotDone : ColorWhite};
}

} // namespace

ReminderBoxes SelectReminders(Date day, const ListFilter& filter) {
    ClearRowsAndCounters();
    SelectTaskReminders(day, Takes(filter, "Tasks"));
    SelectHomeworkReminders(day, Takes(filter, "Homework"));
    for (const EventReminder& reminder : SelectEventReminders(day)) {
        ++ReminderEventCount;
        if (Takes(filter, "Events")) {
            AddEventReminderToList(reminder, day);
        }
    }
    return {OpenItems(ReminderHomeworkCount),
            OpenItems(ReminderTaskCount),
            {std::to_string(ReminderEventCount), ColorWhite}};
}
