// The clicks on the grid and on its titles, and what they open.
#include "mainwindow/frmMain.h"

void frmMain::BindGrid() {
}

void frmMain::ResortGrid() {
}

void frmMain::ColumnClicked(int /*index*/) {
}

void frmMain::GridPressed(int /*x*/, int /*y*/, Qt::MouseButton /*button*/) {
}

void frmMain::GridReleased(int /*x*/, int /*y*/, Qt::MouseButton /*button*/) {
}
