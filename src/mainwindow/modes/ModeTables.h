// What each mode says, shows, enables and offers, and the steps of a refresh: tables of one row a mode.
#pragma once

#include "export/CalendarTables.h"
#include "export/ListPages.h"
#include "mainwindow/state/Command.h"
#include "mainwindow/state/Mode.h"
#include "planner/lists/RowSorts.h"

#include <array>
#include <optional>
#include <string_view>

// What a mode entry does to a control.
enum class Turn { Kept, Off, On };

struct ModeRow {
    Mode mode;
    std::string_view caption;             // the status bar's left text
    int gridTopic, rangeTopic, listTopic; // help topics of the list and of the two filter menus; 0 is kept
    NamedColumn firstSort;                // none keeps the sort as it is
    bool leavesCalendar;                  // Calendar stays checked, and the mode bar's words as they are
    const char *pictureUp, *pictureDown;  // in the mode bar
};

// Study Sessions and Reminders leave Calendar alone: entered from it both are checked, and the window counts
// as in Calendar mode, as is meant.
inline constexpr std::array<ModeRow, ModeCount> ModeRows{{
    {Mode::Homework, "Homework Mode", 153, 112, 114, HomeworkColumn::Done, false, "picStashHomeworkUp.svg",
     "picStashHomeworkDown.svg"},
    {Mode::Calendar,
     "Calendar Mode",
     154,
     0,
     0,
     {},
     false,
     "picStashCalendarUp.svg",
     "picStashCalendarDown.svg"},
    {Mode::StudySessions, "Study Session Mode", 0, 0, 0, StudyColumn::DoneOn, true, "picStashSessionsUp.svg",
     "picStashSessionsDown.svg"},
    {Mode::Tasks, "Task Mode", 156, 113, 115, TaskColumn::Day, false, "picStashTasksUp.svg",
     "picStashTasksDown.svg"},
    {Mode::Events, "Event Mode", 155, 0, 0, EventColumn::Day, false, "picStashEventsUp.svg",
     "picStashEventsDown.svg"},
    {Mode::Reminders, "Today's Reminders", 0, 0, 0, ReminderColumn::When, true, "picStashRemindersUp.svg",
     "picStashRemindersDown.svg"},
}};

// What is on the grid.
enum class GridView { None, List, Month, Day };

// Whose record a row of the list stands for.
enum class RowRecord { None, Assignment, Task, OfReminder };

// The context menu of a view.
enum class ListMenu { None, Homework, Tasks, Events };

// Whose days are marked in the month.
enum class MarkedDays { None, StudySessions, Homework, Tasks, Events, Reminders };

// What the mode shows on the grid, what a click there leads to, and the marks of the month, which are made in
// their order.
struct ViewRow {
    Mode mode;
    GridView view = GridView::None;
    RowRecord record = RowRecord::None;
    Command behindRows = Command::None; // by a click behind the last row
    ListMenu menu = ListMenu::None;     // by a right click
    std::array<MarkedDays, 3> marks{};
};

inline constexpr std::array<ViewRow, ModeCount> ViewRows{{
    {Mode::Homework,
     GridView::List,
     RowRecord::Assignment,
     Command::NewAssignment,
     ListMenu::Homework,
     {MarkedDays::Homework}},
    {Mode::Calendar,
     GridView::Month,
     RowRecord::None,
     Command::None,
     ListMenu::None,
     {MarkedDays::Events, MarkedDays::Homework, MarkedDays::Tasks}},
    {Mode::StudySessions,
     GridView::List,
     RowRecord::Assignment,
     Command::None,
     ListMenu::None,
     {MarkedDays::StudySessions}},
    {Mode::Tasks, GridView::List, RowRecord::Task, Command::NewTask, ListMenu::Tasks, {MarkedDays::Tasks}},
    {Mode::Events, GridView::Day, RowRecord::None, Command::None, ListMenu::Events, {MarkedDays::Events}},
    {Mode::Reminders,
     GridView::List,
     RowRecord::OfReminder,
     Command::None,
     ListMenu::None,
     {MarkedDays::Reminders}},
}};

struct PanelRow {
    Mode mode;
    Turn term, viewMenus, studySessions, reminders, studyTime;
};

inline constexpr std::array<PanelRow, ModeCount> PanelRows{{
    {Mode::Homework, Turn::Off, Turn::On, Turn::Off, Turn::Off, Turn::Off},
    {Mode::Calendar, Turn::On, Turn::Off, Turn::Off, Turn::Off, Turn::Off},
    {Mode::StudySessions, Turn::On, Turn::Kept, Turn::On, Turn::Off, Turn::Off},
    {Mode::Tasks, Turn::Off, Turn::On, Turn::Off, Turn::Off, Turn::Off},
    {Mode::Events, Turn::Off, Turn::Off, Turn::Off, Turn::Off, Turn::Off},
    {Mode::Reminders, Turn::Off, Turn::Kept, Turn::Off, Turn::On, Turn::On},
}};

struct NewButtonRow {
    Mode mode;
    Turn assignmentSmall, eventSmall, taskSmall, assignment, event, task;
};

inline constexpr std::array<NewButtonRow, ModeCount> NewButtonRows{{
    {Mode::Homework, Turn::On, Turn::Off, Turn::Off, Turn::Off, Turn::Off, Turn::Off},
    {Mode::Calendar, Turn::On, Turn::On, Turn::On, Turn::Off, Turn::Off, Turn::Off},
    {Mode::StudySessions, Turn::Kept, Turn::Kept, Turn::Kept, Turn::On, Turn::Off, Turn::Off},
    {Mode::Tasks, Turn::Off, Turn::Off, Turn::On, Turn::Off, Turn::Off, Turn::Off},
    {Mode::Events, Turn::Off, Turn::On, Turn::Off, Turn::Off, Turn::Off, Turn::Off},
    {Mode::Reminders, Turn::Kept, Turn::Kept, Turn::Kept, Turn::Off, Turn::Off, Turn::Off},
}};

// Which items of the Edit menu are enabled.
struct EditMenuRow {
    Mode mode;
    bool classSchedule, newAssignment, newTask, newEvent;
};

inline constexpr std::array<EditMenuRow, ModeCount> EditMenuRows{{
    {Mode::Homework, true, true, false, false},
    {Mode::Calendar, true, true, true, true},
    {Mode::StudySessions, false, false, false, false},
    {Mode::Tasks, false, false, true, false},
    {Mode::Events, false, false, false, true},
    {Mode::Reminders, false, false, false, false},
}};

// The items of the export menu, and the captions of its two hidden ones, where an empty one is kept, with the
// pages that these two export.
struct ExportRow {
    Mode mode;
    Turn calendarAS, calendarEV, calendarTA, listAS, listTA;
    std::string_view calendarCaption, listCaption;
    std::optional<CalendarPage> calendar;
    std::optional<ListPage> list;
};

inline constexpr std::array<ExportRow, ModeCount> ExportRows{{
    {Mode::Homework, Turn::On, Turn::Off, Turn::Off, Turn::On, Turn::Off, "", "", CalendarPage::Homework,
     ListPage::Homework},
    {Mode::Calendar, Turn::On, Turn::On, Turn::On, Turn::Off, Turn::Off, "", "", {}, {}},
    {Mode::StudySessions, Turn::Kept, Turn::Kept, Turn::Kept, Turn::Kept, Turn::Kept, "Homework Calendar...",
     "This Study List...", CalendarPage::Homework, ListPage::StudySessions},
    {Mode::Tasks, Turn::Off, Turn::Off, Turn::On, Turn::Off, Turn::On, "", "", CalendarPage::Tasks,
     ListPage::Tasks},
    {Mode::Events, Turn::Off, Turn::On, Turn::Off, Turn::Off, Turn::Off, "Event Calendar...",
     "This Event List...", CalendarPage::Events, ListPage::Events},
    {Mode::Reminders, Turn::Kept, Turn::Kept, Turn::Kept, Turn::Kept, Turn::Kept, "Homework Calendar...",
     "This Reminder List...", CalendarPage::Homework, ListPage::Reminders},
}};

// The words before the three counters; without one the counter is hidden.
struct CounterRow {
    Mode mode;
    std::array<std::string_view, 3> labels;
};

inline constexpr std::array<CounterRow, ModeCount> CounterRows{{
    {Mode::Homework, {"Total Assignments:", "Assignments Left:", "Study Time Left:"}},
    {Mode::Calendar, {"", "", ""}},
    {Mode::StudySessions, {"Study Sessions:", "", "Study Time:"}},
    {Mode::Tasks, {"Total Tasks:", "Tasks Left:", "Undated Tasks Left:"}},
    {Mode::Events, {"Classes:", "Other Events:", "Study Time:"}},
    {Mode::Reminders, {"Assignments:", "Tasks:", "Events:"}},
}};

// The items of the two filter menus, with empty ones behind the last, and those chosen at the start. The rows
// stand in the order in which the filters are saved and restored; Calendar has none.
struct FilterRow {
    Mode mode;
    std::array<std::string_view, 4> list, range;
    std::string_view startList, startRange;
};

inline constexpr std::array<FilterRow, 5> FilterRows{{
    {Mode::Homework, {"All", "Done", "Not Done"}, {"Day", "Term"}, "All", "Term"},
    {Mode::StudySessions, {"All"}, {"Day", "Term"}, "All", "Term"},
    {Mode::Tasks, {"All", "Done", "Not Done"}, {"Day", "All", "With Date", "Without Date"}, "All", "All"},
    {Mode::Events, {"All", "Classes", "Other Events"}, {"Day", "Week", "Month", "Year"}, "All", "Month"},
    {Mode::Reminders, {"All", "Homework", "Tasks", "Events"}, {"Today"}, "All", "Today"},
}};

// Whether a table of all modes has its rows where RowOf looks for them.
template <class Row>
constexpr bool StandsInModeOrder(const std::array<Row, ModeCount>& rows) {
    for (std::size_t i = 0; i < ModeCount; ++i) {
        if (rows[i].mode != static_cast<Mode>(i)) {
            return false;
        }
    }
    return true;
}

// The row of the mode in a table of all modes; not for Mode::None.
template <class Row>
constexpr const Row& RowOf(const std::array<Row, ModeCount>& rows, Mode mode) {
    return rows[static_cast<std::size_t>(mode)];
}

// What the mode shows on the grid; nothing for Mode::None.
constexpr ViewRow ViewOf(Mode mode) {
    return mode == Mode::None ? ViewRow{.mode = mode} : RowOf(ViewRows, mode);
}

// A step of a refresh, by its letter in the tables.
enum class RefreshStep : char {
    ClickSelectedDay = 'C', // the clicked day is the selected one
    ClickToday = 'D',
    DropMarks = 'M', // the month's marks are to be made anew
    BuildMonth = 'b',
    BuildMonthAnew = 'B', // C, M and b
    LayOut = 'L',
    Fill = 'F',
    Alerts = 'A',       // the study time alerts
    StudyTime = 'T',    // of the clicked day
    OpenAtMorning = 'S' // the day's schedule
};

// The letters of the steps of a refresh, in their order.
// Empty for a reason that asks for nothing, and while no mode is checked.
std::string_view RefreshSteps(std::string_view reason, Mode mode);
