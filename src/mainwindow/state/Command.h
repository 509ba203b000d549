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
    OpenHelp,
    OpenHomeworkHelp,
    ShowTips,
    ShowAbout,
    OpenDataFolder,
    OpenWindow,
    HideWindows,
    Shutdown,
};
