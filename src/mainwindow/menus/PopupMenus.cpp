// The menus that are built as they are wanted.
#include "mainwindow/menus/PopupMenus.h"

#include "core/Module1.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/menus/CommandTable.h"
#include "mainwindow/menus/PopupCaptions.h"
#include "mainwindow/modes/ModeTables.h"
#include "planner/lists/EventSelection.h"
#include "planner/lists/HomeworkSelection.h"
#include "planner/lists/RowSorts.h"
#include "planner/lists/TaskSelection.h"
#include "toolkit/InputRules.h"
#include "toolkit/Modal.h"
#include "toolkit/Text.h"

#include <algorithm>
#include <array>

namespace {

void SortBy(frmMain& window, NamedColumn column) {
    window.SortColumn = column.number;
    window.SortDirection = Ascending;
}

void AskFor(frmMain& window, const PopupItem& item) {
    emit window.Asked({.kind = ViewActionKind::RunPopupItem, .words = item.tag});
}

// With the letter of its key, which the rows of a day do not have.
QString KeyedCaption(const PopupItem& item) {
    const CommandRow* const row = RowOfWords(item.tag);
    return row == nullptr ? MenuText(item.caption) : FromStore(row->popupCaption);
}

// Shows the items where the last click or key wants them, and asks for the one that is chosen.
void ShowPopup(frmMain& window, const PopupItems& items) {
    window.mnuPopupItems = items;
    QMenu& menu = *window.mnuPopup;
    menu.clear();
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (items[i].caption == "-") {
            menu.addSeparator();
        } else {
            menu.addAction(KeyedCaption(items[i]))->setData(static_cast<int>(i));
        }
    }
    DropDoubleClick();
    const QAction* chosen = menu.exec(window.PopupPoint);
    if (chosen != nullptr && !ShuttingDown) {
        RunPopupCommand(window, chosen->data().toInt());
    }
}

} // namespace

void ShowCalendarMenu(frmMain& window) {
    ShowPopup(window, CalendarMenuItems());
}

void ShowHomeworkListMenu(frmMain& window) {
    ShowPopup(window, HomeworkListMenuItems());
}

void ShowEventListMenu(frmMain& window) {
    ShowPopup(window, EventListMenuItems());
}

void ShowTaskListMenu(frmMain& window) {
    ShowPopup(window, TaskListMenuItems());
}

void ShowListMenu(frmMain& window) {
    switch (ViewOf(window.CurrentMode()).menu) {
    case ListMenu::Homework:
        return ShowHomeworkListMenu(window);
    case ListMenu::Tasks:
        return ShowTaskListMenu(window);
    case ListMenu::Events:
        return ShowEventListMenu(window);
    case ListMenu::None:
        return;
    }
}

void ShowHomeworkDayMenu(frmMain& window) {
    HomeworkDayList(window.ClickedDate, window.CurrentFilter());
    SortBy(window, HomeworkColumn::Done);
    SortHomeworkRows(window.CurrentSort());
    ShowPopup(window, HomeworkDayMenuItems());
}

void ShowTaskDayMenu(frmMain& window) {
    SelectTasksForDay(window.ClickedDate);
    SortBy(window, TaskColumn::Done);
    SortTaskRows(window.CurrentSort());
    ShowPopup(window, TaskDayMenuItems());
}

void ShowEventDayMenu(frmMain& window) {
    SelectEventsForDay(window.ClickedDate, window.CurrentFilter());
    SortBy(window, EventColumn::Time);
    SortEventRows(window.CurrentSort());
    ShowPopup(window, EventDayMenuItems());
}

void ShowDayMenu(frmMain& window, CalendarIcon icon) {
    switch (icon) {
    case CalendarIcon::Homework:
        return ShowHomeworkDayMenu(window);
    case CalendarIcon::Tasks:
        return ShowTaskDayMenu(window);
    case CalendarIcon::Events:
        return ShowEventDayMenu(window);
    }
}

void ShowTrayMenu(frmMain& window) {
    window.TrayItems =
        ModalDialogIsOpen() ? PopupItems{} : TrayMenuItems(window.isVisible() && !window.isMinimized());
}

void RunPopupCommand(frmMain& window, int index) {
    AskFor(window, window.mnuPopupItems.at(static_cast<std::size_t>(index)));
}

void RunTrayCommand(frmMain& window, int index) {
    if (!ModalDialogIsOpen()) {
        AskFor(window, window.TrayItems.at(static_cast<std::size_t>(index)));
    }
}
