// The rows of the Tasks list and of a day's tasks, and the counters of the Tasks mode.
#pragma once

#include "planner/rows/BoxText.h"
#include "planner/rows/ListFilter.h"
#include "platform/Clock.h"

// Fills TaskRows, TaskRowType, TaskRowForeColor and TaskRowBackColor with the tasks in the range of
// ComboDateRange that pass ComboList, deleted ones left out. The range "Day" takes the dated tasks of the
// day, or every task when it is AllDates. TaskCount and TaskDoneCount count the range, whatever the filter. A
// bad text raises the run-time error.
void SelectTasks(Date day, const ListFilter& filter);

struct TaskBoxes {
    BoxText TextBoxTotalTasks;    // dated tasks of the day
    BoxText TextBoxFinishedTasks; // those not done
    BoxText TextBoxUndatedTasks;  // tasks without a date that are not done
};

// Sets the task counters, whatever the filters. Deleted tasks count as they stand, as is meant.
TaskBoxes CountTasks(Date day);

// Fills the rows of SelectTasks with the dated tasks of the day, whatever the filters, deleted ones included,
// as is meant. TaskCount and TaskDoneCount count them.
void SelectTasksForDay(Date day);
