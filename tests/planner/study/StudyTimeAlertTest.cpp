// The balance of homework against study, and the alerts that it raises.
// The clock stands at noon of Wednesday, 2009-10-14.
#include "planner/study/StudyTimeAlert.h"
#include "core/RunTimeError.h"
#include "support/CaseName.h"
#include "support/EventRecords.h"
#include "support/ScriptedPlatform.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

constexpr const char* Yesterday = "2009/10/13";
constexpr const char* OnToday = "2009/10/14";
constexpr const char* Tomorrow = "2009/10/15";
constexpr const char* DayAfterTomorrow = "2009/10/16";

constexpr AlertsShown NoAlert{};

class StudyTimeAlerts : public testing::Test {
protected:
    void SetUp() override {
        ResetScript();
        ResetStore();
        AlertWhen = {};
        AlertAmount.clear();
        AlertBefore.clear();
    }

    void TearDown() override { ResetStore(); }
};

void AddHomework(const std::string& date, const std::string& timeLeft) {
    AddAssignmentRecord({.date = date, .est_time = "99 : 00", .time_left = timeLeft});
}

void AddStudy(const std::string& date, const std::string& duration, const std::string& time = "08:00 PM") {
    AddEventRecord({.date = date, .time = time, .duration = duration, .type = "Study Time"});
}

void ExpectStudyAlert(const std::string& when, const std::string& amount, const std::string& before) {
    EXPECT_TRUE(StudyTimeAlertCheck()[StudyTimeAlert]);
    EXPECT_EQ(AlertWhen.utf8, when);
    EXPECT_EQ(AlertAmount, amount);
    EXPECT_EQ(AlertBefore, before);
}

void ExpectNoStudyAlert() {
    EXPECT_FALSE(StudyTimeAlertCheck()[StudyTimeAlert]) << AlertWhen.utf8 << ": " << AlertAmount;
}

} // namespace

TEST_F(StudyTimeAlerts, AreNoneWithoutUnfinishedHomework) {
    AddAssignmentRecord({.date = OnToday, .done = "True"});
    AddAssignmentRecord({.date = Yesterday, .done = "True"});
    AddStudy(OnToday, "1 Hour");
    EXPECT_EQ(StudyTimeAlertCheck(), NoAlert);
    EXPECT_EQ(AlertDays.Count(), 0);
    EXPECT_EQ(AlertNeed.Count(), 0);
    EXPECT_EQ(AlertStudy.Count(), 0);
}

TEST_F(StudyTimeAlerts, OfLateHomeworkAloneIsTheFourthButtonWhateverItsTime) {
    AddHomework(Yesterday, "20 : 00");
    const AlertsShown shown = StudyTimeAlertCheck();
    EXPECT_EQ(shown, (AlertsShown{false, false, false, true}));
    EXPECT_EQ(AlertDays.Count(), 0);
}

TEST_F(StudyTimeAlerts, OfHomeworkDueTomorrowAndToday) {
    AddHomework(Tomorrow, "00 : 00");
    EXPECT_EQ(StudyTimeAlertCheck(), (AlertsShown{false, true, false, false}));
    AddHomework(OnToday, "00 : 00");
    EXPECT_EQ(StudyTimeAlertCheck(), (AlertsShown{false, true, true, false}));
    AddHomework(DayAfterTomorrow, "00 : 00");
    EXPECT_EQ(StudyTimeAlertCheck(), (AlertsShown{false, true, true, false}));
}

TEST_F(StudyTimeAlerts, CanAllStandAtOnce) {
    AddHomework(OnToday, "00 : 30");
    AddHomework(Tomorrow, "00 : 30");
    AddHomework(Yesterday, "00 : 30");
    EXPECT_EQ(StudyTimeAlertCheck(), (AlertsShown{true, true, true, true}));
}

TEST_F(StudyTimeAlerts, CountDeletedAssignmentsAsTheyStand) {
    AddAssignmentRecord({.date = OnToday, .desc = "DELETED RECORD", .time_left = "00 : 30"});
    EXPECT_EQ(StudyTimeAlertCheck(), (AlertsShown{true, false, true, false}));
}

TEST_F(StudyTimeAlerts, HaveOneEntryADayFromTodayToTheLastDueDate) {
    AddHomework(DayAfterTomorrow, "00 : 45");
    AddHomework(OnToday, "00 : 10");
    AddHomework(DayAfterTomorrow, "01 : 00");
    StudyTimeAlertCheck();
    EXPECT_EQ(AlertDays.values,
              (std::vector<Date>{Date{2009y / 10 / 14}, Date{2009y / 10 / 15}, Date{2009y / 10 / 16}}));
    EXPECT_EQ(AlertNeed.values, (std::vector<int>{10, 0, 105}));
    EXPECT_EQ(AlertStudy.values, (std::vector<int>{0, 0, 0}));
}

TEST_F(StudyTimeAlerts, NeedTheTimeLeftAndNotTheEstimate) {
    AddAssignmentRecord({.date = OnToday, .est_time = "05 : 00", .time_left = "00 : 20"});
    ExpectStudyAlert("today", "20 minutes", "today");
}

TEST_F(StudyTimeAlerts, OfHomeworkDueTodayAskForStudyToday) {
    AddHomework(OnToday, "01 : 30");
    ExpectStudyAlert("today", "1 hour and 30 minutes", "today");
}

TEST_F(StudyTimeAlerts, OfHomeworkDueTomorrowDoNotCountTheStudyOfTomorrow) {
    AddStudy(OnToday, "60 Minutes");
    AddStudy(Tomorrow, "60 Minutes");
    AddHomework(Tomorrow, "02 : 00");
    ExpectStudyAlert("tomorrow", "1 hour", "today");
}

TEST_F(StudyTimeAlerts, OfALaterDayNameItAndAskForStudyBeforeThen) {
    AddStudy(OnToday, "60 Minutes");
    AddStudy(Tomorrow, "60 Minutes");
    AddHomework(DayAfterTomorrow, "02 : 30");
    ExpectStudyAlert("Friday, Oct 16", "30 minutes", "before then");
}

TEST_F(StudyTimeAlerts, AreNoneWhenTheBalanceIsExactlyNothing) {
    AddStudy(OnToday, "60 Minutes");
    AddStudy(Tomorrow, "60 Minutes");
    AddHomework(DayAfterTomorrow, "02 : 00");
    ExpectNoStudyAlert();
}

TEST_F(StudyTimeAlerts, DoNotCountTheStudyOfTheDueDateItself) {
    AddStudy(DayAfterTomorrow, "8 Hours");
    AddHomework(DayAfterTomorrow, "00 : 01");
    ExpectStudyAlert("Friday, Oct 16", "1 minute", "before then");
}

TEST_F(StudyTimeAlerts, CountTheStudyOfTodayForToday) {
    AddStudy(OnToday, "60 Minutes");
    AddHomework(OnToday, "01 : 00");
    ExpectNoStudyAlert();
}

TEST_F(StudyTimeAlerts, StopAtTheFirstStepThatFails) {
    AddHomework(OnToday, "00 : 10");
    AddHomework(Tomorrow, "00 : 20");
    AddHomework(DayAfterTomorrow, "00 : 40");
    ExpectStudyAlert("today", "10 minutes", "today");
    AddStudy(OnToday, "10 Minutes");
    ExpectStudyAlert("tomorrow", "20 minutes", "today");
    AddStudy(OnToday, "20 Minutes");
    ExpectStudyAlert("Friday, Oct 16", "40 minutes", "before then");
    AddStudy(Tomorrow, "40 Minutes");
    ExpectNoStudyAlert();
}

TEST_F(StudyTimeAlerts, CarryWhatIsLeftOverToLaterDays) {
    AddStudy(OnToday, "3 Hours");
    AddHomework(OnToday, "01 : 00");
    AddHomework("2009/10/20", "02 : 00");
    ExpectNoStudyAlert();
    AddHomework("2009/10/21", "00 : 02");
    ExpectStudyAlert("Wednesday, Oct 21", "2 minutes", "before then");
}

TEST_F(StudyTimeAlerts, KeepTheirMessageUntilTheNextOneFires) {
    AddHomework(OnToday, "01 : 30");
    StudyTimeAlertCheck();
    AddStudy(OnToday, "2 Hours");
    ExpectNoStudyAlert();
    EXPECT_EQ(AlertWhen.utf8, "today");
    EXPECT_EQ(AlertAmount, "1 hour and 30 minutes");
    EXPECT_EQ(AlertBefore, "today");
}

TEST_F(StudyTimeAlerts, GoByTheDayOfTheCheck) {
    AddHomework(Tomorrow, "00 : 00");
    SetClock(2009, 10, 15, 0, 1);
    EXPECT_EQ(StudyTimeAlertCheck(), (AlertsShown{false, false, true, false}));
    SetClock(2009, 10, 16, 0, 1);
    EXPECT_EQ(StudyTimeAlertCheck(), (AlertsShown{false, false, false, true}));
}

struct Shortage {
    const char* timeLeft;
    const char* amount;
};

class AlertAmounts : public StudyTimeAlerts, public testing::WithParamInterface<Shortage> {};

TEST_P(AlertAmounts, TellHoursAndMinutes) {
    AddHomework(OnToday, GetParam().timeLeft);
    ExpectStudyAlert("today", GetParam().amount, "today");
}

INSTANTIATE_TEST_SUITE_P(Shortages, AlertAmounts,
                         testing::Values(Shortage{"00 : 01", "1 minute"}, Shortage{"00 : 45", "45 minutes"},
                                         Shortage{"01 : 00", "1 hour"},
                                         Shortage{"01 : 01", "1 hour and 1 minute"},
                                         Shortage{"01 : 45", "1 hour and 45 minutes"},
                                         Shortage{"02 : 00", "2 hours"},
                                         Shortage{"20 : 01", "20 hours and 1 minute"}),
                         [](const auto& each) { return CaseName(each.param.amount); });

TEST_F(StudyTimeAlerts, EndInTheRunTimeErrorAtATimeLeftThatIsNone) {
    AddHomework(OnToday, "soon");
    EXPECT_THROW(StudyTimeAlertCheck(), RunTimeError);
}

TEST_F(StudyTimeAlerts, DoNotReadTheTimeLeftOfLateOrFinishedHomework) {
    AddHomework(Yesterday, "soon");
    AddAssignmentRecord({.date = "never", .time_left = "soon", .done = "True"});
    EXPECT_EQ(StudyTimeAlertCheck(), (AlertsShown{false, false, false, true}));
}

TEST_F(StudyTimeAlerts, EndInTheRunTimeErrorAtAStudyDurationThatIsNone) {
    AddHomework(Tomorrow, "00 : 30");
    AddStudy(Tomorrow, "soon");
    EXPECT_THROW(StudyTimeAlertCheck(), RunTimeError);
}

TEST_F(StudyTimeAlerts, OverflowAboveSixteenBitsOfHomeworkOnOneDay) {
    for (int i = 0; i < 5; ++i) {
        AddHomework(OnToday, "99 : 99"); // 6039 minutes
    }
    AddHomework(OnToday, "42 : 52");
    EXPECT_TRUE(StudyTimeAlertCheck()[StudyTimeAlert]);
    EXPECT_EQ(AlertNeed.Item(1), 32767);
    AddHomework(OnToday, "00 : 01");
    EXPECT_THROW(StudyTimeAlertCheck(), RunTimeError);
}

TEST_F(StudyTimeAlerts, OverflowAboveSixteenBitsOfStudyOnOneDay) {
    AddHomework(Tomorrow, "00 : 30");
    AddStudy(Tomorrow, "32767 Minutes");
    EXPECT_NO_THROW(StudyTimeAlertCheck());
    AddStudy(Tomorrow, "1 Minutes");
    EXPECT_THROW(StudyTimeAlertCheck(), RunTimeError);
}

TEST_F(StudyTimeAlerts, DoNotOverflowInSumsOverManyDays) {
    AddEventRecord({.date = OnToday,
                    .time = "04:00 PM",
                    .duration = "32767 Minutes",
                    .type = "Study Time",
                    .recurrence = "Day",
                    .repeat_daily = "TTTTTTT"});
    SetClock(2009, 10, 14, 9, 0); // the session of today ends at 10:07 AM of some later day
    AddHomework("3100/12/31", "00 : 30");
    ExpectNoStudyAlert();
    EXPECT_EQ(AlertStudy.Item(AlertStudy.Count()), 32767);
}

// At the last second of the day a second look at the clock would find the session of the evening still to
// come.
TEST_F(StudyTimeAlerts, LookAtTheClockOnce) {
    SetClock(2009, 10, 14, 23, 59, 59);
    Script.lookTakes = 1s;
    AddHomework(OnToday, "00 : 30");
    AddStudy(OnToday, "30 Minutes", "11:00 PM");
    EXPECT_TRUE(StudyTimeAlertCheck()[StudyTimeAlert]);
    EXPECT_EQ(Script.now, Moment{Date{2009y / 10 / 15}});
}
