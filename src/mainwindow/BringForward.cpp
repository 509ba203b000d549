// The ways in which the main window appears and goes: at the start, for a second instance, from the tray, and
// by the close box, which only hides it.
#include "core/Module1.h"
#include "mainwindow/frmMain.h"
#include "platform/Modal.h"

#include <QCloseEvent>

void frmMain::ShowAtStart(const std::string& commandLine) {
    if (commandLine != "Startup Folder") {
        show();
        return;
    }
    // The menu stores "Full" where this looks for "Normal", so "Full" opens no window. It is meant to be so.
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
        setWindowState(windowState() & ~Qt::WindowMinimized);
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

void frmMain::closeEvent(QCloseEvent* event) {
    if (event->spontaneous() && !ShuttingDown) {
        event->ignore();
        hide();
        return;
    }
    event->accept();
}
