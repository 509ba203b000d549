// How the keys move in a list.
#pragma once

enum class GridMove { Up, Down, Left, Right, PageUp, PageDown, Home, End };

// What a list shows: so many rows, from the first one on so many at a time; its rows count from 1.
struct ListView {
    int rowCount = 0;
    int firstRow = 1;
    int rowsVisible = 0;
};

// The row on which the keys stand after the move. From no row (0) any single step leads to the first one
// shown; moves to the side and moves in an empty list change nothing.
int MovedRow(GridMove move, int row, const ListView& view);
