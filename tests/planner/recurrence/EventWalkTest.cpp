// Events expanded into their occurrences over a range of dates.
#include "planner/recurrence/EventWalk.h"
#include "core/DateText.h"
#include "core/RunTimeError.h"
#include "planner/recurrence/EventOccursOn.h"
#include "support/EventRecords.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

using Texts = std::vector<std::string>;

class Walk : public testing::Test {
protected:
    void SetUp() override { ResetStore(); }
};

class ReminderWalk : public Walk {};

// The dates of the one event in the range, in the order of the walk.
Texts DatesOf(const EventTexts& event, Date from, std::string_view range) {
    Store.EventRecord = {};
    AddEventRecord(event);
    Texts dates;
    for (const EventOccurrence& occurrence : SelectEventsInRange(from, range)) {
        EXPECT_EQ(occurrence.position, 1);
        dates.push_back(StoredDate(occurrence.date));
    }
    return dates;
}

// "occurrence < reminder date" of each reminder of the one event that stands on the day.
Texts RemindersOf(const EventTexts& event, Date day) {
    Store.EventRecord = {};
    AddEventRecord(event);
    Texts texts;
    for (const EventReminder& reminder : SelectEventReminders(day)) {
        EXPECT_EQ(reminder.position, 1);
        texts.push_back(StoredDate(reminder.date) + " < " + StoredDate(reminder.reminderDate));
    }
    return texts;
}

} // namespace

TEST_F(Walk, OfAWeekListsEightDays) {
    EXPECT_EQ(LastOfRange(Date{2009y / 10 / 14}, "Week"), Date{2009y / 10 / 21});
    EXPECT_EQ(DatesOf({.recurrence = "Day", .repeat_daily = "TTTTTTT"}, Date{2009y / 10 / 14}, "Week").size(),
              8U);
}

TEST_F(Walk, OfAMonthEndsOnTheSameDayOfTheNextClamped) {
    EXPECT_EQ(LastOfRange(Date{2009y / 10 / 14}, "Month"), Date{2009y / 11 / 14});
    EXPECT_EQ(LastOfRange(Date{2009y / 1 / 31}, "Month"), Date{2009y / 2 / 28});
}

TEST_F(Walk, OfAYearFromTheFirstOfMarchEndsOnTheLastOfFebruary) {
    EXPECT_EQ(LastOfRange(Date{2009y / 3 / 1}, "Year"), Date{2010y / 2 / 28});
    EXPECT_EQ(LastOfRange(Date{2011y / 3 / 1}, "Year"), Date{2012y / 2 / 29});
    EXPECT_EQ(LastOfRange(Date{2008y / 2 / 29}, "Year"), Date{2009y / 2 / 27});
}

TEST_F(Walk, OfAnyOtherRangeIsThatOfAYear) {
    EXPECT_EQ(LastOfRange(Date{2009y / 3 / 1}, "Term"), Date{2010y / 2 / 28});
    EXPECT_EQ(LastOfRange(Date{2009y / 3 / 1}, ""), Date{2010y / 2 / 28});
}

TEST_F(Walk, SkipsADeletedEvent) {
    AddEventRecord({.date = "never", .desc = "DELETED RECORD"});
    AddEventRecord({});
    EXPECT_EQ(SelectEventsInRange(Date{2009y / 10 / 14}, "Week"),
              (std::vector<EventOccurrence>{{2, Date{2009y / 10 / 14}}}));
}

TEST_F(Walk, OfASingleEventTakesBothEndsOfTheRange) {
    const Date from{2009y / 10 / 14};
    EXPECT_EQ(DatesOf({.date = "2009/10/13"}, from, "Week"), Texts{});
    EXPECT_EQ(DatesOf({.date = "2009/10/14"}, from, "Week"), Texts{"2009/10/14"});
    EXPECT_EQ(DatesOf({.date = "2009/10/21"}, from, "Week"), Texts{"2009/10/21"});
    EXPECT_EQ(DatesOf({.date = "2009/10/22"}, from, "Week"), Texts{});
}

TEST_F(Walk, SkipsASeriesThatBeginsAfterOrEndsBeforeTheRange) {
    EventTexts series{.date = "2009/10/22", .recurrence = "Day", .repeat_daily = "TTTTTTT"};
    EXPECT_EQ(DatesOf(series, Date{2009y / 10 / 14}, "Week"), Texts{});
    series.date = "2009/10/21";
    EXPECT_EQ(DatesOf(series, Date{2009y / 10 / 14}, "Week"), Texts{"2009/10/21"});
    series.date = "2009/09/01";
    series.end = "True";
    series.end_date = "2009/10/13";
    EXPECT_EQ(DatesOf(series, Date{2009y / 10 / 14}, "Week"), Texts{});
    series.end_date = "2009/10/14";
    EXPECT_EQ(DatesOf(series, Date{2009y / 10 / 14}, "Week"), Texts{"2009/10/14"});
    series.end_date = "2009/10/15";
    EXPECT_EQ(DatesOf(series, Date{2009y / 10 / 14}, "Week"), (Texts{"2009/10/14", "2009/10/15"}));
}

TEST_F(Walk, GoesThroughTheStoreInOrder) {
    AddEventRecord({.date = "2009/10/20"});
    AddEventRecord({.recurrence = "Day", .repeat_daily = "FFTFFFF"});
    AddEventRecord({.date = "2009/10/15"});
    EXPECT_EQ(SelectEventsInRange(Date{2009y / 10 / 14}, "Week"),
              (std::vector<EventOccurrence>{{1, Date{2009y / 10 / 20}},
                                            {2, Date{2009y / 10 / 14}},
                                            {2, Date{2009y / 10 / 21}},
                                            {3, Date{2009y / 10 / 15}}}));
}

TEST_F(Walk, OfAWeeklySeriesGivesTheFirstDateOffThePatternThenEachWeekday) {
    const EventTexts series{.date = "2009/10/16", .recurrence = "Day", .repeat_daily = "TFTFFFF"};
    EXPECT_EQ(DatesOf(series, Date{2009y / 10 / 14}, "Month"),
              (Texts{"2009/10/16", "2009/10/19", "2009/10/26", "2009/11/02", "2009/11/09", "2009/10/21",
                     "2009/10/28", "2009/11/04", "2009/11/11"}));
}

TEST_F(Walk, OfAWeeklySeriesBeginsWithTheWeekdayOfTheRange) {
    const EventTexts series{.date = "2009/01/05", .recurrence = "Day", .repeat_daily = "TFTFTFF"};
    EXPECT_EQ(DatesOf(series, Date{2009y / 10 / 15}, "Week"),
              (Texts{"2009/10/16", "2009/10/19", "2009/10/21"}));
}

TEST_F(Walk, OfAWeeklySeriesDoesNotGiveTheFirstDateTwice) {
    const EventTexts series{.recurrence = "Day", .repeat_daily = "FFTFFFF"};
    EXPECT_EQ(DatesOf(series, Date{2009y / 10 / 14}, "Week"), (Texts{"2009/10/14", "2009/10/21"}));
}

TEST_F(Walk, OfAnEmptyPatternGivesTheFirstDateAlone) {
    for (const char* pattern : {"FFFFFFF", "", "xyz"}) {
        EXPECT_EQ(DatesOf({.recurrence = "Day", .repeat_daily = pattern}, Date{2009y / 10 / 14}, "Year"),
                  Texts{"2009/10/14"})
            << pattern;
    }
}

TEST_F(Walk, OfTheThirtyFirstReturnsToTheThirtyFirst) {
    const EventTexts series{.date = "2009/01/31", .recurrence = "Month", .same_date = "True"};
    EXPECT_EQ(DatesOf(series, Date{2009y / 2 / 1}, "Year"),
              (Texts{"2009/02/28", "2009/03/31", "2009/04/30", "2009/05/31", "2009/06/30", "2009/07/31",
                     "2009/08/31", "2009/09/30", "2009/10/31", "2009/11/30", "2009/12/31", "2010/01/31"}));
    EXPECT_EQ(DatesOf(series, Date{2012y / 2 / 1}, "Month"), Texts{"2012/02/29"});
}

TEST_F(Walk, OfALastDayGivesTheEndOfEachMonth) {
    const EventTexts series{
        .date = "2009/01/15", .recurrence = "Month", .repeat_number = "Last", .repeat_day = "Day"};
    EXPECT_EQ(DatesOf(series, Date{2009y / 1 / 1}, "Month"), Texts{"2009/01/31"});
    EXPECT_EQ(DatesOf(series, Date{2009y / 1 / 31}, "Month"), (Texts{"2009/01/31", "2009/02/28"}));
}

TEST_F(Walk, OfAnyOtherRankedDayIsThatOfTheSameDate) {
    for (const char* rank : {"First", "Second", "Third", "Fourth"}) {
        const EventTexts monthly{
            .date = "2009/01/15", .recurrence = "Month", .repeat_number = rank, .repeat_day = "Day"};
        EXPECT_EQ(DatesOf(monthly, Date{2009y / 3 / 1}, "Month"), Texts{"2009/03/15"}) << rank;
        EventTexts yearly = monthly;
        yearly.recurrence = "Year";
        EXPECT_EQ(DatesOf(yearly, Date{2010y / 1 / 1}, "Year"), Texts{"2010/01/15"}) << rank;
    }
}

TEST_F(Walk, OfARankedWeekdayGivesOneDayOfEachMonth) {
    const std::vector<std::pair<std::string, std::string>> ranks{{"First", "2009/05/01"},
                                                                 {"Second", "2009/05/08"},
                                                                 {"Third", "2009/05/15"},
                                                                 {"Fourth", "2009/05/22"},
                                                                 {"Last", "2009/05/29"}};
    for (const auto& [rank, expected] : ranks) {
        const EventTexts series{
            .date = "2009/01/02", .recurrence = "Month", .repeat_number = rank, .repeat_day = "Friday"};
        EXPECT_EQ(DatesOf(series, Date{2009y / 5 / 1}, "Month").front(), expected) << rank;
    }
}

TEST_F(Walk, OfALastWeekdayInAMonthOfThirtyDaysTriesTheThirtiethDown) {
    Texts found;
    for (const char* day : {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"}) {
        const EventTexts series{
            .date = "2009/01/01", .recurrence = "Month", .repeat_number = "Last", .repeat_day = day};
        for (const std::string& date : DatesOf(series, Date{2009y / 6 / 1}, "Month")) {
            if (date < "2009/07") {
                found.push_back(date);
            }
        }
    }
    EXPECT_EQ(found, (Texts{"2009/06/28", "2009/06/29", "2009/06/30", "2009/06/24", "2009/06/25",
                            "2009/06/26", "2009/06/27"}));
}

TEST_F(Walk, OfARankTakesTheWeekdayOfTheTextAndNotOfTheFirstDate) {
    // 2009/10/14 is a Wednesday.
    EventTexts series{.recurrence = "Month", .repeat_number = "Second", .repeat_day = "Monday"};
    EXPECT_EQ(DatesOf(series, Date{2009y / 11 / 1}, "Month"), Texts{"2009/11/09"});
    series.repeat_day = "someday"; // any text but a day's name is Saturday
    EXPECT_EQ(DatesOf(series, Date{2009y / 11 / 1}, "Month"), Texts{"2009/11/14"});
}

TEST_F(Walk, PassesOverARankDayBeforeTheFirstDateAndDoesNotGiveThatDate) {
    const EventTexts series{.recurrence = "Month", .repeat_number = "First", .repeat_day = "Monday"};
    EXPECT_EQ(DatesOf(series, Date{2009y / 10 / 1}, "Year").front(), "2009/11/02");
}

TEST_F(Walk, OfTheTwentyNinthOfFebruaryIsTheTwentyEighthInOtherYears) {
    const EventTexts series{.date = "2008/02/29", .recurrence = "Year", .same_date = "True"};
    EXPECT_EQ(DatesOf(series, Date{2009y / 1 / 1}, "Year"), Texts{"2009/02/28"});
    EXPECT_EQ(DatesOf(series, Date{2011y / 1 / 1}, "Year"), Texts{"2011/02/28"});
    EXPECT_EQ(DatesOf(series, Date{2012y / 1 / 1}, "Year"), Texts{"2012/02/29"});
}

TEST_F(Walk, OfTheLastDayOfFebruaryIsTheTwentyNinthInALeapYear) {
    const EventTexts series{
        .date = "2009/02/28", .recurrence = "Year", .repeat_number = "Last", .repeat_day = "Day"};
    EXPECT_EQ(DatesOf(series, Date{2012y / 1 / 1}, "Year"), Texts{"2012/02/29"});
}

TEST_F(Walk, OfAYearlyRankIsInTheMonthOfTheFirstDate) {
    const EventTexts series{.recurrence = "Year", .repeat_number = "Second", .repeat_day = "Wednesday"};
    EXPECT_EQ(DatesOf(series, Date{2010y / 1 / 1}, "Year"), Texts{"2010/10/13"});
}

TEST_F(Walk, GivesAnOccurrenceOnTheEndDate) {
    const EventTexts series{
        .recurrence = "Month", .same_date = "True", .end = "True", .end_date = "2009/12/14"};
    EXPECT_EQ(DatesOf(series, Date{2009y / 10 / 1}, "Year"),
              (Texts{"2009/10/14", "2009/11/14", "2009/12/14"}));
}

TEST_F(Walk, WithTheEndBeforeTheBeginningGivesNothing) {
    for (const char* recurrence : {"Day", "Month", "Year"}) {
        const EventTexts series{.recurrence = recurrence,
                                .same_date = "True",
                                .repeat_daily = "TTTTTTT",
                                .end = "True",
                                .end_date = "2009/10/13"};
        EXPECT_EQ(DatesOf(series, Date{2009y / 10 / 1}, "Year"), Texts{}) << recurrence;
    }
}

TEST_F(Walk, GivesADateThatTheSeriesHasGivenUp) {
    const EventTexts series{.recurrence = "Day",
                            .exceptions = "2009/10/15",
                            .repeat_daily = "TTTTTTT",
                            .end = "True",
                            .end_date = "2009/10/16"};
    EXPECT_EQ(DatesOf(series, Date{2009y / 10 / 1}, "Month"),
              (Texts{"2009/10/14", "2009/10/15", "2009/10/16"}));
    EXPECT_FALSE(EventOccursOn(Date{2009y / 10 / 15}, 1));
}

TEST_F(Walk, OfAnUnlistedRecurrenceOrRankGivesNothing) {
    EXPECT_EQ(DatesOf({.recurrence = "Week", .same_date = "True", .repeat_daily = "TTTTTTT"},
                      Date{2009y / 10 / 1}, "Year"),
              Texts{});
    for (const char* day : {"Day", "Wednesday"}) {
        EXPECT_EQ(DatesOf({.recurrence = "Month", .repeat_number = "Fifth", .repeat_day = day},
                          Date{2009y / 10 / 1}, "Year"),
                  Texts{})
            << day;
    }
    EXPECT_EQ(DatesOf({.recurrence = "Month", .same_date = "True", .repeat_number = "Fifth"},
                      Date{2009y / 10 / 1}, "Month"),
              Texts{"2009/10/14"});
}

TEST_F(Walk, RaisesTheErrorAtABadTextOnlyWhereItIsRead) {
    const Date from{2009y / 10 / 14};
    EXPECT_THROW(DatesOf({.date = "never"}, from, "Week"), RunTimeError);
    EXPECT_EQ(DatesOf({.exceptions = "soon"}, from, "Week"), Texts{"2009/10/14"});
    EventTexts series{
        .date = "2009/10/22", .recurrence = "Month", .same_date = "?", .end = "?", .end_date = "//"};
    EXPECT_EQ(DatesOf(series, from, "Week"), Texts{});
    series.date = "2009/10/21";
    EXPECT_THROW(DatesOf(series, from, "Week"), RunTimeError);
    series.end = "True";
    EXPECT_THROW(DatesOf(series, from, "Week"), RunTimeError);
    series.end_date = "2009/10/13";
    EXPECT_EQ(DatesOf(series, from, "Week"), Texts{});
    series.end = "False";
    EXPECT_THROW(DatesOf(series, from, "Week"), RunTimeError);
}

TEST_F(Walk, ReachesASeriesOfTheYear1600InTheYear3100) {
    const EventTexts series{.date = "1600/01/31", .recurrence = "Month", .same_date = "True"};
    EXPECT_EQ(DatesOf(series, Date{3100y / 2 / 1}, "Month"), Texts{"3100/02/28"});
    EXPECT_EQ(DatesOf(series, Date{3100y / 12 / 31}, "Week"), Texts{"3100/12/31"});
}

TEST_F(ReminderWalk, ReadsTheLeadFromTwoDigits) {
    EXPECT_EQ(LeadDays("True"), 0);
    EXPECT_EQ(LeadDays("False"), 0);
    EXPECT_EQ(LeadDays(""), 0);
    EXPECT_EQ(LeadDays("3"), 3);
    EXPECT_EQ(LeadDays("3 Days"), 3);
    EXPECT_EQ(LeadDays("14 Days"), 14);
    EXPECT_EQ(LeadDays(" 5"), 5);
    EXPECT_EQ(LeadDays("123"), 12);
    EXPECT_EQ(LeadDays("-1"), 0);
    EXPECT_EQ(LeadDays("+1"), 0);
    EXPECT_EQ(LeadDays("1."), 0);
    EXPECT_EQ(LeadDays("1x"), 0);
    EXPECT_EQ(LeadDays("  7"), 0);
}

TEST_F(ReminderWalk, OfTodaysRecordsListsAnOccurrenceOnItsOwnDayOnly) {
    for (const char* reminder : {"True", "False"}) {
        const EventTexts series{.recurrence = "Day", .repeat_daily = "TTTTTTT", .reminder = reminder};
        EXPECT_EQ(RemindersOf(series, Date{2009y / 10 / 13}), Texts{});
        EXPECT_EQ(RemindersOf(series, Date{2009y / 10 / 14}), Texts{"2009/10/14 < 2009/10/14"});
        EXPECT_EQ(RemindersOf(series, Date{2009y / 10 / 20}), Texts{"2009/10/20 < 2009/10/20"});
    }
}

TEST_F(ReminderWalk, ListsASingleEventFromItsLeadToItsDay) {
    const EventTexts event{.reminder = "2 Days"};
    EXPECT_EQ(RemindersOf(event, Date{2009y / 10 / 11}), Texts{});
    EXPECT_EQ(RemindersOf(event, Date{2009y / 10 / 12}), Texts{"2009/10/14 < 2009/10/12"});
    EXPECT_EQ(RemindersOf(event, Date{2009y / 10 / 14}), Texts{"2009/10/14 < 2009/10/12"});
    EXPECT_EQ(RemindersOf(event, Date{2009y / 10 / 15}), Texts{});
}

TEST_F(ReminderWalk, ListsEveryOccurrenceWhosePeriodHoldsTheDay) {
    const EventTexts series{.recurrence = "Day", .repeat_daily = "FFTFTFF", .reminder = "07"};
    EXPECT_EQ(RemindersOf(series, Date{2009y / 10 / 15}),
              (Texts{"2009/10/16 < 2009/10/09", "2009/10/21 < 2009/10/14"}));
    const EventTexts monthly{.recurrence = "Month", .same_date = "True", .reminder = "31"};
    EXPECT_EQ(RemindersOf(monthly, Date{2009y / 10 / 14}),
              (Texts{"2009/10/14 < 2009/09/13", "2009/11/14 < 2009/10/14"}));
}

TEST_F(ReminderWalk, SkipsASeriesBeforeItsFirstPeriodAndAfterItsEnd) {
    const EventTexts series{.recurrence = "Day",
                            .repeat_daily = "TTTTTTT",
                            .end = "True",
                            .end_date = "2009/10/16",
                            .reminder = "2"};
    EXPECT_EQ(RemindersOf(series, Date{2009y / 10 / 11}), Texts{});
    EXPECT_EQ(RemindersOf(series, Date{2009y / 10 / 12}), Texts{"2009/10/14 < 2009/10/12"});
    EXPECT_EQ(RemindersOf(series, Date{2009y / 10 / 15}),
              (Texts{"2009/10/15 < 2009/10/13", "2009/10/16 < 2009/10/14"}));
    EXPECT_EQ(RemindersOf(series, Date{2009y / 10 / 16}), Texts{"2009/10/16 < 2009/10/14"});
    EXPECT_EQ(RemindersOf(series, Date{2009y / 10 / 17}), Texts{});
}

TEST_F(ReminderWalk, DoesNotLookAtAnEndDateThatIsSwitchedOff) {
    const EventTexts series{.recurrence = "Day", .repeat_daily = "TTTTTTT", .end_date = "//"};
    EXPECT_EQ(RemindersOf(series, Date{2009y / 12 / 24}), Texts{"2009/12/24 < 2009/12/24"});
}

TEST_F(ReminderWalk, ListsAFirstDateOffThePatternFromItsLead) {
    const EventTexts series{
        .date = "2009/10/16", .recurrence = "Day", .repeat_daily = "TFFFFFF", .reminder = "3"};
    EXPECT_EQ(RemindersOf(series, Date{2009y / 10 / 12}), Texts{});
    EXPECT_EQ(RemindersOf(series, Date{2009y / 10 / 13}), Texts{"2009/10/16 < 2009/10/13"});
    EXPECT_EQ(RemindersOf(series, Date{2009y / 10 / 16}),
              (Texts{"2009/10/16 < 2009/10/13", "2009/10/19 < 2009/10/16"}));
    EXPECT_EQ(RemindersOf(series, Date{2009y / 10 / 17}), Texts{"2009/10/19 < 2009/10/16"});
}

TEST_F(ReminderWalk, ListsADateThatTheSeriesHasGivenUp) {
    const EventTexts series{.recurrence = "Day", .exceptions = "2009/10/15", .repeat_daily = "TTTTTTT"};
    EXPECT_EQ(RemindersOf(series, Date{2009y / 10 / 15}), Texts{"2009/10/15 < 2009/10/15"});
}

TEST_F(ReminderWalk, SkipsADeletedEventAndKeepsTheOrderOfTheStore) {
    AddEventRecord({.desc = "DELETED RECORD"});
    AddEventRecord({.recurrence = "Month", .same_date = "True"});
    AddEventRecord({});
    const Date day{2009y / 10 / 14};
    EXPECT_EQ(SelectEventReminders(day), (std::vector<EventReminder>{{2, day, day}, {3, day, day}}));
}
