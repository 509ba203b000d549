// frmMain, the main window: its controls, its public state and its procedures. The procedures are defined by
// subject in files of their own; other windows read the fields directly.
#pragma once

#include "mainwindow/state/LargeCalendarLayout.h"
#include "mainwindow/state/Mode.h"
#include "mainwindow/state/PopupItem.h"
#include "mainwindow/state/StudyTimerClock.h"
#include "planner/lists/MonthCells.h"
#include "planner/rows/ListFilter.h"
#include "platform/Clock.h"
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

class ModeBarEntry;
class frmAlert;

inline constexpr int UnknownMonth = 13;

// What stands for a mode in the window: its menu item, its picture and word in the mode bar (some have no
// word), and the boxes of its three counters (null for none).
struct ModeControls {
    QAction* item;
    PictureBox* picture;
    ClickLabel* word;
    std::array<QLineEdit*, 3> boxes;
};

class frmMain : public QMainWindow {
    Q_OBJECT

public:
    frmMain();

    // --- The menu bar (MenuBar.cpp) ---
    QMenu *mnuFile = nullptr, *MenuExport = nullptr, *MenuEdit = nullptr, *MenuOptions = nullptr,
          *MenuStartDay = nullptr, *MenuStartup = nullptr, *MenuHelp = nullptr;
    QAction *MenuCalendar = nullptr, *MenuHomework = nullptr, *MenuEvents = nullptr, *MenuTasks = nullptr,
            *MenuPopupReminders = nullptr, *MenuGPA = nullptr, *MenuReminders = nullptr,
            *MenuStudySessions = nullptr, *MenuPrintScreen = nullptr, *MenuExit = nullptr;
    QAction *MenuExportCalendarAS = nullptr, *MenuExportCalendarEV = nullptr, *MenuExportCalendarTA = nullptr,
            *MenuExportListAS = nullptr, *MenuExportListTA = nullptr, *MenuExportCalendar = nullptr,
            *MenuExportList = nullptr;
    QAction *MenuNewAssignment = nullptr, *MenuNewEvent = nullptr, *MenuNewTask = nullptr,
            *MenuClassSchedule = nullptr;
    QAction *MenuColors = nullptr, *MenuStartSat = nullptr, *MenuStartSun = nullptr, *MenuStartMon = nullptr,
            *MenuStartFull = nullptr, *MenuStartMin = nullptr, *MenuStartTray = nullptr,
            *MenuStartNo = nullptr;
    QAction *MenuHelpDB = nullptr, *MenuHomeworkHelp = nullptr, *MenuShowTips = nullptr, *MenuAbout = nullptr,
            *mnuHelpBar1 = nullptr, *MenuData = nullptr;

    // --- The mode bar (ModeBar.cpp) ---
    PictureBox *PictureBarCalendar = nullptr, *PictureBarHomework = nullptr,
               *PictureBarStudySessions = nullptr, *PictureBarEvents = nullptr, *PictureBarTasks = nullptr,
               *PictureBarReminders = nullptr, *PictureBarWeb = nullptr, *picHelp = nullptr;
    ClickLabel *LabelBarCalendar = nullptr, *LabelBarHomework = nullptr, *LabelBarEvents = nullptr,
               *LabelBarTasks = nullptr, *LabelBarReminders = nullptr, *LabelBarWeb = nullptr;
    std::array<ModeBarEntry*, ModeCount> BarEntries{}; // by Mode; each holds a picture and its word

    // --- The left panel (LeftPanel.cpp) ---
    QWidget* PictureBoxCalendar = nullptr; // the small calendar
    ClickLabel* LabelMonth = nullptr;
    PictureBox *picCalMonthUp = nullptr, *picCalMonthDown = nullptr;
    std::array<ClickLabel*, DaysPerWeek> LabelCalDay{};
    std::array<ClickLabel*, MonthCells> LabelCalDate{};
    TileBorder* LabelCalTileBorder = nullptr; // the frame around today
    PictureBox *picToday = nullptr, *picTomorrow = nullptr;
    ClickLabel *LabelToday = nullptr, *LabelTomorrow = nullptr;
    PictureBox* picLock = nullptr; // over the small calendar in Reminders mode

    QToolButton *ButtonNewAssignmentSmall = nullptr, *ButtonNewEventSmall = nullptr,
                *ButtonNewTaskSmall = nullptr;
    QPushButton *ButtonNewAssignment = nullptr, *ButtonNewEvent = nullptr, *ButtonNewTask = nullptr;

    QWidget *PictureBoxTerm = nullptr, *PictureBoxViewMenus = nullptr, *PictureBoxStudySessions = nullptr,
            *PictureBoxReminders = nullptr, *PictureBoxStudyTime = nullptr, *PictureBoxTimer = nullptr;
    QLabel *LabelTerm = nullptr, *LabelDaysLeft = nullptr;
    QPushButton* ButtonSelectTerm = nullptr;
    QComboBox *ComboList = nullptr, *ComboDateRange = nullptr;
    QLineEdit *TextBoxMinimum = nullptr, *TextBoxSuggested = nullptr;

    // The three counters; each has one box for each mode that shows it.
    QLabel *LabelTotalAssignments = nullptr, *LabelFinishedAssignments = nullptr,
           *LabelTimeRemaining = nullptr;
    QLineEdit *TextBoxTotalAssignments = nullptr, *TextBoxFinishedAssignments = nullptr,
              *TextBoxTimeRemaining = nullptr;
    QLineEdit *TextBoxStudySessions = nullptr, *TextboxStudyTime = nullptr;
    QLineEdit *TextBoxTotalTasks = nullptr, *TextBoxFinishedTasks = nullptr, *TextBoxUndatedTasks = nullptr;
    QLineEdit *TextBoxClasses = nullptr, *TextBoxOtherEvents = nullptr, *TextBoxSchedStudy = nullptr;
    QLineEdit *TextboxAssignments = nullptr, *TextBoxTasks = nullptr, *TextBoxEvents = nullptr;

    std::array<QPushButton*, 4> ButtonAlert{};
    frmAlert* AlertDialog = nullptr; // shows what an alert button means
    PictureBox* picTime = nullptr;
    QPushButton *ButtonStart = nullptr, *ButtonReset = nullptr, *ButtonSeconds = nullptr;

    // --- The right side (BuildWindow.cpp) ---
    QWidget* picTop = nullptr;
    PictureBox *picCalDayUp = nullptr, *picCalDayDown = nullptr;
    QLabel *LabelTop = nullptr, *LabelInfoTitle = nullptr;
    PictureBox* picGrid = nullptr;
    std::array<PictureBox*, 10> picColHeader{}; // on picGrid, like the scroll bar
    QScrollBar* VSGridScroll = nullptr;
    PictureBox* picStatusBar = nullptr;

    // --- Timers ---
    QTimer *TimerStatusBar = nullptr, *Timer1 = nullptr, *TimerButton = nullptr;

    // --- State of the view ---
    Date ClickedDate{};                    // the date that the next build of the month is to show
    Date SelectedDate{};                   // the date that the last one did show
    std::string RefreshReason{ReasonNone}; // the order to RefreshView
    bool ChangingMode = false;             // a mode entry fills the filter menus, whose handlers keep quiet
    int ShownMonth = UnknownMonth;         // month of which the marks are; 13 forces them anew
    int ShownYear = 0;                     // and the year of that month
    CalendarMonth Month;                   // the month that both calendars show
    CalendarLayout CalendarGrid;           // where the large calendar was painted
    bool StepperHeld = false;              // a stepper of the calendar is pressed
    std::size_t HeldStepper = 0;           // the one pressed last
    int SortColumn = 0; // column that the rows are sorted by; what it means depends on the mode
    int SortDirection = Ascending;
    int FirstRow = 1;                  // number of the row at the top of the list
    int RowCount = 0;                  // rows of the mode's list
    int RowsVisible = 0;               // whole rows that fit under the titles
    int HeaderHeight = 0;              // height of the titles in pixels
    int ClickedRow = 0;                // row under the last press; 999 in a list when there is none
    int CurrentRow = 0;                // row of the list on which the keys stand; 0 for none
    int CurrentHalfHour = -1;          // half hour of the day on which they stand; -1 for none
    int CurrentEvent = 0;              // and the event row of it; 0 for none
    int WheelRest = 0;                 // eighths of a degree that the wheel was turned beyond a notch
    QPoint PopupPoint;                 // where on the screen the next popup menu opens
    std::string ModeCaption;           // the left text of the status bar
    std::string EventClickedStartTime; // the half hour clicked in the day schedule
    StudyTimerClock StudyTimer;

    // --- Options, kept in Prefs.ini ---
    std::string StartDayOfWeek = "Monday"; // or "Sunday", "Saturday"; so until the preferences are read
    std::string AutoStart = "Tray";        // or "Full", "Min", "No"
    std::string tempShowTipsAtStartup = "Yes";
    int tempCurrentTip = 0;
    bool PreferencesWereRead = false; // a shutdown before that leaves the file as it is

    // --- Load.cpp, Unload.cpp: the run of the process ---

    // The ordered build of the window and all its data, without showing it. Gives false when the process has
    // to end instead, because the data folder cannot be entered or a shutdown came in between.
    bool LoadPlanner();

    // The ordered shutdown; ends the process.
    void Unload();

    // --- ActiveTerm.cpp ---

    // Makes the term of that name the active one, reads its assignments and shows them.
    void SetActiveTerm(const std::string& name);

    // --- AutoStart.cpp ---

    // Starts with the desktop session from now on as the word says: "Full", "Min", "Tray" or "No".
    void ChooseAutoStart(const std::string& word);

    // Checks the start item of the word; with any other word none.
    void CheckAutoStartItem(const std::string& word);

    // --- PreferencesFlow.cpp ---

    // Takes the options over and puts the window where it was left. Gives the name of the term to activate.
    std::string ReadPreferences();
    void WritePreferences() const;

    // --- BringForward.cpp: the ways in which the window appears and goes ---

    // The first appearance, by the command line and the start mode.
    void ShowAtStart(const std::string& commandLine);

    // What a second instance asks for; refused while a modal dialog is open.
    bool LinkExecute();
    void TrayDoubleClick();
    void HideWindows();

    // Opens the item that the reminder window asks for.
    void OpenFromReminders();

    // --- Modes.cpp: the mode entries, and which mode it is ---
    Mode CurrentMode() const;

    // In the order of Mode.
    std::array<ModeControls, ModeCount> AllModeControls() const;

    // What stands before the boxes of the three counters.
    std::array<QLabel*, 3> CounterLabels() const;

    // Enters the mode unless its item is checked already.
    void ChooseMode(Mode mode);
    void ShowCalendarMode();
    void ShowHomeworkMode();
    void ShowStudySessionsMode();
    void ShowTaskMode();
    void ShowEventMode();
    void ShowReminderMode();

    // --- ViewMenus.cpp: the filter menus, and the filters kept from mode to mode ---
    void InitViewMenus();
    void SaveViewMenus();
    void RestoreViewMenus();
    void PaintViewMenus();

    // Offers the mode's items in the menus, with the words last chosen in it; nothing for a mode without
    // filters.
    void FillViewMenus(Mode mode);

    // What the selections read from the window, filled for one call.
    ListFilter CurrentFilter() const;
    SortOrder CurrentSort() const;

    // --- RefreshView.cpp ---

    // Redoes as much of the window as RefreshReason needs in this mode; always leaves the reason "None".
    void RefreshView();

    // Sets the reason and refreshes.
    void RefreshFor(std::string_view reason);

    // For the grid's new size, unless the window is minimized or at work.
    void RefreshAfterResize();

    // --- MonthCalendar.cpp, CalendarSteps.cpp, LargeCalendar.cpp ---
    void BuildMonth();
    void PaintTodayButtons();
    void PaintMonthCells();
    void ApplyStartDayOfWeek();
    void ChooseStartDayOfWeek(const std::string& day);

    // Shows the date, in whatever mode.
    void GoToDate(Date date);

    // What the controls of the calendar do: go to an entry of CellDate, step while a button is held. Nothing
    // reacts in Reminders mode.
    void GoToEntry(std::size_t entry);
    void PressStepper(std::size_t index);
    void StepperTick();
    void ReleaseStepper();
    void LayoutCalendarGrid();
    void ShowCalendarTitles();

    // --- ListGrid.cpp, HomeworkGrid.cpp, StudyGrid.cpp, TaskGrid.cpp, ReminderGrid.cpp, EventList.cpp ---
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
    void HighlightRow(int row, bool on);

    // --- DaySchedule.cpp ---
    void LayoutEventGrid();
    void FillEventDay();

    // --- GridScroll.cpp, GridClicks.cpp, GridKeys.cpp ---
    void SetGridScroll();
    void GridScrolled();
    void ResortGrid();
    void MouseWheel(int rotation);
    void ColumnClicked(int column);
    void GridPressed(int x, int y);
    void GridReleased(int x, int y, Qt::MouseButton button);

    // Lets the next popup menu open at a point of the grid.
    void PointPopupAt(int x, int y);

    // Opens the context menu of the list; gives whether it has one.
    bool ShowListMenu();

    // Gives whether the key means anything here.
    bool GridKeyPressed(int key, Qt::KeyboardModifiers modifiers);

    // Opens the editor on a row of the list, on an event of the day, which was chosen in that half hour, or
    // for a new event at a half hour. The keys go on from there.
    void OpenRow(int row);
    void OpenEventBox(int row, int halfHour);
    void OpenHalfHour(int halfHour);

    // The layout and the fill of the mode, and both.
    void LayoutGrid();
    void FillGrid();
    void RepaintGrid();

    // Repaints the grid from this row on, or from the nearest one that the scroll bar reaches.
    void ScrollGridTo(int firstRow);

    // Repaints the grid with the row visible, on which the keys stand.
    void ShowRow(int row);

    // --- PopupMenus.cpp ---
    QMenu* mnuPopup = nullptr;
    PopupItems mnuPopupItems;
    PopupItems TrayItems; // apart from those of the windows' menus, which come and go meanwhile
    void ShowCalendarMenu();
    void ShowHomeworkDayMenu();
    void ShowHomeworkListMenu();
    void ShowEventListMenu();
    void ShowTaskListMenu();
    void ShowTaskDayMenu();
    void ShowEventDayMenu();
    void ShowDayMenu(CalendarIcon icon);

    // Runs the command of the popup item at the index, counted from 0.
    void RunPopupCommand(int index);

    // Fills the tray's items; with none while a modal dialog is open.
    void ShowTrayMenu();

    // Runs the command of the tray's item at the index. A tray may show the menu that it was given last
    // without asking again, also while a modal dialog is open: then nothing is run.
    void RunTrayCommand(int index);

    // --- StatusBar.cpp, Alerts.cpp, StudyTimer.cpp ---
    void PaintStatusBar();
    void StudyTimeAlerts();
    void ShowAlertMessage(int index);
    void PaintStudyTimer();
    void ClearStudyTimer();

    // --- The flows: what a command asks of the student and writes (AssignmentFlow.cpp, ...) ---
    void NewAssignment();
    void EditAssignment(int position);
    void NewTask();
    void EditTask(int position);
    void NewEvent();
    void NewMorningEvent(); // at nine o'clock, where no time was clicked
    void EditEvent(int position);
    void ClassSchedule();

protected:
    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    // The entry that all six share.
    void EnterMode(Mode mode);

    // BuildWindow.cpp, MenuBar.cpp, ModeBar.cpp, LeftPanel.cpp: the parts of the window, built in this order.
    void BuildMenuBar();
    void MakeModeBarParts();
    QWidget* BuildModeBar();
    QWidget* BuildLeftPanel();
    QWidget* BuildSmallCalendar();
    QWidget* BuildNewButtons();
    QWidget* BuildTermPanel();
    QWidget* BuildViewMenusPanel();
    std::array<QWidget*, 3> BuildModePanels();
    QWidget* BuildCounters();
    QWidget* BuildAlerts();
    QWidget* BuildTimerPanel();
    QWidget* BuildRightSide();

    // Each subject binds its controls to its procedures.
    void BindViewMenus();
    void BindCalendar();
    void BindGrid();
    void InstallGridKeys();
    void BindStatusBar();
    void BindAlerts();
    void BindStudyTimer();
    void BindAutoStart();
    void BindCommands();
};

// The one main window, from its load until the process ends.
extern frmMain* MainWindow;
