// The scroll bar of the grid, the wheel, and the order of the rows.
#include "mainwindow/input/GridScroll.h"

#include "mainwindow/frmMain.h"
#include "mainwindow/grid/GridLayout.h"
#include "mainwindow/input/GridAccessible.h"

#include <QWheelEvent>

#include <algorithm>

namespace {

void GridScrolled(frmMain& window) {
    window.FirstRow = window.VSGridScroll->value();
    window.RepaintGrid();
}

// Repaints the grid from this row on, or from the nearest one that the scroll bar reaches.
void ScrollGridTo(frmMain& window, int firstRow) {
    const int value = std::clamp(firstRow, window.VSGridScroll->minimum(), window.VSGridScroll->maximum());
    if (value == window.VSGridScroll->value()) {
        window.RepaintGrid();
    } else {
        window.VSGridScroll->setValue(value); // repaints
    }
}

void ResortGrid(frmMain& window) {
    const bool scrolled = window.VSGridScroll->value() != 1;
    ScrollGridTo(window, 1);
    if (scrolled) {
        window.picGrid->setFocus();
    }
}

// The bar is hidden, but not disabled, while the month is shown.
void MouseWheel(frmMain& window, int rotation) {
    QScrollBar& bar = *window.VSGridScroll;
    if (bar.isEnabled() && !bar.isHidden()) {
        bar.setValue(WheelTarget(rotation, bar.value(), bar.maximum()));
    }
}

} // namespace

void BindGridScroll(frmMain& window) {
    window.VSGridScroll->setFocusPolicy(Qt::NoFocus);
    window.VSGridScroll->setFocusProxy(window.picGrid);
    QObject::connect(window.VSGridScroll, &QScrollBar::valueChanged, &window,
                     [&window] { GridScrolled(window); });
}

void ShowRow(frmMain& window, int row) {
    ScrollGridTo(window, FirstRowShowing(row, window.FirstRow, window.RowsVisible));
    NotifyGridMoved(window);
}

void ColumnClicked(frmMain& window, std::size_t index) {
    const auto column = static_cast<int>(index);
    if (column == 0) {
        window.picGrid->setFocus();
        return;
    }
    if (column == window.SortColumn) {
        window.SortDirection = window.SortDirection == Ascending ? Descending : Ascending;
    }
    window.SortColumn = column;
    ResortGrid(window);
}

// The wheel counts wherever the pointer is over the window: nothing there takes it for itself but the scroll
// bar and a filter menu that has the focus.
void frmMain::wheelEvent(QWheelEvent* event) {
    WheelRest += event->angleDelta().y();
    const int notches = WheelRest / QWheelEvent::DefaultDeltasPerStep;
    WheelRest -= notches * QWheelEvent::DefaultDeltasPerStep;
    if (notches != 0) {
        MouseWheel(*this, notches);
    }
    event->accept();
}
