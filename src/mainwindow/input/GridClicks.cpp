// What clicks on the grid and on its titles mean.
#include "mainwindow/input/GridClicks.h"

#include "mainwindow/day/DayLayout.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/input/GridKeys.h"
#include "mainwindow/input/GridPointer.h"
#include "mainwindow/input/GridScroll.h"
#include "mainwindow/modes/ModeTables.h"

namespace {

bool OnSurface(const PictureBox& grid, int x, int y) {
    return Holds({0, 0, grid.WidthInUnits(), grid.HeightInUnits()}, x, y);
}

QPoint InPixels(int x, int y) {
    return {x / UnitsPerPixel, y / UnitsPerPixel};
}

ViewAction ClickOnMonth(const frmMain& window, int x, int y, bool right) {
    const int cell = window.ClickedRow;
    if (cell == NoRow) {
        return {};
    }
    ViewAction action{.kind = ViewActionKind::GoToDate,
                      .date = window.Month.CellDate[static_cast<std::size_t>(cell)],
                      .point = InPixels(x, y)};
    if (const auto icon = CalendarIconAt(window.CalendarGrid, cell, x, y)) {
        action.kind = ViewActionKind::OpenDayMenu;
        action.icon = *icon;
    } else if (right) {
        action.kind = ViewActionKind::OpenCalendarMenu;
    }
    return action;
}

ViewAction ClickOnDay(const frmMain& window, int x, int y, bool right) {
    const int box = window.ClickedRow;
    const int halfHour = HalfHourAt(y, window.FirstRow);
    if (right) {
        return {.kind = ViewActionKind::OpenListMenu,
                .halfHour = box > 0 ? -1 : halfHour,
                .point = InPixels(x, y)};
    }
    return {.kind = box > 0 ? ViewActionKind::OpenEvent : ViewActionKind::OpenHalfHour,
            .row = box,
            .halfHour = halfHour};
}

ViewAction ClickOnList(const frmMain& window, const ModeRow& mode, int x, int y, bool right) {
    if (right && mode.listMenu != ListMenu::None) {
        return {.kind = ViewActionKind::OpenListMenu, .point = InPixels(x, y)};
    }
    const int row = window.FirstRow + window.ClickedRow - 1;
    if (window.ClickedRow == NoRow) {
        return {};
    }
    return row <= window.RowCount
               ? ViewAction{.kind = ViewActionKind::OpenRow, .row = row}
               : ViewAction{.kind = ViewActionKind::RunCommand, .command = mode.behindRows};
}

} // namespace

int RowUnder(const frmMain& window, int x, int y) {
    switch (window.CurrentMode()) {
    case Mode::Calendar:
        return CalendarCellAt(window.CalendarGrid, x, y).value_or(NoRow);
    case Mode::Events:
        return EventBoxAt(x, y, window.FirstRow);
    default:
        return RowAt(x, y, window.picGrid->WidthInUnits());
    }
}

// Press and release must fall on one row.
ViewAction ReleaseOnGrid(const frmMain& window, int x, int y, Qt::MouseButton button) {
    if (!OnSurface(*window.picGrid, x, y) || RowUnder(window, x, y) != window.ClickedRow) {
        return {};
    }
    const bool right = button == Qt::RightButton;
    const Mode mode = window.CurrentMode();
    switch (mode) {
    case Mode::Calendar:
        return ClickOnMonth(window, x, y, right);
    case Mode::Events:
        return ClickOnDay(window, x, y, right);
    case Mode::None:
        return {};
    default:
        return ClickOnList(window, RowOf(ModeRows, mode), x, y, right);
    }
}

void BindGrid(frmMain& window) {
    InstallGridKeys(window);
    InstallGridPointer(window);
    BindGridScroll(window);
    QObject::connect(window.picGrid, &PictureBox::Pressed, &window,
                     [&window](int x, int y) { window.ClickedRow = RowUnder(window, x, y); });
    QObject::connect(window.picGrid, &PictureBox::Released, &window,
                     [&window](int x, int y, Qt::MouseButton button) {
                         emit window.Asked(ReleaseOnGrid(window, x, y, button));
                     });
    // The window's own resize comes before its surfaces have their new sizes, so this hangs on the surface.
    QObject::connect(window.picGrid, &PictureBox::Resized, &window, &frmMain::RefreshAfterResize);
    for (std::size_t i = 0; i < window.picColHeader.size(); ++i) {
        QObject::connect(window.picColHeader[i], &PictureBox::Clicked, &window, [&window, i] {
            emit window.Asked({.kind = ViewActionKind::SortColumn, .index = i});
        });
    }
}
