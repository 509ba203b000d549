// The items of the context menus and of the tray menu: their captions and the commands behind them.
#pragma once

#include "mainwindow/state/PopupItem.h"

PopupItems CalendarMenuItems();
PopupItems HomeworkListMenuItems();
PopupItems EventListMenuItems();
PopupItems TaskListMenuItems();

// The tray's menu; it offers to open the window only while that is hidden or minimized.
PopupItems TrayMenuItems(bool windowIsOpen);

// The menus of a day: an item for each row of HomeworkRows, TaskRows or EventRows, as the selections and
// sorts left them, then the commands. The captions are cut to 75 characters and always end in " ...". A bad
// text of a record raises the run-time error.
PopupItems HomeworkDayMenuItems();
PopupItems TaskDayMenuItems();
PopupItems EventDayMenuItems();
