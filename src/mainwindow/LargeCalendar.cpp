// The large calendar, painted on the grid in Calendar mode.
#include "mainwindow/frmMain.h"

void frmMain::LayoutCalendarGrid() {
}

void frmMain::ShowCalendarTitles() {
}
