// The titles under which a month and a day are shown.
#include "planner/dates/DateTitles.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

TEST(DateTitles, AMonthIsNamedWithItsYear) {
    EXPECT_EQ(MonthTitle(Date{2009y / 10 / 14}).utf8, "October 2009");
    EXPECT_EQ(MonthTitle(Date{1600y / 1 / 1}).utf8, "January 1600");
}

TEST(DateTitles, ADayIsNamedWithWeekdayShortMonthAndDay) {
    EXPECT_EQ(DayTitle(Date{2009y / 10 / 14}).utf8, "Wednesday, Oct 14");
    EXPECT_EQ(DayTitle(Date{2010y / 2 / 1}).utf8, "Monday, Feb 1");
}
