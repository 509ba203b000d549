// A list as the table that a screen reader is told of.
#include "toolkit/grid/ListTable.h"

#include "toolkit/Text.h"
#include "toolkit/grid/ListInput.h"
#include "toolkit/grid/ListPainting.h"
#include "toolkit/grid/ListScroll.h"

namespace {

QRect PlaceOfCell(const PaintedList& grid, int row, int column) {
    const ColumnPlace place = PlacesOfColumns(grid)[static_cast<std::size_t>(column)];
    if (row == TitleRow) {
        return PixelsOf({place.left, 0, place.width, TitleUnits}).intersected(grid.picGrid->rect());
    }
    if (row + 1 < grid.FirstRow) {
        return {};
    }
    return PixelsOf(CellRect(place, PlaceOfRow(row + 1, grid.FirstRow))).intersected(grid.picGrid->rect());
}

// What is pressed need not be on the screen.
void PressCell(PaintedList& grid, int row, int column) {
    if (row == TitleRow) {
        ColumnClicked(grid, column);
        return;
    }
    grid.CurrentRow = row + 1;
    ShowRow(grid, row + 1);
    grid.ActOnList({ListAsk::Click, row + 1});
}

} // namespace

SpokenCell SpokenCellOf(const PaintedList& grid, int row, int column) {
    if (column == 0) {
        return {QString::number(row + 1)};
    }
    const GridRow shown = grid.ListRow(row + 1);
    const GridCell& cell = shown.cells[static_cast<std::size_t>(column - 1)];
    if (cell.kind == CellKind::Checked) {
        return {QStringLiteral("Done"), true, true};
    }
    if (cell.kind == CellKind::Unchecked) {
        return {QStringLiteral("Not done"), true, false};
    }
    const QString text = cell.text.trimmed();
    const std::string_view spoken = grid.ListColumns[static_cast<std::size_t>(column)].spoken;
    return {text.isEmpty() || spoken.empty() ? text : FromStore(spoken)}; // what is marked, not the mark
}

PaintedTable TableOfList(PaintedList& grid) {
    const int columns = static_cast<int>(grid.ListColumns.size());
    return {
        .rows = columns == 0 ? 0 : grid.RowCount,
        .columns = columns,
        .firstShown = grid.FirstRow - 1,
        .endShown = std::min(grid.RowCount, grid.FirstRow + grid.RowsVisible),
        .current = {grid.CurrentRow - 1, 0},
        .titleOf =
            [&grid](int column) { return SpokenTitle(grid.ListColumns[static_cast<std::size_t>(column)]); },
        .cellOf = [&grid](int row, int column) { return SpokenCellOf(grid, row, column); },
        .placeOf = [&grid](int row, int column) { return PlaceOfCell(grid, row, column); },
        .press = [&grid](int row, int column) { PressCell(grid, row, column); },
    };
}
