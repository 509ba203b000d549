// The scroll bar of the grid, the wheel, and which layout and fill the mode has.
#include "mainwindow/frmMain.h"

void frmMain::SetGridScroll() {
}

void frmMain::GridScrolled() {
}

void frmMain::MouseWheel(int /*rotation*/) {
}

void frmMain::LayoutGrid() {
}

void frmMain::FillGrid() {
}
