// The commands that menus, popup items, buttons and keys give.
#pragma once

enum class Command {
    None,
    NewAssignment,
    NewTask,
    NewEvent,
    ClassSchedule,
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
    OpenDataFolder,
    OpenWindow,
    HideWindows,
    Shutdown,
};
