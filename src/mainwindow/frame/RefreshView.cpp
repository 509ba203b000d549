// The one procedure in which every change of the window ends: what is redone, by reason and mode.
#include "mainwindow/frmMain.h"
#include "mainwindow/modes/ModeTables.h"
#include "mainwindow/panels/ShowBox.h"
#include "planner/study/StudyTimeToday.h"

namespace {

constexpr int MorningRow = 11; // the day's schedule opens with the half hour of 5 AM

void ShowStudyTimeToday(const frmMain& window, Date day) {
    const StudyTimeBoxes boxes = StudyTimeToday(day);
    ShowBox(window.TextBoxMinimum, boxes.TextBoxMinimum);
    ShowBox(window.TextBoxSuggested, boxes.TextBoxSuggested);
}

void OpenAtMorning(QScrollBar* scroll) {
    if (scroll->value() < MorningRow) {
        scroll->setValue(MorningRow);
    }
}

void RunStep(frmMain& window, char step) {
    switch (step) {
    case 'B':
        for (const char part : std::string_view("CMb")) {
            RunStep(window, part);
        }
        break;
    case 'C':
        window.ClickedDate = window.SelectedDate;
        break;
    case 'D':
        window.ClickedDate = Today();
        break;
    case 'M':
        window.ShownMonth = UnknownMonth;
        break;
    case 'b':
        window.BuildMonth();
        break;
    case 'L':
        window.LayoutGrid();
        break;
    case 'F':
        window.FillGrid();
        break;
    case 'A':
        window.StudyTimeAlerts();
        break;
    case 'T':
        ShowStudyTimeToday(window, window.ClickedDate);
        break;
    case 'S':
        OpenAtMorning(window.VSGridScroll);
        break;
    default:
        break;
    }
}

} // namespace

void frmMain::RefreshView() {
    for (const char step : RefreshSteps(RefreshReason, CurrentMode())) {
        RunStep(*this, step);
    }
    RefreshReason = ReasonNone;
}

void frmMain::RefreshFor(std::string_view reason) {
    RefreshReason = reason;
    RefreshView();
}

void frmMain::RefreshAfterResize() {
    const bool atWork = ChangingMode || RefreshReason != ReasonNone;
    if (!isMinimized() && !atWork && CurrentMode() != Mode::None) {
        RefreshFor(ReasonResize);
    }
}
