// The Reminders list.
#include "core/RowLists.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/grid/ViewParts.h"
#include "mainwindow/list/ListGrid.h"
#include "mainwindow/list/ListRows.h"
#include "mainwindow/panels/ShowBox.h"
#include "planner/dates/DaysAway.h"
#include "planner/lists/ReminderSelection.h"
#include "planner/lists/RowSorts.h"

GridRow ReminderGridRow(int row) {
    return {ReminderRowForeColor.Item(row),
            ReminderRowBackColor.Item(row),
            {TextCell(ReminderRowKind.Item(row)), TextCell(ReminderRowClass.Item(row)),
             TextCell(ReminderRowType.Item(row)), TextCell(ReminderRowText.Item(row)),
             TextCell(DaysAway(ReminderRowDays.Item(row))), DateCell(ReminderRowDate.Item(row))}};
}

void frmMain::LayoutReminderGrid() {
    LayoutList(*this, ListKind::Reminders);
}

void frmMain::FillReminderList() {
    ShowTopTitlesOfDay(*this, "Reminders for ");
    const ReminderBoxes boxes = SelectReminders(ClickedDate, CurrentFilter());
    SortReminderRows(CurrentSort());
    ShowBox(TextboxAssignments, boxes.TextboxAssignments);
    ShowBox(TextBoxTasks, boxes.TextBoxTasks);
    ShowBox(TextBoxEvents, boxes.TextBoxEvents);
    ShowList(*this, ListKind::Reminders);
}
