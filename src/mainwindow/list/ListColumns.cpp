// The columns of the lists of the main window.
#include "mainwindow/list/ListColumns.h"

#include "planner/rows/RowTexts.h"

#include <array>

namespace {

constexpr std::array<ListColumn, 10> HomeworkColumns{{
    {" #", RowNumberWidth, "Number"},
    {ReminderMark, 19, "Reminder"},
    {" !", 19, "Priority"},
    {"Class", 0.35},
    {"Type", 80},
    {"Description", 0.65},
    {"Time", 45},
    {"Due", 70},
    {"Done", 41},
    {"Score", 46},
}};

constexpr std::array<ListColumn, 8> StudyColumns{{
    {"#", RowNumberWidth, "Number"},
    {"Class", 0.35},
    {"Type", 85},
    {"Description", 0.65},
    {"Priority", 75},
    {"Time", 50},
    {"Done On", 70},
    {"Due", 75},
}};

constexpr std::array<ListColumn, 7> TaskColumns{{
    {"#", RowNumberWidth, "Number"},
    {ReminderMark, 19, "Reminder"},
    {"Name", 0.996},
    {"Type", 75},
    {"Priority", 70},
    {"Date", 70},
    {"Done", 45},
}};

constexpr std::array<ListColumn, 6> EventColumns{{
    {"#", RowNumberWidth, "Number"},
    {"Name", 0.995},
    {"Type", 75},
    {"Date", 75},
    {"Time", 70},
    {"Recurrence", 90},
}};

constexpr std::array<ListColumn, 7> ReminderColumns{{
    {"#", RowNumberWidth, "Number"},
    {"For", 75},
    {"Class", 0.3},
    {"Type", 80},
    {"Description", 0.695},
    {"When", 90},
    {"Date", 70},
}};

} // namespace

std::span<const ListColumn> ColumnsOf(ListKind kind) {
    switch (kind) {
    case ListKind::Homework:
        return HomeworkColumns;
    case ListKind::StudySessions:
        return StudyColumns;
    case ListKind::Tasks:
        return TaskColumns;
    case ListKind::Events:
        return EventColumns;
    case ListKind::Reminders:
        return ReminderColumns;
    }
    return {};
}
