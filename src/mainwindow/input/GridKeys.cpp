// The keys of the grid. In the month and in the schedule of a day arrows, Page Up and Down, Home and End
// move, Enter opens, the menu key opens the context menu; in the month H, T and E open the day's menus. With
// Ctrl the arrows and pages move the selected day from every view, Home goes to today and End to tomorrow.
#include "mainwindow/input/GridKeys.h"

#include "mainwindow/day/DayLayout.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/grid/DateMoves.h"
#include "mainwindow/modes/ModeTables.h"
#include "toolkit/grid/ListInput.h"

namespace {

struct DayMenuKey {
    int key;
    CalendarIcon menu;
};

constexpr std::array<DayMenuKey, CalendarIcons> DayMenuKeys{{
    {Qt::Key_H, CalendarIcon::Homework},
    {Qt::Key_T, CalendarIcon::Tasks},
    {Qt::Key_E, CalendarIcon::Events},
}};

KeyMeaning Ask(ViewAction action) {
    return {.taken = true, .action = std::move(action)};
}

KeyMeaning AskToGo(Date date, bool reveal) {
    return Ask({.kind = ViewActionKind::GoToDate, .date = date, .reveal = reveal});
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
    if (key == Qt::Key_Menu) {
        return Ask(
            {.kind = ViewActionKind::OpenListMenu, .halfHour = window.CurrentHalfHour, .reveal = true});
    }
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
    if (key == Qt::Key_Menu) {
        return AskForCalendarMenu(window);
    }
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

// What the key means in the view; those of a list mean something to the list itself.
KeyMeaning PlainKey(const frmMain& window, int key) {
    switch (ViewOf(window.CurrentMode()).view) {
    case GridView::Month:
        return MonthKey(window, key);
    case GridView::Day:
        return DayKey(window, key);
    default:
        return {};
    }
}

} // namespace

bool PressGridKey(frmMain& window, int key, Qt::KeyboardModifiers modifiers) {
    const KeyMeaning meaning = MeaningOfKey(window, key, modifiers);
    emit window.Asked(meaning.action);
    return meaning.taken ||
           (ViewOf(window.CurrentMode()).view == GridView::List && PressListKey(window, key, modifiers));
}

KeyMeaning MeaningOfKey(const frmMain& window, int key, Qt::KeyboardModifiers modifiers) {
    const Qt::KeyboardModifiers held = modifiers & ~Qt::KeypadModifier;
    if (IsMenuKey(key, held)) {
        return PlainKey(window, Qt::Key_Menu);
    }
    if (held == Qt::ControlModifier) {
        return DateKey(window, key);
    }
    return held == Qt::NoModifier ? PlainKey(window, key) : KeyMeaning{};
}

QPoint PointBesideKeys(const frmMain& window) {
    const int place = std::max(PlaceOfRow(window.CurrentHalfHour + 1, window.FirstRow), 1);
    return {TimeColumnWidth / UnitsPerPixel, place * SlotUnits / UnitsPerPixel};
}
