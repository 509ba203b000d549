// The commands of the menu bar, the mode bar and the buttons, bound to their procedures.
#include "mainwindow/frmMain.h"

void frmMain::BindCommands() {
    connect(MenuExit, &QAction::triggered, this, &frmMain::HideWindows);
}
