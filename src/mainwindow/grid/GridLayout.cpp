// Where the lists of the grid stand.
#include "mainwindow/grid/GridLayout.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr std::array<ListColumn, 10> HomeworkColumns{{
    {" #", RowNumberWidth},
    {ReminderMark, 19},
    {" !", 19},
    {"Class", 0.35},
    {"Type", 80},
    {"Description", 0.65},
    {"Time", 45},
    {"Due", 70},
    {"Done", 41},
    {"Score", 46},
}};

constexpr std::array<ListColumn, 8> StudyColumns{{
    {"#", RowNumberWidth},
    {"Class", 0.35},
    {"Type", 85},
    {"Description", 0.65},
    {"Priority", 75},
    {"Time", 50},
    {"Done On", 70},
    {"Due", 75},
}};

constexpr std::array<ListColumn, 7> TaskColumns{{
    {"#", RowNumberWidth},
    {ReminderMark, 19},
    {"Name", 0.996},
    {"Type", 75},
    {"Priority", 70},
    {"Date", 70},
    {"Done", 45},
}};

constexpr std::array<ListColumn, 6> EventColumns{{
    {"#", RowNumberWidth},
    {"Name", 0.995},
    {"Type", 75},
    {"Date", 75},
    {"Time", 70},
    {"Recurrence", 90},
}};

constexpr std::array<ListColumn, 7> ReminderColumns{{
    {"#", RowNumberWidth},
    {"For", 75},
    {"Class", 0.3},
    {"Type", 80},
    {"Description", 0.695},
    {"When", 90},
    {"Date", 70},
}};

// Columns overlap by this much, and what is shared out is greater by three times as much.
constexpr int Overlap = UnitsPerPixel;
constexpr int SharedExtra = 3 * Overlap;
constexpr int WheelSteps = 3;

int FixedWidth(const ListColumn& column) {
    return column.width < 1 ? 0 : static_cast<int>(column.width) * UnitsPerPixel;
}

int ShareOf(double share, int units) {
    return static_cast<int>(std::lround(share * units / UnitsPerPixel)) * UnitsPerPixel;
}

} // namespace

std::span<const ListColumn> ColumnsOf(ListKind kind) {
    switch (kind) {
    case ListKind::Homework:
        return HomeworkColumns;
    case ListKind::StudySessions:
        return StudyColumns;
    case ListKind::Tasks:
        return TaskColumns;
    case ListKind::Events:
        return EventColumns;
    case ListKind::Reminders:
        return ReminderColumns;
    }
    return {};
}

std::vector<ColumnPlace> PlaceColumns(std::span<const ListColumn> columns, int gridWidth) {
    int fixed = 0;
    for (const ListColumn& column : columns) {
        fixed += FixedWidth(column);
    }
    const int shared = std::max(RowsRight(gridWidth) - fixed + SharedExtra, 0);
    std::vector<ColumnPlace> places;
    places.reserve(columns.size());
    int left = 0;
    for (const ListColumn& column : columns) {
        const int width = column.width < 1 ? ShareOf(column.width, shared) : FixedWidth(column);
        places.push_back({left, width});
        left += width - Overlap;
    }
    return places;
}

int RowsRight(int gridWidth) {
    return gridWidth - ScrollStripWidth;
}

int WholeRows(int gridHeight, int titleHeight, int rowHeight) {
    return std::max(gridHeight - titleHeight, 0) / rowHeight;
}

int RowTop(int row) {
    return TitleUnits + (row - 1) * RowUnits;
}

UnitRect CellRect(const ColumnPlace& column, int row) {
    return {column.left + UnitsPerPixel, RowTop(row) + UnitsPerPixel, column.width - 2 * UnitsPerPixel,
            RowUnits - UnitsPerPixel};
}

int RowAt(int x, int y, int gridWidth) {
    if (x >= RowsRight(gridWidth)) {
        return NoRow;
    }
    return y < TitleUnits ? 1 : (y - TitleUnits) / RowUnits + 1;
}

GridScroll GridScrollFor(int rowCount, int rowsVisible) {
    if (rowCount <= rowsVisible) {
        return {};
    }
    return {true, rowCount - rowsVisible + 1, std::max(rowsVisible - 1, 1)};
}

int WheelTarget(int rotation, int value, int greatest) {
    return rotation < 1 ? std::min(value + WheelSteps, greatest) : std::max(value - WheelSteps, 1);
}

int FirstRowShowing(int row, int firstRow, int rowsVisible) {
    if (row < firstRow) {
        return row;
    }
    return std::max(firstRow, row - std::max(rowsVisible, 1) + 1);
}
