// How the keys move in a list, in the month and in the schedule of a day.
#pragma once

#include "platform/Clock.h"

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

// The date after the move: by a day to the side, by a week up and down, by a month a page, Home and End to
// the ends of the month.
Date MovedDate(GridMove move, Date date);
