// Where the parts of a painted list stand.
#include "toolkit/layout/GridLayout.h"

#include <algorithm>
#include <cmath>

namespace {

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

int RowTop(int place) {
    return TitleUnits + (place - 1) * RowUnits;
}

UnitRect RowRect(int place, int gridWidth) {
    return {0, RowTop(place), RowsRight(gridWidth), RowUnits + UnitsPerPixel};
}

UnitRect CellRect(const ColumnPlace& column, int place) {
    return {column.left + UnitsPerPixel, RowTop(place) + UnitsPerPixel, column.width - 2 * UnitsPerPixel,
            RowUnits - UnitsPerPixel};
}

int PlaceAt(int x, int y, int gridWidth) {
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
