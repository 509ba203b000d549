// The menus and items of the menu bar.
#pragma once

class QAction;
class QMenu;

struct MenuBarControls {
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
};
