// The flows of an assignment: asked for, entered, written.
#include "mainwindow/frmMain.h"

void frmMain::NewAssignment() {
}

void frmMain::EditAssignment(int /*index*/) {
}
