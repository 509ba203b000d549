// The small calendar: the month computed once for both calendars, and its cells.
#include "mainwindow/frmMain.h"

void frmMain::BuildMonth() {
}

void frmMain::PaintTodayButtons() {
}

void frmMain::PaintMonthCells() {
}
