// The items of the context menus and of the tray menu: their captions and the commands behind them.
#pragma once

#include <string>
#include <vector>

// A caption and the two words of the command, subject and verb; both in the characters of the store. A
// caption of "-" is a separator and has no command.
struct PopupItem {
    std::string caption;
    std::string tag;

    friend bool operator==(const PopupItem&, const PopupItem&) = default;
};

using PopupItems = std::vector<PopupItem>;

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
