// Where the parts of a painted list stand: the columns, the rows under their titles, and what lies under a
// point. All in units of 15 to the pixel unless told otherwise. The place of a row is its number on the
// surface, counted from 1 under the titles.
#pragma once

#include "platform/Units.h"

#include <span>
#include <string_view>
#include <vector>

inline constexpr int RowHeight = 22;   // pixels
inline constexpr int TitleHeight = 21; // pixels
inline constexpr int RowUnits = RowHeight * UnitsPerPixel;
inline constexpr int TitleUnits = TitleHeight * UnitsPerPixel;
inline constexpr int ScrollStripWidth = 255;
inline constexpr int RowNumberWidth = 28;  // pixels of column 0
inline constexpr int RowNumberRight = 345; // the right end of the row numbers
inline constexpr int NoRow = 999;          // ClickedRow where no row lies under the point

// A column's title, in the characters of the store, and its width: fixed in pixels when it is 1 or more, else
// a share of what the fixed columns leave. Column 0 is the number of the row. Where the title is a mark,
// `spoken` is the word for it, and for the mark in the cells under it.
struct ListColumn {
    std::string_view title;
    double width = 0;
    std::string_view spoken = {};
};

struct ColumnPlace {
    int left = 0;
    int width = 0;

    friend bool operator==(const ColumnPlace&, const ColumnPlace&) = default;
};

// The places of the columns on a grid of that width beside a scroll bar of ScrollStripWidth. Each overlaps
// the one before it by a pixel, and a share is rounded to whole pixels, so that all edges are sharp.
std::vector<ColumnPlace> PlaceColumns(std::span<const ListColumn> columns, int gridWidth);

// Where the rows end: before the strip of the scroll bar.
int RowsRight(int gridWidth);

// Whole rows of that height that fit under the titles; all three in pixels.
int WholeRows(int gridHeight, int titleHeight, int rowHeight);

// The place of a row of a list that shows its rows from the first one on, and the row at a place.
constexpr int PlaceOfRow(int row, int firstRow) {
    return row - firstRow + 1;
}

constexpr int RowAtPlace(int place, int firstRow) {
    return firstRow + place - 1;
}

// The upper edge of the row at a place: the line above it.
int RowTop(int place);

// The row at a place with the lines around it.
UnitRect RowRect(int place, int gridWidth);

// The inside of a cell of the row at a place, between the lines around it.
UnitRect CellRect(const ColumnPlace& column, int place);

// The place under a point, whether the list has so many rows or not. The titles themselves give 1, the strip
// of the scroll bar gives NoRow.
int PlaceAt(int x, int y, int gridWidth);

// What the scroll bar of the grid is set to.
struct GridScroll {
    bool enabled = false; // only when not all rows fit
    int greatest = 1;
    int largeStep = 1;

    friend bool operator==(const GridScroll&, const GridScroll&) = default;
};

GridScroll GridScrollFor(int rowCount, int rowsVisible);

// The value of the scroll bar after the wheel was turned: three rows down when the rotation is below 1, else
// three up, within 1 and the greatest value.
int WheelTarget(int rotation, int value, int greatest);

// The number of the first row shown so that the row is visible, moved no further than needed.
int FirstRowShowing(int row, int firstRow, int rowsVisible);
