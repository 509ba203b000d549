// What the buttons of the reminder window do. None of them does anything while a tick runs.
#include "core/Module1.h"
#include "editors/EditorParts.h"
#include "planner/reminders/ReminderActions.h"
#include "reminders/frmReminders.h"

#include <QScopedValueRollback>

// The item that a button acts on; none where there is none, or where its record has gone: that row goes at
// the next scan.
ReminderItem frmReminders::ItemToActOn() const {
    const ReminderItem item = ItemOfRow(*this, ReminderBusy ? 0 : ReminderSelectedRow);
    return ReminderPosition(item.mode, item.id) == 0 ? ReminderItem{} : item;
}

void frmReminders::ViewItem() {
    const ReminderItem item = ItemToActOn();
    if (item.id.empty()) {
        return;
    }
    ReminderOpenMode = item.mode;
    ReminderOpenId = item.id;
    ReminderIndex = ReminderPosition(item.mode, item.id);
    CalledFromReminders = true;
    emit OpenAsked();
}

void frmReminders::ResetItem() {
    const ReminderItem item = ItemToActOn();
    if (item.id.empty()) {
        return;
    }
    NormaliseInterval();
    {
        const QScopedValueRollback hold(ReminderHold, true);
        SnoozeReminder(item.mode, item.id, TextOf(ComboReminderTime), Now(), *this);
        WriteChangedFiles();
        TakeOutSelectedRow();
    }
    SetReminderButtons();
}

void frmReminders::RemoveItem() {
    const ReminderItem item = ItemToActOn();
    if (item.id.empty()) {
        return;
    }
    {
        const QScopedValueRollback hold(ReminderHold, true);
        RemoveReminder(item.mode, item.id, *this);
        WriteChangedFiles();
        TakeOutSelectedRow();
        SetReminderTitle(ReminderIds.Count());
    }
    SetReminderButtons();
}

// The title stays until the next scan, as is meant.
void frmReminders::RemoveAllItems() {
    if (ReminderBusy) {
        return;
    }
    {
        const QScopedValueRollback hold(ReminderHold, true);
        if (ReminderIds.Count() > 1 && !IsYes("Remove all reminders from the list?")) {
            return;
        }
        if (ShuttingDown) {
            return;
        }
        RemoveAllReminders(*this, *this);
        WriteChangedFiles();
        EmptyReminderRows(*this, *this);
        DrawReminderGrid();
    }
    SetReminderButtons();
}

void frmReminders::TakeOutSelectedRow() {
    TakeOutReminderRow(*this, ReminderSelectedRow, *this);
    DrawReminderGrid();
}
