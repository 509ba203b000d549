// What clicks on the grid mean.
#pragma once

class frmMain;

// Binds the grid with its keys and what the pointer is shown.
void BindGrid(frmMain& window);

// What ClickedRow becomes by a press at the point of the grid, in units: the cell of the month from 0, the
// box of the day or 0, the place of the row under the titles.
int RowUnder(const frmMain& window, int x, int y);
