// The ways in which the main window appears and goes: at the start, for a second instance, from the tray, and
// by the close box, which only hides it.
#include "core/Module1.h"
#include "mainwindow/frmMain.h"
#include "planner/reminders/ReminderEngine.h"
#include "planner/reminders/ReminderItems.h"
#include "toolkit/Modal.h"

#include <QCloseEvent>

void frmMain::ShowAtStart(const std::string& commandLine) {
    if (commandLine != "Startup Folder") {
        show();
        return;
    }
    // The menu stores "Full" where this looks for "Normal", so "Full" opens no window, as is meant.
    if (AutoStart == "Normal") {
        show();
    } else if (AutoStart == "Min") {
        showMinimized();
    }
}

bool frmMain::LinkExecute() {
    if (ModalDialogIsOpen()) {
        return false;
    }
    if (isMinimized()) {
        setWindowState(Qt::WindowNoState); // its normal size, also where it was maximized before
    }
    show();
    raise();
    activateWindow();
    return true;
}

void frmMain::TrayDoubleClick() {
    if (!isVisible()) {
        show();
    }
}

// The caption says "Exit"; the program stays in the tray all the same.
void frmMain::HideWindows() {
    hide();
}

void frmMain::OpenFromReminders() {
    if (!CalledFromReminders) {
        return;
    }
    CalledFromReminders = false;
    if (ReminderOpenMode == TaskMode) {
        ChooseMode(Mode::Tasks);
        EditTask(ReminderIndex);
    } else if (ReminderOpenMode == HomeworkMode) {
        ChooseMode(Mode::Homework);
        EditAssignment(ReminderIndex);
    } else if (ReminderOpenMode == EventMode) {
        ClickedDate = ReminderDayOf(ReminderIndex);
        SelectedDate = ClickedDate; // which the mode entry takes the clicked day from
        ShowEventMode();
        EditEvent(ReminderIndex);
    }
}

bool frmMain::event(QEvent* event) {
    const bool done = QMainWindow::event(event);
    if (event->type() == QEvent::WindowActivate && CalledFromReminders) {
        // An editor runs a loop of its own, so it opens once the activation is done.
        QMetaObject::invokeMethod(this, &frmMain::OpenFromReminders, Qt::QueuedConnection);
    }
    if (event->type() == QEvent::WindowStateChange &&
        static_cast<QWindowStateChangeEvent*>(event)->oldState().testFlag(Qt::WindowMinimized)) {
        RefreshAfterResize(); // what was resized while it was minimized has not been laid out
    }
    return done;
}

void frmMain::closeEvent(QCloseEvent* event) {
    if (event->spontaneous() && !ShuttingDown) {
        event->ignore();
        hide();
        return;
    }
    event->accept();
}
