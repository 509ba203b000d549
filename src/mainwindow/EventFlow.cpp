// The flows of an event.
#include "mainwindow/frmMain.h"

void frmMain::NewEvent() {
}

void frmMain::EditEvent(int /*index*/) {
}
