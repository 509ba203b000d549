// The window itself, as commands open and hide it.
#include "mainwindow/flows/WindowFlow.h"

#include "mainwindow/frmMain.h"

void OpenWindow(frmMain& window) {
    if (window.isVisible() && window.isMinimized()) {
        window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    } else {
        window.show();
    }
}

void HideWindows(frmMain& window) {
    window.hide();
}
