// The scroll bar of the grid, the wheel, and which layout and fill the mode has.
#include "mainwindow/frmMain.h"
#include "mainwindow/grid/GridLayout.h"
#include "mainwindow/input/GridAccessible.h"
#include "mainwindow/input/GridPointer.h"

#include <QSignalBlocker>
#include <QWheelEvent>

#include <algorithm>

// Silent, since a fill is under way that shows what the bar then says.
void frmMain::SetGridScroll() {
    const GridScroll scroll = GridScrollFor(RowCount, RowsVisible);
    const QSignalBlocker silence(VSGridScroll);
    VSGridScroll->setEnabled(scroll.enabled);
    VSGridScroll->setRange(1, scroll.greatest);
    VSGridScroll->setPageStep(scroll.largeStep);
    FirstRow = VSGridScroll->value();
}

void frmMain::GridScrolled() {
    FirstRow = VSGridScroll->value();
    RepaintGrid();
}

void frmMain::RepaintGrid() {
    LayoutGrid();
    FillGrid();
}

void frmMain::ScrollGridTo(int firstRow) {
    const int value = std::clamp(firstRow, VSGridScroll->minimum(), VSGridScroll->maximum());
    if (value == VSGridScroll->value()) {
        RepaintGrid();
    } else {
        VSGridScroll->setValue(value); // repaints
    }
}

void frmMain::ShowRow(int row) {
    ScrollGridTo(FirstRowShowing(row, FirstRow, RowsVisible));
    NotifyGridMoved(*this);
}

// The bar is hidden, but not disabled, while the month is shown.
void frmMain::MouseWheel(int rotation) {
    if (VSGridScroll->isEnabled() && !VSGridScroll->isHidden()) {
        VSGridScroll->setValue(WheelTarget(rotation, VSGridScroll->value(), VSGridScroll->maximum()));
    }
}

// The wheel counts wherever the pointer is over the window: nothing there takes it for itself but the scroll
// bar and a filter menu that has the focus.
void frmMain::wheelEvent(QWheelEvent* event) {
    WheelRest += event->angleDelta().y();
    const int notches = WheelRest / QWheelEvent::DefaultDeltasPerStep;
    WheelRest -= notches * QWheelEvent::DefaultDeltasPerStep;
    if (notches != 0) {
        MouseWheel(notches);
    }
    event->accept();
}

void frmMain::LayoutGrid() {
    switch (CurrentMode()) {
    case Mode::Homework:
        return LayoutHomeworkGrid();
    case Mode::Calendar:
        return LayoutCalendarGrid();
    case Mode::StudySessions:
        return LayoutStudyGrid();
    case Mode::Tasks:
        return LayoutTaskGrid();
    case Mode::Events:
        return LayoutEventGrid();
    case Mode::Reminders:
        return LayoutReminderGrid();
    case Mode::None:
        return;
    }
}

void frmMain::FillGrid() {
    switch (CurrentMode()) {
    case Mode::Homework:
        FillHomeworkList();
        break;
    case Mode::Calendar:
        ShowCalendarTitles();
        break;
    case Mode::StudySessions:
        FillStudyList();
        break;
    case Mode::Tasks:
        FillTaskList();
        break;
    case Mode::Events:
        FillEventDay();
        break;
    case Mode::Reminders:
        FillReminderList();
        break;
    case Mode::None:
        return;
    }
    RefreshGridPointer(*this);
    NotifyGridChanged(*this);
}
