// Where the parts of a painted list stand, and what lies under a point.
#include "toolkit/layout/GridLayout.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace {

constexpr int GridWidth = 560 * UnitsPerPixel;

} // namespace

TEST(GridLayout, ARowHasOnePlaceAndAPlaceOneRow) {
    EXPECT_EQ(PlaceOfRow(7, 7), 1);
    EXPECT_EQ(PlaceOfRow(9, 7), 3);
    EXPECT_EQ(RowAtPlace(1, 7), 7);
    EXPECT_EQ(RowAtPlace(3, 7), 9);
}

TEST(GridLayout, ARowReachesFromLineToLineAndToTheScrollBar) {
    EXPECT_EQ(RowRect(3, GridWidth), (UnitRect{0, (21 + 44) * 15, GridWidth - 255, 23 * 15}));
}

TEST(GridLayout, WholeRowsFitUnderTheTitles) {
    EXPECT_EQ(WholeRows(21 + 22 * 18, 21, 22), 18);
    EXPECT_EQ(WholeRows(21 + 22 * 18 - 1, 21, 22), 17);
    EXPECT_EQ(WholeRows(21 + 22 * 18 + 21, 21, 22), 18);
}

TEST(GridLayout, NoRowFitsOnASurfaceLowerThanItsTitles) {
    EXPECT_EQ(WholeRows(10, 21, 22), 0);
}

TEST(GridLayout, ACellLiesInsideItsLines) {
    const ColumnPlace column{420, 300};
    EXPECT_EQ(RowTop(1), 21 * 15);
    EXPECT_EQ(RowTop(3), (21 + 44) * 15);
    EXPECT_EQ(CellRect(column, 3), (UnitRect{435, (21 + 44 + 1) * 15, 270, 21 * 15}));
}

TEST(GridLayout, APointLiesOnTheRowUnderTheTitles) {
    EXPECT_EQ(PlaceAt(100, TitleUnits, GridWidth), 1);
    EXPECT_EQ(PlaceAt(100, TitleUnits + RowUnits - 1, GridWidth), 1);
    EXPECT_EQ(PlaceAt(100, TitleUnits + RowUnits, GridWidth), 2);
    EXPECT_EQ(PlaceAt(100, TitleUnits + 17 * RowUnits, GridWidth), 18);
}

TEST(GridLayout, APointOnTheTitlesGivesTheFirstRow) {
    EXPECT_EQ(PlaceAt(100, 0, GridWidth), 1);
    EXPECT_EQ(PlaceAt(100, TitleUnits - 1, GridWidth), 1);
}

TEST(GridLayout, APointOnTheStripOfTheScrollBarGivesNoRow) {
    EXPECT_EQ(PlaceAt(GridWidth - 255, TitleUnits, GridWidth), 999);
    EXPECT_EQ(PlaceAt(GridWidth - 1, 0, GridWidth), 999);
    EXPECT_EQ(PlaceAt(GridWidth - 256, TitleUnits, GridWidth), 1);
}

TEST(GridLayout, EveryPointOfACellGivesItsRow) {
    for (int row = 1; row <= 60; ++row) {
        const UnitRect cell = CellRect({420, 300}, row);
        EXPECT_EQ(PlaceAt(cell.left, cell.top, GridWidth), row);
        EXPECT_EQ(PlaceAt(cell.left, cell.top + cell.height - 1, GridWidth), row);
    }
}

TEST(GridScroll, IsDisabledWhenAllRowsFit) {
    EXPECT_EQ(GridScrollFor(18, 18), (GridScroll{false, 1, 1}));
    EXPECT_EQ(GridScrollFor(0, 18), (GridScroll{false, 1, 1}));
}

TEST(GridScroll, EndsWhereTheLastRowIsTheLastOneVisible) {
    EXPECT_EQ(GridScrollFor(19, 18), (GridScroll{true, 2, 17}));
    EXPECT_EQ(GridScrollFor(32766, 40), (GridScroll{true, 32727, 39}));
}

TEST(GridScroll, StepsByARowAtLeast) {
    EXPECT_EQ(GridScrollFor(5, 1).largeStep, 1);
    EXPECT_EQ(GridScrollFor(5, 0), (GridScroll{true, 6, 1}));
}

TEST(GridScroll, WheelMovesThreeRows) {
    EXPECT_EQ(WheelTarget(-1, 10, 40), 13);
    EXPECT_EQ(WheelTarget(1, 10, 40), 7);
}

TEST(GridScroll, WheelBelowOneIsDown) {
    EXPECT_EQ(WheelTarget(0, 10, 40), 13);
}

TEST(GridScroll, WheelStopsAtBothEnds) {
    EXPECT_EQ(WheelTarget(-1, 39, 40), 40);
    EXPECT_EQ(WheelTarget(-1, 40, 40), 40);
    EXPECT_EQ(WheelTarget(1, 3, 40), 1);
    EXPECT_EQ(WheelTarget(1, 1, 40), 1);
}

TEST(GridScroll, ARowIsShownByTheLeastMove) {
    EXPECT_EQ(FirstRowShowing(5, 5, 10), 5);
    EXPECT_EQ(FirstRowShowing(14, 5, 10), 5);
    EXPECT_EQ(FirstRowShowing(15, 5, 10), 6);
    EXPECT_EQ(FirstRowShowing(4, 5, 10), 4);
    EXPECT_EQ(FirstRowShowing(100, 5, 10), 91);
}

RC_GTEST_PROP(GridScroll, AShownRowIsVisible, ()) {
    const int row = *rc::gen::inRange(1, 500);
    const int firstRow = *rc::gen::inRange(1, 500);
    const int visible = *rc::gen::inRange(1, 60);
    const int first = FirstRowShowing(row, firstRow, visible);
    RC_ASSERT(first >= 1);
    RC_ASSERT(row >= first);
    RC_ASSERT(row < first + visible);
}
