// The study timer: a clock that the student starts, pauses and resets.
#include "mainwindow/frmMain.h"

void frmMain::PaintStudyTimer() {
}

void frmMain::ClearStudyTimer() {
}

void frmMain::BindStudyTimer() {
    Timer1 = new QTimer(this);
}
