// The flows of an event.
#include "mainwindow/frmMain.h"

void frmMain::NewEvent() {
}

void frmMain::NewMorningEvent() {
    EventClickedStartTime = "9:00 AM";
    NewEvent();
}

void frmMain::EditEvent(int /*position*/) {
}
