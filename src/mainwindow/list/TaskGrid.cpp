// The Tasks list.
#include "core/Module1.h"
#include "core/RowLists.h"
#include "core/Values.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/grid/ViewParts.h"
#include "mainwindow/list/ListGrid.h"
#include "mainwindow/list/ListRows.h"
#include "mainwindow/panels/ShowBox.h"
#include "planner/lists/RowSorts.h"
#include "planner/lists/TaskSelection.h"
#include "planner/rows/RowTexts.h"

namespace {

void ShowTaskTitles(frmMain& window) {
    const std::string range = window.CurrentFilter().comboDateRange;
    if (range == "Day") {
        ShowTopTitlesOfDay(window, "Tasks for ");
    } else if (range == "All") {
        ShowTopTitles(window, QStringLiteral("All Tasks"));
    } else if (range == "With Date") {
        ShowTopTitles(window, QStringLiteral("All Tasks with Dates"));
    } else {
        ShowTopTitles(window, QStringLiteral("All Tasks without Dates"));
    }
}

} // namespace

GridRow TaskGridRow(int row) {
    const TaskLists& store = Store.TaskRecord;
    const int position = TaskRows.Item(row);
    const bool dated = IsTrue(store.date_exists.Item(position));
    return {
        TaskRowForeColor.Item(row),
        TaskRowBackColor.Item(row),
        {ReminderCell(store.reminder.Item(position)), NameCell(store.desc.Item(position), TaskName(position)),
         NameCell(ShownChoice(TaskRowType.Item(row))), TextCell(ShownChoice(store.priority.Item(position))),
         dated ? DateCell(store.date.Item(position)) : GridCell{}, CheckCell(store.done.Item(position))}};
}

void frmMain::LayoutTaskGrid() {
    LayoutList(*this, ListKind::Tasks);
}

void frmMain::FillTaskList() {
    ShowTaskTitles(*this);
    SelectTasks(ClickedDate, CurrentFilter());
    SortTaskRows(CurrentSort());
    const TaskBoxes boxes = CountTasks(ClickedDate);
    ShowBox(TextBoxTotalTasks, boxes.TextBoxTotalTasks);
    ShowBox(TextBoxFinishedTasks, boxes.TextBoxFinishedTasks);
    ShowBox(TextBoxUndatedTasks, boxes.TextBoxUndatedTasks);
    ShowList(*this, ListKind::Tasks);
}
