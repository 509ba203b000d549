// The panel "Study Time Today".
#include "planner/study/StudyTimeToday.h"
#include "core/DateText.h"
#include "core/RunTimeError.h"
#include "planner/dates/DateHelpers.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

using namespace std::chrono_literals;

namespace {

constexpr Date Today14{2009y / 10 / 14};
constexpr int White = 0xFFFFFF;
constexpr int NotDone = 0xE5E5FF;

class StudyToday : public testing::Test {
protected:
    void SetUp() override { ResetStore(); }

    void TearDown() override { ResetStore(); }
};

int AddHomework(const std::string& date, const std::string& estimate) {
    return AddAssignmentRecord({.date = date, .est_time = estimate, .time_left = "99 : 00"});
}

void AddLogEntry(const std::string& assignment, const std::string& time) {
    Store.StudySessionRecord.id.Add("1");
    Store.StudySessionRecord.assignment.Add(assignment);
    Store.StudySessionRecord.time.Add(time);
    Store.StudySessionRecord.date.Add("2009/10/13");
}

void ExpectBoxes(const BoxText& minimum, const BoxText& suggested) {
    const StudyTimeBoxes boxes = StudyTimeToday(Today14);
    EXPECT_EQ(boxes.TextBoxMinimum.text, minimum.text);
    EXPECT_EQ(boxes.TextBoxMinimum.backcolor, minimum.backcolor);
    EXPECT_EQ(boxes.TextBoxSuggested.text, suggested.text);
    EXPECT_EQ(boxes.TextBoxSuggested.backcolor, suggested.backcolor);
}

} // namespace

TEST_F(StudyToday, IsNothingAndWhiteWithoutUnfinishedHomework) {
    AddAssignmentRecord({.date = "2009/10/14", .done = "True"});
    AddAssignmentRecord({.date = "2009/10/14", .desc = "DELETED RECORD"});
    ExpectBoxes({"00:00", White}, {"00:00", White});
}

TEST_F(StudyToday, HasLateHomeworkInItsMinimum) {
    AddHomework("2009/10/01", "00 : 30");
    AddHomework("2009/10/14", "00 : 20");
    AddHomework("2009/10/15", "00 : 10");
    ExpectBoxes({"01:00", NotDone}, {"01:00", White});
}

TEST_F(StudyToday, SpreadsLaterHomeworkOverTheDaysLeft) {
    AddHomework("2009/10/17", "05 : 00");
    ExpectBoxes({"00:00", White}, {"01:40", NotDone});
}

TEST_F(StudyToday, SuggestsTheGreatestRateOfAllDueDates) {
    AddHomework("2009/10/15", "00 : 30");
    AddHomework("2009/10/16", "02 : 00"); // 150 minutes in two days
    AddHomework("2009/10/24", "02 : 00"); // 270 in ten
    ExpectBoxes({"00:30", White}, {"01:15", NotDone});
}

TEST_F(StudyToday, CutsTheRateToWholeMinutes) {
    AddHomework("2009/10/17", "00 : 59");
    ExpectBoxes({"00:00", White}, {"00:19", NotDone});
    Store.Assignment.est_time.Replace(1, "00 : 02");
    ExpectBoxes({"00:00", White}, {"00:00", White});
}

TEST_F(StudyToday, MarksTheMinimumWhereNothingMoreIsSuggested) {
    AddHomework("2009/10/15", "02 : 00");
    AddHomework("2009/10/16", "00 : 30");
    ExpectBoxes({"02:00", NotDone}, {"02:00", White});
}

TEST_F(StudyToday, MarksASuggestionOneMinuteAboveTheMinimum) {
    AddHomework("2009/10/15", "01 : 00");
    AddHomework("2009/10/16", "01 : 01"); // 121 minutes in two days
    ExpectBoxes({"01:00", NotDone}, {"01:00", White});
    Store.Assignment.est_time.Replace(2, "01 : 02");
    ExpectBoxes({"01:00", White}, {"01:01", NotDone});
}

TEST_F(StudyToday, ReadsTheEstimateAndNotTheTimeLeft) {
    AddAssignmentRecord({.date = "2009/10/14", .est_time = "00 : 40", .time_left = "bad"});
    ExpectBoxes({"00:40", NotDone}, {"00:40", White});
}

TEST_F(StudyToday, TakesLoggedStudyOffTheEstimateDownToNothing) {
    const int first = AddHomework("2009/10/14", "01 : 00");
    AddHomework("2009/10/14", "00 : 30");
    AddLogEntry(Store.Assignment.id.Item(first), "00 : 20");
    AddLogEntry(Store.Assignment.id.Item(first), "00 : 15");
    AddLogEntry("-1", "05 : 00");
    AddLogEntry("99", "05 : 00");
    ExpectBoxes({"00:55", NotDone}, {"00:55", White});
    AddLogEntry(Store.Assignment.id.Item(first), "09 : 00");
    ExpectBoxes({"00:30", NotDone}, {"00:30", White});
}

TEST_F(StudyToday, GoesByTheDayThatIsAsked) {
    AddHomework("2009/10/17", "05 : 00");
    EXPECT_EQ(StudyTimeToday(Date{2009y / 10 / 15}).TextBoxSuggested.text, "02:30");
    EXPECT_EQ(StudyTimeToday(Date{2009y / 10 / 16}).TextBoxMinimum.text, "05:00");
    EXPECT_EQ(StudyTimeToday(Date{2009y / 11 / 1}).TextBoxMinimum.text, "05:00");
}

TEST_F(StudyToday, IsQuickAboutAFarDueDate) {
    AddHomework("3100/12/31", "99 : 00");
    ExpectBoxes({"00:00", White}, {"00:00", White});
}

TEST_F(StudyToday, EndsInTheRunTimeErrorAtAnEstimateThatIsNone) {
    AddHomework("2009/10/14", "long");
    EXPECT_THROW(StudyTimeToday(Today14), RunTimeError);
}

// The rates asked on every day.
TEST_F(StudyToday, AgreesWithTheRatesOfAllDays) {
    EXPECT_TRUE(rc::check([] {
        ResetStore();
        const auto work = *rc::gen::container<std::vector<std::pair<int, int>>>(
            rc::gen::pair(rc::gen::inRange(-20, 60), rc::gen::inRange(0, 1200)));
        for (const auto& [ahead, minutes] : work) {
            AddHomework(StoredDate(Today14 + std::chrono::days{ahead}), MinutesToClock(minutes));
        }
        const auto sumWithin = [&work](int days) {
            int sum = 0;
            for (const auto& [ahead, minutes] : work) {
                sum += ahead <= days ? minutes : 0;
            }
            return sum;
        };
        int suggested = 0;
        for (int days = 1; days <= 60; ++days) {
            suggested = std::max(suggested, sumWithin(days) / days);
        }
        const StudyTimeBoxes boxes = StudyTimeToday(Today14);
        RC_ASSERT(boxes.TextBoxMinimum.text == MinutesToClock(sumWithin(1)));
        RC_ASSERT(boxes.TextBoxSuggested.text == MinutesToClock(suggested));
    }));
}
