// The rows of the Tasks list and of a day's tasks, and the counters of the Tasks mode.
#include "planner/lists/TaskSelection.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/RowLists.h"
#include "core/Values.h"
#include "planner/dates/DateHelpers.h"
#include "planner/rows/Colors.h"
#include "planner/rows/RowLook.h"
#include "planner/rows/ViewFilter.h"

namespace {

void ClearRowsAndCounters() {
    ClearLists(TaskRowLists);
    TaskCount = 0;
    TaskDoneCount = 0;
    TaskLeftCount = 0;
}

bool IsDated(int position) {
    return IsTrue(Store.TaskRecord.date_exists.Item(position));
}

bool IsDatedFor(int position, Date day) {
    return IsDated(position) && DateValue(Store.TaskRecord.date.Item(position)) == day;
}

bool IsDone(int position) {
    return IsTrue(Store.TaskRecord.done.Item(position));
}

bool IsInRange(int position, Date day, std::string_view range) {
    if (range == "Day") {
        return day == AllDates || IsDatedFor(position, day);
    }
    return range == "All" || (range == "With Date" && IsDated(position)) ||
           (range == "Without Date" && !IsDated(position));
}

void CountTask(int position) {
    ++TaskCount;
    TaskDoneCount += IsDone(position) ? 1 : 0;
}

void AddTaskRow(int position) {
    RowLook look = TaskTypeLook(Store.TaskRecord.type.Item(position));
    TaskRows.Add(position);
    TaskRowType.Add(std::move(look.name));
    TaskRowForeColor.Add(look.forecolor);
    TaskRowBackColor.Add(look.backcolor);
}

} // namespace

void SelectTasks(Date day, const ListFilter& filter) {
    const TextList& descriptions = Store.TaskRecord.desc;
    ClearRowsAndCounters();
    for (int position = 1, records = WholeRecords(Store.TaskRecord); position <= records; ++position) {
        if (descriptions.Item(position) == DeletedRecord ||
            !IsInRange(position, day, filter.comboDateRange)) {
            continue;
        }
        CountTask(position);
        if (IsItemTaken(Store.TaskRecord.done.Item(position), filter)) {
            AddTaskRow(position);
        }
    }
}

TaskBoxes CountTasks(Date day) {
    TaskCount = 0;
    TaskDoneCount = 0;
    UndatedTaskLeftCount = 0;
    for (int position = 1, records = WholeRecords(Store.TaskRecord); position <= records; ++position) {
        if (IsDatedFor(position, day)) {
            CountTask(position);
        } else if (!IsDated(position) && !IsDone(position)) {
            ++UndatedTaskLeftCount;
        }
    }
    TaskLeftCount = TaskCount - TaskDoneCount;
    const int allDoneColor = TaskCount > 0 ? ColorDone : ColorWhite;
    return {{std::to_string(TaskCount), ColorWhite},
            {std::to_string(TaskLeftCount), TaskLeftCount > 0 ? ColorNotDone : allDoneColor},
            {std::to_string(UndatedTaskLeftCount), UndatedTaskLeftCount > 0 ? ColorNotDone : ColorWhite}};
}

void SelectTasksForDay(Date day) {
    ClearRowsAndCounters();
    for (int position = 1, records = WholeRecords(Store.TaskRecord); position <= records; ++position) {
        if (day == AllDates || IsDatedFor(position, day)) {
            CountTask(position);
            AddTaskRow(position);
        }
    }
}
