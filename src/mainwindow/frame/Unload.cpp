// The ordered shutdown, asked for by the tray menu, a termination signal or the end of the desktop session.
// Record files are not written here: each change was saved when it was made.
#include "mainwindow/frame/Unload.h"

#include "core/Module1.h"
#include "core/RunTimeError.h"
#include "mainwindow/flows/PreferencesFlow.h"
#include "mainwindow/frmMain.h"
#include "persistence/ProcessMarker.h"
#include "persistence/modIO.h"
#include "platform/Tray.h"
#include "reminders/frmReminders.h"

#include <QApplication>

namespace {

// An error leaves the rest of the steps undone, and the process goes on ending.
void RunShutdownSteps(const frmMain& window) {
    for (QTimer* timer : {window.Timer1, window.TimerButton, window.TimerStatusBar, window.TimerTip}) {
        timer->stop();
    }
    if (ReminderListWindow != nullptr) { // a shutdown may come before the windows are loaded
        ReminderListWindow->TimerReminders->stop();
    }
    try {
        DeleteProcessMarker();
        if (window.PreferencesWereRead) {
            WritePreferences(window);
        }
        RotateBackups();
        RemoveTrayIcon();
    } catch (const RunTimeError&) {
        return;
    }
}

// The dialogs and boxes, and the main window last.
void HideAllWindows(frmMain& window) {
    for (QWidget* other : QApplication::topLevelWidgets()) {
        if (other != &window) {
            other->hide();
        }
    }
    window.hide();
}

} // namespace

void Unload(frmMain& window) {
    if (ShuttingDown) {
        return;
    }
    ShuttingDown = true;
    RunShutdownSteps(window);
    HideAllWindows(window);
    QApplication::exit();
}
