// The layout and the fill of the lists on the grid.
#pragma once

#include "mainwindow/grid/GridLayout.h"
#include "mainwindow/list/ListRows.h"

#include <QString>

class frmMain;

// Places the titles of the list and the scroll bar and leaves an empty grid of its lines.
void LayoutList(frmMain& window, ListKind kind);

// What is painted of a cell's text in a column of that width.
QString ShownCellText(const GridCell& cell, const ColumnPlace& column);

// Shows the rows that the selection and the sort have left, under their titles.
void ShowList(frmMain& window, ListKind kind);
