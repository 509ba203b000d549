// A series' reminder moving on to its next occurrence.
#include "planner/reminders/AdvanceEventReminder.h"
#include "core/DateText.h"
#include "core/RunTimeError.h"
#include "planner/entries/RecurrenceEntry.h"
#include "planner/recurrence/EventOccursOn.h"
#include "support/Reminders.h"
#include "support/ScriptedPlatform.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

using namespace std::chrono_literals;

namespace {

// The days to which a series steps from its first date, as a text.
std::string Steps(const EventTexts& event, int count) {
    Store.EventRecord = {};
    const int index = AddEventRecord(event);
    const SeriesRule rule = ReadSeriesRule(index);
    const Date first = DateValue(event.date);
    std::string steps;
    std::optional<Date> day = first;
    for (int i = 0; i < count; ++i) {
        day = StepSeries(rule, first, *day);
        if (!day) {
            return steps + "none";
        }
        steps += StoredDate(*day) + " ";
    }
    return steps;
}

class Advance : public testing::Test {
protected:
    void SetUp() override {
        ResetScript();
        ResetStore();
    }

    void TearDown() override { ResetStore(); }

    static const std::string& Field(TextList EventLists::*list) { return (Store.EventRecord.*list).Item(1); }

    static void ExpectPresent(const std::string& day, const std::string& alarm) {
        EXPECT_EQ(Field(&EventLists::reminder_currentday), day);
        EXPECT_EQ(Field(&EventLists::reminder_alarm), alarm);
    }

    static void ExpectNext(const std::string& day, const std::string& alarm) {
        EXPECT_EQ(Field(&EventLists::reminder_nextday), day);
        EXPECT_EQ(Field(&EventLists::reminder_nextalarm), alarm);
    }
};

const EventTexts EveryDay{.date = "2009/10/01", .recurrence = "Day", .repeat_daily = "TTTTTTT"};

EventTexts Monthly(const std::string& date, const std::string& number, const std::string& day) {
    return {.date = date, .recurrence = "Month", .repeat_number = number, .repeat_day = day};
}

} // namespace

// --- Steps -------------------------------------------------------------------------------------------------

TEST(SeriesSteps, OfADailySeriesFollowThePattern) {
    EventTexts event{.date = "2009/10/14", .recurrence = "Day", .repeat_daily = "TFTFFFF"};
    EXPECT_EQ(Steps(event, 3), "2009/10/19 2009/10/21 2009/10/26 ");
    event.repeat_daily = "FFFFFTT";
    EXPECT_EQ(Steps(event, 3), "2009/10/17 2009/10/18 2009/10/24 ");
}

TEST(SeriesSteps, OfAPatternOfOneDayAreAWeekApart) {
    EXPECT_EQ(Steps({.date = "2009/10/14", .recurrence = "Day", .repeat_daily = "FFTFFFF"}, 2),
              "2009/10/21 2009/10/28 ");
}

TEST(SeriesSteps, OfAnEmptyPatternAreNone) {
    EXPECT_EQ(Steps({.recurrence = "Day", .repeat_daily = "FFFFFFF"}, 1), "none");
    EXPECT_EQ(Steps({.recurrence = "Day", .repeat_daily = ""}, 1), "none");
    EXPECT_EQ(Steps({.recurrence = "Day", .repeat_daily = "ttttttt"}, 1), "none");
}

TEST(SeriesSteps, OfOneDayNumberCountFromTheFirstDate) {
    EXPECT_EQ(Steps({.date = "2009/01/31", .recurrence = "Month", .same_date = "True"}, 4),
              "2009/02/28 2009/03/31 2009/04/30 2009/05/31 ");
    EXPECT_EQ(Steps({.date = "2008/02/29", .recurrence = "Year", .same_date = "True"}, 4),
              "2009/02/28 2010/02/28 2011/02/28 2012/02/29 ");
}

TEST(SeriesSteps, OfOneDayNumberFromBeforeTheFirstDateBeginBehindIt) {
    Store.EventRecord = {};
    AddEventRecord({.date = "2009/03/31", .recurrence = "Month", .same_date = "True"});
    for (const Date day : {Date{2009y / 1 / 15}, Date{2009y / 3 / 1}, Date{2009y / 3 / 31}}) {
        EXPECT_EQ(StepSeries(ReadSeriesRule(1), Date{2009y / 3 / 31}, day), Date{2009y / 4 / 30});
    }
}

TEST(SeriesSteps, OfTheLastDayAreTheLastOfEachMonth) {
    EXPECT_EQ(Steps(Monthly("2009/01/31", "Last", "Day"), 3), "2009/02/28 2009/03/31 2009/04/30 ");
    EventTexts yearly = Monthly("2011/02/28", "Last", "Day");
    yearly.recurrence = "Year";
    EXPECT_EQ(Steps(yearly, 2), "2012/02/29 2013/02/28 ");
}

TEST(SeriesSteps, OfARankFindItsWeekday) {
    EXPECT_EQ(Steps(Monthly("2009/10/02", "First", "Friday"), 3), "2009/11/06 2009/12/04 2010/01/01 ");
    EXPECT_EQ(Steps(Monthly("2009/10/09", "Second", "Friday"), 2), "2009/11/13 2009/12/11 ");
    EXPECT_EQ(Steps(Monthly("2009/10/16", "Third", "Friday"), 2), "2009/11/20 2009/12/18 ");
    EXPECT_EQ(Steps(Monthly("2009/10/23", "Fourth", "Friday"), 2), "2009/11/27 2009/12/25 ");
    EXPECT_EQ(Steps(Monthly("2009/10/30", "Last", "Friday"), 3), "2009/11/27 2009/12/25 2010/01/29 ");
    EventTexts yearly = Monthly("2009/11/26", "Fourth", "Thursday");
    yearly.recurrence = "Year";
    EXPECT_EQ(Steps(yearly, 2), "2010/11/25 2011/11/24 ");
}

TEST(SeriesSteps, OfARankTakeTheWeekdayFromItsText) {
    EXPECT_EQ(Steps(Monthly("2009/10/02", "First", "Monday"), 1), "2009/11/02 ");
    EXPECT_EQ(Steps(Monthly("2009/10/02", "First", "someday"), 1),
              "2009/11/07 "); // any other text is Saturday
}

TEST(SeriesSteps, OfAnyOtherRankOfDaysKeepTheDayAndLoseWhatAShortMonthCuts) {
    EXPECT_EQ(Steps(Monthly("2009/01/31", "First", "Day"), 3), "2009/02/28 2009/03/28 2009/04/28 ");
}

TEST(SeriesSteps, OfUnlistedTextsAreNone) {
    EXPECT_EQ(Steps(Monthly("2009/10/02", "Fifth", "Friday"), 1), "none");
    EXPECT_EQ(Steps(Monthly("2009/10/02", "Fifth", "Day"), 1), "none");
    EXPECT_EQ(Steps({.recurrence = "Week", .repeat_daily = "TTTTTTT"}, 1), "none");
    EXPECT_EQ(
        Steps({.date = "2009/10/02", .recurrence = "Month", .same_date = "True", .repeat_number = "Fifth"},
              1),
        "2009/11/02 "); // the rank is not looked at
}

TEST(SeriesSteps, EndWithTheCalendar) {
    EXPECT_EQ(Steps({.date = "9999/12/30", .recurrence = "Day", .repeat_daily = "TTTTTTT"}, 2),
              "9999/12/31 none");
    EXPECT_EQ(Steps({.date = "9999/06/30", .recurrence = "Year", .same_date = "True"}, 1), "none");
}

// A series that starts on its own rule steps through the very days on which it occurs.
RC_GTEST_PROP(SeriesStepProperties, AreTheDaysOnWhichTheSeriesOccurs, ()) {
    Store.EventRecord = {};
    const Date first = Date{2007y / 1 / 1} + std::chrono::days{*rc::gen::inRange(0, 1500)};
    EventTexts event{.date = StoredDate(first), .time = "09:00 AM"};
    event.recurrence = *rc::gen::elementOf(std::vector<std::string>{"Day", "Month", "Year"});
    event.same_date = *rc::gen::elementOf(std::vector<std::string>{"True", "False"});
    event.repeat_daily = *rc::gen::container<std::string>(7, rc::gen::elementOf(std::string("TF")));
    const RankOfDate rank = RankOf(first);
    event.repeat_number = rank.number;
    event.repeat_day = rank.day;
    const int index = AddEventRecord(event);
    const SeriesRule rule = ReadSeriesRule(index);
    Date day = first;
    for (int i = 0; i < 4; ++i) {
        const std::optional<Date> step = StepSeries(rule, first, day);
        const Date until = step ? *step : day + std::chrono::days{400};
        for (++day; day < until; ++day) {
            RC_ASSERT(!EventOccursOn(day, index));
        }
        if (!step) {
            return;
        }
        RC_ASSERT(EventOccursOn(day, index));
    }
}

// --- Advance -----------------------------------------------------------------------------------------------

TEST_F(Advance, ShowsTheLatestOfThoseMissed) {
    EventTexts event = EveryDay;
    event.reminder_time = "15 Minutes";
    AddArmedEvent(event);
    SetClock(2009, 10, 5, 14, 0);
    EXPECT_TRUE(AdvanceEventReminder(1, Now()));
    ExpectPresent("2009/10/05", "2009/10/05 08:45:00");
    ExpectNext("2009/10/06", "2009/10/06 08:45:00");
    EXPECT_EQ(Field(&EventLists::reminder), "True");
    EXPECT_EQ(Field(&EventLists::reminder_list), "True");
}

TEST_F(Advance, ShowsTheNextItselfWhenNoneWasMissed) {
    AddArmedEvent(EveryDay);
    SetClock(2009, 10, 1, 8, 30);
    EXPECT_TRUE(AdvanceEventReminder(1, Now()));
    ExpectPresent("2009/10/01", "2009/10/01 08:30:00");
    ExpectNext("2009/10/02", "2009/10/02 08:30:00");
}

TEST_F(Advance, TakesAnAlarmOfThisVerySecondAsDue) {
    AddArmedEvent(EveryDay);
    SetClock(2009, 10, 2, 8, 30, 0);
    AdvanceEventReminder(1, Now());
    ExpectPresent("2009/10/02", "2009/10/02 08:30:00");
    ArmEvent(1);
    SetClock(2009, 10, 2, 8, 29, 59);
    AdvanceEventReminder(1, Now());
    ExpectPresent("2009/10/01", "2009/10/01 08:30:00");
}

TEST_F(Advance, TakesAnAlarmAsItIsWritten) {
    EventTexts event = EveryDay;
    event.reminder_time = ".33 Hours"; // 19 minutes 48 seconds
    AddArmedEvent(event);
    SetClock(2009, 10, 2, 8, 40, 0);
    AdvanceEventReminder(1, Now());
    ExpectPresent("2009/10/02", "2009/10/02 08:40:00");
}

TEST_F(Advance, MayShowAnOccurrenceThatHasBeenWithALongLeadStillToCome) {
    EventTexts event = EveryDay;
    event.reminder_time = "3 Days";
    AddArmedEvent(event);
    SetClock(2009, 10, 5, 14, 0);
    AdvanceEventReminder(1, Now());
    ExpectPresent("2009/10/08", "2009/10/05 09:00:00");
    ExpectNext("2009/10/09", "2009/10/06 09:00:00");
}

TEST_F(Advance, DisarmsASeriesThatHasRunOut) {
    EventTexts event = EveryDay;
    event.end = "True";
    event.end_date = "2009/10/03";
    AddArmedEvent(event);
    SetClock(2009, 10, 3, 9, 0);
    EXPECT_TRUE(AdvanceEventReminder(1, Now()));
    ExpectPresent("2009/10/03", "2009/10/03 08:30:00");
    EXPECT_EQ(Field(&EventLists::reminder), "False");
    EXPECT_EQ(Field(&EventLists::reminder_list), "True");
    ExpectNext("2009/10/01", "2009/10/01 08:30:00"); // as it was
}

TEST_F(Advance, StaysArmedOnTheDayBeforeTheEnd) {
    EventTexts event = EveryDay;
    event.end = "True";
    event.end_date = "2009/10/03";
    AddArmedEvent(event);
    SetClock(2009, 10, 2, 9, 0);
    AdvanceEventReminder(1, Now());
    EXPECT_EQ(Field(&EventLists::reminder), "True");
    ExpectNext("2009/10/03", "2009/10/03 08:30:00");
}

TEST_F(Advance, ReadsTheEndDateOnlyWhereThereIsAnEnd) {
    EventTexts event = EveryDay;
    event.end_date = "//";
    AddArmedEvent(event);
    SetClock(2009, 10, 2, 9, 0);
    EXPECT_NO_THROW(AdvanceEventReminder(1, Now()));
    Store.EventRecord.end.Replace(1, "True");
    EXPECT_THROW(AdvanceEventReminder(1, Now()), RunTimeError);
}

TEST_F(Advance, PassesOverOccurrencesGivenUp) {
    EventTexts event = EveryDay;
    event.exceptions = "2009/10/04 2009/10/05 2009/10/06";
    AddArmedEvent(event);
    SetClock(2009, 10, 5, 14, 0);
    EXPECT_TRUE(AdvanceEventReminder(1, Now()));
    ExpectPresent("2009/10/03", "2009/10/03 08:30:00");
    ExpectNext("2009/10/07", "2009/10/07 08:30:00");
}

TEST_F(Advance, ListsNothingWhenTheOnlyOneDueWasGivenUp) {
    EventTexts event = EveryDay;
    event.exceptions = "2009/10/01";
    AddArmedEvent(event);
    SetClock(2009, 10, 1, 9, 0);
    EXPECT_FALSE(AdvanceEventReminder(1, Now()));
    EXPECT_EQ(Field(&EventLists::reminder), "True");
    EXPECT_EQ(Field(&EventLists::reminder_list), "False");
    ExpectPresent("2009/10/02", "2009/10/02 08:30:00");
    ExpectNext("2009/10/02", "2009/10/02 08:30:00");
}

TEST_F(Advance, OfAMonthlySeriesShowsNoEarlierMonthAgain) {
    AddArmedEvent({.date = "2009/06/15", .recurrence = "Month", .same_date = "True"});
    SetClock(2009, 8, 20);
    AdvanceEventReminder(1, Now());
    Store.EventRecord.reminder_list.Replace(1, "False");
    FollowNextOccurrence(1);
    Store.EventRecord.exceptions.Replace(1, "2009/09/15"); // already the next one
    SetClock(2009, 9, 20);
    EXPECT_FALSE(AdvanceEventReminder(1, Now()));
    EXPECT_EQ(Field(&EventLists::reminder_list), "False");
    ExpectPresent("2009/10/15", "2009/10/15 08:30:00");
    ExpectNext("2009/10/15", "2009/10/15 08:30:00");
}

TEST_F(Advance, LeavesASnoozedOccurrenceAloneWhenTheNextWasGivenUp) {
    AddArmedEvent(EveryDay);
    SetClock(2009, 10, 1, 9, 0);
    AdvanceEventReminder(1, Now());
    Store.EventRecord.reminder_list.Replace(1, "False");
    Store.EventRecord.reminder_alarm.Replace(1, "2009/10/04 09:00:00"); // snoozed for three days
    Store.EventRecord.exceptions.Replace(1, "2009/10/02");
    SetClock(2009, 10, 2, 9, 0);
    EXPECT_FALSE(AdvanceEventReminder(1, Now()));
    ExpectPresent("2009/10/01", "2009/10/04 09:00:00");
    ExpectNext("2009/10/03", "2009/10/03 08:30:00");
}

TEST_F(Advance, KeepsASnoozedOccurrenceWhenAllOthersToComeWereGivenUp) {
    EventTexts event = EveryDay;
    event.end = "True";
    event.end_date = "2009/10/02";
    AddArmedEvent(event);
    SetClock(2009, 10, 1, 9, 0);
    AdvanceEventReminder(1, Now());
    Store.EventRecord.reminder_list.Replace(1, "False");
    Store.EventRecord.reminder_alarm.Replace(1, "2009/10/04 09:00:00"); // snoozed for three days
    Store.EventRecord.exceptions.Replace(1, "2009/10/02");
    SetClock(2009, 10, 2, 9, 0);
    EXPECT_FALSE(AdvanceEventReminder(1, Now()));
    EXPECT_EQ(Field(&EventLists::reminder), "True");
    ExpectNext("2009/10/01", "2009/10/04 09:00:00");
    SetClock(2009, 10, 4, 9, 0);
    EXPECT_TRUE(AdvanceEventReminder(1, Now()));
    ExpectPresent("2009/10/01", "2009/10/04 09:00:00");
    EXPECT_EQ(Field(&EventLists::reminder), "False");
}

TEST_F(Advance, DisarmsASeriesWhoseLastOccurrenceWasGivenUp) {
    EventTexts event = EveryDay;
    event.end = "True";
    event.end_date = "2009/10/01";
    event.exceptions = "2009/10/01";
    AddArmedEvent(event);
    SetClock(2009, 10, 1, 9, 0);
    EXPECT_FALSE(AdvanceEventReminder(1, Now()));
    EXPECT_EQ(Field(&EventLists::reminder), "False");
    EXPECT_EQ(Field(&EventLists::reminder_list), "False");
}

TEST_F(Advance, OfASeriesWithoutAnyFurtherDayDisarmsIt) {
    for (const EventTexts& event :
         {EventTexts{.recurrence = "Day", .repeat_daily = "FFFFFFF"}, EventTexts{.recurrence = "Fortnight"},
          Monthly("2009/10/14", "Fifth", "Friday")}) {
        Store.EventRecord = {};
        AddArmedEvent(event);
        SetClock(2009, 10, 14, 12, 0);
        EXPECT_TRUE(AdvanceEventReminder(1, Now()));
        EXPECT_EQ(Field(&EventLists::reminder), "False");
        EXPECT_EQ(Field(&EventLists::reminder_list), "True");
        ExpectPresent("2009/10/14", "2009/10/14 08:30:00");
    }
}

TEST_F(Advance, RaisesAtAnAlarmBeforeTheCalendar) {
    EventTexts event = EveryDay;
    event.date = "0100/01/01";
    AddArmedEvent(event);
    Store.EventRecord.reminder_time.Replace(1, "3 Days");
    EXPECT_THROW(AdvanceEventReminder(1, Moment{Date{100y / 1 / 1}} + 9h), RunTimeError);
    ExpectNext("0100/01/01", "0100/01/01 08:30:00");
}

TEST_F(Advance, RaisesAtBadTexts) {
    for (TextList EventLists::*list :
         {&EventLists::date, &EventLists::time, &EventLists::reminder_time, &EventLists::reminder_nextday,
          &EventLists::exceptions, &EventLists::end}) {
        Store.EventRecord = {};
        AddArmedEvent(EveryDay);
        (Store.EventRecord.*list).Replace(1, "bad");
        SetClock(2009, 10, 3);
        EXPECT_THROW(AdvanceEventReminder(1, Now()), RunTimeError);
    }
}
