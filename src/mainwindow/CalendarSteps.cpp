// The controls of the small calendar: days, steppers held down, today and tomorrow, the first day of the
// week.
#include "mainwindow/frmMain.h"

void frmMain::BindCalendar() {
    TimerButton = new QTimer(this);
}

void frmMain::ApplyStartDayOfWeek() {
}

void frmMain::ChooseStartDayOfWeek(const std::string& /*day*/) {
}

void frmMain::GoToDate(Date /*date*/) {
}
