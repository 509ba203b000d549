// The rows of the Reminders list: all that is due by a day, homework, tasks and events together.
#pragma once

#include "planner/rows/BoxText.h"
#include "planner/rows/ListFilter.h"
#include "platform/Clock.h"

struct ReminderBoxes {
    BoxText TextboxAssignments;
    BoxText TextBoxTasks;
    BoxText TextBoxEvents;
};

// Fills the reminder rows with the tasks, the assignments and the events that are due by the day, in this
// order, as far as ComboList takes them: "All", "Tasks", "Homework" or "Events". The three counters count all
// of them. A bad text raises the run-time error.
ReminderBoxes SelectReminders(Date day, const ListFilter& filter);
