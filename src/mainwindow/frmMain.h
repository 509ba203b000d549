// frmMain, the main window: its controls, its public state and its painting. Each part has a struct of its
// own in state/; what the window does on the student's behalf stands in menus/, modes/, flows/ and frame/.
#pragma once

#include "mainwindow/state/CalendarState.h"
#include "mainwindow/state/DayState.h"
#include "mainwindow/state/GridState.h"
#include "mainwindow/state/LeftPanelControls.h"
#include "mainwindow/state/MenuBarControls.h"
#include "mainwindow/state/Mode.h"
#include "mainwindow/state/ModeBarControls.h"
#include "mainwindow/state/Options.h"
#include "mainwindow/state/PopupState.h"
#include "mainwindow/state/StatusBarState.h"
#include "mainwindow/state/ViewAction.h"
#include "planner/rows/ListFilter.h"
#include "toolkit/ClickLabel.h"
#include "toolkit/DayLabels.h"
#include "toolkit/PictureBox.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>
#include <QToolButton>

#include <array>
#include <string>

// What stands for a mode in the window: its menu item, its picture and word in the mode bar (some have no
// word), and the boxes of its three counters (null for none).
struct ModeControls {
    QAction* item;
    PictureBox* picture;
    ClickLabel* word;
    std::array<QLineEdit*, 3> boxes;
};

class frmMain : public QMainWindow,
                public MenuBarControls,
                public PopupState,
                public ModeBarControls,
                public LeftPanelControls,
                public CalendarState,
                public GridState,
                public DayState,
                public StatusBarState,
                public Options {
    Q_OBJECT

public:
    frmMain();

    // --- What the window shows (ShownMode.cpp) ---
    std::string RefreshReason{ReasonNone}; // the order to RefreshView
    bool ChangingMode = false;             // a mode entry fills the filter menus, whose handlers keep quiet

    Mode CurrentMode() const;

    // In the order of Mode.
    std::array<ModeControls, ModeCount> AllModeControls() const;

    // What stands before the boxes of the three counters.
    std::array<QLabel*, 3> CounterLabels() const;

    // What the selections read from the window, filled for one call.
    ListFilter CurrentFilter() const;
    SortOrder CurrentSort() const;

    // --- Painting, all of it (RefreshView.cpp, GridView.cpp) ---

    // Redoes as much of the window as RefreshReason needs in this mode; always leaves the reason "None".
    void RefreshView();

    // Sets the reason and refreshes.
    void RefreshFor(std::string_view reason);

    // For the grid's new size, unless the window is minimized or at work.
    void RefreshAfterResize();

    // The layout and the fill of the mode.
    void LayoutGrid();
    void FillGrid();

    // --- Painting the month (MonthCalendar.cpp, LargeCalendar.cpp) ---
    void BuildMonth();
    void PaintTodayButtons();
    void PaintMonthCells();
    void LayoutCalendarGrid();
    void ShowCalendarTitles();

    // --- Painting the lists (ListGrid.cpp, HomeworkGrid.cpp, StudyGrid.cpp, ...) ---
    void LayoutHomeworkGrid();
    void FillHomeworkList();
    void LayoutStudyGrid();
    void FillStudyList();
    void LayoutTaskGrid();
    void FillTaskList();
    void LayoutReminderGrid();
    void FillReminderList();
    void LayoutEventList();
    void FillEventList();

    // --- Painting the day (DaySchedule.cpp) ---
    void LayoutEventGrid();
    void FillEventDay();

    // --- Painting the panels (StatusBar.cpp, StudyTimer.cpp) ---
    void PaintStatusBar();
    void PaintStudyTimer();

signals:
    // A view was clicked, a key was pressed in it or a screen reader pressed it.
    void Asked(const ViewAction& action);

    // The planner is to end.
    void EndAsked();

protected:
    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;
};

// The one main window, from its load until the process ends.
extern frmMain* MainWindow;
