// What the pointer is shown on a list as it passes: the row that a click takes, and in a tip what a mark
// means or a shortened text says in whole.
#pragma once

#include "toolkit/grid/PaintedList.h"

#include <optional>

// The widgets that stand on the surface.
std::vector<QWidget*> OnSurface(const PaintedList& grid);

// The place of the row under a point in units; nothing over the titles and past the rows.
std::optional<UnitRect> RowRectAt(const PaintedList& grid, int x, int y);

// The row under the pointer; 0 for none.
int HoveredRow(const PaintedList& grid);

// The tip at the point in pixels; empty for none.
QString ListTipAt(PaintedList& grid, QPoint point);
