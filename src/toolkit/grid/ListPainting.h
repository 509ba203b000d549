// The layout and the painting of a list.
#pragma once

#include "toolkit/grid/PaintedList.h"

// The font of the rows.
inline constexpr SurfaceFont ListFont{Face::List, 9, false};

// Puts the scroll bar at the right edge of the surface and shows it.
void PlaceScrollBar(const PaintedList& grid);

// Places the titles of the columns and the scroll bar and leaves an empty surface of its lines.
void LayOutList(PaintedList& grid, std::span<const ListColumn> columns);

// Shows so many rows under their titles on a surface that is laid out.
void ShowRows(PaintedList& grid, int rowCount);

// Paints the number of the row at a place white on black while it is opened, and black on white again.
void HighlightRow(const PaintedList& grid, int place, bool on);

// What is painted of a cell's text in a column of that width.
QString ShownCellText(const GridCell& cell, const ColumnPlace& column);

// The places of the columns on the surface.
std::vector<ColumnPlace> PlacesOfColumns(const PaintedList& grid);

// The title of a column as it is said: the word for it where it is a mark.
QString SpokenTitle(const ListColumn& column);
