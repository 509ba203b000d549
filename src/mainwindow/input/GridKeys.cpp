// The keys of the grid: arrows, Page Up and Down, Home and End move, Enter opens, the menu key opens the
// context menu, a digit sorts by the column of that number; in the month H, T and E open the day's menus.
// With Ctrl the arrows and pages move the selected day from every view, Home goes to today and End to
// tomorrow.
#include "mainwindow/day/DayLayout.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/grid/GridMoves.h"
#include "mainwindow/input/GridAccessible.h"

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

// --- The lists ---

void ShowCurrentRow(frmMain& window) {
    if (window.CurrentRow > 0) {
        window.ShowRow(window.CurrentRow);
    }
}

bool ListKey(frmMain& window, int key) {
    if (const auto move = MoveOf(key)) {
        const ListView view{window.RowCount, window.FirstRow, window.RowsVisible};
        window.CurrentRow = MovedRow(*move, window.CurrentRow, view);
        ShowCurrentRow(window);
        return true;
    }
    if (IsEnter(key) && window.CurrentRow > 0) {
        ShowCurrentRow(window);
        window.OpenRow(window.CurrentRow);
        return true;
    }
    const int column = key - Qt::Key_0;
    const int columns = static_cast<int>(window.picColHeader.size());
    if (column >= 1 && column < columns &&
        window.picColHeader[static_cast<std::size_t>(column)]->isVisible()) {
        window.ColumnClicked(column);
        return true;
    }
    return false;
}

bool ListMenuKey(frmMain& window) {
    ShowCurrentRow(window);
    const int place = std::max(window.CurrentRow - window.FirstRow + 1, 1);
    window.PointPopupAt(RowNumberRight, RowTop(place + 1));
    return window.ShowListMenu();
}

// --- The schedule of a day ---

void ShowCurrentHalfHour(frmMain& window) {
    if (window.CurrentHalfHour >= 0) {
        window.ShowRow(window.CurrentHalfHour + 1);
    }
}

// To the side the keys choose among the events of the half hour.
void ChooseEvent(frmMain& window, int step) {
    const std::vector<int> rows = EventRowsInHalfHour(window.CurrentHalfHour);
    const auto at = std::ranges::find(rows, window.CurrentEvent);
    const auto target = (at - rows.begin()) + step;
    if (target >= 0 && target < static_cast<std::ptrdiff_t>(rows.size())) {
        window.CurrentEvent = rows[static_cast<std::size_t>(target)];
    }
}

bool DayKey(frmMain& window, int key) {
    if (const auto move = MoveOf(key)) {
        if (*move == GridMove::Left || *move == GridMove::Right) {
            ChooseEvent(window, *move == GridMove::Left ? -1 : 1);
        }
        const ListView view{HalfHours, window.FirstRow, window.RowsVisible};
        window.CurrentHalfHour = MovedRow(*move, window.CurrentHalfHour + 1, view) - 1;
        ShowCurrentHalfHour(window);
        return true;
    }
    if (IsEnter(key) && window.CurrentEvent > 0) {
        window.OpenEventBox(window.CurrentEvent, window.CurrentHalfHour);
        return true;
    }
    if (IsEnter(key) && window.CurrentHalfHour >= 0) {
        window.OpenHalfHour(window.CurrentHalfHour);
        return true;
    }
    return false;
}

bool DayMenuKeyPressed(frmMain& window) {
    ShowCurrentHalfHour(window);
    const int place = std::max(window.CurrentHalfHour - window.FirstRow + 2, 1);
    window.PointPopupAt(TimeColumnWidth, place * SlotUnits);
    window.ShowEventListMenu();
    return true;
}

// --- The month ---

const CalendarCell& SelectedCell(const frmMain& window) {
    return window.CalendarGrid.cell.at(SelectedCellOf(window.Month));
}

void PointPopupAtDay(frmMain& window) {
    const UnitRect& area = SelectedCell(window).area;
    window.PointPopupAt(area.left + area.width / 2, area.top + area.height / 2);
}

// Enter opens the first of the day's menus that has anything to show, else the menu of the calendar.
void OpenDay(frmMain& window) {
    for (const DayMenuKey& menu : DayMenuKeys) {
        if (SelectedCell(window).icon[static_cast<std::size_t>(menu.menu)].width > 0) {
            return window.ShowDayMenu(menu.menu);
        }
    }
    window.ShowCalendarMenu();
}

bool MonthKey(frmMain& window, int key) {
    if (const auto move = MoveOf(key)) {
        window.GoToDate(MovedDate(*move, window.ClickedDate));
        NotifyGridMoved(window);
        return true;
    }
    const auto* const menu = std::ranges::find(DayMenuKeys, key, &DayMenuKey::key);
    if (menu == DayMenuKeys.end() && !IsEnter(key)) {
        return false;
    }
    PointPopupAtDay(window);
    if (IsEnter(key)) {
        OpenDay(window);
    } else {
        window.ShowDayMenu(menu->menu);
    }
    return true;
}

bool MonthMenuKey(frmMain& window) {
    PointPopupAtDay(window);
    window.ShowCalendarMenu();
    return true;
}

// --- All views ---

// The selected day, moved from every view in which the calendar reacts.
bool DateKey(frmMain& window, int key) {
    const auto move = MoveOf(key);
    if (!move || window.MenuReminders->isChecked()) {
        return false;
    }
    if (*move == GridMove::Home || *move == GridMove::End) {
        window.GoToDate(*move == GridMove::Home ? Today() : Today() + std::chrono::days{1});
    } else {
        window.GoToDate(MovedDate(*move, window.ClickedDate));
    }
    return true;
}

bool PlainKey(frmMain& window, int key) {
    switch (window.CurrentMode()) {
    case Mode::Calendar:
        return MonthKey(window, key);
    case Mode::Events:
        return DayKey(window, key);
    case Mode::None:
        return false;
    default:
        return ListKey(window, key);
    }
}

bool MenuKeyPressed(frmMain& window) {
    switch (window.CurrentMode()) {
    case Mode::Calendar:
        return MonthMenuKey(window);
    case Mode::Events:
        return DayMenuKeyPressed(window);
    default:
        return ListMenuKey(window);
    }
}

// Brings the grid's keys to the window before the toolkit makes anything of them.
class GridKeyFilter : public QObject {
public:
    explicit GridKeyFilter(frmMain& owner) : QObject(&owner), window(owner) {}

    bool eventFilter(QObject* /*grid*/, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) {
            return false;
        }
        const auto* const press = static_cast<QKeyEvent*>(event);
        return window.GridKeyPressed(press->key(), press->modifiers());
    }

private:
    frmMain& window;
};

} // namespace

void frmMain::InstallGridKeys() {
    picGrid->installEventFilter(new GridKeyFilter(*this));
}

bool frmMain::GridKeyPressed(int key, Qt::KeyboardModifiers modifiers) {
    const Qt::KeyboardModifiers held = modifiers & ~Qt::KeypadModifier;
    if (IsMenuKey(key, held)) {
        return MenuKeyPressed(*this);
    }
    if (held == Qt::ControlModifier) {
        return DateKey(*this, key);
    }
    return held == Qt::NoModifier && PlainKey(*this, key);
}
