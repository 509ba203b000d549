// The keys of the grid: arrows, Page Up and Down, Home and End move, Enter opens, the menu key opens the
// context menu, a digit sorts by the column of that number; in the month H, T and E open the day's menus.
// With Ctrl the arrows and pages move the selected day from every view, Home goes to today and End to
// tomorrow.
#include "mainwindow/input/GridKeys.h"

#include "mainwindow/day/DayLayout.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/grid/GridMoves.h"
#include "mainwindow/modes/ModeTables.h"

#include <QKeyEvent>

#include <optional>

namespace {

struct MoveKey {
    int key;
    GridMove move;
};

constexpr std::array<MoveKey, 8> MoveKeys{{
    {Qt::Key_Up, GridMove::Up},
    {Qt::Key_Down, GridMove::Down},
    {Qt::Key_Left, GridMove::Left},
    {Qt::Key_Right, GridMove::Right},
    {Qt::Key_PageUp, GridMove::PageUp},
    {Qt::Key_PageDown, GridMove::PageDown},
    {Qt::Key_Home, GridMove::Home},
    {Qt::Key_End, GridMove::End},
}};

struct DayMenuKey {
    int key;
    CalendarIcon menu;
};

constexpr std::array<DayMenuKey, CalendarIcons> DayMenuKeys{{
    {Qt::Key_H, CalendarIcon::Homework},
    {Qt::Key_T, CalendarIcon::Tasks},
    {Qt::Key_E, CalendarIcon::Events},
}};

std::optional<GridMove> MoveOf(int key) {
    const auto* const found = std::ranges::find(MoveKeys, key, &MoveKey::key);
    return found == MoveKeys.end() ? std::nullopt : std::optional(found->move);
}

bool IsEnter(int key) {
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

bool IsMenuKey(int key, Qt::KeyboardModifiers modifiers) {
    return key == Qt::Key_Menu || (key == Qt::Key_F10 && modifiers == Qt::ShiftModifier);
}

KeyMeaning Ask(ViewAction action) {
    return {.taken = true, .action = std::move(action)};
}

KeyMeaning AskToGo(Date date, bool reveal) {
    return Ask({.kind = ViewActionKind::GoToDate, .date = date, .reveal = reveal});
}

// --- The lists ---

ViewAction ShowRowOf(int row) {
    return {.kind = ViewActionKind::ShowRow, .row = row};
}

bool HasTitle(const frmMain& window, int column) {
    const int columns = static_cast<int>(window.picColHeader.size());
    return column >= 1 && column < columns &&
           window.picColHeader[static_cast<std::size_t>(column)]->isVisible();
}

KeyMeaning ListKey(const frmMain& window, int key) {
    if (const auto move = MoveOf(key)) {
        const ListView view{window.RowCount, window.FirstRow, window.RowsVisible};
        return Ask(ShowRowOf(MovedRow(*move, window.CurrentRow, view)));
    }
    if (IsEnter(key) && window.CurrentRow > 0) {
        return Ask({.kind = ViewActionKind::OpenRow, .row = window.CurrentRow, .reveal = true});
    }
    const int column = key - Qt::Key_0;
    if (HasTitle(window, column)) {
        return Ask({.kind = ViewActionKind::SortColumn, .index = static_cast<std::size_t>(column)});
    }
    return {};
}

// A list without a menu shows the row and leaves the key to others.
KeyMeaning ListMenuKey(const frmMain& window, Mode mode) {
    if (mode == Mode::None || RowOf(ModeRows, mode).listMenu == ListMenu::None) {
        return {.taken = false, .action = ShowRowOf(window.CurrentRow)};
    }
    return Ask({.kind = ViewActionKind::OpenListMenu, .row = window.CurrentRow, .reveal = true});
}

// --- The schedule of a day ---

// To the side the keys choose among the events of the half hour.
int ChosenEvent(const frmMain& window, GridMove move) {
    if (move != GridMove::Left && move != GridMove::Right) {
        return window.CurrentEvent;
    }
    const std::vector<int> rows = EventRowsInHalfHour(window.CurrentHalfHour);
    const auto at = std::ranges::find(rows, window.CurrentEvent);
    const auto target = (at - rows.begin()) + (move == GridMove::Left ? -1 : 1);
    return target >= 0 && target < std::ssize(rows) ? rows[static_cast<std::size_t>(target)]
                                                    : window.CurrentEvent;
}

KeyMeaning DayKey(const frmMain& window, int key) {
    if (const auto move = MoveOf(key)) {
        const ListView view{HalfHours, window.FirstRow, window.RowsVisible};
        return Ask({.kind = ViewActionKind::ShowHalfHour,
                    .row = ChosenEvent(window, *move),
                    .halfHour = MovedRow(*move, window.CurrentHalfHour + 1, view) - 1});
    }
    if (IsEnter(key) && window.CurrentEvent > 0) {
        return Ask({.kind = ViewActionKind::OpenEvent,
                    .row = window.CurrentEvent,
                    .halfHour = window.CurrentHalfHour});
    }
    if (IsEnter(key) && window.CurrentHalfHour >= 0) {
        return Ask({.kind = ViewActionKind::OpenHalfHour, .halfHour = window.CurrentHalfHour});
    }
    return {};
}

KeyMeaning DayMenuKeyPressed(const frmMain& window) {
    return Ask({.kind = ViewActionKind::OpenListMenu, .halfHour = window.CurrentHalfHour, .reveal = true});
}

// --- The month ---

const CalendarCell& SelectedCell(const frmMain& window) {
    return window.CalendarGrid.cell.at(SelectedCellOf(window.Month));
}

QPoint MiddleOfDay(const frmMain& window) {
    const UnitRect& area = SelectedCell(window).area;
    return {(area.left + area.width / 2) / UnitsPerPixel, (area.top + area.height / 2) / UnitsPerPixel};
}

KeyMeaning AskForDayMenu(const frmMain& window, CalendarIcon icon) {
    return Ask({.kind = ViewActionKind::OpenDayMenu, .icon = icon, .point = MiddleOfDay(window)});
}

KeyMeaning AskForCalendarMenu(const frmMain& window) {
    return Ask({.kind = ViewActionKind::OpenCalendarMenu, .point = MiddleOfDay(window)});
}

// Enter opens the first of the day's menus that has anything to show, else the menu of the calendar.
KeyMeaning OpenDay(const frmMain& window) {
    for (const DayMenuKey& menu : DayMenuKeys) {
        if (SelectedCell(window).icon[static_cast<std::size_t>(menu.menu)].width > 0) {
            return AskForDayMenu(window, menu.menu);
        }
    }
    return AskForCalendarMenu(window);
}

KeyMeaning MonthKey(const frmMain& window, int key) {
    if (const auto move = MoveOf(key)) {
        return AskToGo(MovedDate(*move, window.ClickedDate), true);
    }
    if (IsEnter(key)) {
        return OpenDay(window);
    }
    const auto* const menu = std::ranges::find(DayMenuKeys, key, &DayMenuKey::key);
    return menu == DayMenuKeys.end() ? KeyMeaning{} : AskForDayMenu(window, menu->menu);
}

// --- All views ---

// The selected day, moved from every view in which the calendar reacts.
KeyMeaning DateKey(const frmMain& window, int key) {
    const auto move = MoveOf(key);
    if (!move || window.MenuReminders->isChecked()) {
        return {};
    }
    if (*move == GridMove::Home || *move == GridMove::End) {
        return AskToGo(*move == GridMove::Home ? Today() : Today() + std::chrono::days{1}, false);
    }
    return AskToGo(MovedDate(*move, window.ClickedDate), false);
}

KeyMeaning PlainKey(const frmMain& window, int key) {
    switch (window.CurrentMode()) {
    case Mode::Calendar:
        return MonthKey(window, key);
    case Mode::Events:
        return DayKey(window, key);
    case Mode::None:
        return {};
    default:
        return ListKey(window, key);
    }
}

KeyMeaning MenuKeyPressed(const frmMain& window) {
    const Mode mode = window.CurrentMode();
    switch (mode) {
    case Mode::Calendar:
        return AskForCalendarMenu(window);
    case Mode::Events:
        return DayMenuKeyPressed(window);
    default:
        return ListMenuKey(window, mode);
    }
}

class GridKeyFilter : public QObject {
public:
    explicit GridKeyFilter(frmMain& owner) : QObject(&owner), window(owner) {}

    bool eventFilter(QObject* /*grid*/, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) {
            return false;
        }
        const auto* const press = static_cast<QKeyEvent*>(event);
        const KeyMeaning meaning = MeaningOfKey(window, press->key(), press->modifiers());
        emit window.Asked(meaning.action);
        return meaning.taken;
    }

private:
    frmMain& window;
};

} // namespace

void InstallGridKeys(frmMain& window) {
    window.picGrid->installEventFilter(new GridKeyFilter(window));
}

KeyMeaning MeaningOfKey(const frmMain& window, int key, Qt::KeyboardModifiers modifiers) {
    const Qt::KeyboardModifiers held = modifiers & ~Qt::KeypadModifier;
    if (IsMenuKey(key, held)) {
        return MenuKeyPressed(window);
    }
    if (held == Qt::ControlModifier) {
        return DateKey(window, key);
    }
    return held == Qt::NoModifier ? PlainKey(window, key) : KeyMeaning{};
}

QPoint PointBesideKeys(const frmMain& window) {
    if (window.CurrentMode() == Mode::Events) {
        const int place = std::max(window.CurrentHalfHour - window.FirstRow + 2, 1);
        return {TimeColumnWidth / UnitsPerPixel, place * SlotUnits / UnitsPerPixel};
    }
    const int place = std::max(window.CurrentRow - window.FirstRow + 1, 1);
    return {RowNumberRight / UnitsPerPixel, RowTop(place + 1) / UnitsPerPixel};
}
