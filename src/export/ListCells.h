// The cells of a list's rows on its page. They are the texts of the store, unescaped: no blank stands behind
// a name, and a clock length keeps the blanks that the editors write.
#pragma once

#include "export/ListPages.h"

#include <string>
#include <vector>

// The number of rows that the selection of the list has left.
int RowsOnPage(ListPage page);

// The cells of the row at the position in the list's rows, from 1. A bad text raises the run-time error.
std::vector<std::string> CellsOnPage(ListPage page, int row);
