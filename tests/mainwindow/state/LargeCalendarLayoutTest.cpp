// Where everything of the large calendar stands, and what a point of it hits.
#include "mainwindow/state/LargeCalendarLayout.h"

#include <gtest/gtest.h>

#include <rapidcheck/gtest.h>

namespace {

constexpr int Width = 7 * 1500;
constexpr int Height = 375 + 6 * 1500; // cells of 1500 by 1500 units, with gaps of 100

const UnitRect& IconBox(const CalendarLayout& layout, std::size_t cell, CalendarIcon icon) {
    return layout.cell[cell].icon[static_cast<std::size_t>(icon)];
}

// A month whose cell has something of everything.
CalendarMonth FullCell(std::size_t cell) {
    CalendarMonth month;
    month.HomeworkLeftCount[cell] = 1;
    month.TaskDoneCountByDay[cell] = 1;
    month.EventCountByDay[cell] = 1;
    return month;
}

int Bottom(const UnitRect& rect) {
    return rect.top + rect.height;
}

} // namespace

TEST(LargeCalendarLayout, TheHeadRowIs375UnitsHigh) {
    const CalendarLayout layout = LayOutCalendar(Width, Height, {});
    EXPECT_EQ(layout.head[0], (UnitRect{0, 0, 1500, 375}));
    EXPECT_EQ(layout.head[6], (UnitRect{9000, 0, 1500, 375}));
}

TEST(LargeCalendarLayout, CellsDivideTheGridRowByRow) {
    const CalendarLayout layout = LayOutCalendar(Width, Height, {});
    EXPECT_EQ(layout.cell[0].area, (UnitRect{0, 375, 1500, 1500}));
    EXPECT_EQ(layout.cell[6].area, (UnitRect{9000, 375, 1500, 1500}));
    EXPECT_EQ(layout.cell[7].area, (UnitRect{0, 1875, 1500, 1500}));
    EXPECT_EQ(layout.cell[41].area, (UnitRect{9000, 7875, 1500, 1500}));
}

TEST(LargeCalendarLayout, TheTabStandsAtTheTopRight) {
    const CalendarLayout layout = LayOutCalendar(Width, Height, {});
    EXPECT_EQ(layout.cell[8].tab, (UnitRect{3000 - 345, 1875, 345, 330}));
}

TEST(LargeCalendarLayout, LinesStackUnderTheTabWithTheFreeHeightAsGap) {
    const CalendarLayout layout = LayOutCalendar(Width, Height, FullCell(0));
    const int left = (1500 - 750) / 2;
    EXPECT_EQ(IconBox(layout, 0, CalendarIcon::Homework), (UnitRect{left, 375 + 330 + 100, 750, 270}));
    EXPECT_EQ(IconBox(layout, 0, CalendarIcon::Tasks).width, 750);
    EXPECT_EQ(IconBox(layout, 0, CalendarIcon::Events).width, 480);
    EXPECT_EQ(IconBox(layout, 0, CalendarIcon::Events).left, left);
}

TEST(LargeCalendarLayout, InAHighCellLinesStandAGapApart) {
    const CalendarLayout layout = LayOutCalendar(Width, 375 + 6 * 2100, FullCell(0)); // gaps of 200
    EXPECT_EQ(IconBox(layout, 0, CalendarIcon::Homework).top, 375 + 330 + 200);
    EXPECT_EQ(IconBox(layout, 0, CalendarIcon::Tasks).top, 375 + 330 + 200 + 470);
    EXPECT_EQ(IconBox(layout, 0, CalendarIcon::Events).top, 375 + 330 + 200 + 2 * 470);
}

TEST(LargeCalendarLayout, TheGapIsNeverBelowZero) {
    const CalendarLayout layout = LayOutCalendar(Width, 375 + 6 * 880, FullCell(0));
    EXPECT_EQ(IconBox(layout, 0, CalendarIcon::Homework).top, 375 + 330);
}

TEST(LargeCalendarLayout, ALineThatIsNotDrawnKeepsPosition0) {
    CalendarMonth month;
    month.EventCountByDay[3] = 2;
    const CalendarLayout layout = LayOutCalendar(Width, Height, month);
    EXPECT_EQ(IconBox(layout, 3, CalendarIcon::Homework), UnitRect{});
    EXPECT_EQ(IconBox(layout, 3, CalendarIcon::Tasks), UnitRect{});
    EXPECT_EQ(IconBox(layout, 3, CalendarIcon::Events).top, 375 + 330 + 100); // it moves up
}

TEST(LargeCalendarLayout, DoneAndOpenItemsBothGiveALine) {
    CalendarMonth month;
    month.HomeworkDoneCount[0] = 1;
    month.TaskLeftCountByDay[0] = 1;
    const CalendarLayout layout = LayOutCalendar(Width, Height, month);
    EXPECT_NE(IconBox(layout, 0, CalendarIcon::Homework), UnitRect{});
    EXPECT_NE(IconBox(layout, 0, CalendarIcon::Tasks), UnitRect{});
    EXPECT_EQ(IconBox(layout, 0, CalendarIcon::Events), UnitRect{});
}

TEST(CalendarCellAt, GivesTheCellUnderThePoint) {
    const CalendarLayout layout = LayOutCalendar(Width, Height, {});
    EXPECT_EQ(CalendarCellAt(layout, 0, 375), 0);
    EXPECT_EQ(CalendarCellAt(layout, 1499, 1874), 0);
    EXPECT_EQ(CalendarCellAt(layout, 1500, 1874), 1);
    EXPECT_EQ(CalendarCellAt(layout, 1499, 1875), 7);
    EXPECT_EQ(CalendarCellAt(layout, Width - 1, Height - 1), 41);
}

TEST(CalendarCellAt, GivesNothingOverTheWeekdaysAndOutside) {
    const CalendarLayout layout = LayOutCalendar(Width, Height, {});
    EXPECT_EQ(CalendarCellAt(layout, 100, 374), std::nullopt);
    EXPECT_EQ(CalendarCellAt(layout, -1, 400), std::nullopt);
    EXPECT_EQ(CalendarCellAt(layout, Width, 400), std::nullopt);
    EXPECT_EQ(CalendarCellAt(layout, 100, Height), std::nullopt);
}

TEST(CalendarIconAt, GivesTheLineUnderThePoint) {
    const CalendarLayout layout = LayOutCalendar(Width, 375 + 6 * 2100, FullCell(9));
    for (const CalendarIcon icon : {CalendarIcon::Homework, CalendarIcon::Tasks, CalendarIcon::Events}) {
        const UnitRect& box = IconBox(layout, 9, icon);
        EXPECT_EQ(CalendarIconAt(layout, 9, box.left, box.top), icon);
        EXPECT_EQ(CalendarIconAt(layout, 9, box.left + box.width - 1, Bottom(box) - 1), icon);
        EXPECT_EQ(CalendarIconAt(layout, 9, box.left + box.width, box.top), std::nullopt);
        EXPECT_EQ(CalendarIconAt(layout, 9, box.left, Bottom(box)), std::nullopt);
    }
}

TEST(CalendarIconAt, GivesNothingInACellWithoutLines) {
    const CalendarLayout layout = LayOutCalendar(Width, Height, FullCell(9));
    EXPECT_EQ(CalendarIconAt(layout, 0, 0, 0), std::nullopt);
    EXPECT_EQ(CalendarIconAt(layout, 0, 750, 900), std::nullopt);
}

TEST(CalendarIconAt, WhereLinesOverlapInALowCellTheLowerOneCounts) {
    const CalendarLayout layout = LayOutCalendar(Width, 375 + 6 * 1000, FullCell(0));
    const UnitRect& tasks = IconBox(layout, 0, CalendarIcon::Tasks);
    ASSERT_LT(tasks.top, Bottom(IconBox(layout, 0, CalendarIcon::Homework)));
    EXPECT_EQ(CalendarIconAt(layout, 0, tasks.left, tasks.top), CalendarIcon::Tasks);
    EXPECT_EQ(CalendarIconAt(layout, 0, tasks.left, tasks.top - 1), CalendarIcon::Homework);
}

TEST(LargeCalendarLayout, LinesTellThoseDoneOfAll) {
    EXPECT_EQ(DoneOfAll(1, 2), "1 / 3");
    EXPECT_EQ(DoneOfAll(0, 0), "0 / 0");
}

RC_GTEST_PROP(LargeCalendarLayout, CoversTheGridWithoutGapOrOverlap, ()) {
    const int width = *rc::gen::inRange(700, 60000);
    const int height = *rc::gen::inRange(1000, 40000);
    const CalendarLayout layout = LayOutCalendar(width, height, {});
    for (std::size_t i = 0; i < MonthCells; ++i) {
        const UnitRect& area = layout.cell[i].area;
        const bool lastColumn = i % 7 == 6;
        RC_ASSERT(area.left + area.width == (lastColumn ? width : layout.cell[i + 1].area.left));
        RC_ASSERT(Bottom(area) == (i >= 35 ? height : layout.cell[i + 7].area.top));
    }
    const int x = *rc::gen::inRange(0, width);
    const int y = *rc::gen::inRange(375, height);
    const std::optional<int> cell = CalendarCellAt(layout, x, y);
    RC_ASSERT(cell.has_value());
    RC_ASSERT(Holds(layout.cell[static_cast<std::size_t>(*cell)].area, x, y));
}

RC_GTEST_PROP(LargeCalendarLayout, KeepsThePicturesOfAllLinesInsideTheFrameOfTheirCell, ()) {
    const int height = *rc::gen::inRange(375 + 6 * 800, 40000);
    const CalendarLayout layout = LayOutCalendar(Width, height, FullCell(20));
    const CalendarCell& cell = layout.cell[20];
    int above = Bottom(cell.tab);
    for (const UnitRect& line : cell.icon) {
        RC_ASSERT(line.top >= above);
        RC_ASSERT(line.top + CalendarIconSize <= Bottom(cell.area) - TodayFrameWidth);
        above = line.top + 1;
    }
}
