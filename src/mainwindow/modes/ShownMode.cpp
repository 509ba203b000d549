// What the window shows now, as whoever selects, paints or counts reads it: the mode, its controls, the
// filters and the order of the rows.
#include "mainwindow/frmMain.h"
#include "mainwindow/modes/ModeTables.h"
#include "toolkit/Text.h"

std::array<ModeControls, ModeCount> frmMain::AllModeControls() const {
    return {{
        {MenuHomework,
         PictureBarHomework,
         LabelBarHomework,
         {TextBoxTotalAssignments, TextBoxFinishedAssignments, TextBoxTimeRemaining}},
        {MenuCalendar, PictureBarCalendar, LabelBarCalendar, {nullptr, nullptr, nullptr}},
        {MenuStudySessions,
         PictureBarStudySessions,
         nullptr,
         {TextBoxStudySessions, nullptr, TextboxStudyTime}},
        {MenuTasks,
         PictureBarTasks,
         LabelBarTasks,
         {TextBoxTotalTasks, TextBoxFinishedTasks, TextBoxUndatedTasks}},
        {MenuEvents,
         PictureBarEvents,
         LabelBarEvents,
         {TextBoxClasses, TextBoxOtherEvents, TextBoxSchedStudy}},
        {MenuReminders, PictureBarReminders, nullptr, {TextboxAssignments, TextBoxTasks, TextBoxEvents}},
    }};
}

std::array<QLabel*, 3> frmMain::CounterLabels() const {
    return {LabelTotalAssignments, LabelFinishedAssignments, LabelTimeRemaining};
}

Mode frmMain::CurrentMode() const {
    const auto controls = AllModeControls();
    for (const ModeRow& row : ModeRows) {
        if (RowOf(controls, row.mode).item->isChecked()) {
            return row.mode;
        }
    }
    return Mode::None;
}

ListFilter frmMain::CurrentFilter() const {
    return {ToStore(ComboList->currentText()), ToStore(ComboDateRange->currentText()), ClickedDate,
            CurrentMode() == Mode::Calendar};
}

SortOrder frmMain::CurrentSort() const {
    return {SortColumn, SortDirection};
}
