// The grid as the table that a screen reader is told of: the rows of a list, the days of the month, the
// events of the day, each with the texts that are painted. Rows and columns count from 0 here.
#pragma once

#include "mainwindow/state/ViewAction.h"

#include <QRect>
#include <QString>

class frmMain;

inline constexpr int TitleRow = -1;

struct GridTable {
    int rows = 0;
    int columns = 0;
};

GridTable TableOf(const frmMain& window);

QString TableTitle(const frmMain& window, int column);
QString TableText(const frmMain& window, int row, int column);

// Whether the cell shows a box that can be checked, and whether it is.
struct TableCheck {
    bool shown = false;
    bool checked = false;
};

TableCheck TableCheckOf(const frmMain& window, int row, int column);

// Where the cell stands on the grid in pixels; empty when it is scrolled away. TitleRow is that of the
// titles.
QRect TablePlace(const frmMain& window, int row, int column);

struct TableCell {
    int row = -1;
    int column = 0;
};

// The cell on which the keys stand; row -1 for none.
TableCell CurrentTableCell(const frmMain& window);

// The cell or title at a point of the grid in pixels; column -1 for none.
TableCell TableCellAt(const frmMain& window, QPoint point);

// What a press on the cell asks for; on a title, to sort.
ViewAction PressOnTableCell(const frmMain& window, int row, int column);
