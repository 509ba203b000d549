// The six rows of seven days of a month.
#include "planner/dates/MonthGrid.h"
#include "core/DateText.h"
#include "planner/dates/DateHelpers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

using namespace std::chrono_literals;
using std::chrono::days;
using std::chrono::months;
using std::chrono::year_month;
using std::chrono::year_month_day;

namespace {

constexpr std::array<std::string_view, 3> StartDays{"Sunday", "Monday", "Saturday"};

// The offset of the first cell from the first of the month, as a table of cases.
int TableOffset(int weekdayNumber, std::string_view startDayOfWeek) {
    if (startDayOfWeek == "Sunday") {
        return weekdayNumber == 1 ? -7 : 1 - weekdayNumber;
    }
    if (startDayOfWeek == "Monday") {
        return weekdayNumber == 2 ? -7 : weekdayNumber == 1 ? -6 : 2 - weekdayNumber;
    }
    return weekdayNumber == 7 ? -7 : -weekdayNumber;
}

std::string Initials(std::string_view startDayOfWeek) {
    std::string initials;
    for (const std::string_view head : WeekdayHeads(startDayOfWeek)) {
        initials += head.front();
    }
    return initials;
}

int CountSelected(const std::array<MonthCell, MonthCells>& cells) {
    return static_cast<int>(std::ranges::count(cells, true, &MonthCell::selected));
}

int CountToday(const std::array<MonthCell, MonthCells>& cells) {
    return static_cast<int>(std::ranges::count(cells, true, &MonthCell::today));
}

} // namespace

TEST(MonthGrid, OctoberOf2009FromSundayBeginsOn27September) {
    EXPECT_EQ(FirstCellDate(Date{2009y / 10 / 14}, "Sunday"), Date{2009y / 9 / 27});
}

TEST(MonthGrid, AMonthThatBeginsOnTheFirstColumnBeginsAWeekEarlier) {
    EXPECT_EQ(FirstCellDate(Date{2009y / 2 / 1}, "Sunday"), Date{2009y / 1 / 25});
    EXPECT_EQ(FirstCellDate(Date{2009y / 6 / 1}, "Monday"), Date{2009y / 5 / 25});
    EXPECT_EQ(FirstCellDate(Date{2009y / 8 / 1}, "Saturday"), Date{2009y / 7 / 25});
}

TEST(MonthGrid, AMonthThatBeginsOnSundayBeginsSixDaysEarlierInWeeksFromMonday) {
    EXPECT_EQ(FirstCellDate(Date{2009y / 2 / 1}, "Monday"), Date{2009y / 1 / 26});
}

TEST(MonthGrid, EveryWeekdayAndStartDayHasTheOffsetOfTheTable) {
    for (int day = 1; day <= 7; ++day) { // the months of 2009 begin on every weekday
        for (int month = 1; month <= 12; ++month) {
            const Date first{2009y / month / 1};
            if (WeekdayNumber(first) != day) {
                continue;
            }
            for (const std::string_view start : StartDays) {
                EXPECT_EQ(DayDiff(first, FirstCellDate(first, start)), TableOffset(day, start))
                    << month << " " << start;
            }
        }
    }
}

TEST(MonthGrid, AnyOtherTextThanSundayAndMondayMeansSaturday) {
    for (const std::string_view text : {"Saturday", "Tuesday", "", "sunday"}) {
        EXPECT_EQ(FirstCellDate(Date{2009y / 10 / 1}, text), Date{2009y / 9 / 26}) << text;
    }
}

TEST(MonthGrid, InEveryMonthOf1600To3100TheFirstCellIsTheStartDayBeforeTheFirst) {
    for (year_month month = 1600y / 1; month <= 3100y / 12; month += months{1}) {
        for (const std::string_view start : StartDays) {
            Date naive = Date{month / 1} - days{1}; // walked back a day at a time
            const int wanted = start == "Sunday" ? 1 : start == "Monday" ? 2 : 7;
            while (WeekdayNumber(naive) != wanted) {
                naive -= days{1};
            }
            const Date first = FirstCellDate(Date{month / 17}, start);
            ASSERT_EQ(first, naive) << StoredDate(naive) << " " << start;
            ASSERT_GE(first + days{MonthCells - 1}, Date{month / std::chrono::last}); // all of it is seen
        }
    }
}

TEST(MonthGrid, CellsRunOnByOneDay) {
    const auto cells = CellsOfMonth(Date{2009y / 10 / 14}, Date{2009y / 10 / 14}, "Sunday");
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const Date date = Date{2009y / 9 / 27} + days{i};
        EXPECT_EQ(cells[i].date, date);
        EXPECT_EQ(cells[i].day, static_cast<int>(static_cast<unsigned>(year_month_day{date}.day())));
        EXPECT_EQ(cells[i].inMonth, year_month_day{date}.month() == std::chrono::October);
    }
}

TEST(MonthGrid, TheDateShownIsTheOneSelectedCell) {
    const auto cells = CellsOfMonth(Date{2009y / 10 / 1}, Date{2010y / 1 / 1}, "Sunday");
    EXPECT_TRUE(cells[4].selected);
    EXPECT_EQ(CountSelected(cells), 1);
}

TEST(MonthGrid, NoCellOfANeighbourMonthIsSelected) {
    const auto cells = CellsOfMonth(Date{2009y / 10 / 27}, Date{2010y / 1 / 1}, "Sunday");
    EXPECT_EQ(cells[0].day, 27); // of September
    EXPECT_FALSE(cells[0].selected);
    EXPECT_TRUE(cells[30].selected);
}

TEST(MonthGrid, TodayIsFlaggedInItsOwnMonth) {
    const auto cells = CellsOfMonth(Date{2009y / 10 / 1}, Date{2009y / 10 / 31}, "Sunday");
    EXPECT_TRUE(cells[34].today);
    EXPECT_EQ(CountToday(cells), 1);
}

TEST(MonthGrid, TodayIsNotFlaggedAsACellOfANeighbourMonth) {
    EXPECT_EQ(CountToday(CellsOfMonth(Date{2009y / 10 / 14}, Date{2009y / 9 / 30}, "Sunday")), 0);
    EXPECT_EQ(CountToday(CellsOfMonth(Date{2009y / 10 / 14}, Date{2009y / 11 / 1}, "Sunday")), 0);
}

TEST(MonthGrid, TheSameDayOfAnotherYearIsNotToday) {
    EXPECT_EQ(CountToday(CellsOfMonth(Date{2009y / 10 / 14}, Date{2010y / 10 / 14}, "Sunday")), 0);
}

TEST(MonthGrid, DatesAreKeptWithin1600And3100) {
    EXPECT_EQ(WithinCalendar(Date{1599y / 12 / 31}), EarliestDate);
    EXPECT_EQ(WithinCalendar(Date{1600y / 1 / 1}), Date{1600y / 1 / 1});
    EXPECT_EQ(WithinCalendar(Date{2009y / 10 / 14}), Date{2009y / 10 / 14});
    EXPECT_EQ(WithinCalendar(Date{3100y / 12 / 31}), Date{3100y / 12 / 31});
    EXPECT_EQ(WithinCalendar(Date{3101y / 1 / 1}), LatestDate);
}

TEST(MonthGrid, HeadsRunFromTheStartDay) {
    EXPECT_EQ(Initials("Sunday"), "SMTWTFS");
    EXPECT_EQ(Initials("Monday"), "MTWTFSS");
    EXPECT_EQ(Initials("Saturday"), "SSMTWTF");
    EXPECT_EQ(WeekdayHeads("Monday")[0], "Monday");
    EXPECT_EQ(WeekdayHeads("Monday")[6], "Sunday");
    EXPECT_EQ(WeekdayHeads("Saturday")[1], "Sunday");
}

TEST(MonthGrid, HeadsNameTheWeekdaysOfTheirColumns) {
    constexpr std::array<std::string_view, 7> Names{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                    "Thursday", "Friday", "Saturday"};
    for (const std::string_view start : StartDays) {
        const auto cells = CellsOfMonth(Date{2009y / 10 / 14}, Date{2009y / 10 / 14}, start);
        for (std::size_t column = 0; column < 7; ++column) {
            const auto weekday = static_cast<std::size_t>(WeekdayNumber(cells[column].date) - 1);
            EXPECT_EQ(WeekdayHeads(start)[column], Names[weekday]);
        }
    }
}

TEST(MonthGrid, AWeekBeginsOnTheStartDayThatHoldsTheDate) {
    EXPECT_EQ(FirstOfWeek(Date{2009y / 10 / 14}, "Sunday"), Date{2009y / 10 / 11});
    EXPECT_EQ(FirstOfWeek(Date{2009y / 10 / 14}, "Monday"), Date{2009y / 10 / 12});
    EXPECT_EQ(FirstOfWeek(Date{2009y / 10 / 14}, "Saturday"), Date{2009y / 10 / 10});
    EXPECT_EQ(FirstOfWeek(Date{2009y / 10 / 12}, "Monday"), Date{2009y / 10 / 12});
    EXPECT_EQ(FirstOfWeek(Date{2009y / 10 / 11}, "Monday"), Date{2009y / 10 / 5});
}
