// The status bar and its clock, and the small panels.
#include "mainwindow/frmMain.h"

void frmMain::PaintStatusBar() {
}

void frmMain::BindPanels() {
    TimerStatusBar = new QTimer(this);
}
