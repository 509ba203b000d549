// The menus that are built as they are wanted.
#pragma once

#include "mainwindow/state/LargeCalendarLayout.h"

class frmMain;

// The context menus of the calendar and of the lists; that of the mode's list, which has one.
void ShowCalendarMenu(frmMain& window);
void ShowHomeworkListMenu(frmMain& window);
void ShowEventListMenu(frmMain& window);
void ShowTaskListMenu(frmMain& window);
void ShowListMenu(frmMain& window);

// The menus of the clicked day, whose rows they select.
void ShowHomeworkDayMenu(frmMain& window);
void ShowTaskDayMenu(frmMain& window);
void ShowEventDayMenu(frmMain& window);
void ShowDayMenu(frmMain& window, CalendarIcon icon);

// Asks for the command of the popup item at the index, counted from 0.
void RunPopupCommand(frmMain& window, int index);

// Fills the tray's items; with none while a modal dialog is open.
void ShowTrayMenu(frmMain& window);

// Asks for the command of the tray's item at the index. A tray may show the menu that it was given last
// without asking again, also while a modal dialog is open: then nothing is run.
void RunTrayCommand(frmMain& window, int index);
