// What the pointer is shown on a list as it passes.
#include "toolkit/grid/ListPointer.h"

#include "toolkit/grid/ListPainting.h"
#include "toolkit/grid/ListTable.h"

namespace {

// The row under a point in units; 0 for none.
int RowUnder(const PaintedList& grid, int x, int y) {
    const int place = PlaceAt(x, y, grid.picGrid->WidthInUnits());
    const int row = RowAtPlace(place, grid.FirstRow);
    return grid.ListColumns.empty() || y < TitleUnits || place == NoRow || row > grid.RowCount ? 0 : row;
}

} // namespace

std::vector<QWidget*> OnSurface(const PaintedList& grid) {
    std::vector<QWidget*> widgets(grid.picColHeader.begin(), grid.picColHeader.end());
    widgets.push_back(grid.VSGridScroll);
    return widgets;
}

std::optional<UnitRect> RowRectAt(const PaintedList& grid, int x, int y) {
    const int row = RowUnder(grid, x, y);
    return row == 0 ? std::nullopt
                    : std::optional(RowRect(PlaceOfRow(row, grid.FirstRow), grid.picGrid->WidthInUnits()));
}

int HoveredRow(const PaintedList& grid) {
    const auto& hover = grid.picGrid->Hover();
    return hover ? RowUnder(grid, hover->left, hover->top) : 0;
}

QString ListTipAt(PaintedList& grid, QPoint point) {
    const TableCell at = TableCellAt(TableOfList(grid), point);
    if (at.row < 0 || at.column <= 0) {
        return {};
    }
    const auto column = static_cast<std::size_t>(at.column);
    const GridCell cell = grid.ListRow(at.row + 1).cells[column - 1];
    QString whole = SpokenCellOf(grid, at.row, at.column).text;
    switch (cell.kind) {
    case CellKind::Checked:
    case CellKind::Unchecked:
        return {};
    case CellKind::Picture:
        return whole;
    case CellKind::Text:
        break;
    }
    const bool saysIt = ShownCellText(cell, PlacesOfColumns(grid)[column]).trimmed() == whole;
    return saysIt ? QString() : whole; // a shortened text, or what a mark means
}
