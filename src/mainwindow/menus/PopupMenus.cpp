// The menus that are built as they are wanted, and the one procedure that runs their commands.
#include "core/Module1.h"
#include "core/RowLists.h"
#include "core/Values.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/menus/PopupCaptions.h"
#include "planner/lists/EventSelection.h"
#include "planner/lists/HomeworkSelection.h"
#include "planner/lists/RowSorts.h"
#include "planner/lists/TaskSelection.h"
#include "toolkit/InputRules.h"
#include "toolkit/Modal.h"
#include "toolkit/Text.h"

#include <optional>

namespace {

enum class PopupCommand {
    ShowWindow,
    Shutdown,
    SeeCalendar,
    NewAssignment,
    SeeHomework,
    NewTask,
    SeeTasks,
    NewEvent,
    SeeEvents
};

struct TagCommand {
    std::string_view tag;
    PopupCommand command;
};

constexpr std::array<TagCommand, 9> TagCommands{{
    {"tray view", PopupCommand::ShowWindow},
    {"tray shutdown", PopupCommand::Shutdown},
    {"calendar view", PopupCommand::SeeCalendar},
    {"homework new", PopupCommand::NewAssignment},
    {"homework view", PopupCommand::SeeHomework},
    {"task new", PopupCommand::NewTask},
    {"task view", PopupCommand::SeeTasks},
    {"event new", PopupCommand::NewEvent},
    {"event view", PopupCommand::SeeEvents},
}};

// The part of an item's caption that begins with its key; no two of them have the same one.
struct ItemKey {
    std::string_view tag;
    std::string_view fromKeyOn;
};

constexpr std::array<ItemKey, 11> ItemKeys{{
    {"homework new", "assignment"},
    {"event new", "event"},
    {"task new", "task"},
    {"homework view", "signments"},
    {"event view", "day"},
    {"task view", "ks"},
    {"calendar view", "Calendar"},
    {"homework GPA", "GPA"},
    {"homework custom", "ustomize"},
    {"event custom", "ustomize"},
    {"task custom", "ustomize"},
}};

void SortBy(frmMain& window, NamedColumn column) {
    window.SortColumn = column.number;
    window.SortDirection = Ascending;
}

void OpenWindow(frmMain& window) {
    if (window.isVisible() && window.isMinimized()) {
        window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    } else {
        window.show();
    }
}

void RunCommand(frmMain& window, PopupCommand command) {
    switch (command) {
    case PopupCommand::ShowWindow:
        return OpenWindow(window);
    case PopupCommand::Shutdown:
        return window.Unload();
    case PopupCommand::SeeCalendar:
        return window.ShowCalendarMode();
    case PopupCommand::NewAssignment:
        return window.NewAssignment();
    case PopupCommand::SeeHomework:
        return window.ShowHomeworkMode();
    case PopupCommand::NewTask:
        return window.NewTask();
    case PopupCommand::SeeTasks:
        return window.ShowTaskMode();
    case PopupCommand::NewEvent:
        return window.NewMorningEvent();
    case PopupCommand::SeeEvents:
        return window.ShowEventMode();
    }
}

void OpenRowOf(frmMain& window, const std::string& subject, int row) {
    if (subject == "homework") {
        window.EditAssignment(HomeworkRows.Item(row));
    } else if (subject == "task") {
        window.EditTask(TaskRows.Item(row));
    } else if (subject == "event") {
        window.EditEvent(EventRows.Item(row));
    }
}

// A verb that is none does nothing.
void RunTag(frmMain& window, const std::string& tag) {
    const auto* const known = std::ranges::find(TagCommands, tag, &TagCommand::tag);
    if (known != TagCommands.end()) {
        return RunCommand(window, known->command);
    }
    const std::size_t blank = std::min(tag.find(' '), tag.size());
    if (const auto row = IdIn(tag.substr(blank))) {
        OpenRowOf(window, tag.substr(0, blank), *row);
    }
}

QString KeyedCaption(const PopupItem& item) {
    const auto* const keyed = std::ranges::find(ItemKeys, item.tag, &ItemKey::tag);
    if (keyed == ItemKeys.end()) {
        return MenuText(item.caption);
    }
    const std::size_t at = item.caption.find(keyed->fromKeyOn);
    return FromStore(item.caption.substr(0, at) + "&" + item.caption.substr(at));
}

// Shows the items where the last click or key wants them, and runs the one that is chosen.
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
        window.RunPopupCommand(chosen->data().toInt());
    }
}

} // namespace

void frmMain::ShowCalendarMenu() {
    ShowPopup(*this, CalendarMenuItems());
}

void frmMain::ShowHomeworkListMenu() {
    ShowPopup(*this, HomeworkListMenuItems());
}

void frmMain::ShowEventListMenu() {
    ShowPopup(*this, EventListMenuItems());
}

void frmMain::ShowTaskListMenu() {
    ShowPopup(*this, TaskListMenuItems());
}

void frmMain::ShowHomeworkDayMenu() {
    HomeworkDayList(ClickedDate, CurrentFilter());
    SortBy(*this, HomeworkColumn::Done);
    SortHomeworkRows(CurrentSort());
    ShowPopup(*this, HomeworkDayMenuItems());
}

void frmMain::ShowTaskDayMenu() {
    SelectTasksForDay(ClickedDate);
    SortBy(*this, TaskColumn::Done);
    SortTaskRows(CurrentSort());
    ShowPopup(*this, TaskDayMenuItems());
}

void frmMain::ShowEventDayMenu() {
    SelectEventsForDay(ClickedDate, CurrentFilter());
    SortBy(*this, EventColumn::Time);
    SortEventRows(CurrentSort());
    ShowPopup(*this, EventDayMenuItems());
}

void frmMain::ShowDayMenu(CalendarIcon icon) {
    switch (icon) {
    case CalendarIcon::Homework:
        return ShowHomeworkDayMenu();
    case CalendarIcon::Tasks:
        return ShowTaskDayMenu();
    case CalendarIcon::Events:
        return ShowEventDayMenu();
    }
}

void frmMain::ShowTrayMenu() {
    TrayItems = ModalDialogIsOpen() ? PopupItems{} : TrayMenuItems(isVisible() && !isMinimized());
}

void frmMain::RunPopupCommand(int index) {
    RunTag(*this, mnuPopupItems.at(static_cast<std::size_t>(index)).tag);
}

void frmMain::RunTrayCommand(int index) {
    if (!ModalDialogIsOpen()) {
        RunTag(*this, TrayItems.at(static_cast<std::size_t>(index)).tag);
    }
}
