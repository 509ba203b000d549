// The flows of a task: asked for, entered, written.
#include "mainwindow/frmMain.h"

void frmMain::NewTask() {
}

void frmMain::EditTask(int /*index*/) {
}
