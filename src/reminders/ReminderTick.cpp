// The tick of the reminders: the scan, the rows as they stand then, and the files of what has fired.
#include "core/Module1.h"
#include "persistence/modIO.h"
#include "planner/reminders/ReminderActions.h"
#include "reminders/frmReminders.h"
#include "toolkit/Modal.h"

#include <QScopedValueRollback>

#include <utility>

namespace {

void WriteIf(bool& changed, RecordFile (*file)(), void (*write)()) {
    if (changed) {
        changed = false;
        DropUnfinishedRecord(file());
        write();
    }
}

} // namespace

void frmReminders::Tick() {
    if (ReminderHold || ReminderBusy || ShuttingDown) {
        return;
    }
    const QScopedValueRollback busy(ReminderBusy, true);
    if (!ModalDialogIsOpen()) {
        ReminderTick();
    }
}

// What was selected stays so when nothing has fired. The files are written before the rows are drawn; a box
// may come then, and a shutdown with it. Until they are drawn the rows stay those that the list shows.
void frmReminders::ReminderTick() {
    const ReminderItem selected = ItemOfRow(*this, ReminderSelectedRow);
    ReminderListRows rows;
    CheckReminders(Now(), *this, rows);
    SetReminderTitle(rows.ReminderIds.Count());
    WriteChangedFiles();
    if (ShuttingDown) {
        return;
    }
    SortReminderListRows(rows, {SortColumn, SortDirection});
    static_cast<ReminderListRows&>(*this) = std::move(rows);
    if (ReminderSelectedRow != 0) {
        ReminderSelectedRow = RowOfItem(*this, selected);
    }
    DrawSortedRows();
    SetReminderButtons();
    if (ReminderShowWindow) {
        ShowReminderWindow();
    }
}

void frmReminders::LeaveTerm() {
    const int rows = ReminderIds.Count();
    TakeOutTermRows(*this, *this);
    if (ReminderIds.Count() != rows) {
        SetReminderTitle(ReminderIds.Count());
        DrawSortedRows();
        SetReminderButtons();
    }
}

void frmReminders::WriteChangedFiles() {
    WriteIf(ReminderTasksChanged, &TaskFile, &WriteTasks);
    WriteIf(ReminderHomeworkChanged, &AssignmentFile, &WriteAssignments);
    WriteIf(ReminderEventsChanged, &EventFile, &WriteEvents);
}
