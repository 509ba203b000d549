// What clicks on the grid and on its titles mean.
#pragma once

#include "mainwindow/state/ViewAction.h"

class frmMain;

// Binds the grid, its titles and its scroll bar, with their keys and what the pointer is shown.
void BindGrid(frmMain& window);

// What ClickedRow becomes by a press at the point of the grid, in units: the cell of the month from 0, the
// box of the day or 0, the row under the titles.
int RowUnder(const frmMain& window, int x, int y);

// What the release of that button at the point of the grid, in units, asks for; nothing where the press was
// not on the same row.
ViewAction ReleaseOnGrid(const frmMain& window, int x, int y, Qt::MouseButton button);
