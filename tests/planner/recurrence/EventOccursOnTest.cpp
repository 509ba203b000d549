// Whether an event falls on a date.
#include "planner/recurrence/EventOccursOn.h"
#include "core/DateText.h"
#include "core/RunTimeError.h"
#include "support/EventRecords.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace std::chrono_literals;
using std::chrono::days;

namespace {

class Occurrence : public testing::Test {
protected:
    void SetUp() override { ResetStore(); }
};

bool OccursOn(const EventTexts& event, Date day) {
    Store.EventRecord = {};
    return EventOccursOn(day, AddEventRecord(event));
}

// The day numbers of a month on which the event occurs.
std::vector<int> DaysOf(const EventTexts& event, std::chrono::year_month month) {
    Store.EventRecord = {};
    const int index = AddEventRecord(event);
    std::vector<int> found;
    for (Date day{month / 1}; day <= Date{month / std::chrono::last}; day += days{1}) {
        if (EventOccursOn(day, index)) {
            found.push_back(static_cast<int>(static_cast<unsigned>(std::chrono::year_month_day{day}.day())));
        }
    }
    return found;
}

using DayNumbers = std::vector<int>;

} // namespace

TEST_F(Occurrence, OfADeletedEventIsNone) {
    EXPECT_FALSE(OccursOn({.desc = "DELETED RECORD"}, Date{2009y / 10 / 14}));
    EXPECT_TRUE(OccursOn({.desc = "deleted record"}, Date{2009y / 10 / 14}));
}

TEST_F(Occurrence, OfASingleEventIsItsDate) {
    EXPECT_TRUE(OccursOn({}, Date{2009y / 10 / 14}));
    EXPECT_FALSE(OccursOn({}, Date{2009y / 10 / 15}));
    EXPECT_FALSE(OccursOn({.repeat_daily = "TTTTTTT"}, Date{2009y / 10 / 15}));
}

TEST_F(Occurrence, GivesThePositionsOfADaysEventsInStoreOrder) {
    AddEventRecord({});
    AddEventRecord({.date = "2009/10/15"});
    AddEventRecord({.date = "2009/10/01", .recurrence = "Day", .repeat_daily = "TTTTTTT"});
    AddEventRecord({.desc = "DELETED RECORD"});
    AddEventRecord({});
    EXPECT_EQ(EventsOn(Date{2009y / 10 / 14}), (std::vector<int>{1, 3, 5}));
    EXPECT_EQ(EventsOn(Date{2009y / 9 / 30}), std::vector<int>{});
}

TEST_F(Occurrence, IsNotOnADateGivenUp) {
    const EventTexts series{
        .recurrence = "Day", .exceptions = "2009/10/16 2009/10/18", .repeat_daily = "TTTTTTT"};
    EXPECT_EQ(DaysOf(series, 2009y / 10),
              (DayNumbers{14, 15, 17, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30, 31}));
}

TEST_F(Occurrence, IsNotOnAFirstDateGivenUp) {
    EXPECT_FALSE(OccursOn({.recurrence = "Day", .exceptions = "2009/10/14", .repeat_daily = "TTTTTTT"},
                          Date{2009y / 10 / 14}));
    EXPECT_FALSE(OccursOn({.exceptions = "2009/10/14"}, Date{2009y / 10 / 14}));
}

TEST_F(Occurrence, IsAlwaysOnTheFirstDate) {
    const Date wednesday{2009y / 10 / 14};
    for (const char* recurrence : {"None", "Day", "Month", "Year", "Fortnight"}) {
        EXPECT_TRUE(OccursOn({.recurrence = recurrence, .repeat_number = "Last"}, wednesday)) << recurrence;
    }
}

TEST_F(Occurrence, IsNeverBeforeTheFirstDate) {
    EXPECT_FALSE(OccursOn({.recurrence = "Day", .repeat_daily = "TTTTTTT"}, Date{2009y / 10 / 13}));
    EXPECT_FALSE(OccursOn({.recurrence = "Month", .same_date = "True"}, Date{2009y / 9 / 14}));
}

TEST_F(Occurrence, OnTheEndDateHappens) {
    const EventTexts series{
        .recurrence = "Day", .repeat_daily = "TTTTTTT", .end = "True", .end_date = "2009/10/17"};
    EXPECT_EQ(DaysOf(series, 2009y / 10), (DayNumbers{14, 15, 16, 17}));
}

TEST_F(Occurrence, WithTheEndBeforeTheBeginningIsTheFirstDateAlone) {
    const EventTexts series{
        .recurrence = "Day", .repeat_daily = "TTTTTTT", .end = "True", .end_date = "2009/10/01"};
    EXPECT_EQ(DaysOf(series, 2009y / 10), (DayNumbers{14}));
}

TEST_F(Occurrence, PastAnEndDateThatIsSwitchedOffHappens) {
    EXPECT_TRUE(OccursOn({.recurrence = "Day", .repeat_daily = "TTTTTTT", .end_date = "2009/10/01"},
                         Date{2009y / 10 / 15}));
}

TEST_F(Occurrence, OfAWeeklySeriesFollowsTheLettersFromMondayToSunday) {
    const Date monday{2009y / 10 / 19};
    for (std::size_t letter = 0; letter < 7; ++letter) {
        std::string pattern = "FFFFFFF";
        pattern[letter] = 'T';
        for (int day = 0; day < 7; ++day) {
            EXPECT_EQ(OccursOn({.recurrence = "Day", .repeat_daily = pattern}, monday + days{day}),
                      day == static_cast<int>(letter))
                << pattern << " on day " << day;
        }
    }
}

TEST_F(Occurrence, OfAWeeklySeriesBegunOffItsPatternIsThatFirstDayOnce) {
    const EventTexts series{.date = "2009/10/16", .recurrence = "Day", .repeat_daily = "TFTFFFF"};
    EXPECT_EQ(DaysOf(series, 2009y / 10), (DayNumbers{16, 19, 21, 26, 28}));
    EXPECT_EQ(DaysOf(series, 2009y / 11), (DayNumbers{2, 4, 9, 11, 16, 18, 23, 25, 30}));
}

TEST_F(Occurrence, OfAShortPatternLeavesTheLaterDaysOut) {
    const EventTexts series{.date = "2009/10/16", .recurrence = "Day", .repeat_daily = "TT"};
    EXPECT_EQ(DaysOf(series, 2009y / 10), (DayNumbers{16, 19, 20, 26, 27}));
    EXPECT_EQ(DaysOf({.date = "2009/10/16", .recurrence = "Day", .repeat_daily = ""}, 2009y / 10),
              (DayNumbers{16}));
}

TEST_F(Occurrence, OfAnyOtherLetterIsNone) {
    EXPECT_EQ(DaysOf({.date = "2009/10/16", .recurrence = "Day", .repeat_daily = "t1xT "}, 2009y / 10),
              (DayNumbers{16, 22, 29}));
}

TEST_F(Occurrence, OfTheThirtyFirstMovesToTheEndOfShorterMonths) {
    const EventTexts series{.date = "2009/01/31", .recurrence = "Month", .same_date = "True"};
    EXPECT_EQ(DaysOf(series, 2009y / 2), (DayNumbers{28}));
    EXPECT_EQ(DaysOf(series, 2009y / 3), (DayNumbers{31}));
    EXPECT_EQ(DaysOf(series, 2009y / 4), (DayNumbers{30}));
    EXPECT_EQ(DaysOf(series, 2012y / 2), (DayNumbers{29}));
    EXPECT_EQ(DaysOf(series, 2100y / 2), (DayNumbers{28}));
}

TEST_F(Occurrence, OfTheTwentyEighthNeverMoves) {
    const EventTexts series{.date = "2009/01/28", .recurrence = "Month", .same_date = "True"};
    EXPECT_EQ(DaysOf(series, 2009y / 2), (DayNumbers{28}));
    EXPECT_EQ(DaysOf(series, 2012y / 2), (DayNumbers{28}));
    EXPECT_EQ(DaysOf(series, 2009y / 4), (DayNumbers{28}));
}

TEST_F(Occurrence, OfTheTwentyNinthOfFebruaryIsTheTwentyEighthInOtherYears) {
    const EventTexts series{.date = "2008/02/29", .recurrence = "Year", .same_date = "True"};
    for (const auto year : {2009y, 2010y, 2011y, 2100y}) {
        EXPECT_EQ(DaysOf(series, year / 2), (DayNumbers{28})) << static_cast<int>(year);
    }
    EXPECT_EQ(DaysOf(series, 2012y / 2), (DayNumbers{29}));
    EXPECT_EQ(DaysOf(series, 2012y / 3), DayNumbers{});
}

TEST_F(Occurrence, OfARankedDayIsThatDayNumber) {
    const DayNumbers expected{1, 2, 3, 4, 30};
    const std::vector<std::string> ranks{"First", "Second", "Third", "Fourth", "Last"};
    for (std::size_t i = 0; i < ranks.size(); ++i) {
        const EventTexts series{.recurrence = "Month", .repeat_number = ranks[i]};
        EXPECT_EQ(DaysOf(series, 2009y / 11), DayNumbers{expected[i]}) << ranks[i];
    }
}

TEST_F(Occurrence, OfARankedWeekdayLiesInTheDaysOfTheRank) {
    // Wednesdays; the first of April 2009 is one, and April 2009 has five of them.
    const DayNumbers expected{1, 8, 15, 22, 29};
    const std::vector<std::string> ranks{"First", "Second", "Third", "Fourth", "Last"};
    for (std::size_t i = 0; i < ranks.size(); ++i) {
        const EventTexts series{.date = "2009/01/07",
                                .recurrence = "Month",
                                .repeat_number = ranks[i],
                                .repeat_day = "Wednesday"};
        EXPECT_EQ(DaysOf(series, 2009y / 4), DayNumbers{expected[i]}) << ranks[i];
    }
}

TEST_F(Occurrence, OfTheFourthAndOfTheLastWeekdayDifferInAMonthOfFive) {
    const EventTexts fourth{
        .date = "2009/01/02", .recurrence = "Month", .repeat_number = "Fourth", .repeat_day = "Friday"};
    EventTexts last = fourth;
    last.repeat_number = "Last";
    EXPECT_EQ(DaysOf(fourth, 2009y / 5), (DayNumbers{22}));
    EXPECT_EQ(DaysOf(last, 2009y / 5), (DayNumbers{29}));
    EXPECT_EQ(DaysOf(fourth, 2009y / 6), (DayNumbers{26}));
    EXPECT_EQ(DaysOf(last, 2009y / 6), (DayNumbers{26}));
}

TEST_F(Occurrence, OfALastWeekdayInAMonthOfThirtyDaysLiesInTheDaysFromTheTwentyFourth) {
    DayNumbers found;
    for (int weekday = 0; weekday < 7; ++weekday) {
        const Date first = Date{2009y / 1 / 4} + days{weekday};
        const EventTexts series{.date = StoredDate(first),
                                .recurrence = "Month",
                                .repeat_number = "Last",
                                .repeat_day = "Sunday"};
        const DayNumbers inJune = DaysOf(series, 2009y / 6);
        ASSERT_EQ(inJune.size(), 1U);
        EXPECT_EQ(std::chrono::weekday{Date{2009y / 6 / inJune[0]}}, std::chrono::weekday{first});
        found.push_back(inJune[0]);
    }
    std::ranges::sort(found);
    EXPECT_EQ(found, (DayNumbers{24, 25, 26, 27, 28, 29, 30}));
}

TEST_F(Occurrence, OfARankTakesTheWeekdayOfTheFirstDateAndNotOfTheText) {
    // 2009/10/14 is a Wednesday.
    const EventTexts series{.recurrence = "Month", .repeat_number = "Second", .repeat_day = "Monday"};
    EXPECT_EQ(DaysOf(series, 2009y / 11), (DayNumbers{11}));
}

TEST_F(Occurrence, OfAYearlyRankIsInTheMonthOfTheFirstDate) {
    const EventTexts series{.recurrence = "Year", .repeat_number = "Second", .repeat_day = "Wednesday"};
    EXPECT_EQ(DaysOf(series, 2010y / 10), (DayNumbers{13}));
    EXPECT_EQ(DaysOf(series, 2010y / 9), DayNumbers{});
    EXPECT_EQ(DaysOf(series, 2010y / 11), DayNumbers{});
}

TEST_F(Occurrence, OfTheLastDayOfFebruaryIsTheTwentyNinthInALeapYear) {
    const EventTexts series{
        .date = "2009/02/28", .recurrence = "Year", .repeat_number = "Last", .repeat_day = "Day"};
    EXPECT_EQ(DaysOf(series, 2012y / 2), (DayNumbers{29}));
    EXPECT_EQ(DaysOf(series, 2011y / 2), (DayNumbers{28}));
}

TEST_F(Occurrence, OfAnUnlistedRecurrenceOrRankIsTheFirstDateAlone) {
    const EventTexts weekly{.recurrence = "Week", .same_date = "True", .repeat_daily = "TTTTTTT"};
    EXPECT_EQ(DaysOf(weekly, 2009y / 10), (DayNumbers{14}));
    EXPECT_EQ(DaysOf(weekly, 2009y / 11), DayNumbers{});
    for (const char* day : {"Day", "Wednesday"}) {
        const EventTexts fifth{.recurrence = "Month", .repeat_number = "Fifth", .repeat_day = day};
        EXPECT_EQ(DaysOf(fifth, 2009y / 12), DayNumbers{}) << day;
    }
}

TEST_F(Occurrence, DoesNotLookAtAnUnlistedRankThatNoStepReads) {
    EXPECT_TRUE(OccursOn({.recurrence = "Month", .same_date = "True", .repeat_number = "Fifth"},
                         Date{2009y / 11 / 14}));
}

TEST_F(Occurrence, FollowsAChangeOfTheRecordAtTheNextQuestion) {
    const Date thursday{2009y / 10 / 15};
    EXPECT_FALSE(OccursOn({.recurrence = "Day"}, thursday));
    Store.EventRecord.repeat_daily.Replace(1, "FFFTFFF");
    EXPECT_TRUE(EventOccursOn(thursday, 1));
    Store.EventRecord.exceptions.Replace(1, "2009/10/15");
    EXPECT_FALSE(EventOccursOn(thursday, 1));
}

TEST_F(Occurrence, DoesNotLookAtTheParent) {
    EXPECT_TRUE(OccursOn({.parent_id = "77"}, Date{2009y / 10 / 14}));
}

TEST_F(Occurrence, SkipsEmptyPiecesOfTheExceptions) {
    EXPECT_FALSE(OccursOn({.exceptions = "  2009/10/12   2009/10/14  "}, Date{2009y / 10 / 14}));
    EXPECT_TRUE(OccursOn({.exceptions = "   "}, Date{2009y / 10 / 14}));
}

TEST_F(Occurrence, RaisesTheErrorAtAnExceptionThatIsNoDate) {
    EXPECT_THROW(OccursOn({.exceptions = "2009/10/12 soon"}, Date{2009y / 10 / 14}), RunTimeError);
    EXPECT_THROW(OccursOn({.exceptions = "2009/02/30"}, Date{2009y / 10 / 14}), RunTimeError);
}

TEST_F(Occurrence, IsDecidedByTheFirstExceptionThatIsTheDay) {
    EXPECT_FALSE(OccursOn({.exceptions = "2009/10/14 soon"}, Date{2009y / 10 / 14}));
}

TEST_F(Occurrence, RaisesTheErrorAtABadDateOnlyWhereItIsRead) {
    const Date day{2009y / 10 / 15};
    EXPECT_THROW(OccursOn({.date = "never"}, day), RunTimeError);
    EXPECT_FALSE(OccursOn({.date = "never", .desc = "DELETED RECORD"}, day));
    EXPECT_FALSE(OccursOn({.date = "never", .exceptions = "2009/10/15"}, day));
    EventTexts series{.recurrence = "Day", .repeat_daily = "TTTTTTT", .end = "True", .end_date = "//"};
    EXPECT_THROW(OccursOn(series, day), RunTimeError);
    EXPECT_TRUE(OccursOn(series, day - days{1}));
    EXPECT_FALSE(OccursOn(series, day - days{2}));
    series.end = "False";
    EXPECT_TRUE(OccursOn(series, day));
    series.end = "perhaps";
    EXPECT_THROW(OccursOn(series, day), RunTimeError);
    EXPECT_FALSE(OccursOn({.end = "True", .end_date = "//"}, day));
}

TEST_F(Occurrence, RaisesTheErrorOutsideTheStore) {
    AddEventRecord({});
    EXPECT_THROW(EventOccursOn(Date{2009y / 10 / 14}, 0), RunTimeError);
    EXPECT_THROW(EventOccursOn(Date{2009y / 10 / 14}, 2), RunTimeError);
}

TEST_F(Occurrence, ReadsADateInTheFormsThatAnOldFileMayHold) {
    EXPECT_TRUE(OccursOn({.date = "10/14/2009", .exceptions = "10/13/2009"}, Date{2009y / 10 / 14}));
}

TEST_F(Occurrence, ReachesFromTheFirstToTheLastYearOfTheCalendar) {
    const EventTexts series{.date = "1600/01/31", .recurrence = "Month", .same_date = "True"};
    EXPECT_EQ(DaysOf(series, 3100y / 2), (DayNumbers{28}));
    EXPECT_EQ(DaysOf(series, 3096y / 2), (DayNumbers{29}));
    EXPECT_EQ(DaysOf(series, 3100y / 12), (DayNumbers{31}));
}
