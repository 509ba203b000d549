// The window itself, as commands open and hide it.
#include "mainwindow/flows/WindowFlow.h"

#include "mainwindow/frmMain.h"
#include "reminders/frmReminders.h"

void OpenWindow(frmMain& window) {
    if (window.isVisible() && window.isMinimized()) {
        window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    } else {
        window.show();
    }
}

void ShowInFront(frmMain& window) {
    if (window.isMinimized()) {
        window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    }
    window.show();
    window.raise();
    window.activateWindow();
}

void HideWindows(frmMain& window) {
    ReminderListWindow->hide();
    window.hide();
}
