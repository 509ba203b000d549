// The schedule of a day in Events mode.
#include "mainwindow/frmMain.h"

void frmMain::LayoutEventGrid() {
}

void frmMain::FillEventDay() {
}
