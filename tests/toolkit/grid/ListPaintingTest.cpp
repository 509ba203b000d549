// The layout and the painting of a list.
#include "toolkit/grid/SampleList.h"

namespace {

class ListPainting : public SampleList {
protected:
    // What is drawn in a cell: its ground, then the text or the picture.
    struct Painted {
        int ground = -1;
        int ink = -1;
        QString what;
    };

    Painted Cell(int place, SampleColumn column) const {
        const UnitRect rect = CellRect(PlacesOfColumns(*window)[column], place);
        Painted cell;
        for (const DrawnItem& item : window->picGrid->Drawn()) {
            if (!Holds(rect, item.left, item.top)) {
                continue;
            }
            if (item.kind == DrawnKind::Rectangle) {
                cell.ground = item.color;
            } else if (item.kind == DrawnKind::Text || item.kind == DrawnKind::Picture) {
                cell.ink = item.color;
                cell.what = item.text;
            }
        }
        return cell;
    }
};

} // namespace

TEST_F(ListPainting, RowsStandUnderTheirTitlesInTheirColors) {
    window->rows[1] = {"Chess", true, true};
    window->RepaintGrid();
    EXPECT_EQ(NumbersPainted(), (QStringList{"1", "2", "3", "4", "5"}));
    EXPECT_EQ(Cell(2, NameColumn).what, "Chess ");
    EXPECT_EQ(Cell(2, NameColumn).ink, 0x0000FF);
    EXPECT_EQ(Cell(2, NameColumn).ground, 0x112233);
    EXPECT_EQ(Cell(2, MarkColumn).what, QString(QChar(0xAE)));
    EXPECT_EQ(Cell(2, DoneColumn).what, "picStashChecked.svg");
    EXPECT_EQ(Cell(2, DoneColumn).ground, 0x112233);
    EXPECT_EQ(Cell(1, DoneColumn).what, "picStashUnchecked.svg");
}

TEST_F(ListPainting, APictureStandsOnWhite) {
    EXPECT_EQ(Cell(1, KindColumn).what, "picStashCalTask.svg");
    EXPECT_EQ(Cell(1, KindColumn).ground, 0xFFFFFF);
}

TEST_F(ListPainting, TitlesAreThoseOfTheColumnsAndTheRestIsHidden) {
    for (PictureBox* header : window->picColHeader) {
        EXPECT_TRUE(header->isVisible());
    }
    PaintList(*window, std::span(SampleColumns).first(3), 0);
    EXPECT_TRUE(window->picColHeader[NameColumn]->isVisible());
    EXPECT_FALSE(window->picColHeader[DoneColumn]->isVisible());
}

TEST_F(ListPainting, AListWithoutRowsShowsItsTitlesAndLines) {
    window->SortColumn = NameColumn;
    ShowNames(0);
    EXPECT_EQ(NumbersPainted(), QStringList{});
    EXPECT_EQ(Arrow(NameColumn), "picStashGridTitleUp.svg");
    EXPECT_FALSE(window->picGrid->Drawn().empty());
    EXPECT_EQ(window->RowCount, 0);
}

TEST_F(ListPainting, MoreRowsThanFitEndAtTheSurface) {
    ShowNames(40);
    EXPECT_EQ(window->RowsVisible, 12);
    EXPECT_EQ(NumbersPainted().size(), 12);
    EXPECT_EQ(NumbersPainted().last(), "12");
}

TEST_F(ListPainting, AResizeShowsMoreRowsAndWidensTheShare) {
    ShowNames(40);
    const int before = window->picColHeader[NameColumn]->width();
    window->resize(window->width() + 100, window->height() + 44);
    ASSERT_TRUE(QTest::qWaitFor([this] { return window->RowsVisible == 14; }));
    EXPECT_EQ(NumbersPainted().size(), 14);
    EXPECT_EQ(window->picColHeader[NameColumn]->width(), before + 50);
    EXPECT_EQ(window->VSGridScroll->geometry().right(), window->picGrid->width() - 1);
    EXPECT_EQ(window->VSGridScroll->height(), window->picGrid->height());
}

TEST_F(ListPainting, TheArrowStandsOverTheSortedColumnAlone) {
    window->SortColumn = NameColumn;
    window->SortDirection = Descending;
    window->RepaintGrid();
    EXPECT_EQ(Arrow(NameColumn), "picStashGridTitleDown.svg");
    EXPECT_EQ(Arrow(MarkColumn), "");
    window->SortDirection = Ascending;
    window->RepaintGrid();
    EXPECT_EQ(Arrow(NameColumn), "picStashGridTitleUp.svg");
}

TEST_F(ListPainting, TheCurrentRowIsFramed) {
    EXPECT_EQ(FramesPainted(), std::vector<int>{});
    window->CurrentRow = 3;
    window->RepaintGrid();
    EXPECT_EQ(FramesPainted(), std::vector<int>{RowTop(3)});
}

TEST_F(ListPainting, TheCurrentRowStaysWithinAListThatBecomesShorter) {
    window->CurrentRow = 5;
    ShowNames(2);
    EXPECT_EQ(window->CurrentRow, 2);
    ShowNames(0);
    EXPECT_EQ(window->CurrentRow, 0);
}

TEST_F(ListPainting, ARowThatIsOpenedHasItsNumberWhiteOnBlack) {
    ShowNames(40);
    window->VSGridScroll->setValue(11);
    HighlightRow(*window, 3, true);
    EXPECT_EQ(NumbersHighlighted(), QStringList{"13"});
    HighlightRow(*window, 3, false);
    EXPECT_EQ(NumbersPainted().last(), "13");
    window->VSGridScroll->setValue(29);
    HighlightRow(*window, 12, true);
    EXPECT_EQ(NumbersHighlighted(), QStringList{"40"});
}

TEST_F(ListPainting, NothingIsHighlightedPastTheRowsOrWithoutAList) {
    HighlightRow(*window, 6, true);
    EXPECT_EQ(NumbersHighlighted(), QStringList{});
    LeaveList(*window);
    HighlightRow(*window, 1, true);
    EXPECT_EQ(NumbersHighlighted(), QStringList{});
}

TEST_F(ListPainting, ATextThatIsTooWideLosesItsTail) {
    window->rows[0].name = QString(200, 'W');
    window->RepaintGrid();
    const QString shown = Cell(1, NameColumn).what;
    EXPECT_TRUE(window->rows[0].name.startsWith(shown));
    EXPECT_LT(shown.size(), 200);
    EXPECT_LE(TextWidth(shown, ListFont), PlacesOfColumns(*window)[NameColumn].width - 105);
}

TEST_F(ListPainting, ASurfaceThatShowsSomethingElseHasNoTitles) {
    LeaveList(*window);
    for (PictureBox* header : window->picColHeader) {
        EXPECT_FALSE(header->isVisible());
    }
    window->RepaintGrid();
    EXPECT_TRUE(window->picColHeader[NameColumn]->isVisible()) << "the list is back";
}

TEST_F(ListPainting, ASecondOpeningShowsTheRowsOfThen) {
    ShowNames(40);
    window->VSGridScroll->setValue(20);
    window->hide();
    ShowNames(2);
    window->show();
    EXPECT_EQ(NumbersPainted(), (QStringList{"1", "2"}));
    EXPECT_EQ(window->FirstRow, 1);
    EXPECT_FALSE(window->VSGridScroll->isEnabled());
}
