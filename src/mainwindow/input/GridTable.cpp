// The grid of the main window as the table that a screen reader is told of.
#include "mainwindow/input/GridTable.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/RowLists.h"
#include "core/Values.h"
#include "mainwindow/day/DayLayout.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/list/ListRows.h"
#include "mainwindow/modes/ModeTables.h"
#include "toolkit/Text.h"
#include "toolkit/grid/ListTable.h"

namespace {

// The columns of the day's schedule.
enum DayColumn { TimeColumn, LengthColumn, EventColumn, DayColumnCount };

constexpr std::array<const char*, DayColumnCount> DayTitles{"Time", "Length", "Event"};

std::size_t CellIndex(int row, int column) {
    const int cell = row * DaysPerWeek + column;
    return static_cast<std::size_t>(cell);
}

// --- The month ---

QString CountText(const char* what, int done, int left) {
    return done + left == 0
               ? QString()
               : QStringLiteral(", %1 %2").arg(QLatin1String(what), FromStore(DoneOfAll(done, left)));
}

QString DayText(const CalendarMonth& month, std::size_t cell) {
    const int events = month.EventCountByDay[cell];
    return FromScreen(FormatDate(month.CellDate[cell], "dddd, MMMM d")) +
           CountText("homework", month.HomeworkDoneCount[cell], month.HomeworkLeftCount[cell]) +
           CountText("tasks", month.TaskDoneCountByDay[cell], month.TaskLeftCountByDay[cell]) +
           (events == 0 ? QString() : QStringLiteral(", events %1").arg(events));
}

QRect PlaceOfDay(const frmMain& window, int row, int column) {
    const CalendarLayout& layout = window.CalendarGrid;
    return PixelsOf(row == TitleRow ? layout.head[static_cast<std::size_t>(column)]
                                    : layout.cell[CellIndex(row, column)].area)
        .intersected(window.picGrid->rect());
}

TableCell SelectedDay(const CalendarMonth& month) {
    const auto cell = static_cast<int>(SelectedCellOf(month));
    return cell < MonthCells ? TableCell{cell / DaysPerWeek, cell % DaysPerWeek} : TableCell{};
}

PaintedTable TableOfMonth(frmMain& window) {
    return {
        .rows = MonthCells / DaysPerWeek,
        .columns = DaysPerWeek,
        .firstShown = 0,
        .endShown = MonthCells / DaysPerWeek,
        .current = SelectedDay(window.Month),
        .titleOf =
            [&window](int column) {
                return FromStore(WeekdayHeads(window.StartDayOfWeek)[static_cast<std::size_t>(column)]);
            },
        .cellOf = [&window](int row,
                            int column) { return SpokenCell{DayText(window.Month, CellIndex(row, column))}; },
        .placeOf = [&window](int row, int column) { return PlaceOfDay(window, row, column); },
        .press =
            [&window](int row, int column) {
                if (row != TitleRow) {
                    emit window.Asked({.kind = ViewActionKind::GoToDate,
                                       .date = window.Month.CellDate[CellIndex(row, column)]});
                }
            },
    };
}

// --- The day ---

QString EventText(int eventRow, int column) {
    const EventLists& store = Store.EventRecord;
    const int position = EventRows.Item(eventRow);
    switch (column) {
    case TimeColumn:
        return TimeCell(store.time.Item(position)).text;
    case LengthColumn:
        return FromStore(store.duration.Item(position));
    default:
        return FromStore(EventBoxText(eventRow)).trimmed();
    }
}

PaintedTable TableOfDay(frmMain& window) {
    return {
        .rows = EventRows.Count(),
        .columns = DayColumnCount,
        .firstShown = 0,
        .endShown = EventRows.Count(),
        .current = {window.CurrentEvent - 1, EventColumn},
        .titleOf =
            [](int column) { return QString::fromLatin1(DayTitles[static_cast<std::size_t>(column)]); },
        .cellOf = [](int row, int column) { return SpokenCell{EventText(row + 1, column)}; },
        .placeOf =
            [&window](int row, int /*column*/) {
                return row == TitleRow ? QRect()
                                       : PixelsOf(EventBoxOf(row + 1, window.FirstRow))
                                             .intersected(window.picGrid->rect());
            },
        .press =
            [&window](int row, int /*column*/) {
                if (row != TitleRow) {
                    emit window.Asked({.kind = ViewActionKind::OpenEvent,
                                       .row = row + 1,
                                       .halfHour = HalfHourOfEvent(row + 1, 0),
                                       .reveal = true});
                }
            },
    };
}

} // namespace

PaintedTable TableOfView(frmMain& window) {
    switch (ViewOf(window.CurrentMode()).view) {
    case GridView::List:
        return TableOfList(window);
    case GridView::Month:
        return TableOfMonth(window);
    case GridView::Day:
        return TableOfDay(window);
    default:
        return {};
    }
}
