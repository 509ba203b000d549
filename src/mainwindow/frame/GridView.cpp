// The view on the grid: which layout and fill the mode has.
#include "mainwindow/frmMain.h"
#include "mainwindow/input/GridPointer.h"
#include "mainwindow/modes/ModeTables.h"
#include "toolkit/grid/PaintedTable.h"

namespace {

struct GridViewRow {
    Mode mode;
    void (frmMain::*layout)();
    void (frmMain::*fill)();
};

constexpr std::array<GridViewRow, ModeCount> GridViewRows{{
    {Mode::Homework, &frmMain::LayoutHomeworkGrid, &frmMain::FillHomeworkList},
    {Mode::Calendar, &frmMain::LayoutCalendarGrid, &frmMain::ShowCalendarTitles},
    {Mode::StudySessions, &frmMain::LayoutStudyGrid, &frmMain::FillStudyList},
    {Mode::Tasks, &frmMain::LayoutTaskGrid, &frmMain::FillTaskList},
    {Mode::Events, &frmMain::LayoutEventGrid, &frmMain::FillEventDay},
    {Mode::Reminders, &frmMain::LayoutReminderGrid, &frmMain::FillReminderList},
}};

static_assert(StandsInModeOrder(GridViewRows));

} // namespace

void frmMain::LayoutGrid() {
    if (const Mode mode = CurrentMode(); mode != Mode::None) {
        (this->*RowOf(GridViewRows, mode).layout)();
    }
}

void frmMain::FillGrid() {
    const Mode mode = CurrentMode();
    if (mode == Mode::None) {
        return;
    }
    (this->*RowOf(GridViewRows, mode).fill)();
    RefreshGridPointer(*this);
    NotifyTableChanged(picGrid);
}
