// Durations, lead times and snooze intervals as the editors take them, and what they come to.
#include "planner/entries/DurationEntry.h"
#include "core/RunTimeError.h"
#include "planner/entries/ComboRows.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

using namespace std::chrono_literals;

namespace {

struct Typed {
    const char* text;
    const char* valid;
};

rc::Gen<std::string> TypedText() {
    return rc::gen::container<std::string>(rc::gen::elementOf(std::string("0123456789. mMhHdDs\xE9")));
}

// A number with at most two places and a unit, which is what a text that has been through the rule looks
// like.
rc::Gen<std::string> ShortLength() {
    return rc::gen::apply(
        [](int hundredths, const std::string& unit) {
            return std::to_string(hundredths / 100) + "." + std::to_string(hundredths % 100 / 10) +
                   std::to_string(hundredths % 10) + unit;
        },
        rc::gen::inRange(0, 1'200'000),
        rc::gen::elementOf(std::vector<std::string>{"m", " hrs", "Days", "x", ""}));
}

} // namespace

TEST(DurationEntries, GoWithTheExamples) {
    for (const auto& [text, valid] : {Typed{"90 min", "90 Minutes"},
                                      {"1.50 hours", "1.5 Hours"},
                                      {"2", "30 Minutes"},
                                      {"1000 m", "30 Minutes"},
                                      {"1 Day", "30 Minutes"}}) {
        EXPECT_EQ(ValidateDuration(text, EventDuration), valid) << text;
    }
}

TEST(SnoozeEntries, GoWithTheExamples) {
    for (const auto& [text, valid] : {Typed{"45m", "45 Minutes"},
                                      {"2.50 hrs", "2.5 Hours"},
                                      {"1 day", "1 Day"},
                                      {"soon", "30 Minutes"},
                                      {"10", "30 Minutes"}}) {
        EXPECT_EQ(ValidateDuration(text, SnoozeTime), valid) << text;
    }
}

TEST(DurationEntries, HaveTheLimitOfTheirField) {
    EXPECT_EQ(ValidateDuration("999 m", EventDuration), "999 Minutes");
    EXPECT_EQ(ValidateDuration("999.01 m", EventDuration), "30 Minutes");
    EXPECT_EQ(ValidateDuration("9999 m", LeadTime), "9999 Minutes");
    EXPECT_EQ(ValidateDuration("9999 d", LeadTime), "9999 Days");
    EXPECT_EQ(ValidateDuration("10000 m", LeadTime), "30 Minutes");
    EXPECT_EQ(ValidateDuration("9999 h", SnoozeTime), "9999 Hours");
    EXPECT_EQ(ValidateDuration("10000 h", SnoozeTime), "30 Minutes");
    EXPECT_EQ(ValidateDuration(std::string(400, '9') + " m", SnoozeTime), "30 Minutes");
}

TEST(DurationEntries, TakeTheUnitFromTheLettersAtTheEnd) {
    EXPECT_EQ(ValidateDuration("  3H  ", EventDuration), "3 Hours");
    EXPECT_EQ(ValidateDuration("3 long MONTHS", EventDuration), "3 Minutes");
    EXPECT_EQ(ValidateDuration("2 h 30 m", EventDuration), "2 Minutes");
    EXPECT_EQ(ValidateDuration("2 h.", EventDuration), "30 Minutes");
    EXPECT_EQ(ValidateDuration("2 weeks", LeadTime), "30 Minutes");
    EXPECT_EQ(ValidateDuration("2 \xE9h", LeadTime), "2 Hours"); // a letter beyond ASCII is none here
}

TEST(DurationEntries, TakeTheNumberInFront) {
    EXPECT_EQ(ValidateDuration(".5h", EventDuration), ".5 Hours");
    EXPECT_EQ(ValidateDuration("5.h", EventDuration), "5 Hours");
    for (const char* typed : {"", ".", ". h", "1.2.3 h", "-1 h", "+1 h", "about 2 h", "h"}) {
        EXPECT_EQ(ValidateDuration(typed, EventDuration), "30 Minutes") << typed;
    }
}

TEST(DurationEntries, ShowAtMostTwoPlacesWithHalvesAway) {
    EXPECT_EQ(ValidateDuration("0.125 h", EventDuration), ".13 Hours");
    EXPECT_EQ(ValidateDuration("2.675 h", EventDuration), "2.68 Hours");
    EXPECT_EQ(ValidateDuration("007.10 h", EventDuration), "7.1 Hours");
    EXPECT_EQ(ValidateDuration("100 m", EventDuration), "100 Minutes");
}

TEST(DurationEntries, OfNothingAreNoMinutes) {
    EXPECT_EQ(ValidateDuration("0 h", EventDuration), "0 Minutes");
    EXPECT_EQ(ValidateDuration("0.004 days", LeadTime), "0 Minutes");
    EXPECT_EQ(ValidateDuration("0.005 days", LeadTime), ".01 Days");
}

TEST(DurationEntries, AreSingularOnlyWhenExactlyOne) {
    EXPECT_EQ(ValidateDuration("1 m", EventDuration), "1 Minute");
    EXPECT_EQ(ValidateDuration("1.0 hours", EventDuration), "1 Hour");
    EXPECT_EQ(ValidateDuration("1.001 h", EventDuration), "1 Hours"); // the number as typed counts
    EXPECT_EQ(ValidateDuration("0 m", EventDuration), "0 Minutes");
}

TEST(DurationEntries, KeepTheRowsThatAreOffered) {
    for (const std::string_view row : DurationRows) {
        EXPECT_EQ(ValidateDuration(row, EventDuration), row);
    }
    for (const std::string_view row : LeadTimeRows) {
        EXPECT_EQ(ValidateDuration(row, LeadTime), row);
    }
    for (const std::string_view row : SnoozeRows) {
        EXPECT_EQ(ValidateDuration(row, SnoozeTime), row);
    }
}

RC_GTEST_PROP(DurationEntryProperties, StayAsTheyAreOnceValid, ()) {
    const std::string valid = ValidateDuration(*ShortLength(), LeadTime);
    RC_ASSERT(ValidateDuration(valid, LeadTime) == valid);
}

// A number that is rounded to 1 keeps its "s" the first time through the rule.
RC_GTEST_PROP(DurationEntryProperties, OfAnyTextStayAsTheyAreButForTheEnding, ()) {
    const std::string valid = ValidateDuration(*TypedText(), SnoozeTime);
    const std::string again = ValidateDuration(valid, SnoozeTime);
    RC_ASSERT(again == valid || (valid.starts_with("1 ") && again + "s" == valid));
    RC_ASSERT(ValidateDuration(again, SnoozeTime) == again);
    RC_ASSERT(SnoozeInterval(again) == LeadOf(again));
}

TEST(LeadTimes, ComeToSecondsByTheFirstLetterInEitherCase) {
    EXPECT_EQ(LeadOf("15 Minutes"), 15min);
    EXPECT_EQ(LeadOf("1.5 Hours"), 90min);
    EXPECT_EQ(LeadOf("2 Days"), 48h);
    EXPECT_EQ(LeadOf("2 hours"), 2h);
    EXPECT_EQ(LeadOf("3 days"), 72h);
    EXPECT_EQ(LeadOf("20 weeks"), 20min);
    EXPECT_EQ(LeadOf("20"), 20min);
    EXPECT_EQ(LeadOf("0 Minutes"), 0s);
    EXPECT_THROW(LeadOf(""), RunTimeError);
    EXPECT_THROW(LeadOf("soon"), RunTimeError);
}

TEST(LeadTimes, AreExactToTheSecond) {
    EXPECT_EQ(LeadOf(".33 Hours"), 1188s);
    EXPECT_EQ(LeadOf("1.15 Hours"), 4140s);
    EXPECT_EQ(LeadOf(".01 Days"), 864s);
    EXPECT_EQ(LeadOf(".05 Minutes"), 3s);
}

TEST(LeadTimes, BeyondAnyCalendarAreAnOverflow) {
    EXPECT_THROW(LeadOf("99999999999999 Days"), RunTimeError);
    EXPECT_THROW(LeadOf(std::string(300, '9')), RunTimeError);
}

TEST(SnoozeIntervals, ComeToSecondsByTheFirstLetterInItsCase) {
    EXPECT_EQ(SnoozeInterval("5 Minutes"), 5min);
    EXPECT_EQ(SnoozeInterval("1.5 Hours"), 90min);
    EXPECT_EQ(SnoozeInterval("1 Day"), 24h);
    EXPECT_EQ(SnoozeInterval(".1 Days"), 8640s);
    for (const char* none : {"5 minutes", "1 hour", "1", "", "soon", "2 Weeks"}) {
        EXPECT_THROW(SnoozeInterval(none), RunTimeError) << none;
    }
}

TEST(SnoozeIntervals, OfEveryRowOfferedAreTheirLead) {
    for (const std::string_view row : SnoozeRows) {
        EXPECT_EQ(SnoozeInterval(row), LeadOf(row)) << row;
    }
}

TEST(DayLimit, IsPassedBeyondMidnightOnly) {
    EXPECT_FALSE(PassesMidnight("12:00 AM", "24 Hours"));
    EXPECT_TRUE(PassesMidnight("12:15 AM", "24 Hours"));
    EXPECT_FALSE(PassesMidnight("11:00 PM", "1 Hour"));
    EXPECT_TRUE(PassesMidnight("11:00 PM", "61 Minutes"));
    EXPECT_FALSE(PassesMidnight("11:00 PM", "60 Minutes"));
    EXPECT_TRUE(PassesMidnight("12:00 PM", "12.01 Hours"));
    EXPECT_FALSE(PassesMidnight("12:00 PM", "12 Hours"));
    EXPECT_FALSE(PassesMidnight("11:59 PM", "0 Minutes"));
}

TEST(DayLimit, ReadsDaysThoughDurationsDoNotTakeThem) {
    EXPECT_FALSE(PassesMidnight("12:00 AM", "1 Day"));
    EXPECT_TRUE(PassesMidnight("12:01 AM", "1 Day"));
}

TEST(DayLimit, TakesAnyOtherUnitForMinutes) {
    EXPECT_FALSE(PassesMidnight("09:00 AM", "20 hours"));
    EXPECT_FALSE(PassesMidnight("09:00 AM", "900"));
    EXPECT_TRUE(PassesMidnight("09:00 AM", "901"));
}

TEST(DayLimit, NeedsATimeAndANumber) {
    EXPECT_THROW(PassesMidnight("noon", "1 Hour"), RunTimeError);
    EXPECT_THROW(PassesMidnight("09:00 AM", "long"), RunTimeError);
}
