// The layout and the fill of the lists on the grid of the main window.
#pragma once

#include "mainwindow/list/ListColumns.h"

class frmMain;

// Leaves an empty grid with the titles and the lines of the list.
void LayoutList(frmMain& window, ListKind kind);

// Shows the rows that the selection and the sort have left, under their titles.
void ShowList(frmMain& window, ListKind kind);
