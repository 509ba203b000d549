// The marks and the counters of the month's days, by mode and filter.
#include "mainwindow/month/MonthMarks.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/RowLists.h"
#include "core/Values.h"
#include "mainwindow/modes/ModeTables.h"
#include "planner/dates/DateHelpers.h"
#include "planner/lists/EventMarks.h"
#include "planner/lists/ViewMenuColor.h"
#include "planner/reminders/ReminderItems.h"
#include "planner/rows/ViewFilter.h"

#include <optional>

namespace {

constexpr int NoAssignment = -1;

std::optional<std::size_t> CellOf(Date date, Date firstCellDate) {
    const int distance = DayDiff(firstCellDate, date);
    if (distance < 0 || distance >= MonthCells) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(distance);
}

void MarkDay(CalendarMonth& month, Date date, Date firstCellDate) {
    if (const std::optional<std::size_t> cell = CellOf(date, firstCellDate)) {
        month.CellMarked[*cell] = true;
    }
}

int ColorOfItems(const ListFilter& filter) {
    if (filter.calendarMode || filter.comboList == "All") {
        return ColorAll;
    }
    return filter.comboList == "Done" ? ColorDone : ColorNotDone;
}

// What the days of assignments and those of tasks have in common.
struct ItemCounters {
    std::array<int, MonthCells>& done;
    std::array<int, MonthCells>& left;
};

void MarkItem(CalendarMonth& month, ItemCounters counters, std::size_t cell, const std::string& done,
              const ListFilter& filter) {
    if (filter.calendarMode) {
        month.CellMarked[cell] = true;
        ++(IsTrue(done) ? counters.done : counters.left)[cell];
    } else if (IsItemTaken(done, filter)) {
        month.CellMarked[cell] = true;
    }
}

int ColorOfReminders(std::string_view comboList) {
    if (comboList == "Homework") {
        return ColorNotDone;
    }
    if (comboList == "Tasks") {
        return ColorTasks;
    }
    return comboList == "Events" ? ColorDone : ColorAll;
}

// The filter has the words of the sources, the rows those of the items: "Homework", "Task", "Event".
bool TakesReminder(std::string_view comboList, const std::string& kind) {
    return comboList == "All" || comboList == (kind == HomeworkMode ? kind : kind + "s");
}

void Mark(CalendarMonth& month, Date firstCellDate, MarkedDays marks, const ListFilter& filter) {
    switch (marks) {
    case MarkedDays::StudySessions:
        return MarkStudyInMonth(month, firstCellDate);
    case MarkedDays::Homework:
        return MarkHomeworkInMonth(month, firstCellDate, filter);
    case MarkedDays::Tasks:
        return MarkTasksInMonth(month, firstCellDate, filter);
    case MarkedDays::Events:
        return MarkEventsInMonth(month, firstCellDate, filter);
    case MarkedDays::Reminders:
        return MarkRemindersInMonth(month, firstCellDate, filter);
    case MarkedDays::None:
        return;
    }
}

} // namespace

void MarkMonth(CalendarMonth& month, Date firstCellDate, Mode mode, const ListFilter& filter) {
    month.CellMarked = {};
    for (const MarkedDays marks : ViewOf(mode).marks) {
        Mark(month, firstCellDate, marks, filter);
    }
}

void MarkStudyInMonth(CalendarMonth& month, Date firstCellDate) {
    const StudySessionLists& log = Store.StudySessionRecord;
    month.ColorMarked = ColorAll;
    for (int entry = 1; entry <= log.assignment.Count(); ++entry) {
        if (IdIn(log.assignment.Item(entry)) != NoAssignment) {
            MarkDay(month, DateValue(log.date.Item(entry)), firstCellDate);
        }
    }
}

void MarkHomeworkInMonth(CalendarMonth& month, Date firstCellDate, const ListFilter& filter) {
    const AssignmentLists& assignments = Store.Assignment;
    month.ColorMarked = ColorOfItems(filter);
    month.HomeworkDoneCount = {};
    month.HomeworkLeftCount = {};
    for (int position = 1, records = WholeRecords(assignments); position <= records; ++position) {
        if (assignments.desc.Item(position) == DeletedRecord) {
            continue;
        }
        if (const auto cell = CellOf(DateValue(assignments.date.Item(position)), firstCellDate)) {
            MarkItem(month, {month.HomeworkDoneCount, month.HomeworkLeftCount}, *cell,
                     assignments.done.Item(position), filter);
        }
    }
}

void MarkTasksInMonth(CalendarMonth& month, Date firstCellDate, const ListFilter& filter) {
    const TaskLists& tasks = Store.TaskRecord;
    month.ColorMarked = ColorOfItems(filter);
    month.TaskDoneCountByDay = {};
    month.TaskLeftCountByDay = {};
    for (int position = 1, records = WholeRecords(tasks); position <= records; ++position) {
        if (tasks.desc.Item(position) == DeletedRecord || !IsTrue(tasks.date_exists.Item(position))) {
            continue;
        }
        if (const auto cell = CellOf(DateValue(tasks.date.Item(position)), firstCellDate)) {
            MarkItem(month, {month.TaskDoneCountByDay, month.TaskLeftCountByDay}, *cell,
                     tasks.done.Item(position), filter);
        }
    }
}

void MarkEventsInMonth(CalendarMonth& month, Date firstCellDate, const ListFilter& filter) {
    month.ColorMarked = ViewMenuColor(filter.comboList).value_or(month.ColorMarked);
    const EventMarks marks = MarkEventDays(firstCellDate, filter);
    month.EventCountByDay = marks.count;
    for (std::size_t cell = 0; cell < MonthCells; ++cell) {
        month.CellMarked[cell] = month.CellMarked[cell] || marks.marked[cell];
    }
}

void MarkRemindersInMonth(CalendarMonth& month, Date firstCellDate, const ListFilter& filter) {
    month.ColorMarked = ColorOfReminders(filter.comboList);
    for (int row = 1; row <= ReminderRows.Count(); ++row) {
        if (TakesReminder(filter.comboList, ReminderRowKind.Item(row))) {
            MarkDay(month, ReminderRowDate.Item(row), firstCellDate);
        }
    }
}
