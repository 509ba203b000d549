// What clicks on the grid and on its titles mean.
#include "mainwindow/input/GridClicks.h"

#include "mainwindow/day/DayLayout.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/input/GridKeys.h"
#include "mainwindow/input/GridPointer.h"
#include "mainwindow/input/GridTable.h"
#include "mainwindow/modes/ModeTables.h"
#include "toolkit/grid/ListInput.h"
#include "toolkit/grid/SurfaceEvents.h"

namespace {

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

// What is asked of the list in this mode; gives whether it means anything there.
bool AskOfList(frmMain& window, const ListAction& action) {
    const ViewRow mode = ViewOf(window.CurrentMode());
    if (mode.view != GridView::List) {
        return false;
    }
    switch (action.ask) {
    case ListAsk::Menu:
        if (mode.menu != ListMenu::None) {
            emit window.Asked({.kind = ViewActionKind::OpenListMenu, .point = InPixels(action.x, action.y)});
        }
        return mode.menu != ListMenu::None;
    case ListAsk::Click:
    case ListAsk::Enter:
        emit window.Asked(action.row > 0
                              ? ViewAction{.kind = ViewActionKind::OpenRow, .row = action.row}
                              : ViewAction{.kind = ViewActionKind::RunCommand, .command = mode.behindRows});
        return true;
    case ListAsk::Move:
    case ListAsk::Sort:
        return true;
    case ListAsk::Delete:
        return false;
    }
    return false;
}

// Press and release have to fall on the same cell or box; the list sees to that itself.
void ReleaseOnGrid(frmMain& window, int x, int y, Qt::MouseButton button) {
    const GridView view = ViewOf(window.CurrentMode()).view;
    if (view == GridView::List) {
        return ReleaseList(window, x, y, button);
    }
    if (!IsOnSurface(window, x, y) || RowUnder(window, x, y) != window.ClickedRow) {
        return;
    }
    const bool right = button == Qt::RightButton;
    if (view == GridView::Month) {
        emit window.Asked(ClickOnMonth(window, x, y, right));
    } else if (view == GridView::Day) {
        emit window.Asked(ClickOnDay(window, x, y, right));
    }
}

} // namespace

int RowUnder(const frmMain& window, int x, int y) {
    switch (ViewOf(window.CurrentMode()).view) {
    case GridView::Month:
        return CalendarCellAt(window.CalendarGrid, x, y).value_or(NoRow);
    case GridView::Day:
        return EventBoxAt(x, y, window.FirstRow);
    default:
        return PlaceAt(x, y, window.picGrid->WidthInUnits());
    }
}

void BindGrid(frmMain& window) {
    DescribeAsTable(window.picGrid, &window, [&window] { return TableOfView(window); });
    window.ActOnList = [&window](const ListAction& action) { return AskOfList(window, action); };
    TakeKeys(window.picGrid, &window, [&window](int key, Qt::KeyboardModifiers modifiers) {
        return PressGridKey(window, key, modifiers);
    });
    InstallGridPointer(window);
    QObject::connect(window.picGrid, &PictureBox::Pressed, &window,
                     [&window](int x, int y) { window.ClickedRow = RowUnder(window, x, y); });
    QObject::connect(
        window.picGrid, &PictureBox::Released, &window,
        [&window](int x, int y, Qt::MouseButton button) { ReleaseOnGrid(window, x, y, button); });
}
