// The keys of the grid: arrows, Page Up and Down, Home and End, Enter.
#include "mainwindow/frmMain.h"

bool frmMain::GridKeyPressed(int /*key*/) {
    return false;
}
