// The scroll bar of a list, and the wheel.
#include "toolkit/grid/ListScroll.h"

#include "toolkit/grid/PaintedTable.h"

#include <QSignalBlocker>
#include <QWheelEvent>

#include <algorithm>

// Silent, since a fill is under way that shows what the bar then says.
void SetGridScroll(PaintedList& grid) {
    const GridScroll scroll = GridScrollFor(grid.RowCount, grid.RowsVisible);
    const QSignalBlocker silence(grid.VSGridScroll);
    grid.VSGridScroll->setEnabled(scroll.enabled);
    grid.VSGridScroll->setRange(1, scroll.greatest);
    grid.VSGridScroll->setPageStep(scroll.largeStep);
    grid.FirstRow = grid.VSGridScroll->value();
}

void GridScrolled(PaintedList& grid) {
    grid.FirstRow = grid.VSGridScroll->value();
    grid.RepaintGrid();
}

void ScrollGridTo(PaintedList& grid, int firstRow) {
    QScrollBar* const bar = grid.VSGridScroll;
    const int value = std::clamp(firstRow, bar->minimum(), bar->maximum());
    if (value == bar->value()) {
        grid.RepaintGrid();
    } else {
        bar->setValue(value); // repaints
    }
}

void ShowRow(PaintedList& grid, int row) {
    ScrollGridTo(grid, FirstRowShowing(row, grid.FirstRow, grid.RowsVisible));
    NotifyTableMoved(grid.picGrid);
}

// The bar may be hidden, but not disabled, while the surface shows something else.
void MouseWheel(PaintedList& grid, int rotation) {
    QScrollBar* const bar = grid.VSGridScroll;
    if (bar->isEnabled() && !bar->isHidden()) {
        bar->setValue(WheelTarget(rotation, bar->value(), bar->maximum()));
    }
}

void TurnWheel(PaintedList& grid, int eighths) {
    grid.WheelRest += eighths;
    const int notches = grid.WheelRest / QWheelEvent::DefaultDeltasPerStep;
    grid.WheelRest -= notches * QWheelEvent::DefaultDeltasPerStep;
    if (notches != 0) {
        MouseWheel(grid, notches);
    }
}
