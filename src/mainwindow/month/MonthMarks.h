// The marks and the counters of the month's days, by mode and filter.
// A record belongs to a cell when its date is 0 to 41 days after that of the first cell.
#pragma once

#include "mainwindow/state/Mode.h"
#include "planner/lists/MonthCells.h"
#include "planner/rows/ListFilter.h"

// Clears the marks and sets those of the mode; Mode::None has none. Counters that the mode does not count
// stay as they were. A bad text in a record raises the run-time error, here and below.
void MarkMonth(CalendarMonth& month, Date firstCellDate, Mode mode, const ListFilter& filter);

// Each of these chooses ColorMarked, clears its own counters and adds its marks.
// The days of the log of study sessions; an entry whose assignment is -1 marks none.
void MarkStudyInMonth(CalendarMonth& month, Date firstCellDate);

// The days of assignments: in Calendar mode all of them, counted as done and not done, else those that the
// filter "All", "Done" or "Not Done" takes.
void MarkHomeworkInMonth(CalendarMonth& month, Date firstCellDate, const ListFilter& filter);

// The same with the tasks that have a date.
void MarkTasksInMonth(CalendarMonth& month, Date firstCellDate, const ListFilter& filter);

// The days of events; all events of a day are counted, those that the filter takes mark it.
void MarkEventsInMonth(CalendarMonth& month, Date firstCellDate, const ListFilter& filter);

// The days of the reminder rows that the filter "All", "Homework", "Tasks" or "Events" takes.
void MarkRemindersInMonth(CalendarMonth& month, Date firstCellDate, const ListFilter& filter);
