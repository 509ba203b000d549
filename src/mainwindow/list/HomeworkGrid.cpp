// The Homework list.
#include "core/Module1.h"
#include "core/RowLists.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/grid/ViewParts.h"
#include "mainwindow/list/ListGrid.h"
#include "mainwindow/list/ListRows.h"
#include "mainwindow/panels/ShowBox.h"
#include "planner/lists/DayTotals.h"
#include "planner/lists/HomeworkSelection.h"
#include "planner/lists/RowSorts.h"
#include "planner/rows/RowLook.h"

GridRow HomeworkGridRow(int row) {
    const AssignmentLists& store = Store.Assignment;
    const int index = HomeworkRows.Item(row);
    return {RowForeColor.Item(row),
            RowBackColor.Item(row),
            {ReminderCell(store.reminder.Item(index)), PriorityCell(store.priority.Item(index)),
             NameCell(RowClass.Item(row)), TrimmedCell(store.type.Item(index)),
             NameCell(store.desc.Item(index), NewAssignmentText), ClockCell(store.time_left.Item(index)),
             DateCell(store.date.Item(index)), CheckCell(store.done.Item(index)),
             TrimmedCell(store.grade.Item(index))}};
}

void frmMain::LayoutHomeworkGrid() {
    LayoutList(*this, ListKind::Homework);
}

void frmMain::FillHomeworkList() {
    ShowTopTitlesOfTerm(*this, "Homework for ", "Homework for ");
    SelectHomeworkRows(CurrentFilter());
    SortHomeworkRows(CurrentSort());
    const HomeworkDayBoxes boxes = HomeworkDayTotals(ClickedDate);
    ShowBox(TextBoxTotalAssignments, boxes.TextBoxTotalAssignments);
    ShowBox(TextBoxFinishedAssignments, boxes.TextBoxFinishedAssignments);
    ShowBox(TextBoxTimeRemaining, boxes.TextBoxTimeRemaining);
    ShowList(*this, ListKind::Homework);
}
