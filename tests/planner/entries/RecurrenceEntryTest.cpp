// The rank of a date in its month, and the captions made of it.
#include "planner/entries/RecurrenceEntry.h"
#include "planner/dates/DateHelpers.h"
#include "planner/recurrence/SeriesRule.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

void ExpectCaptions(Date date, const char* monthlyDate, const char* monthlyUser, const char* yearlyDate,
                    const char* yearlyUser) {
    const RecurrenceCaptions captions = CaptionsOf(date);
    EXPECT_EQ(captions.RadioMonthlyThisDate.utf8, monthlyDate);
    EXPECT_EQ(captions.RadioMonthlyUser.utf8, monthlyUser);
    EXPECT_EQ(captions.RadioYearlyThisDate.utf8, yearlyDate);
    EXPECT_EQ(captions.RadioYearlyUser.utf8, yearlyUser);
}

} // namespace

TEST(RanksOfDates, AreTheWeekOfTheMonthAndTheWeekday) {
    EXPECT_EQ(RankOf(Date{2009y / 5 / 1}), (RankOfDate{"First", "Friday"}));
    EXPECT_EQ(RankOf(Date{2009y / 5 / 7}), (RankOfDate{"First", "Thursday"}));
    EXPECT_EQ(RankOf(Date{2009y / 5 / 8}), (RankOfDate{"Second", "Friday"}));
    EXPECT_EQ(RankOf(Date{2009y / 5 / 14}), (RankOfDate{"Second", "Thursday"}));
    EXPECT_EQ(RankOf(Date{2009y / 5 / 15}), (RankOfDate{"Third", "Friday"}));
    EXPECT_EQ(RankOf(Date{2009y / 5 / 21}), (RankOfDate{"Third", "Thursday"}));
    EXPECT_EQ(RankOf(Date{2009y / 5 / 22}), (RankOfDate{"Fourth", "Friday"}));
    EXPECT_EQ(RankOf(Date{2009y / 5 / 28}), (RankOfDate{"Fourth", "Thursday"}));
    EXPECT_EQ(RankOf(Date{2009y / 5 / 30}), (RankOfDate{"Last", "Saturday"}));
    EXPECT_EQ(RankOf(Date{2009y / 5 / 31}), (RankOfDate{"Last", "Day"}));
}

TEST(RanksOfDates, NameTheLastDayOfEveryMonth) {
    EXPECT_EQ(RankOf(Date{2009y / 2 / 28}), (RankOfDate{"Last", "Day"}));
    EXPECT_EQ(RankOf(Date{2008y / 2 / 28}), (RankOfDate{"Fourth", "Thursday"}));
    EXPECT_EQ(RankOf(Date{2008y / 2 / 29}), (RankOfDate{"Last", "Day"}));
    EXPECT_EQ(RankOf(Date{2009y / 4 / 30}), (RankOfDate{"Last", "Day"}));
    EXPECT_EQ(RankOf(Date{2009y / 12 / 31}), (RankOfDate{"Last", "Day"}));
}

TEST(OrdinalSuffixes, OfAllDayNumbers) {
    for (int number = 1; number <= 31; ++number) {
        std::string_view expected = "th";
        if (number == 1 || number == 21 || number == 31) {
            expected = "st";
        } else if (number == 2 || number == 22) {
            expected = "nd";
        } else if (number == 3 || number == 23) {
            expected = "rd";
        }
        EXPECT_EQ(OrdinalSuffix(number), expected) << number;
    }
    EXPECT_EQ(OrdinalSuffix(11), "th");
    EXPECT_EQ(OrdinalSuffix(12), "th");
    EXPECT_EQ(OrdinalSuffix(13), "th");
}

TEST(RecurrenceCaptionTexts, OfADayInTheMiddleOfTheMonth) {
    ExpectCaptions(Date{2009y / 5 / 15}, "The 15th of every month", "The Third Friday of every month",
                   "The 15th of every May", "The Third Friday of every May");
}

TEST(RecurrenceCaptionTexts, OfTheThirtyFirst) {
    ExpectCaptions(Date{2009y / 8 / 31}, "The 31st of every month", "The Last Day of every month",
                   "The 31st of every August", "The Last Day of every August");
}

TEST(RecurrenceCaptionTexts, OfTheTwentyNinthOfALongMonth) {
    EXPECT_EQ(CaptionsOf(Date{2009y / 12 / 29}).RadioMonthlyUser.utf8, "The Last Tuesday of every month");
}

TEST(RecurrenceCaptionTexts, OfTheEndOfFebruary) {
    ExpectCaptions(Date{2009y / 2 / 28}, "The 28th of every month", "The Last Day of every month",
                   "The 28th of every February", "The Last Day of every February");
}

TEST(RecurrenceCaptionTexts, OfTheTwentySecond) {
    EXPECT_EQ(CaptionsOf(Date{2009y / 10 / 22}).RadioMonthlyThisDate.utf8, "The 22nd of every month");
}

// What is stored of a date names that date again, in its own month.
TEST(RanksOfDates, LeadBackToTheirDate) {
    for (Date date{2008y / 1 / 1}; date < Date{2012y / 1 / 1}; date += std::chrono::days{1}) {
        const RankOfDate rank = RankOf(date);
        const std::chrono::year_month_day parts{date};
        const std::chrono::year_month month = parts.year() / parts.month();
        if (rank.day == "Day") {
            ASSERT_EQ(LastOfMonth(month), date);
        } else {
            ASSERT_EQ(RankDay(month, RankIn(rank.number), WeekdayIn(rank.day)), date);
        }
    }
}
