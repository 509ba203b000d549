// The counters beside the lists.
#include "planner/lists/DayTotals.h"
#include "core/RunTimeError.h"
#include "planner/recurrence/EventOccursOn.h"
#include "support/CaseName.h"
#include "support/EventRecords.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

constexpr Date Wednesday{2009y / 10 / 14};
constexpr int White = 0xFFFFFF;
constexpr int DoneFill = 0xE2F7E1;
constexpr int NotDoneFill = 0xE5E5FF;

class DayTotals : public testing::Test {
protected:
    void SetUp() override {
        ResetStore();
        ActiveTermID = 4;
    }

    void TearDown() override { ResetStore(); }
};

void ExpectHomework(const BoxText& total, const BoxText& left, const BoxText& time) {
    const HomeworkDayBoxes boxes = HomeworkDayTotals(Wednesday);
    EXPECT_EQ(boxes.TextBoxTotalAssignments, total) << boxes.TextBoxTotalAssignments.text;
    EXPECT_EQ(boxes.TextBoxFinishedAssignments, left) << boxes.TextBoxFinishedAssignments.text;
    EXPECT_EQ(boxes.TextBoxTimeRemaining, time) << boxes.TextBoxTimeRemaining.text;
}

void ExpectEvents(const std::string& study, const std::string& classes, const std::string& others) {
    const EventDayBoxes boxes = EventDayTotals(EventsOn(Wednesday));
    EXPECT_EQ(boxes.TextBoxSchedStudy, (BoxText{study, White})) << boxes.TextBoxSchedStudy.text;
    EXPECT_EQ(boxes.TextBoxClasses, (BoxText{classes, White})) << boxes.TextBoxClasses.text;
    EXPECT_EQ(boxes.TextBoxOtherEvents, (BoxText{others, White})) << boxes.TextBoxOtherEvents.text;
}

void AddStudy(const std::string& duration) {
    AddEventRecord({.duration = duration, .type = "Study Time"});
}

} // namespace

TEST_F(DayTotals, OfADayWithoutHomeworkAreWhite) {
    AddAssignmentRecord({.date = "2009/10/15"});
    ExpectHomework({"0", White}, {"0", White}, {"00:00", White});
}

TEST_F(DayTotals, OfFinishedHomeworkTakeTheDoneFill) {
    AddAssignmentRecord({.date = "2009/10/14", .done = "True"});
    ExpectHomework({"1", White}, {"0", DoneFill}, {"00:00", DoneFill});
}

TEST_F(DayTotals, OfOpenHomeworkTakeTheNotDoneFill) {
    AddAssignmentRecord({.date = "2009/10/14", .done = "True"});
    AddAssignmentRecord({.date = "2009/10/14", .est_time = "09 : 00", .time_left = "01 : 45"});
    AddAssignmentRecord({.date = "2009/10/14", .time_left = "02 : 30"});
    ExpectHomework({"3", White}, {"2", NotDoneFill}, {"04:15", NotDoneFill});
}

TEST_F(DayTotals, LeaveDeletedAssignmentsOut) {
    AddAssignmentRecord({.date = "2009/10/14", .desc = "DELETED RECORD"});
    ExpectHomework({"0", White}, {"0", White}, {"00:00", White});
}

TEST_F(DayTotals, LoseTheHundredsOfHours) {
    for (int i = 0; i < 6; ++i) {
        AddAssignmentRecord({.date = "2009/10/14", .time_left = "20 : 00"});
    }
    ExpectHomework({"6", White}, {"6", NotDoneFill}, {"20:00", NotDoneFill});
}

TEST_F(DayTotals, EndInTheRunTimeErrorAtATimeLeftThatIsNone) {
    AddAssignmentRecord({.date = "2009/10/14", .time_left = "long"});
    EXPECT_THROW(HomeworkDayTotals(Wednesday), RunTimeError);
}

TEST_F(DayTotals, AddStudyInHoursAndMinutesAsTheyAreSpelt) {
    AddStudy("1.5 Hours");
    AddStudy("45 Minutes");
    ExpectEvents("02:15", "0", "0");
}

struct Unit {
    const char* duration;
    const char* shown;
};

class StudyUnits : public DayTotals, public testing::WithParamInterface<Unit> {};

TEST_P(StudyUnits, CountOnlyAsWholeWords) {
    AddStudy(GetParam().duration);
    ExpectEvents(GetParam().shown, "0", "0");
}

INSTANTIATE_TEST_SUITE_P(Durations, StudyUnits,
                         testing::Values(Unit{"2 Hours", "02:00"}, Unit{"1 Hour", "00:00"},
                                         Unit{"1 Day", "00:00"}, Unit{"3 Days", "00:00"},
                                         Unit{"1 Minute", "00:00"}, Unit{"2 hours", "00:00"},
                                         Unit{"20", "00:00"}, Unit{"30 Minutes", "00:30"},
                                         Unit{"2.5 Minutes", "00:02"}, Unit{"3.5 Minutes", "00:04"}),
                         [](const auto& each) { return CaseName(each.param.duration); });

TEST_F(DayTotals, CountTheMeetingsOfTheActiveTermsClasses) {
    AddClassRecord({.id = "10", .term = "4"});
    AddEventRecord({.type = "TermID4-ClassID10"});
    AddEventRecord({.type = "TermID4-ClassID10"});
    ExpectEvents("00:00", "2", "0");
}

TEST_F(DayTotals, TakeMeetingsOfOtherTermsAndOfNoClassAsOtherEvents) {
    AddClassRecord({.id = "10", .term = "4"});
    AddClassRecord({.id = "11", .term = "4", .name = "DELETED RECORD"});
    AddEventRecord({.type = "TermID5-ClassID10"});
    AddEventRecord({.type = "TermID4-ClassID99"});
    AddEventRecord({.type = "TermID4-ClassID11"});
    AddEventRecord({.type = "TermID4-ClassID10-2"});
    ExpectEvents("00:00", "0", "4");
}

TEST_F(DayTotals, CountEveryClassOfTheIdInTheLink) {
    AddClassRecord({.id = "10", .term = "4"});
    AddClassRecord({.id = "10", .term = "5"});
    AddEventRecord({.type = "TermID4-ClassID10"});
    ExpectEvents("00:00", "2", "0");
}

TEST_F(DayTotals, CountNoMeetingWithoutAnActiveTerm) {
    ActiveTermID = 0;
    AddClassRecord({.id = "10", .term = "0"});
    AddEventRecord({.type = "TermID0-ClassID10"});
    ExpectEvents("00:00", "0", "1");
}

TEST_F(DayTotals, CountOtherEventsOfTheDayAlone) {
    AddEventRecord({.type = "Class"});
    AddEventRecord({.type = "None"});
    AddEventRecord(
        {.date = "2009/10/12", .type = "Birthday", .recurrence = "Day", .repeat_daily = "FFTFFFF"});
    AddEventRecord({.date = "2009/10/13", .type = "Birthday"});
    AddEventRecord({.desc = "DELETED RECORD"});
    ExpectEvents("00:00", "0", "3");
}

TEST_F(DayTotals, EndInTheRunTimeErrorAtADurationInHoursOfNoNumber) {
    AddStudy("many Hours");
    EXPECT_THROW(EventDayTotals(EventsOn(Wednesday)), RunTimeError);
}
