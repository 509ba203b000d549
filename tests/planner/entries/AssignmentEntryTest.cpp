// Percent, estimate and time left as the editors take them.
#include "planner/entries/AssignmentEntry.h"
#include "core/RunTimeError.h"
#include "planner/dates/DateHelpers.h"
#include "planner/entries/ComboRows.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>

namespace {

// Texts of the characters that these fields meet, right and wrong.
rc::Gen<std::string> TypedText() {
    return rc::gen::container<std::string>(rc::gen::elementOf(std::string("0123456789 :%.-+apmhd\xE9")));
}

} // namespace

TEST(PercentEntries, BecomeTheNumberAndPercent) {
    EXPECT_EQ(ValidatePercent("40%"), "40%");
    EXPECT_EQ(ValidatePercent("40"), "40%");
    EXPECT_EQ(ValidatePercent("0"), "0%");
    EXPECT_EQ(ValidatePercent("100"), "100%");
    EXPECT_EQ(ValidatePercent("%7%5%"), "75%");
    EXPECT_EQ(ValidatePercent("007"), "7%");
}

TEST(PercentEntries, OfAnyOtherTextBecomeZero) {
    for (const char* typed :
         {"", "%", " 100", "100 ", "1000", "0001", "101", "999", "4.5", "-5", "+5", "ten", "\xB2"}) {
        EXPECT_EQ(ValidatePercent(typed), "0%") << typed;
    }
}

RC_GTEST_PROP(PercentEntryProperties, StayAsTheyAreOnceValid, ()) {
    const std::string valid = ValidatePercent(*TypedText());
    RC_ASSERT(ValidatePercent(valid) == valid);
}

TEST(EstimateEntries, GoWithTheExamples) {
    EXPECT_EQ(ValidateEstimate("5"), "00 : 30");
    EXPECT_EQ(ValidateEstimate("5:"), "05 : 30");
    EXPECT_EQ(ValidateEstimate("0:0"), "00 : 01");
    EXPECT_EQ(ValidateEstimate("100:75"), "99 : 00");
    EXPECT_EQ(ValidateEstimate("1:2:3"), "01 : 30");
}

TEST(EstimateEntries, FallBackToHalfAnHour) {
    for (const char* typed : {"", "12345678:", "1 :   30 ", "1h:30", "1;30", "1.5:0", "-1:30", "30", "  "}) {
        EXPECT_EQ(ValidateEstimate(typed), "00 : 30") << typed;
    }
}

TEST(EstimateEntries, HoldEightCharactersAndNoMore) {
    EXPECT_EQ(ValidateEstimate("01 :  45"), "01 : 45");
    EXPECT_EQ(ValidateEstimate("01 :   45"), "00 : 30");
}

TEST(EstimateEntries, TakeEachPartForItself) {
    EXPECT_EQ(ValidateEstimate(":"), "00 : 30");
    EXPECT_EQ(ValidateEstimate(":45"), "00 : 45");
    EXPECT_EQ(ValidateEstimate(" : 5"), "00 : 05");
    EXPECT_EQ(ValidateEstimate("1 2:45"), "00 : 45"); // a blank inside a number makes it none
    EXPECT_EQ(ValidateEstimate("2:1 5"), "02 : 30");
    EXPECT_EQ(ValidateEstimate("99:59"), "99 : 59");
    EXPECT_EQ(ValidateEstimate("100:00"), "99 : 00");
    EXPECT_EQ(ValidateEstimate("3:60"), "03 : 00");
    EXPECT_EQ(ValidateEstimate("0:60"), "00 : 01");
    EXPECT_EQ(ValidateEstimate("007:008"), "07 : 08");
}

TEST(EstimateEntries, KeepTheRowsThatAreOffered) {
    for (const std::string& row : EstimateRows()) {
        EXPECT_EQ(ValidateEstimate(row), row);
    }
}

RC_GTEST_PROP(EstimateEntryProperties, StayAsTheyAreOnceValidAndLastAMinuteAtLeast, ()) {
    const std::string valid = ValidateEstimate(*TypedText());
    RC_ASSERT(ValidateEstimate(valid) == valid);
    RC_ASSERT(valid.size() == 7U);
    RC_ASSERT(ClockToMinutes(valid) >= 1);
}

TEST(TimesLeft, AreTheShareThatThePercentLeaves) {
    EXPECT_EQ(UpdateTimeLeft(false, "01 : 00", "25%"), "00 : 45");
    EXPECT_EQ(UpdateTimeLeft(false, "20 : 00", "0%"), "20 : 00");
    EXPECT_EQ(UpdateTimeLeft(false, "99 : 59", "0%"), "99 : 59");
    EXPECT_EQ(UpdateTimeLeft(false, "02 : 00", "40%"), "01 : 12");
}

TEST(TimesLeft, OfFinishedWorkAreNothing) {
    EXPECT_EQ(UpdateTimeLeft(true, "01 : 00", "75%"), "00 : 00");
}

TEST(TimesLeft, OfUnfinishedWorkAreAMinuteAtLeast) {
    EXPECT_EQ(UpdateTimeLeft(false, "00 : 01", "99%"), "00 : 01");
    EXPECT_EQ(UpdateTimeLeft(false, "10 : 00", "100%"), "00 : 01"); // typed, and the done box taken off again
    EXPECT_EQ(UpdateTimeLeft(false, "00 : 00", "0%"), "00 : 01");
}

TEST(TimesLeft, RoundHalfAMinuteToTheEvenOne) {
    EXPECT_EQ(UpdateTimeLeft(false, "00 : 30", "5%"), "00 : 28");  // 28.5
    EXPECT_EQ(UpdateTimeLeft(false, "00 : 30", "15%"), "00 : 26"); // 25.5
    EXPECT_EQ(UpdateTimeLeft(false, "00 : 01", "50%"), "00 : 01"); // 0.5 is 0, and that becomes 1
    EXPECT_EQ(UpdateTimeLeft(false, "00 : 03", "50%"), "00 : 02"); // 1.5
    EXPECT_EQ(UpdateTimeLeft(false, "00 : 05", "50%"), "00 : 02"); // 2.5
}

TEST(TimesLeft, AreReadFromValidTextsOnly) {
    EXPECT_THROW(UpdateTimeLeft(false, "soon", "0%"), RunTimeError);
    EXPECT_THROW(UpdateTimeLeft(false, "01 : 00", "half"), RunTimeError);
}

TEST(TimesLeft, GoWithTheNearestEvenForEveryEstimateAndPercent) {
    for (int minutes = 1; minutes <= 5999; minutes += 7) {
        const std::string estimate = ValidateEstimate(MinutesToClock(minutes));
        for (int percent = 0; percent <= 100; ++percent) {
            const double left = std::nearbyint(minutes - minutes * percent / 100.0);
            const std::string text = UpdateTimeLeft(false, estimate, std::to_string(percent) + "%");
            ASSERT_EQ(ClockToMinutes(text), left == 0 ? 1 : left) << minutes << " by " << percent;
        }
    }
}

TEST(ShortWords, AreCutToTenCharacters) {
    EXPECT_EQ(CutToLimit("Laboratory report"), "Laboratory");
    EXPECT_EQ(CutToLimit("Assignment"), "Assignment");
    EXPECT_EQ(CutToLimit("Test"), "Test");
    EXPECT_EQ(CutToLimit(""), "");
}
