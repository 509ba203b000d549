// A painted list: titles over rows that scroll, and a current row. Whoever shows a list has one such struct,
// gives it the columns and the rows, and is told what is asked of them.
#pragma once

#include "platform/SortDirection.h"
#include "toolkit/PictureBox.h"
#include "toolkit/layout/GridLayout.h"

#include <QScrollBar>

#include <functional>
#include <span>
#include <vector>

enum class CellKind { Text, Checked, Unchecked, Picture };

struct GridCell {
    QString text; // of a picture what it means
    CellKind kind = CellKind::Text;
    QString picture = {}; // name of its resource, shown on white
};

struct GridRow {
    int forecolor = 0; // 0xBBGGRR
    int backcolor = 0xFFFFFF;
    std::vector<GridCell> cells; // from column 1 on; column 0 is the row's number
};

// What is asked of a list.
enum class ListAsk {
    Click, // a press and release on the row, or a screen reader's press; row 0 is past the last one
    Menu, // the right button there, or the menu key; where it means nothing the button counts as the left one
    Enter, // the key on the current row
    Delete,
    Move, // a key has moved the current row, which is painted already
    Sort, // another order is chosen, and the list is painted anew behind this
};

struct ListAction {
    ListAsk ask = ListAsk::Click;
    int row = 0;
    int x = 0; // of Click and Menu: the point of the surface where a menu opens, in units
    int y = 0;
};

struct PaintedList {
    PictureBox* picGrid = nullptr;
    std::vector<PictureBox*> picColHeader; // on picGrid, like the scroll bar
    QScrollBar* VSGridScroll = nullptr;

    int SortColumn = 0; // column that the rows are sorted by
    int SortDirection = Ascending;
    int FirstRow = 1;                // number of the row at the top of the list
    int RowCount = 0;                // rows of the list
    int RowsVisible = 0;             // whole rows that fit under the titles
    int HeaderHeight = 0;            // height of the titles in pixels
    int ClickedRow = 0;              // place under the last press; NoRow when there is none
    int CurrentRow = 0;              // row on which the keys stand, framed; 0 for none
    int WheelRest = 0;               // eighths of a degree that the wheel was turned beyond a notch
    bool SortKeepsRowInView = false; // in another order the current row is seen, else the first one

    // What is shown; no columns while the surface shows something else.
    std::span<const ListColumn> ListColumns;
    std::function<GridRow(int row)> ListRow; // from 1 to RowCount

    // Lays out and fills the surface anew, with the rows as they are by then.
    std::function<void()> RepaintGrid;

    // Does what is asked; gives whether it means anything here.
    std::function<bool(const ListAction& action)> ActOnList;
};

// Makes the surface with so many titles and its scroll bar, known to screen readers as the table of the list
// for as long as the owner lives.
void BuildGrid(PaintedList& grid, std::size_t titles, QWidget* owner);

// Lets a window that shows nothing but the list on the surface react to mouse, keys and wheel, and paint the
// list anew when the surface changes its size.
void BindGrid(PaintedList& grid, QWidget* owner);

// Lays the surface out for the columns and shows so many rows, for a surface that shows nothing else, with
// what the pointer and a screen reader are shown of it.
void PaintList(PaintedList& grid, std::span<const ListColumn> columns, int rowCount);

// Leaves the list for something else that the surface is to show: no titles, no columns.
void LeaveList(PaintedList& grid);
