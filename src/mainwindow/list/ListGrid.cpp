// The layout and the fill of the lists on the grid of the main window.
#include "mainwindow/list/ListGrid.h"

#include "mainwindow/frmMain.h"
#include "mainwindow/list/ListRows.h"
#include "toolkit/grid/ListPainting.h"

void LayoutList(frmMain& window, ListKind kind) {
    window.ListRow = [kind](int row) { return RowOfList(kind, row); };
    LayOutList(window, ColumnsOf(kind));
    window.PaintStatusBar();
}

void ShowList(frmMain& window, ListKind kind) {
    ShowRows(window, RowsInList(kind));
}
