// What clicks and keys mean on a list.
#include "toolkit/grid/ListInput.h"

#include "toolkit/grid/ListScroll.h"
#include "toolkit/grid/PaintedTable.h"

#include <algorithm>
#include <array>

namespace {

struct MoveKey {
    int key;
    GridMove move;
};

constexpr std::array<MoveKey, 8> MoveKeys{{
    {Qt::Key_Up, GridMove::Up},
    {Qt::Key_Down, GridMove::Down},
    {Qt::Key_Left, GridMove::Left},
    {Qt::Key_Right, GridMove::Right},
    {Qt::Key_PageUp, GridMove::PageUp},
    {Qt::Key_PageDown, GridMove::PageDown},
    {Qt::Key_Home, GridMove::Home},
    {Qt::Key_End, GridMove::End},
}};

void ShowCurrentRow(PaintedList& grid) {
    if (grid.CurrentRow > 0) {
        ShowRow(grid, grid.CurrentRow);
    }
}

bool MoveRow(PaintedList& grid, GridMove move) {
    grid.CurrentRow = MovedRow(move, grid.CurrentRow, {grid.RowCount, grid.FirstRow, grid.RowsVisible});
    if (grid.CurrentRow > 0) {
        ShowCurrentRow(grid);
        grid.ActOnList({ListAsk::Move, grid.CurrentRow});
    }
    return true;
}

bool OpenMenu(PaintedList& grid) {
    ShowCurrentRow(grid);
    const int place = std::max(PlaceOfRow(grid.CurrentRow, grid.FirstRow), 1);
    return grid.ActOnList({ListAsk::Menu, grid.CurrentRow, RowNumberRight, RowTop(place + 1)});
}

bool PressPlainKey(PaintedList& grid, int key) {
    if (const auto move = MoveOf(key)) {
        return MoveRow(grid, *move);
    }
    if (IsEnter(key) && grid.CurrentRow > 0) {
        ShowCurrentRow(grid);
        return grid.ActOnList({ListAsk::Enter, grid.CurrentRow});
    }
    if (key == Qt::Key_Delete && grid.CurrentRow > 0) {
        return grid.ActOnList({ListAsk::Delete, grid.CurrentRow});
    }
    const int column = key - Qt::Key_0;
    if (column >= 1 && column < static_cast<int>(grid.ListColumns.size())) {
        ColumnClicked(grid, column);
        return true;
    }
    return false;
}

} // namespace

std::optional<GridMove> MoveOf(int key) {
    const auto* const found = std::ranges::find(MoveKeys, key, &MoveKey::key);
    return found == MoveKeys.end() ? std::nullopt : std::optional(found->move);
}

bool IsEnter(int key) {
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

bool IsMenuKey(int key, Qt::KeyboardModifiers modifiers) {
    return key == Qt::Key_Menu || (key == Qt::Key_F10 && modifiers == Qt::ShiftModifier);
}

void ResortGrid(PaintedList& grid) {
    const bool scrolled = grid.VSGridScroll->value() != 1;
    ScrollGridTo(grid, grid.SortKeepsRowInView ? FirstRowShowing(grid.CurrentRow, 1, grid.RowsVisible) : 1);
    if (scrolled) {
        grid.picGrid->setFocus();
    }
}

void ColumnClicked(PaintedList& grid, int column) {
    if (column == 0) {
        grid.picGrid->setFocus();
        return;
    }
    if (column == grid.SortColumn) {
        grid.SortDirection = grid.SortDirection == Ascending ? Descending : Ascending;
    }
    grid.SortColumn = column;
    grid.ActOnList({ListAsk::Sort});
    ResortGrid(grid);
}

void PressList(PaintedList& grid, int x, int y) {
    grid.ClickedRow = PlaceAt(x, y, grid.picGrid->WidthInUnits());
}

bool IsOnSurface(const PaintedList& grid, int x, int y) {
    return Holds({0, 0, grid.picGrid->WidthInUnits(), grid.picGrid->HeightInUnits()}, x, y);
}

void ReleaseList(PaintedList& grid, int x, int y, Qt::MouseButton button) {
    if (!IsOnSurface(grid, x, y) || PlaceAt(x, y, grid.picGrid->WidthInUnits()) != grid.ClickedRow) {
        return;
    }
    const int row = RowAtPlace(grid.ClickedRow, grid.FirstRow);
    const bool isRow = grid.ClickedRow != NoRow && row <= grid.RowCount;
    ListAction action{ListAsk::Menu, isRow ? row : 0, x, y};
    if (button == Qt::RightButton && grid.ActOnList(action)) {
        return;
    }
    if (grid.ClickedRow != NoRow) {
        action.ask = ListAsk::Click;
        grid.ActOnList(action);
    }
}

bool PressListKey(PaintedList& grid, int key, Qt::KeyboardModifiers modifiers) {
    const Qt::KeyboardModifiers held = modifiers & ~Qt::KeypadModifier;
    if (IsMenuKey(key, held)) {
        return OpenMenu(grid);
    }
    return held == Qt::NoModifier && PressPlainKey(grid, key);
}

void SelectRow(PaintedList& grid, int row) {
    if (row != grid.CurrentRow) {
        grid.CurrentRow = row;
        grid.RepaintGrid();
        NotifyTableMoved(grid.picGrid);
    }
}
