// The one procedure in which every change of the window ends: what is redone, by reason and mode.
#include "mainwindow/frmMain.h"

void frmMain::RefreshView() {
    RefreshReason = ReasonNone;
}

void frmMain::RefreshFor(std::string_view reason) {
    RefreshReason = reason;
    RefreshView();
}
