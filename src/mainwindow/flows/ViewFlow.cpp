// What the views lead to: another day, another first day of the week, the editor of a row.
#include "mainwindow/flows/ViewFlow.h"

#include "core/Module1.h"
#include "core/RowLists.h"
#include "mainwindow/day/DayLayout.h"
#include "mainwindow/flows/AssignmentFlow.h"
#include "mainwindow/flows/EventFlow.h"
#include "mainwindow/flows/TaskFlow.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/modes/ModeTables.h"
#include "mainwindow/panels/CalendarSteps.h"
#include "planner/reminders/ReminderItems.h"
#include "toolkit/grid/ListInput.h"
#include "toolkit/grid/ListPainting.h"
#include "toolkit/grid/PaintedTable.h"

namespace {

// The keys go on from the half hour, and from the event row in it or 0.
void MoveCurrentHalfHour(frmMain& window, int halfHour, int eventRow) {
    if (halfHour != window.CurrentHalfHour || eventRow != window.CurrentEvent) {
        window.CurrentHalfHour = halfHour;
        window.CurrentEvent = eventRow;
        window.RepaintGrid();
        NotifyTableMoved(window.picGrid);
    }
}

// The event of a reminder is the occurrence of the row's date.
void EditReminder(frmMain& window, int row) {
    const std::string& kind = ReminderRowKind.Item(row);
    const int position = ReminderRows.Item(row);
    if (kind == HomeworkMode) {
        EditAssignment(window, position);
    } else if (kind == TaskMode) {
        EditTask(window, position);
    } else {
        EditEvent(window, position, ReminderRowDate.Item(row));
    }
}

void EditRecordOf(frmMain& window, int row) {
    switch (ViewOf(window.CurrentMode()).record) {
    case RowRecord::Assignment:
        return EditAssignment(window, HomeworkRows.Item(row));
    case RowRecord::Task:
        return EditTask(window, TaskRows.Item(row));
    case RowRecord::OfReminder:
        return EditReminder(window, row);
    case RowRecord::None:
        return;
    }
}

} // namespace

void GoToDate(frmMain& window, Date date) {
    window.ClickedDate = date;
    window.RefreshFor(ReasonCalendar);
}

void ChooseStartDayOfWeek(frmMain& window, const std::string& day) {
    if (day != window.StartDayOfWeek) {
        window.StartDayOfWeek = day;
        ApplyStartDayOfWeek(window);
    }
}

void ApplyStartDayOfWeek(frmMain& window) {
    ShowStartDayOfWeek(window);
    window.RefreshFor(ReasonStartDayOfWeek);
}

void OpenRow(frmMain& window, int row) {
    SelectRow(window, row);
    const int place = PlaceOfRow(row, window.FirstRow);
    HighlightRow(window, place, true);
    EditRecordOf(window, row);
    HighlightRow(window, place, false);
}

void OpenEventBox(frmMain& window, int row, int halfHour) {
    MoveCurrentHalfHour(window, HalfHourOfEvent(row, halfHour), row);
    EditEvent(window, EventRows.Item(row));
}

void OpenHalfHour(frmMain& window, int halfHour) {
    MoveCurrentHalfHour(window, std::min(halfHour, HalfHours - 1), 0);
    window.EventClickedStartTime = StartTimeOfHalfHour(halfHour);
    NewEvent(window);
}
