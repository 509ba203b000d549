// What the pointer is shown on the grid as it passes.
#include "mainwindow/input/GridPointer.h"

#include "core/RowLists.h"
#include "mainwindow/day/DayLayout.h"
#include "mainwindow/day/DaySchedule.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/modes/ModeTables.h"
#include "toolkit/Text.h"
#include "toolkit/WindowStyle.h"
#include "toolkit/grid/ListPointer.h"
#include "toolkit/grid/SurfaceEvents.h"

namespace {

// --- The month ---

// By CalendarIcon.
struct CounterTip {
    const char* text;
    int key;
};

constexpr std::array<CounterTip, CalendarIcons> CounterTips{{
    {"Homework of the day: %1 done", Qt::Key_H},
    {"Tasks of the day: %1 done", Qt::Key_T},
    {"Events of the day: %1", Qt::Key_E},
}};

struct Counter {
    std::size_t cell;
    std::size_t line;
};

std::optional<Counter> CounterAt(const CalendarLayout& layout, int x, int y) {
    const auto cell = CalendarCellAt(layout, x, y);
    const auto icon = cell ? CalendarIconAt(layout, *cell, x, y) : std::nullopt;
    return icon ? std::optional(Counter{static_cast<std::size_t>(*cell), static_cast<std::size_t>(*icon)})
                : std::nullopt;
}

std::optional<UnitRect> CounterRectAt(const CalendarLayout& layout, int x, int y) {
    const auto counter = CounterAt(layout, x, y);
    return counter ? std::optional(layout.cell[counter->cell].icon[counter->line]) : std::nullopt;
}

// The keys are those of the selected day.
QString MonthTip(const frmMain& window, int x, int y) {
    const auto counter = CounterAt(window.CalendarGrid, x, y);
    if (!counter) {
        return {};
    }
    const std::size_t at = counter->cell;
    const CalendarMonth& month = window.Month;
    const std::array<QString, CalendarIcons> counts{
        FromStore(DoneOfAll(month.HomeworkDoneCount[at], month.HomeworkLeftCount[at])),
        FromStore(DoneOfAll(month.TaskDoneCountByDay[at], month.TaskLeftCountByDay[at])),
        QString::number(month.EventCountByDay[at]),
    };
    const CounterTip& tip = CounterTips[counter->line];
    return TipWithKey(QString::fromLatin1(tip.text).arg(counts[counter->line]),
                      at == SelectedCellOf(month) ? QKeySequence(tip.key) : QKeySequence());
}

// --- The day ---

std::optional<UnitRect> EventRectAt(int x, int y, int firstRow) {
    const int box = EventBoxAt(x, y, firstRow);
    return box == 0 ? std::nullopt : std::optional(EventBoxOf(box, firstRow));
}

QString EventTip(const frmMain& window, int x, int y) {
    const int row = EventBoxAt(x, y, window.FirstRow);
    const QString whole = row == 0 ? QString() : FromStore(EventBoxText(row));
    return row == 0 || ShownEventText(row, EventBoxWidth.Item(row)) == whole ? QString() : whole.trimmed();
}

} // namespace

std::optional<UnitRect> OpenableAt(const frmMain& window, int x, int y) {
    switch (ViewOf(window.CurrentMode()).view) {
    case GridView::List:
        return RowRectAt(window, x, y);
    case GridView::Month:
        return CounterRectAt(window.CalendarGrid, x, y);
    case GridView::Day:
        return EventRectAt(x, y, window.FirstRow);
    default:
        return std::nullopt;
    }
}

QString GridTip(frmMain& window, QPoint point) {
    const int x = point.x() * UnitsPerPixel;
    const int y = point.y() * UnitsPerPixel;
    switch (ViewOf(window.CurrentMode()).view) {
    case GridView::List:
        return ListTipAt(window, point);
    case GridView::Month:
        return MonthTip(window, x, y);
    case GridView::Day:
        return EventTip(window, x, y);
    default:
        return {};
    }
}

void InstallGridPointer(frmMain& window) {
    FollowPointer(window.picGrid, OnSurface(window), &window,
                  {[&window](int x, int y) { return OpenableAt(window, x, y); },
                   [&window](QPoint point) { return GridTip(window, point); }});
}

void RefreshGridPointer(frmMain& window) {
    LookAgainUnderPointer(*window.picGrid, [&window](int x, int y) { return OpenableAt(window, x, y); });
}
