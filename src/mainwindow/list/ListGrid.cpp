// The layout and the fill of the lists on the grid.
#include "mainwindow/list/ListGrid.h"

#include "mainwindow/frmMain.h"
#include "mainwindow/grid/ViewParts.h"
#include "mainwindow/list/ListTitles.h"
#include "planner/rows/Colors.h"
#include "toolkit/Text.h"
#include "toolkit/WindowStyle.h"

namespace {

constexpr SurfaceFont TitleFont{Face::Title, 8, true};
constexpr int LineColor = 0xE0E0E0;
constexpr int TextIndent = 75;    // of a text behind the left edge of its column
constexpr int TextBelowLine = 60; // of a text under the line of its row
constexpr int TextLoss = 105;     // by which a text must be narrower than its column
constexpr int TitleIndent = 45;   // of a title from the left and the top
constexpr int CheckSize = 15 * UnitsPerPixel;
constexpr int ArrowSize = 6 * UnitsPerPixel;
constexpr int ArrowGap = 3 * UnitsPerPixel; // between a title and its arrow, where there is room
constexpr int MarkColumnWidth = 19 * UnitsPerPixel;
constexpr const char* TitlePicture = "picStashGridTitle.svg";

std::vector<ColumnPlace> PlacesOf(const frmMain& window, ListKind kind) {
    return PlaceColumns(ColumnsOf(kind), window.picGrid->WidthInUnits());
}

void PlaceTitles(frmMain& window, const std::vector<ColumnPlace>& places) {
    for (std::size_t i = 0; i < window.picColHeader.size(); ++i) {
        const bool used = i < places.size();
        if (used) {
            window.picColHeader[i]->setGeometry(places[i].left / UnitsPerPixel, 0,
                                                places[i].width / UnitsPerPixel, TitleHeight);
            window.picColHeader[i]->ShowPicture(QLatin1String(TitlePicture));
        }
        window.picColHeader[i]->setVisible(used);
    }
}

void DrawLines(PictureBox& grid, const std::vector<ColumnPlace>& places) {
    const int right = RowsRight(grid.WidthInUnits());
    const int bottom = grid.HeightInUnits();
    grid.DrawPicture(0, 0, right, TitleUnits, QLatin1String(TitlePicture)); // beside the last title
    for (const ColumnPlace& place : places) {
        const int edge = place.left + place.width - UnitsPerPixel;
        grid.DrawLine(edge, TitleUnits, edge, bottom, LineColor);
    }
    for (int row = 2; RowTop(row) < bottom; ++row) {
        grid.DrawLine(0, RowTop(row), right, RowTop(row), LineColor);
    }
    grid.DrawLine(0, TitleUnits, right, TitleUnits, EdgeLineColor);
    grid.DrawLine(0, TitleUnits, 0, bottom, EdgeLineColor);
}

// The arrow stands beside its title, and over it where the column is as narrow as a mark.
UnitRect ArrowPlace(int headerWidth, int titleWidth) {
    if (headerWidth <= MarkColumnWidth) {
        return {(headerWidth - ArrowSize) / 2, 0, ArrowSize, ArrowSize};
    }
    const int left = TitleIndent + titleWidth + ArrowGap;
    return {std::min(left, headerWidth - UnitsPerPixel - ArrowSize), (TitleUnits - ArrowSize) / 2, ArrowSize,
            ArrowSize};
}

void DrawTitle(PictureBox& header, const QString& title, bool sorted, int direction) {
    header.ShowPicture(QLatin1String(TitlePicture));
    header.DrawText(TitleIndent, TitleIndent, title, TitleFont, ColorBlack);
    if (sorted) {
        const UnitRect place = ArrowPlace(header.WidthInUnits(), TextWidth(title, TitleFont));
        header.DrawPicture(place.left, place.top, place.width, place.height,
                           direction == Descending ? QStringLiteral("picStashGridTitleDown.svg")
                                                   : QStringLiteral("picStashGridTitleUp.svg"));
    }
}

// A digit sorts by the column of that number.
QString SortTip(ListKind kind, int column) {
    return TipWithKey(QStringLiteral("Sort by %1").arg(ListTitle(kind, column)), Qt::Key_0 + column);
}

void DrawTitles(frmMain& window, ListKind kind) {
    const auto columns = ColumnsOf(kind);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const int column = static_cast<int>(i);
        DrawTitle(*window.picColHeader[i], FromStore(columns[i].title), column == window.SortColumn,
                  window.SortDirection);
        window.picColHeader[i]->setToolTip(i == 0 ? QString() : SortTip(kind, column));
    }
}

// The number of the row at a place counted from 1 under the titles.
void DrawRowNumber(PictureBox& grid, int place, int number, int color) {
    const QString text = QString::number(number);
    grid.DrawText(RowNumberRight - TextWidth(text, ListFont), RowTop(place) + TextBelowLine, text, ListFont,
                  color);
}

void DrawCell(PictureBox& grid, const ColumnPlace& column, int place, const GridRow& row,
              const GridCell& cell) {
    const UnitRect rect = CellRect(column, place);
    grid.FillRectangle(rect.left, rect.top, rect.width, rect.height, row.backcolor);
    if (cell.kind != CellKind::Text) {
        grid.DrawPicture(column.left + (column.width - CheckSize) / 2,
                         rect.top + (rect.height - CheckSize) / 2, CheckSize, CheckSize,
                         cell.kind == CellKind::Checked ? QStringLiteral("picStashChecked.svg")
                                                        : QStringLiteral("picStashUnchecked.svg"));
    } else if (!cell.text.isEmpty()) {
        grid.DrawText(column.left + TextIndent, RowTop(place) + TextBelowLine, ShownCellText(cell, column),
                      ListFont, row.forecolor);
    }
}

void DrawCurrentRow(PictureBox& grid, int place) {
    grid.DrawFrame(0, RowTop(place), RowsRight(grid.WidthInUnits()), RowUnits + UnitsPerPixel, CurrentColor);
}

void DrawRows(frmMain& window, ListKind kind) {
    PictureBox& grid = *window.picGrid;
    const std::vector<ColumnPlace> places = PlacesOf(window, kind);
    for (int place = 1; RowTop(place) < grid.HeightInUnits(); ++place) {
        const int number = window.FirstRow + place - 1;
        if (number > window.RowCount) {
            break;
        }
        DrawRowNumber(grid, place, number, ColorBlack);
        const GridRow row = RowOfList(kind, number);
        for (std::size_t i = 0; i < row.cells.size(); ++i) {
            DrawCell(grid, places[i + 1], place, row, row.cells[i]);
        }
        if (number == window.CurrentRow) {
            DrawCurrentRow(grid, place);
        }
    }
}

} // namespace

QString ShownCellText(const GridCell& cell, const ColumnPlace& column) {
    return ShortenedText(cell.text, ListFont, column.width - TextLoss);
}

void LayoutList(frmMain& window, ListKind kind) {
    PictureBox& grid = *window.picGrid;
    const std::vector<ColumnPlace> places = PlacesOf(window, kind);
    PlaceTitles(window, places);
    PlaceScrollBar(window);
    grid.Clear();
    DrawLines(grid, places);
    window.HeaderHeight = TitleHeight;
    window.RowsVisible = WholeRows(grid.height(), TitleHeight, RowHeight);
    window.PaintStatusBar();
}

void ShowList(frmMain& window, ListKind kind) {
    window.RowCount = RowsInList(kind);
    window.SetGridScroll();
    window.CurrentRow = std::min(window.CurrentRow, window.RowCount);
    DrawTitles(window, kind);
    DrawRows(window, kind);
}

void frmMain::HighlightRow(int row, bool on) {
    const int number = FirstRow + row - 1;
    if (number > RowCount || picColHeader.front()->isHidden()) {
        return; // the editor has taken the row or the list away
    }
    const UnitRect rect = CellRect({0, RowNumberWidth * UnitsPerPixel}, row);
    picGrid->FillRectangle(rect.left, rect.top, rect.width, rect.height, on ? ColorBlack : ColorWhite);
    DrawRowNumber(*picGrid, row, number, on ? ColorWhite : ColorBlack);
    picGrid->repaint(); // before the editor loads
}
