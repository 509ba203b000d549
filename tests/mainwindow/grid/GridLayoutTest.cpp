// Where the lists of the grid stand, and what lies under a point.
#include "mainwindow/grid/GridLayout.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>

namespace {

constexpr int GridWidth = 560 * UnitsPerPixel;

// "title width" for each column, the shares in thousandths.
std::string Described(ListKind kind) {
    std::string text;
    for (const ListColumn& column : ColumnsOf(kind)) {
        const bool share = column.width < 1;
        const int number = static_cast<int>(share ? column.width * 1000 + 0.5 : column.width);
        text += std::string(column.title) + "=" + (share ? "." : "") + std::to_string(number) + "|";
    }
    return text;
}

std::vector<int> Widths(ListKind kind, int gridWidth) {
    std::vector<int> widths;
    for (const ColumnPlace& place : PlaceColumns(ColumnsOf(kind), gridWidth)) {
        widths.push_back(place.width / UnitsPerPixel);
    }
    return widths;
}

// By ListKind.
constexpr std::array<const char*, 5> ListNames{"Homework", "StudySessions", "Tasks", "Events", "Reminders"};

class EachList : public testing::TestWithParam<ListKind> {};

} // namespace

TEST(GridLayout, HomeworkHasItsTenColumns) {
    EXPECT_EQ(Described(ListKind::Homework),
              " #=28|\xAE=19| !=19|Class=.350|Type=80|Description=.650|Time=45|Due=70|Done=41|Score=46|");
}

TEST(GridLayout, StudySessionsHaveTheirEightColumns) {
    EXPECT_EQ(Described(ListKind::StudySessions),
              "#=28|Class=.350|Type=85|Description=.650|Priority=75|Time=50|Done On=70|Due=75|");
}

TEST(GridLayout, TasksHaveTheirSevenColumns) {
    EXPECT_EQ(Described(ListKind::Tasks), "#=28|\xAE=19|Name=.996|Type=75|Priority=70|Date=70|Done=45|");
}

TEST(GridLayout, EventsHaveTheirSixColumns) {
    EXPECT_EQ(Described(ListKind::Events), "#=28|Name=.995|Type=75|Date=75|Time=70|Recurrence=90|");
}

TEST(GridLayout, RemindersHaveTheirSevenColumns) {
    EXPECT_EQ(Described(ListKind::Reminders),
              "#=28|For=75|Class=.300|Type=80|Description=.695|When=90|Date=70|");
}

// 560 pixels less 17 of the scroll bar and 348 of the fixed columns, and 3 more, are 198 to share.
TEST(GridLayout, SharesDivideWhatTheFixedColumnsLeave) {
    EXPECT_EQ(Widths(ListKind::Homework, GridWidth),
              (std::vector<int>{28, 19, 19, 69, 80, 129, 45, 70, 41, 46}));
}

TEST(GridLayout, OneShareTakesNearlyAll) {
    EXPECT_EQ(Widths(ListKind::Tasks, GridWidth), (std::vector<int>{28, 19, 238, 75, 70, 70, 45}));
}

TEST(GridLayout, SharesVanishOnAGridThatTheFixedColumnsFill) {
    EXPECT_EQ(Widths(ListKind::Reminders, 100 * UnitsPerPixel), (std::vector<int>{28, 75, 0, 80, 0, 90, 70}));
}

TEST_P(EachList, EachColumnOverlapsTheOneBeforeItByAPixel) {
    const std::vector<ColumnPlace> places = PlaceColumns(ColumnsOf(GetParam()), GridWidth);
    EXPECT_EQ(places.front().left, 0);
    for (std::size_t i = 1; i < places.size(); ++i) {
        EXPECT_EQ(places[i].left, places[i - 1].left + places[i - 1].width - 15) << i;
    }
}

TEST_P(EachList, ColumnsEndBesideTheScrollBarAtEveryWidth) {
    for (int pixels = 500; pixels <= 2600; ++pixels) {
        const int width = pixels * UnitsPerPixel;
        const ColumnPlace last = PlaceColumns(ColumnsOf(GetParam()), width).back();
        const int gap = width - ScrollStripWidth - last.left - last.width;
        ASSERT_GE(gap, 0) << pixels;
        ASSERT_LT(gap, 16 * UnitsPerPixel) << pixels;
    }
}

TEST_P(EachList, EdgesOfColumnsFallOnWholePixels) {
    for (int width = 7500; width <= 9000; ++width) {
        for (const ColumnPlace& place : PlaceColumns(ColumnsOf(GetParam()), width)) {
            ASSERT_EQ(place.left % UnitsPerPixel, 0);
            ASSERT_EQ(place.width % UnitsPerPixel, 0);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(GridLayout, EachList,
                         testing::Values(ListKind::Homework, ListKind::StudySessions, ListKind::Tasks,
                                         ListKind::Events, ListKind::Reminders),
                         [](const auto& each) { return ListNames[static_cast<std::size_t>(each.param)]; });

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
    EXPECT_EQ(RowAt(100, TitleUnits, GridWidth), 1);
    EXPECT_EQ(RowAt(100, TitleUnits + RowUnits - 1, GridWidth), 1);
    EXPECT_EQ(RowAt(100, TitleUnits + RowUnits, GridWidth), 2);
    EXPECT_EQ(RowAt(100, TitleUnits + 17 * RowUnits, GridWidth), 18);
}

TEST(GridLayout, APointOnTheTitlesGivesTheFirstRow) {
    EXPECT_EQ(RowAt(100, 0, GridWidth), 1);
    EXPECT_EQ(RowAt(100, TitleUnits - 1, GridWidth), 1);
}

TEST(GridLayout, APointOnTheStripOfTheScrollBarGivesNoRow) {
    EXPECT_EQ(RowAt(GridWidth - 255, TitleUnits, GridWidth), 999);
    EXPECT_EQ(RowAt(GridWidth - 1, 0, GridWidth), 999);
    EXPECT_EQ(RowAt(GridWidth - 256, TitleUnits, GridWidth), 1);
}

TEST(GridLayout, EveryPointOfACellGivesItsRow) {
    for (int row = 1; row <= 60; ++row) {
        const UnitRect cell = CellRect({420, 300}, row);
        EXPECT_EQ(RowAt(cell.left, cell.top, GridWidth), row);
        EXPECT_EQ(RowAt(cell.left, cell.top + cell.height - 1, GridWidth), row);
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
