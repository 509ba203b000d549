// What each mode says, shows, enables and offers, and the steps of a refresh: tables of one row a mode.
#pragma once

#include "mainwindow/state/Command.h"
#include "mainwindow/state/Mode.h"
#include "planner/lists/RowSorts.h"

#include <array>
#include <string_view>

// What a mode entry does to a control.
enum class Turn { Kept, Off, On };

// The context menu of a list.
enum class ListMenu { None, Homework, Tasks, Events };

struct ModeRow {
    Mode mode;
    std::string_view caption;             // the status bar's left text
    int gridTopic, rangeTopic, listTopic; // help topics of the list and of the two filter menus; 0 is kept
    NamedColumn firstSort;                // none keeps the sort as it is
    bool leavesCalendar;                  // Calendar stays checked, and the mode bar's words as they are
    ListMenu listMenu;                    // by a right click on the list
    Command behindRows;                   // by a click behind the last row
};

// Study Sessions and Reminders leave Calendar alone: entered from it both are checked, and the window counts
// as in Calendar mode, as is meant.
inline constexpr std::array<ModeRow, ModeCount> ModeRows{{
    {Mode::Homework, "Homework Mode", 153, 112, 114, HomeworkColumn::Done, false, ListMenu::Homework,
     Command::NewAssignment},
    {Mode::Calendar, "Calendar Mode", 154, 0, 0, {}, false, ListMenu::None, Command::None},
    {Mode::StudySessions, "Study Session Mode", 0, 0, 0, StudyColumn::DoneOn, true, ListMenu::None,
     Command::None},
    {Mode::Tasks, "Task Mode", 156, 113, 115, TaskColumn::Day, false, ListMenu::Tasks, Command::NewTask},
    {Mode::Events, "Event Mode", 155, 0, 0, EventColumn::Day, false, ListMenu::Events, Command::None},
    {Mode::Reminders, "Today's Reminders", 0, 0, 0, ReminderColumn::When, true, ListMenu::None,
     Command::None},
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

// The items of the export menu, and the captions of its two hidden ones, where an empty one is kept.
struct ExportRow {
    Mode mode;
    Turn calendarAS, calendarEV, calendarTA, listAS, listTA;
    std::string_view calendarCaption, listCaption;
};

inline constexpr std::array<ExportRow, ModeCount> ExportRows{{
    {Mode::Homework, Turn::On, Turn::Off, Turn::Off, Turn::On, Turn::Off, "", ""},
    {Mode::Calendar, Turn::On, Turn::On, Turn::On, Turn::Off, Turn::Off, "", ""},
    {Mode::StudySessions, Turn::Kept, Turn::Kept, Turn::Kept, Turn::Kept, Turn::Kept, "Homework Calendar...",
     "This Study List..."},
    {Mode::Tasks, Turn::Off, Turn::Off, Turn::On, Turn::Off, Turn::On, "", ""},
    {Mode::Events, Turn::Off, Turn::On, Turn::Off, Turn::Off, Turn::Off, "Event Calendar...",
     "This Event List..."},
    {Mode::Reminders, Turn::Kept, Turn::Kept, Turn::Kept, Turn::Kept, Turn::Kept, "Homework Calendar...",
     "This Reminder List..."},
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
