// What clicks and keys mean on a list.
#pragma once

#include "toolkit/grid/PaintedList.h"
#include "toolkit/layout/GridMoves.h"

#include <optional>

// The move that the key means on every surface.
std::optional<GridMove> MoveOf(int key);

bool IsEnter(int key);
bool IsMenuKey(int key, Qt::KeyboardModifiers modifiers);

// Paints the list in another order, from its first row on, or from where its current row is to be seen. A
// list that was scrolled takes the focus.
void ResortGrid(PaintedList& grid);

// A click on a title: sorts by the column, in the other direction when it sorts by it already. Column 0 only
// gives the surface the focus.
void ColumnClicked(PaintedList& grid, int column);

// A button goes down or up at a point in units. Both must fall on one row.
void PressList(PaintedList& grid, int x, int y);
void ReleaseList(PaintedList& grid, int x, int y, Qt::MouseButton button);

// Whether a release at the point is one over the surface.
bool IsOnSurface(const PaintedList& grid, int x, int y);

// Arrows, Page Up and Down, Home and End move the current row, Enter and Delete ask for something to be done
// with it, the menu key opens its menu, a digit sorts by the column of that number. Gives whether the key
// means anything.
bool PressListKey(PaintedList& grid, int key, Qt::KeyboardModifiers modifiers);

// Lets the keys go on from the row.
void SelectRow(PaintedList& grid, int row);
