// The study timer's arithmetic and its text.
#include "mainwindow/state/StudyTimerClock.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

constexpr Moment Noon = Moment{Date{2009y / 10 / 14}} + 12h;

std::string TextAfter(std::chrono::seconds run, bool showSeconds = true) {
    StudyTimerClock timer{.TimerStart = Noon, .ShowSeconds = showSeconds};
    TickTimer(timer, Noon + run);
    return TimerText(timer);
}

} // namespace

TEST(StudyTimerClock, StartsWithNothingAndShowsSeconds) {
    EXPECT_EQ(TimerText(StudyTimerClock{}), "00:00:00");
}

TEST(StudyTimerClock, SplitsTheSecondsSinceTheStart) {
    EXPECT_EQ(TextAfter(59s), "00:00:59");
    EXPECT_EQ(TextAfter(60s), "00:01:00");
    EXPECT_EQ(TextAfter(59min + 59s), "00:59:59");
    EXPECT_EQ(TextAfter(1h), "01:00:00");
    EXPECT_EQ(TextAfter(12h + 34min + 56s), "12:34:56");
}

TEST(StudyTimerClock, KeepsTheSplitValuesApart) {
    StudyTimerClock timer{.TimerStart = Noon};
    TickTimer(timer, Noon + 2h + 3min + 4s);
    EXPECT_EQ(timer.TimerElapsedNow, 7384);
    EXPECT_EQ(timer.TimerHours, 2);
    EXPECT_EQ(timer.TimerMinutes, 3);
    EXPECT_EQ(timer.TimerSeconds, 4);
}

TEST(StudyTimerClock, LateTickLosesNothing) {
    StudyTimerClock timer{.TimerStart = Noon};
    TickTimer(timer, Noon + 1s);
    TickTimer(timer, Noon + 95s);
    EXPECT_EQ(TimerText(timer), "00:01:35");
}

TEST(StudyTimerClock, HundredHoursShowTheirLastTwoDigits) {
    EXPECT_EQ(TextAfter(99h + 59min + 59s), "99:59:59");
    EXPECT_EQ(TextAfter(100h), "00:00:00");
    EXPECT_EQ(TextAfter(123h + 4min), "23:04:00");
}

TEST(StudyTimerClock, WithoutSecondsTheColonIsABlankInOddSeconds) {
    EXPECT_EQ(TextAfter(0s, false), "00:00");
    EXPECT_EQ(TextAfter(1s, false), "00 00");
    EXPECT_EQ(TextAfter(62s, false), "00:01");
    EXPECT_EQ(TextAfter(1h + 2min + 59s, false), "01 02");
}

TEST(StudyTimerClock, BankedRunsAreAddedToThePresentOne) {
    StudyTimerClock timer{.TimerStart = Noon};
    BankTimer(timer, Noon + 90s);
    BankTimer(timer, Noon + 30s);
    EXPECT_EQ(timer.TimerBanked, 120);
    timer.TimerStart = Noon + 1h;
    TickTimer(timer, Noon + 1h + 5s);
    EXPECT_EQ(TimerText(timer), "00:02:05");
}

TEST(StudyTimerClock, BankingAloneLeavesWhatIsShown) {
    StudyTimerClock timer{.TimerStart = Noon};
    TickTimer(timer, Noon + 7s);
    BankTimer(timer, Noon + 8s);
    EXPECT_EQ(TimerText(timer), "00:00:07");
}

TEST(StudyTimerClock, ResetClearsWhatIsShownAndBanked) {
    StudyTimerClock timer{.TimerStart = Noon, .ShowSeconds = false};
    TickTimer(timer, Noon + 3h);
    BankTimer(timer, Noon + 3h);
    ResetTimer(timer);
    EXPECT_EQ(TimerText(timer), "00:00");
    EXPECT_EQ(timer.TimerBanked, 0);
    EXPECT_FALSE(timer.ShowSeconds);
}
