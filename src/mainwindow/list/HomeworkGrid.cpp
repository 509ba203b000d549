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
#include "planner/rows/RowTexts.h"

GridRow HomeworkGridRow(int row) {
    const AssignmentLists& store = Store.Assignment;
    const int position = HomeworkRows.Item(row);
    return {RowForeColor.Item(row),
            RowBackColor.Item(row),
            {ReminderCell(store.reminder.Item(position)), PriorityCell(store.priority.Item(position)),
             NameCell(RowClass.Item(row)), TrimmedCell(store.type.Item(position)),
             NameCell(store.desc.Item(position), AssignmentName(position)),
             ClockCell(store.time_left.Item(position)), DateCell(store.date.Item(position)),
             CheckCell(store.done.Item(position)), TrimmedCell(store.grade.Item(position))}};
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
