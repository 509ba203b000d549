// What the reminder window asks of the main window.
#include "mainwindow/flows/ReminderFlow.h"

#include "core/Module1.h"
#include "mainwindow/flows/AssignmentFlow.h"
#include "mainwindow/flows/EventFlow.h"
#include "mainwindow/flows/TaskFlow.h"
#include "mainwindow/flows/WindowFlow.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/modes/Modes.h"
#include "planner/reminders/ReminderActions.h"
#include "planner/reminders/ReminderItems.h"
#include "reminders/frmReminders.h"
#include "toolkit/Modal.h"

namespace {

void OpenItem(frmMain& window, int position) {
    if (ReminderOpenMode == TaskMode) {
        ChooseMode(window, Mode::Tasks);
        EditTask(window, position);
    } else if (ReminderOpenMode == HomeworkMode) {
        ChooseMode(window, Mode::Homework);
        EditAssignment(window, position);
    } else if (ReminderOpenMode == EventMode) {
        window.ClickedDate = ReminderDayOf(position);
        window.SelectedDate = window.ClickedDate; // which the mode entry takes the clicked day from
        ShowEventMode(window);
        EditEvent(window, position);
    }
}

} // namespace

void ShowReminders(frmMain& /*window*/) {
    ReminderListWindow->ShowByHand();
}

// Coming forward opens the item too, whichever is first; no activation may come at all.
void ComeForwardForReminder(frmMain& window) {
    ShowInFront(window);
    QMetaObject::invokeMethod(
        &window, [&window] { OpenFromReminders(window); }, Qt::QueuedConnection);
}

void OpenFromReminders(frmMain& window) {
    if (!CalledFromReminders) {
        return;
    }
    CalledFromReminders = false;
    if (ShuttingDown || ModalDialogIsOpen()) {
        return;
    }
    ReminderIndex = ReminderPosition(ReminderOpenMode, ReminderOpenId); // records may have gone meanwhile
    if (ReminderIndex > 0) {
        OpenItem(window, ReminderIndex);
    }
}
