// The scroll bar of a list, and the wheel.
#pragma once

#include "toolkit/grid/PaintedList.h"

// Sets the scroll bar to the rows that there are, without painting anything. FirstRow is its value then.
void SetGridScroll(PaintedList& grid);

// Paints the list from the row on at which the scroll bar stands.
void GridScrolled(PaintedList& grid);

// Paints the list from this row on, or from the nearest one that the scroll bar reaches.
void ScrollGridTo(PaintedList& grid, int firstRow);

// Paints the list with the row visible, on which the keys stand.
void ShowRow(PaintedList& grid, int row);

// Three rows down when the rotation is below 1, else up; nothing while the scroll bar is disabled or hidden.
void MouseWheel(PaintedList& grid, int rotation);

// The same for what the wheel was turned, once that makes a notch.
void TurnWheel(PaintedList& grid, int eighths);
