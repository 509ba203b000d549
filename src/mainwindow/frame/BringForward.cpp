// The ways in which the main window appears and goes: at the start, for a second instance, from the tray, and
// by the close box, which only hides it.
#include "mainwindow/frame/BringForward.h"

#include "core/Module1.h"
#include "mainwindow/flows/WindowFlow.h"
#include "mainwindow/frmMain.h"
#include "planner/reminders/ReminderEngine.h"
#include "toolkit/Modal.h"

#include <QCloseEvent>

void ShowAtStart(frmMain& window, const std::string& commandLine) {
    if (commandLine != "Startup Folder") {
        window.show();
        return;
    }
    // The menu stores "Full" where this looks for "Normal", so "Full" opens no window, as is meant.
    if (window.AutoStart == "Normal") {
        window.show();
    } else if (window.AutoStart == "Min") {
        window.showMinimized();
    }
}

bool LinkExecute(frmMain& window) {
    if (ModalDialogIsOpen()) {
        return false;
    }
    if (window.isMinimized()) {
        window.setWindowState(Qt::WindowNoState); // its normal size, also where it was maximized before
    }
    ShowInFront(window);
    return true;
}

void TrayDoubleClick(frmMain& window) {
    if (!window.isVisible()) {
        window.show();
    }
}

bool frmMain::event(QEvent* event) {
    const bool done = QMainWindow::event(event);
    if (event->type() == QEvent::WindowActivate && CalledFromReminders) {
        // An editor runs a loop of its own, so it opens once the activation is done.
        QMetaObject::invokeMethod(
            this, [this] { emit Asked({.kind = ViewActionKind::OpenFromReminders}); }, Qt::QueuedConnection);
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
