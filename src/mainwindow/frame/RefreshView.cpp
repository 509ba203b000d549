// The one procedure in which every change of the window ends: what is redone, by reason and mode.
#include "mainwindow/frmMain.h"
#include "mainwindow/modes/ModeTables.h"
#include "mainwindow/panels/AlertButtons.h"
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

void RunStep(frmMain& window, RefreshStep step) {
    switch (step) {
    case RefreshStep::BuildMonthAnew:
        for (const RefreshStep part :
             {RefreshStep::ClickSelectedDay, RefreshStep::DropMarks, RefreshStep::BuildMonth}) {
            RunStep(window, part);
        }
        break;
    case RefreshStep::ClickSelectedDay:
        window.ClickedDate = window.SelectedDate;
        break;
    case RefreshStep::ClickToday:
        window.ClickedDate = Today();
        break;
    case RefreshStep::DropMarks:
        window.ShownMonth = UnknownMonth;
        break;
    case RefreshStep::BuildMonth:
        window.BuildMonth();
        break;
    case RefreshStep::LayOut:
        window.LayoutGrid();
        break;
    case RefreshStep::Fill:
        window.FillGrid();
        break;
    case RefreshStep::Alerts:
        StudyTimeAlerts(window);
        break;
    case RefreshStep::StudyTime:
        ShowStudyTimeToday(window, window.ClickedDate);
        break;
    case RefreshStep::OpenAtMorning:
        OpenAtMorning(window.VSGridScroll);
        break;
    }
}

} // namespace

void frmMain::RefreshView() {
    for (const char step : RefreshSteps(RefreshReason, CurrentMode())) {
        RunStep(*this, RefreshStep{step});
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
