// The columns of the lists of the main window, and where they stand.
#include "mainwindow/list/ListColumns.h"

#include <gtest/gtest.h>

#include <array>
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

TEST(ListColumns, HomeworkHasItsTenColumns) {
    EXPECT_EQ(Described(ListKind::Homework),
              " #=28|\xAE=19| !=19|Class=.350|Type=80|Description=.650|Time=45|Due=70|Done=41|Score=46|");
}

TEST(ListColumns, StudySessionsHaveTheirEightColumns) {
    EXPECT_EQ(Described(ListKind::StudySessions),
              "#=28|Class=.350|Type=85|Description=.650|Priority=75|Time=50|Done On=70|Due=75|");
}

TEST(ListColumns, TasksHaveTheirSevenColumns) {
    EXPECT_EQ(Described(ListKind::Tasks), "#=28|\xAE=19|Name=.996|Type=75|Priority=70|Date=70|Done=45|");
}

TEST(ListColumns, EventsHaveTheirSixColumns) {
    EXPECT_EQ(Described(ListKind::Events), "#=28|Name=.995|Type=75|Date=75|Time=70|Recurrence=90|");
}

TEST(ListColumns, RemindersHaveTheirSevenColumns) {
    EXPECT_EQ(Described(ListKind::Reminders),
              "#=28|For=75|Class=.300|Type=80|Description=.695|When=90|Date=70|");
}

// 560 pixels less 17 of the scroll bar and 348 of the fixed columns, and 3 more, are 198 to share.
TEST(ListColumns, SharesDivideWhatTheFixedColumnsLeave) {
    EXPECT_EQ(Widths(ListKind::Homework, GridWidth),
              (std::vector<int>{28, 19, 19, 69, 80, 129, 45, 70, 41, 46}));
}

TEST(ListColumns, OneShareTakesNearlyAll) {
    EXPECT_EQ(Widths(ListKind::Tasks, GridWidth), (std::vector<int>{28, 19, 238, 75, 70, 70, 45}));
}

TEST(ListColumns, SharesVanishOnAGridThatTheFixedColumnsFill) {
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

INSTANTIATE_TEST_SUITE_P(ListColumns, EachList,
                         testing::Values(ListKind::Homework, ListKind::StudySessions, ListKind::Tasks,
                                         ListKind::Events, ListKind::Reminders),
                         [](const auto& each) { return ListNames[static_cast<std::size_t>(each.param)]; });
