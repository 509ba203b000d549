// The scroll bar of the grid, the wheel, and the order of the rows.
#pragma once

#include <cstddef>

class frmMain;

void BindGridScroll(frmMain& window);

// Repaints the grid with the row visible, on which the keys stand.
void ShowRow(frmMain& window, int row);

// Sorts the list by the column at the index, or turns its order around where it is sorted by it already.
void ColumnClicked(frmMain& window, std::size_t index);
