// The grid as the table that a screen reader is told of.
#include "mainwindow/input/GridTable.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/RowLists.h"
#include "core/Values.h"
#include "mainwindow/day/DayLayout.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/list/ListRows.h"
#include "mainwindow/list/ListTitles.h"
#include "toolkit/Text.h"

namespace {

// The columns of the day's schedule.
enum DayColumn { TimeColumn, LengthColumn, EventColumn, DayColumnCount };

constexpr std::array<const char*, DayColumnCount> DayTitles{"Time", "Length", "Event"};

QRect InPixels(const UnitRect& rect) {
    return {rect.left / UnitsPerPixel, rect.top / UnitsPerPixel, rect.width / UnitsPerPixel,
            rect.height / UnitsPerPixel};
}

std::size_t CellIndex(int row, int column) {
    const int cell = row * DaysPerWeek + column;
    return static_cast<std::size_t>(cell);
}

// --- The lists ---

const GridCell& ListCell(const GridRow& row, int column) {
    return row.cells[static_cast<std::size_t>(column - 1)];
}

QString ListText(ListKind kind, int row, int column) {
    if (column == 0) {
        return QString::number(row + 1);
    }
    const GridRow shown = RowOfList(kind, row + 1);
    const GridCell& cell = ListCell(shown, column);
    switch (cell.kind) {
    case CellKind::Checked:
        return QStringLiteral("Done");
    case CellKind::Unchecked:
        return QStringLiteral("Not done");
    case CellKind::Text:
        break;
    }
    const QString text = cell.text.trimmed();
    return text.isEmpty() ? text
                          : SpokenMarkOf(kind, column).value_or(text); // what is marked, in place of the mark
}

QRect ListPlace(const frmMain& window, ListKind kind, int row, int column) {
    const ColumnPlace place =
        PlaceColumns(ColumnsOf(kind), window.picGrid->WidthInUnits())[static_cast<std::size_t>(column)];
    if (row == TitleRow) {
        return InPixels({place.left, 0, place.width, TitleUnits});
    }
    if (row + 1 < window.FirstRow) {
        return {};
    }
    return InPixels(CellRect(place, row + 2 - window.FirstRow));
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

} // namespace

GridTable TableOf(const frmMain& window) {
    const Mode mode = window.CurrentMode();
    if (const auto kind = ListOf(mode)) {
        return {window.RowCount, static_cast<int>(ColumnsOf(*kind).size())};
    }
    switch (mode) {
    case Mode::Calendar:
        return {MonthCells / DaysPerWeek, DaysPerWeek};
    case Mode::Events:
        return {EventRows.Count(), DayColumnCount};
    default:
        return {};
    }
}

QString TableTitle(const frmMain& window, int column) {
    const Mode mode = window.CurrentMode();
    if (const auto kind = ListOf(mode)) {
        return ListTitle(*kind, column);
    }
    const auto index = static_cast<std::size_t>(column);
    return mode == Mode::Calendar ? FromStore(WeekdayHeads(window.StartDayOfWeek)[index])
                                  : QLatin1String(DayTitles[index]);
}

QString TableText(const frmMain& window, int row, int column) {
    const Mode mode = window.CurrentMode();
    if (const auto kind = ListOf(mode)) {
        return ListText(*kind, row, column);
    }
    return mode == Mode::Calendar ? DayText(window.Month, CellIndex(row, column))
                                  : EventText(row + 1, column);
}

TableCheck TableCheckOf(const frmMain& window, int row, int column) {
    const auto kind = ListOf(window.CurrentMode());
    if (!kind || row < 0 || column == 0) {
        return {};
    }
    const CellKind shown = ListCell(RowOfList(*kind, row + 1), column).kind;
    return {shown != CellKind::Text, shown == CellKind::Checked};
}

QRect TablePlace(const frmMain& window, int row, int column) {
    const Mode mode = window.CurrentMode();
    QRect place;
    if (const auto kind = ListOf(mode)) {
        place = ListPlace(window, *kind, row, column);
    } else if (mode == Mode::Calendar) {
        place = InPixels(row < 0 ? window.CalendarGrid.head[static_cast<std::size_t>(column)]
                                 : window.CalendarGrid.cell[CellIndex(row, column)].area);
    } else if (row >= 0) {
        place = InPixels(EventBoxOf(row + 1, window.FirstRow));
    }
    return place.intersected(window.picGrid->rect());
}

TableCell CurrentTableCell(const frmMain& window) {
    switch (window.CurrentMode()) {
    case Mode::Calendar: {
        const auto cell = static_cast<int>(SelectedCellOf(window.Month));
        return cell < MonthCells ? TableCell{cell / DaysPerWeek, cell % DaysPerWeek} : TableCell{};
    }
    case Mode::Events:
        return {window.CurrentEvent - 1, EventColumn};
    default:
        return {window.CurrentRow - 1, 0};
    }
}

TableCell TableCellAt(const frmMain& window, QPoint point) {
    const GridTable size = TableOf(window);
    const bool scrolls = ListOf(window.CurrentMode()).has_value();
    const int first = scrolls ? window.FirstRow - 1 : 0;
    const int end = scrolls ? std::min(size.rows, window.FirstRow + window.RowsVisible) : size.rows;
    for (int column = 0; column < size.columns; ++column) {
        if (TablePlace(window, TitleRow, column).contains(point)) {
            return {TitleRow, column};
        }
        for (int row = first; row < end; ++row) {
            if (TablePlace(window, row, column).contains(point)) {
                return {row, column};
            }
        }
    }
    return {TitleRow, -1};
}

ViewAction PressOnTableCell(const frmMain& window, int row, int column) {
    const Mode mode = window.CurrentMode();
    const bool list = ListOf(mode).has_value();
    if (row < 0) {
        return list
                   ? ViewAction{.kind = ViewActionKind::SortColumn, .index = static_cast<std::size_t>(column)}
                   : ViewAction{};
    }
    if (list) {
        return {.kind = ViewActionKind::OpenRow, .row = row + 1, .reveal = true};
    }
    if (mode == Mode::Calendar) {
        return {.kind = ViewActionKind::GoToDate, .date = window.Month.CellDate[CellIndex(row, column)]};
    }
    return mode == Mode::Events ? ViewAction{.kind = ViewActionKind::OpenEvent,
                                             .row = row + 1,
                                             .halfHour = HalfHourOfEvent(row + 1, 0),
                                             .reveal = true}
                                : ViewAction{};
}
