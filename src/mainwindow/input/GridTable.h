// The grid of the main window as the table that a screen reader is told of: the rows of a list, the days of
// the month, the events of the day, each with the texts that are painted.
#pragma once

#include "toolkit/grid/PaintedTable.h"

class frmMain;

PaintedTable TableOfView(frmMain& window);
