// The cells of the month, their colours, and where the controls of the calendar go.
#include "planner/lists/MonthCells.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace std::chrono_literals;
using std::chrono::days;

namespace {

constexpr std::size_t Cell14 = 17; // 14 October 2009 in a week from Sunday
constexpr std::size_t Cell15 = 18;

// October 2009, its 14th clicked and today, with the marks that the month came with.
CalendarMonth October(CalendarMonth month = {}, bool calendarMode = false) {
    ComputeMonthCells(month, Date{2009y / 10 / 14}, Date{2009y / 10 / 14}, "Sunday", calendarMode);
    return month;
}

CalendarMonth CalendarOf(Date clicked, Date today = Date{2009y / 10 / 14}) {
    CalendarMonth month;
    ComputeMonthCells(month, clicked, today, "Sunday", false);
    return month;
}

CalendarMonth MarkedIn(int color, std::size_t cell) {
    CalendarMonth month;
    month.ColorMarked = color;
    month.CellMarked[cell] = true;
    return month;
}

template <class Values>
int CountTrue(const Values& values) {
    return static_cast<int>(std::ranges::count(values, true));
}

} // namespace

TEST(MonthCells, ShowTheDaysOfSixWeeks) {
    const CalendarMonth month = October();
    EXPECT_EQ(month.CellDate[0], Date{2009y / 9 / 27});
    EXPECT_EQ(month.CellText[0], "27");
    EXPECT_EQ(month.CellText[4], "1");
    EXPECT_EQ(month.CellDate[41], Date{2009y / 11 / 7});
    EXPECT_EQ(month.CellText[41], "7");
}

TEST(MonthCells, TellWhichOneIsSelected) {
    EXPECT_EQ(SelectedCellOf(October()), Cell14);
    EXPECT_EQ(SelectedCellOf({}), std::size_t{MonthCells});
}

TEST(MonthCells, AreBlackInTheMonthAndGreyBesideIt) {
    const CalendarMonth month = October();
    EXPECT_EQ(month.CellInMonth[3], 0);
    EXPECT_EQ(month.CellForeColor[3], 0xA9A9A9);
    EXPECT_EQ(month.CellInMonth[4], 1);
    EXPECT_EQ(month.CellForeColor[4], 0x000000);
    EXPECT_EQ(month.CellInMonth[34], 1);
    EXPECT_EQ(month.CellInMonth[35], 0);
    EXPECT_EQ(std::ranges::count(month.CellInMonth, 1), 31);
}

TEST(MonthCells, AreWhiteUnlessMarked) {
    const CalendarMonth month = October(MarkedIn(ColorTasks, 5));
    EXPECT_EQ(month.CellBackColor[4], 0xFFFFFF);
    EXPECT_EQ(month.CellBackColor[5], ColorTasks);
}

TEST(MonthCells, AMarkShowsInANeighbourMonthToo) {
    EXPECT_EQ(October(MarkedIn(ColorAll, 0)).CellBackColor[0], ColorAll);
}

TEST(MonthCells, TheClickedDayAloneIsSelectedInWhiteOnBlack) {
    const CalendarMonth month = October();
    EXPECT_EQ(CountTrue(month.CellSelected), 1);
    EXPECT_TRUE(month.CellSelected[Cell14]);
    EXPECT_EQ(month.CellForeColor[Cell14], 0xFFFFFF);
    EXPECT_EQ(month.CellBackColor[Cell14], 0x000000);
}

TEST(MonthCells, ColorsAreThoseOfTheCalendar) {
    EXPECT_EQ(ColorInMonth, 0x000000);
    EXPECT_EQ(ColorOutMonth, 0xA9A9A9);
    EXPECT_EQ(ColorSelectedText, 0xFFFFFF);
    EXPECT_EQ(ColorCell, 0xFFFFFF);
    EXPECT_EQ(ColorSelectedCell, 0x000000);
    EXPECT_EQ(ColorAll, 0xF0E8E2);
    EXPECT_EQ(ColorDone, 0xE2F7E1);
    EXPECT_EQ(ColorNotDone, 0xE5E5FF);
    EXPECT_EQ(ColorTasks, 0xD7EBFA);
    EXPECT_EQ(SelectedColor(0xF0E8E2), 0xA88A76);
    EXPECT_EQ(SelectedColor(0xE2F7E1), 0x00A600);
    EXPECT_EQ(SelectedColor(0xE5E5FF), 0x374EC1);
    EXPECT_EQ(SelectedColor(0xD7EBFA), 0x20A5DA);
}

TEST(MonthCells, ASelectedMarkedDayHasTheSelectedFormOfItsColor) {
    EXPECT_EQ(October(MarkedIn(ColorAll, Cell14)).CellBackColor[Cell14], ColorSelectedAll);
    EXPECT_EQ(October(MarkedIn(ColorDone, Cell14)).CellBackColor[Cell14], ColorSelectedDone);
    EXPECT_EQ(October(MarkedIn(ColorNotDone, Cell14)).CellBackColor[Cell14], ColorSelectedNotDone);
    EXPECT_EQ(October(MarkedIn(ColorTasks, Cell14)).CellBackColor[Cell14], ColorSelectedTasks);
}

TEST(MonthCells, AnyOtherColorIsBlackWhenSelected) {
    EXPECT_EQ(SelectedColor(ColorCell), ColorSelectedCell);
    EXPECT_EQ(SelectedColor(0x123456), ColorSelectedCell);
}

TEST(MonthCells, InCalendarModeADayWithOpenHomeworkIsColoredAsNotDone) {
    CalendarMonth month;
    month.HomeworkLeftCount[5] = 1;
    EXPECT_EQ(October(month, true).CellBackColor[5], ColorNotDone);
}

TEST(MonthCells, InCalendarModeADayWithOpenTasksIsColoredAsNotDone) {
    CalendarMonth month;
    month.TaskLeftCountByDay[5] = 1;
    EXPECT_EQ(October(month, true).CellBackColor[5], ColorNotDone);
}

TEST(MonthCells, InCalendarModeOpenHomeworkGoesBeforeTheMarks) {
    CalendarMonth month = MarkedIn(ColorAll, 5);
    month.HomeworkLeftCount[5] = 1;
    month.HomeworkDoneCount[6] = 1;
    month.CellMarked[6] = true;
    month = October(month, true);
    EXPECT_EQ(month.CellBackColor[5], ColorNotDone);
    EXPECT_EQ(month.CellBackColor[6], ColorAll);
}

TEST(MonthCells, InCalendarModeASelectedDayWithOpenItemsHasTheSelectedFormOfNotDone) {
    CalendarMonth month;
    month.TaskLeftCountByDay[Cell14] = 2;
    EXPECT_EQ(October(month, true).CellBackColor[Cell14], ColorSelectedNotDone);
}

TEST(MonthCells, InOtherModesTheCountersDoNotColor) {
    CalendarMonth month;
    month.HomeworkLeftCount[5] = 1;
    month.TaskLeftCountByDay[5] = 1;
    EXPECT_EQ(October(month, false).CellBackColor[5], ColorCell);
}

TEST(MonthCells, TodayIsFlaggedInItsMonthAlone) {
    EXPECT_TRUE(October().CellToday[Cell14]);
    EXPECT_EQ(CountTrue(October().CellToday), 1);
    EXPECT_EQ(CountTrue(CalendarOf(Date{2009y / 11 / 1}, Date{2009y / 10 / 31}).CellToday),
              0); // a grey cell of November
    EXPECT_EQ(CountTrue(CalendarOf(Date{2009y / 9 / 1}, Date{2009y / 10 / 1}).CellToday), 0);
}

TEST(MonthCells, NoGreyCellIsSelected) {
    const CalendarMonth month = CalendarOf(Date{2009y / 10 / 29});
    EXPECT_EQ(month.CellText[2], "29"); // of September
    EXPECT_FALSE(month.CellSelected[2]);
    EXPECT_EQ(CountTrue(month.CellSelected), 1);
}

TEST(MonthCells, AnotherClickMovesTheSelection) {
    CalendarMonth month = October();
    ComputeMonthCells(month, Date{2009y / 10 / 15}, Date{2009y / 10 / 14}, "Sunday", false);
    EXPECT_FALSE(month.CellSelected[Cell14]);
    EXPECT_EQ(month.CellForeColor[Cell14], ColorInMonth);
    EXPECT_EQ(month.CellBackColor[Cell14], ColorCell);
    EXPECT_TRUE(month.CellSelected[Cell15]);
    EXPECT_TRUE(month.CellToday[Cell14]);
}

TEST(MonthCells, TheTargetsOfTheControlsStandBehindTheCells) {
    const CalendarMonth month = CalendarOf(Date{2009y / 12 / 31}, Date{2009y / 10 / 14});
    EXPECT_EQ(month.CellDate[42], Date{2009y / 10 / 14}); // today
    EXPECT_EQ(month.CellDate[43], Date{2009y / 11 / 30}); // one month back
    EXPECT_EQ(month.CellDate[44], Date{2010y / 1 / 31});  // one month on
    EXPECT_EQ(month.CellDate[45], Date{2009y / 10 / 15}); // tomorrow
    EXPECT_EQ(month.CellDate[46], Date{2010y / 1 / 1});   // one day on
    EXPECT_EQ(month.CellDate[47], Date{2009y / 12 / 30}); // one day back
}

TEST(MonthCells, OneMonthOnFrom31JanuaryIsTheLastOfFebruary) {
    EXPECT_EQ(CalendarOf(Date{2009y / 1 / 31}).CellDate[MonthOnEntry], Date{2009y / 2 / 28});
    EXPECT_EQ(CalendarOf(Date{2012y / 1 / 31}).CellDate[MonthOnEntry], Date{2012y / 2 / 29});
    EXPECT_EQ(CalendarOf(Date{2009y / 3 / 31}).CellDate[MonthBackEntry], Date{2009y / 2 / 28});
}

TEST(MonthCells, TheWeekOfTheClickedDayIsKept) {
    const CalendarMonth month = October();
    for (std::size_t day = 0; day < 7; ++day) {
        EXPECT_EQ(month.WeekDates[day], Date{2009y / 10 / 11} + days{day});
    }
    CalendarMonth monday;
    ComputeMonthCells(monday, Date{2009y / 10 / 11}, Date{2009y / 10 / 14}, "Monday", false);
    EXPECT_EQ(monday.WeekDates[0], Date{2009y / 10 / 5});
    EXPECT_EQ(monday.WeekDates[6], Date{2009y / 10 / 11});
}

TEST(MonthCells, TheLimitsOfTheCalendarHaveWholeGrids) {
    EXPECT_EQ(CalendarOf(EarliestDate).CellDate[0], Date{1599y / 12 / 26});
    EXPECT_EQ(CalendarOf(LatestDate).CellText[41], "5"); // 5 January 3101
}
