// What the pointer is shown on the grid as it passes.
#include "mainwindow/input/GridPointer.h"

#include "core/RowLists.h"
#include "mainwindow/day/DayLayout.h"
#include "mainwindow/day/DaySchedule.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/input/GridTable.h"
#include "mainwindow/list/ListGrid.h"
#include "mainwindow/list/ListTitles.h"
#include "toolkit/Text.h"
#include "toolkit/WindowStyle.h"

#include <QHelpEvent>
#include <QToolTip>

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

// --- The lists ---

std::optional<UnitRect> RowRectAt(const frmMain& window, int x, int y) {
    const int place = RowAt(x, y, window.picGrid->WidthInUnits());
    if (y < TitleUnits || place == NoRow || window.FirstRow + place - 1 > window.RowCount) {
        return std::nullopt;
    }
    return UnitRect{0, RowTop(place), RowsRight(window.picGrid->WidthInUnits()), RowUnits + UnitsPerPixel};
}

QString ListTip(const frmMain& window, ListKind kind, QPoint point) {
    const TableCell at = TableCellAt(window, point);
    if (at.row < 0 || at.column <= 0) {
        return {};
    }
    const auto column = static_cast<std::size_t>(at.column);
    const GridCell cell = RowOfList(kind, at.row + 1).cells[column - 1];
    const ColumnPlace place = PlaceColumns(ColumnsOf(kind), window.picGrid->WidthInUnits())[column];
    const QString whole = TableText(window, at.row, at.column);
    const bool saysIt = cell.kind != CellKind::Text || ShownCellText(cell, place).trimmed() == whole;
    return saysIt ? QString() : whole; // a shortened text, or what a mark means
}

// --- The day ---

QString EventTip(const frmMain& window, int x, int y) {
    const int row = EventBoxAt(x, y, window.FirstRow);
    const QString whole = row == 0 ? QString() : FromStore(EventBoxText(row));
    return row == 0 || ShownEventText(row, EventBoxWidth.Item(row)) == whole ? QString() : whole.trimmed();
}

// Follows the pointer over the grid, and off it onto the titles and the scroll bar. The grid is kept apart,
// since events reach it while the window comes to its end.
class GridPointerFilter : public QObject {
public:
    explicit GridPointerFilter(frmMain& owner) : QObject(&owner), window(owner), grid(owner.picGrid) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched != grid) {
            if (event->type() == QEvent::Enter) {
                grid->ShowHover(std::nullopt);
            }
            return false;
        }
        switch (event->type()) {
        case QEvent::MouseMove:
            Follow(static_cast<QMouseEvent*>(event)->position().toPoint());
            return false;
        case QEvent::Leave:
            grid->ShowHover(std::nullopt);
            return false;
        case QEvent::ToolTip:
            return ShowTip(*static_cast<QHelpEvent*>(event));
        default:
            return false;
        }
    }

    void Follow(QPoint point) {
        grid->ShowHover(OpenableAt(window, point.x() * UnitsPerPixel, point.y() * UnitsPerPixel));
        grid->setCursor(grid->Hover() ? Qt::PointingHandCursor : Qt::ArrowCursor);
    }

private:
    bool ShowTip(const QHelpEvent& event) {
        const QString tip = GridTip(window, event.pos());
        if (tip.isEmpty()) {
            QToolTip::hideText();
        } else {
            QToolTip::showText(event.globalPos(), PlainTip(tip), grid);
        }
        return true;
    }

    frmMain& window;
    PictureBox* grid;
};

} // namespace

std::optional<UnitRect> OpenableAt(const frmMain& window, int x, int y) {
    const Mode mode = window.CurrentMode();
    if (ListOf(mode)) {
        return RowRectAt(window, x, y);
    }
    if (mode == Mode::Calendar) {
        return CounterRectAt(window.CalendarGrid, x, y);
    }
    const int box = mode == Mode::Events ? EventBoxAt(x, y, window.FirstRow) : 0;
    return box == 0 ? std::nullopt : std::optional(EventBoxOf(box, window.FirstRow));
}

QString GridTip(const frmMain& window, QPoint point) {
    const Mode mode = window.CurrentMode();
    if (const auto kind = ListOf(mode)) {
        return ListTip(window, *kind, point);
    }
    const int x = point.x() * UnitsPerPixel;
    const int y = point.y() * UnitsPerPixel;
    if (mode == Mode::Calendar) {
        return MonthTip(window, x, y);
    }
    return mode == Mode::Events ? EventTip(window, x, y) : QString();
}

void InstallGridPointer(frmMain& window) {
    auto* filter = new GridPointerFilter(window);
    window.picGrid->setMouseTracking(true);
    window.picGrid->installEventFilter(filter);
    for (PictureBox* header : window.picColHeader) {
        header->installEventFilter(filter);
    }
    window.VSGridScroll->installEventFilter(filter);
}

void RefreshGridPointer(frmMain& window) {
    if (const auto& hover = window.picGrid->Hover()) {
        // The pointer still stands in what it was shown last; its middle tells whether that is still there.
        window.picGrid->ShowHover(
            OpenableAt(window, hover->left + hover->width / 2, hover->top + hover->height / 2));
    }
}
