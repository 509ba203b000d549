// The reminder fields that an assignment and a task have alike, under one name each.
#pragma once

#include "core/Module1.h"

#include <string_view>

// Where a row of the reminder list comes from.
inline constexpr std::string_view TaskMode = "Task";
inline constexpr std::string_view HomeworkMode = "Homework";
inline constexpr std::string_view EventMode = "Event";

struct ItemReminderLists {
    TextList& id;
    TextList& desc;
    TextList& date;
    TextList& reminder;
    TextList& reminderDate;
    TextList& reminderTime;
    TextList& reminderAlarm;
    TextList& reminderList;
};

// Those of the tasks or, for any other mode, of the homework.
inline ItemReminderLists ItemReminders(std::string_view mode) {
    TaskLists& tasks = Store.TaskRecord;
    AssignmentLists& assignments = Store.Assignment;
    if (mode == TaskMode) {
        return {tasks.id,
                tasks.desc,
                tasks.date,
                tasks.reminder,
                tasks.reminder_date,
                tasks.reminder_time,
                tasks.reminder_alarm,
                tasks.reminder_list};
    }
    return {assignments.id,
            assignments.desc,
            assignments.date,
            assignments.reminder,
            assignments.reminderdate,
            assignments.remindertime,
            assignments.reminderalarm,
            assignments.reminderlist};
}
