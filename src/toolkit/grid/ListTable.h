// A list as the table that a screen reader is told of: its rows with the texts that are painted.
#pragma once

#include "toolkit/grid/PaintedList.h"
#include "toolkit/grid/PaintedTable.h"

PaintedTable TableOfList(PaintedList& grid);

// What is said of a cell; row and column count from 0.
SpokenCell SpokenCellOf(const PaintedList& grid, int row, int column);
