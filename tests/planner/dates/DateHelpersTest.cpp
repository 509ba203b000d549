// Date arithmetic, clock lengths and durations.
#include "planner/dates/DateHelpers.h"
#include "core/RunTimeError.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

TEST(DaysInMonths, FollowTheCalendar) {
    EXPECT_EQ(DaysInMonth(2008, 2), 29);
    EXPECT_EQ(DaysInMonth(1900, 2), 28);
    EXPECT_EQ(DaysInMonth(2000, 2), 29);
    EXPECT_EQ(DaysInMonth(2009, 12), 31);
    EXPECT_EQ(DaysInMonth(2009, 13), 31);
}

TEST(DaysInMonths, AreThirtyOneInDecemberOfAnyYearAndInTheJanuaryBehindIt) {
    for (int year = 100; year <= 9999; ++year) {
        ASSERT_EQ(DaysInMonth(year, 12), 31) << year;
        ASSERT_EQ(DaysInMonth(year, 13), 31) << year;
    }
}

TEST(DaysInMonths, SumToFourCenturies) {
    int sum = 0;
    for (int year = 1600; year < 2000; ++year) {
        for (int month = 1; month <= 12; ++month) {
            sum += DaysInMonth(year, month);
        }
    }
    EXPECT_EQ(sum, 146097);
}

TEST(DateAdditions, ClampAtEachStep) {
    EXPECT_EQ(DateAddMulti(Date{2009y / 8 / 31}, 0, 1, 0), Date{2009y / 9 / 30});
    EXPECT_EQ(DateAddMulti(Date{2009y / 1 / 31}, 0, 1, 0), Date{2009y / 2 / 28});
    EXPECT_EQ(DateAddMulti(Date{2008y / 1 / 31}, 0, 1, 1), Date{2008y / 3 / 1});
    EXPECT_EQ(DateAddMulti(Date{2008y / 2 / 29}, 1, 0, 0), Date{2009y / 2 / 28});
    EXPECT_EQ(DateAddMulti(Date{2008y / 2 / 29}, 1, 1, 0), Date{2009y / 3 / 28}); // the day lost stays lost
    EXPECT_EQ(DateAddMulti(Date{2009y / 3 / 1}, 1, 0, -1), Date{2010y / 2 / 28});
    EXPECT_EQ(DateAddMulti(Date{2009y / 1 / 15}, 0, -13, 0), Date{2007y / 12 / 15});
}

TEST(DayDifferences, IgnoreTheTimeOfDay) {
    EXPECT_EQ(DayDiff(Date{2009y / 10 / 14}, Date{2009y / 10 / 13}), -1);
    EXPECT_EQ(DayDiff(Moment{Date{2009y / 10 / 14}} + 23h + 59min, Moment{Date{2009y / 10 / 15}}), 1);
}

TEST(Weekdays, RunFromSundayOneToSaturdaySeven) {
    EXPECT_EQ(WeekdayNumber(Date{2009y / 10 / 11}), 1);
    EXPECT_EQ(WeekdayNumber(Date{2009y / 10 / 17}), 7);
}

TEST(AllDatesConstant, IsDayNumber19583) {
    EXPECT_EQ(DayDiff(Date{1899y / 12 / 30}, AllDates), 19583);
}

TEST(ClockTexts, AreSpacedInTheEditors) {
    EXPECT_EQ(SpacedClock(0), "00 : 00");
    EXPECT_EQ(SpacedClock(105), "01 : 45");
    EXPECT_EQ(ClockToMinutes(SpacedClock(5999)), 5999);
}

TEST(Months, RunFromTheirFirstDayToTheirLastWithoutAGap) {
    for (std::chrono::year_month month{2000y / 1}; month < 2400y / 1; month += std::chrono::months{1}) {
        const Date first = FirstOfMonth(month);
        const Date last = LastOfMonth(month);
        ASSERT_EQ(MonthOf(first), month);
        ASSERT_EQ(MonthOf(last), month);
        ASSERT_EQ(DayOfMonth(first), 1);
        ASSERT_EQ(DayOfMonth(last), DaysInMonth(month));
        ASSERT_EQ(last + std::chrono::days{1}, FirstOfMonth(month + std::chrono::months{1}));
    }
}

TEST(ClockTexts, KeepTheLastTwoDigits) {
    EXPECT_EQ(MinutesToClock(0), "00:00");
    EXPECT_EQ(MinutesToClock(59), "00:59");
    EXPECT_EQ(MinutesToClock(750), "12:30");
    EXPECT_EQ(MinutesToClock(6000), "00:00");
    EXPECT_EQ(MinutesToClock(6015), "00:15");
    EXPECT_EQ(MinutesToClock(5999), "99:59");
}

TEST(ClockTexts, AreReadFromBothEnds) {
    EXPECT_EQ(ClockToMinutes("00 : 30"), 30);
    EXPECT_EQ(ClockToMinutes("01:45"), 105);
    EXPECT_EQ(ClockToMinutes("20 : 00"), 1200);
    EXPECT_THROW(ClockToMinutes(""), RunTimeError);
    EXPECT_THROW(ClockToMinutes("ab : cd"), RunTimeError);
}

TEST(ClockTexts, SurviveTheRoundUpToAHundredHours) {
    for (int minutes = 0; minutes < 6000; ++minutes) {
        ASSERT_EQ(ClockToMinutes(MinutesToClock(minutes)), minutes);
    }
}

TEST(Durations, ByFirstLetterTakeAnyHoursAndCallTheRestMinutes) {
    EXPECT_EQ(DurationToMinutes("1.5 Hours"), 90);
    EXPECT_EQ(DurationToMinutes("1 Hour"), 60);
    EXPECT_EQ(DurationToMinutes("45 Minutes"), 45);
    EXPECT_EQ(DurationToMinutes("1 Day"), 1);
    EXPECT_EQ(DurationToMinutes("20"), 20);
    EXPECT_EQ(DurationToMinutes("2 hours"), 2); // the unit is compared as it is spelt
    EXPECT_THROW(DurationToMinutes("soon"), RunTimeError);
    EXPECT_THROW(DurationToMinutes(""), RunTimeError);
}

TEST(Durations, OfADaysScheduleTakeDaysToo) {
    EXPECT_EQ(EventLength("1 Day"), 1440);
    EXPECT_EQ(EventLength("2.5 Days"), 3600);
    EXPECT_EQ(EventLength("1.5 Hours"), 90);
    EXPECT_EQ(EventLength("45 Minutes"), 45);
    EXPECT_EQ(EventLength("20"), 20);
    EXPECT_THROW(EventLength("soon"), RunTimeError);
    EXPECT_THROW(EventLength("many Days"), RunTimeError);
}

TEST(Durations, ByWholeUnitTakeTheTwoPluralsOnly) {
    EXPECT_EQ(DurationByWholeUnit("1.5 Hours").hours, 1.5);
    EXPECT_EQ(DurationByWholeUnit("45 Minutes").minutes, 45);
    for (const char* nothing : {"1 Hour", "1 Minute", "1 Day", "2 Days", "20", ""}) {
        const DurationParts parts = DurationByWholeUnit(nothing);
        EXPECT_EQ(parts.hours + parts.minutes, 0) << nothing;
    }
    EXPECT_THROW(DurationByWholeUnit("many Hours"), RunTimeError);
}
