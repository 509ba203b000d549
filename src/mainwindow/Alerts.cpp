// The alert buttons and the message that each explains itself with.
#include "mainwindow/frmMain.h"

void frmMain::StudyTimeAlerts() {
}

void frmMain::ShowAlertMessage(int /*index*/) {
}
