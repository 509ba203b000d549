// A painted list put together.
#include "toolkit/grid/PaintedList.h"

#include "toolkit/grid/ListInput.h"
#include "toolkit/grid/ListPainting.h"
#include "toolkit/grid/ListPointer.h"
#include "toolkit/grid/ListScroll.h"
#include "toolkit/grid/ListTable.h"
#include "toolkit/grid/SurfaceEvents.h"

void BuildGrid(PaintedList& grid, std::size_t titles, QWidget* owner) {
    grid.picGrid = new PictureBox;
    DescribeAsTable(grid.picGrid, owner, [&grid] { return TableOfList(grid); });
    grid.picGrid->setFocusPolicy(Qt::StrongFocus);
    grid.picColHeader.clear();
    for (std::size_t column = 0; column < titles; ++column) {
        auto* header = new PictureBox(grid.picGrid);
        header->setCursor(Qt::PointingHandCursor);
        header->hide();
        QObject::connect(header, &PictureBox::Clicked, owner,
                         [&grid, column] { ColumnClicked(grid, static_cast<int>(column)); });
        grid.picColHeader.push_back(header);
    }
    grid.VSGridScroll = new QScrollBar(Qt::Vertical, grid.picGrid);
    grid.VSGridScroll->hide();
    grid.VSGridScroll->setFocusPolicy(Qt::NoFocus);
    grid.VSGridScroll->setFocusProxy(grid.picGrid);
    QObject::connect(grid.VSGridScroll, &QScrollBar::valueChanged, owner, [&grid] { GridScrolled(grid); });
    TakeWheel(owner, [&grid](int eighths) { TurnWheel(grid, eighths); });
}

void BindGrid(PaintedList& grid, QWidget* owner) {
    FollowPointer(grid.picGrid, OnSurface(grid), owner,
                  {[&grid](int x, int y) { return RowRectAt(grid, x, y); },
                   [&grid](QPoint point) { return ListTipAt(grid, point); }});
    TakeKeys(grid.picGrid, owner, [&grid](int key, Qt::KeyboardModifiers modifiers) {
        return PressListKey(grid, key, modifiers);
    });
    QObject::connect(grid.picGrid, &PictureBox::Pressed, owner,
                     [&grid](int x, int y) { PressList(grid, x, y); });
    QObject::connect(grid.picGrid, &PictureBox::Released, owner,
                     [&grid](int x, int y, Qt::MouseButton button) { ReleaseList(grid, x, y, button); });
    QObject::connect(grid.picGrid, &PictureBox::Resized, owner, [&grid] { grid.RepaintGrid(); });
}

void PaintList(PaintedList& grid, std::span<const ListColumn> columns, int rowCount) {
    LayOutList(grid, columns);
    ShowRows(grid, rowCount);
    LookAgainUnderPointer(*grid.picGrid, [&grid](int x, int y) { return RowRectAt(grid, x, y); });
    NotifyTableChanged(grid.picGrid);
}

void LeaveList(PaintedList& grid) {
    grid.ListColumns = {};
    for (PictureBox* header : grid.picColHeader) {
        header->hide();
    }
}
