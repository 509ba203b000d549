// The flows of an event: asked for, entered, written.
#include "mainwindow/flows/EventFlow.h"

#include "mainwindow/frmMain.h"

void NewEvent(frmMain& /*window*/) {
}

void NewMorningEvent(frmMain& window) {
    window.EventClickedStartTime = "9:00 AM";
    NewEvent(window);
}

void EditEvent(frmMain& /*window*/, int /*position*/, Date /*day*/) {
}

void EditEvent(frmMain& window, int position) {
    EditEvent(window, position, window.ClickedDate);
}
