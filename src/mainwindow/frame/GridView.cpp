// The view on the grid: which layout and fill the mode has.
#include "mainwindow/frmMain.h"
#include "mainwindow/input/GridAccessible.h"
#include "mainwindow/input/GridPointer.h"

void frmMain::RepaintGrid() {
    LayoutGrid();
    FillGrid();
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
