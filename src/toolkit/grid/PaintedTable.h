// A painted surface as the table that a screen reader is told of. Rows and columns count from 0 here.
#pragma once

#include "toolkit/PictureBox.h"

#include <QRect>

#include <functional>

inline constexpr int TitleRow = -1; // the row of the titles

struct TableCell {
    int row = -1;
    int column = 0;
};

struct SpokenCell {
    QString text;
    bool checkable = false; // it shows a box that can be checked
    bool checked = false;
};

// What the surface shows at the moment. A table of no rows and no columns calls none of the procedures.
struct PaintedTable {
    int rows = 0;
    int columns = 0;
    int firstShown = 0; // the rows that the surface may show; of the others no point is looked for
    int endShown = 0;
    TableCell current = {}; // on which the keys stand; row -1 for none

    // As it is said.
    std::function<QString(int column)> titleOf = {};
    std::function<SpokenCell(int row, int column)> cellOf = {};

    // In pixels, also of TitleRow; empty when scrolled away.
    std::function<QRect(int row, int column)> placeOf = {};

    // What a click does, also on TitleRow.
    std::function<void(int row, int column)> press = {};
};

// The rectangle in pixels.
QRect PixelsOf(const UnitRect& rect);

// The cell or title at a point of the surface in pixels; column -1 for none.
TableCell TableCellAt(const PaintedTable& table, QPoint point);

// Lets the toolkit describe the surface as that table, which is asked for anew each time, for as long as the
// owner lives. To be called before the surface gets a name, as the toolkit keeps what it has found first; a
// later call for the same surface replaces the table.
void DescribeAsTable(PictureBox* surface, QWidget* owner, std::function<PaintedTable()> table);

// The table of a surface that was described.
PaintedTable TableOf(const PictureBox& surface);

// Tell a screen reader, if there is one, that the surface shows something else, and where the keys stand.
void NotifyTableChanged(PictureBox* surface);
void NotifyTableMoved(PictureBox* surface);
