// The layout and the painting of a list.
#include "toolkit/grid/ListPainting.h"

#include "toolkit/Text.h"
#include "toolkit/WindowColors.h"
#include "toolkit/WindowStyle.h"
#include "toolkit/grid/ListScroll.h"

#include <algorithm>

namespace {

constexpr SurfaceFont TitleFont{Face::Title, 8, true};
constexpr int TextIndent = 75;    // of a text behind the left edge of its column
constexpr int TextBelowLine = 60; // of a text under the line of its row
constexpr int TextLoss = 105;     // by which a text must be narrower than its column
constexpr int TitleIndent = 45;   // of a title from the left and the top
constexpr int PictureSize = 15 * UnitsPerPixel;
constexpr int ArrowSize = 6 * UnitsPerPixel;
constexpr int ArrowGap = 3 * UnitsPerPixel; // between a title and its arrow, where there is room
constexpr int MarkColumnWidth = 19 * UnitsPerPixel;
constexpr const char* TitlePicture = "picStashGridTitle.svg";

// --- Titles ---

void PlaceTitles(const PaintedList& grid, const std::vector<ColumnPlace>& places) {
    for (std::size_t i = 0; i < grid.picColHeader.size(); ++i) {
        PictureBox& header = *grid.picColHeader[i];
        const bool used = i < places.size();
        if (used) {
            header.setGeometry(places[i].left / UnitsPerPixel, 0, places[i].width / UnitsPerPixel,
                               TitleHeight);
            header.ShowPicture(QLatin1String(TitlePicture));
        }
        header.setVisible(used);
    }
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
    header.DrawText(TitleIndent, TitleIndent, title, TitleFont, InkColor);
    if (sorted) {
        const UnitRect place = ArrowPlace(header.WidthInUnits(), TextWidth(title, TitleFont));
        header.DrawPicture(place.left, place.top, place.width, place.height,
                           direction == Descending ? QStringLiteral("picStashGridTitleDown.svg")
                                                   : QStringLiteral("picStashGridTitleUp.svg"));
    }
}

// A digit sorts by the column of that number; column 0 does not sort.
QString SortTip(const ListColumn& column, int number) {
    return number == 0
               ? QString()
               : TipWithKey(QStringLiteral("Sort by %1").arg(SpokenTitle(column)), Qt::Key_0 + number);
}

void DrawTitles(const PaintedList& grid) {
    for (std::size_t i = 0; i < grid.ListColumns.size(); ++i) {
        const ListColumn& column = grid.ListColumns[i];
        const int number = static_cast<int>(i);
        DrawTitle(*grid.picColHeader[i], FromStore(column.title), number == grid.SortColumn,
                  grid.SortDirection);
        grid.picColHeader[i]->setToolTip(SortTip(column, number));
    }
}

// --- Lines and rows ---

void DrawLines(PictureBox& surface, const std::vector<ColumnPlace>& places) {
    const int right = RowsRight(surface.WidthInUnits());
    const int bottom = surface.HeightInUnits();
    surface.DrawPicture(0, 0, right, TitleUnits, QLatin1String(TitlePicture)); // beside the last title
    for (const ColumnPlace& place : places) {
        const int edge = place.left + place.width - UnitsPerPixel;
        surface.DrawLine(edge, TitleUnits, edge, bottom, ListLineColor);
    }
    for (int place = 2; RowTop(place) < bottom; ++place) {
        surface.DrawLine(0, RowTop(place), right, RowTop(place), ListLineColor);
    }
    surface.DrawLine(0, TitleUnits, right, TitleUnits, EdgeLineColor);
    surface.DrawLine(0, TitleUnits, 0, bottom, EdgeLineColor);
}

void DrawRowNumber(PictureBox& surface, int place, int number, int color) {
    const QString text = QString::number(number);
    surface.DrawText(RowNumberRight - TextWidth(text, ListFont), RowTop(place) + TextBelowLine, text,
                     ListFont, color);
}

QString PictureOf(const GridCell& cell) {
    switch (cell.kind) {
    case CellKind::Checked:
        return QStringLiteral("picStashChecked.svg");
    case CellKind::Unchecked:
        return QStringLiteral("picStashUnchecked.svg");
    case CellKind::Picture:
        return cell.picture;
    case CellKind::Text:
        break;
    }
    return {};
}

void DrawCell(PictureBox& surface, const ColumnPlace& column, int place, const GridRow& row,
              const GridCell& cell) {
    const UnitRect rect = CellRect(column, place);
    surface.FillRectangle(rect.left, rect.top, rect.width, rect.height,
                          cell.kind == CellKind::Picture ? PaperColor : row.backcolor);
    if (const QString picture = PictureOf(cell); !picture.isEmpty()) {
        surface.DrawPicture(column.left + (column.width - PictureSize) / 2,
                            rect.top + (rect.height - PictureSize) / 2, PictureSize, PictureSize, picture);
    } else if (cell.kind == CellKind::Text && !cell.text.isEmpty()) {
        surface.DrawText(column.left + TextIndent, RowTop(place) + TextBelowLine, ShownCellText(cell, column),
                         ListFont, row.forecolor);
    }
}

void DrawRow(const PaintedList& grid, const std::vector<ColumnPlace>& places, int place, int number) {
    DrawRowNumber(*grid.picGrid, place, number, InkColor);
    const GridRow row = grid.ListRow(number);
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
        DrawCell(*grid.picGrid, places[i + 1], place, row, row.cells[i]);
    }
    if (number == grid.CurrentRow) {
        const UnitRect frame = RowRect(place, grid.picGrid->WidthInUnits());
        grid.picGrid->DrawFrame(frame.left, frame.top, frame.width, frame.height, CurrentColor);
    }
}

void DrawRows(const PaintedList& grid) {
    const std::vector<ColumnPlace> places = PlacesOfColumns(grid);
    for (int place = 1; RowTop(place) < grid.picGrid->HeightInUnits(); ++place) {
        const int number = RowAtPlace(place, grid.FirstRow);
        if (number > grid.RowCount) {
            return;
        }
        DrawRow(grid, places, place, number);
    }
}

} // namespace

void PlaceScrollBar(const PaintedList& grid) {
    const int width = ScrollStripWidth / UnitsPerPixel;
    grid.VSGridScroll->setGeometry(grid.picGrid->width() - width, 0, width, grid.picGrid->height());
    grid.VSGridScroll->show();
}

void LayOutList(PaintedList& grid, std::span<const ListColumn> columns) {
    grid.ListColumns = columns;
    const std::vector<ColumnPlace> places = PlacesOfColumns(grid);
    PlaceTitles(grid, places);
    PlaceScrollBar(grid);
    grid.picGrid->Clear();
    DrawLines(*grid.picGrid, places);
    grid.HeaderHeight = TitleHeight;
    grid.RowsVisible = WholeRows(grid.picGrid->height(), TitleHeight, RowHeight);
}

void ShowRows(PaintedList& grid, int rowCount) {
    grid.RowCount = rowCount;
    SetGridScroll(grid);
    grid.CurrentRow = std::min(grid.CurrentRow, grid.RowCount);
    DrawTitles(grid);
    DrawRows(grid);
}

void HighlightRow(const PaintedList& grid, int place, bool on) {
    const int number = RowAtPlace(place, grid.FirstRow);
    if (number > grid.RowCount || grid.ListColumns.empty()) {
        return; // what was opened has taken the row or the list away
    }
    const UnitRect rect = CellRect({0, RowNumberWidth * UnitsPerPixel}, place);
    grid.picGrid->FillRectangle(rect.left, rect.top, rect.width, rect.height, on ? InkColor : PaperColor);
    DrawRowNumber(*grid.picGrid, place, number, on ? PaperColor : InkColor);
    grid.picGrid->repaint(); // before an editor loads
}

QString ShownCellText(const GridCell& cell, const ColumnPlace& column) {
    return ShortenedText(cell.text, ListFont, column.width - TextLoss);
}

std::vector<ColumnPlace> PlacesOfColumns(const PaintedList& grid) {
    return PlaceColumns(grid.ListColumns, grid.picGrid->WidthInUnits());
}

QString SpokenTitle(const ListColumn& column) {
    return FromStore(column.spoken.empty() ? column.title : column.spoken).trimmed();
}
