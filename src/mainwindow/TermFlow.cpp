// The flow of a term and its classes: chosen, entered, written.
#include "mainwindow/frmMain.h"

void frmMain::ClassSchedule() {
}
