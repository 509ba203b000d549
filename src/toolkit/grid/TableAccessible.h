// The painted tables among the toolkit's descriptions for screen readers.
#pragma once

#include "toolkit/grid/PaintedTable.h"

// Lets the toolkit ask for the description of a surface that is described as a table.
void InstallTableAccessible();

bool IsDescribedAsTable(const QObject* object);

// The place of a cell or title among the children of the table: the titles and then the cells, row by row.
int TableChildIndex(const PaintedTable& table, int row, int column);
