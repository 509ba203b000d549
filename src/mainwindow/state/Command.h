// The commands that menus, popup items, buttons and keys give.
#pragma once

#include <cstddef>

enum class Command {
    None,
    NewAssignment,
    NewTask,
    NewEvent,
    ClassSchedule,
    ShowColors,
    PrintScreen,
    SeeHomework,
    SeeCalendar,
    SeeTasks,
    SeeEvents,
    ExportHomeworkCalendar,
    ExportEventCalendar,
    ExportTaskCalendar,
    ExportHomeworkList,
    ExportTaskList,
    ExportCalendarOfMode,
    ExportListOfMode,
    OpenHelp,
    OpenHomeworkHelp,
    ShowTips,
    ShowAbout,
    ShowGPA,
    ShowReminders,
    OpenDataFolder,
    OpenWindow,
    HideWindows,
    Shutdown,
};

inline constexpr std::size_t CommandCount = static_cast<std::size_t>(Command::Shutdown); // without None
