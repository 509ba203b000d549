// What stands in the days of a month's page, byte for byte.
#include "export/CalendarDays.h"
#include "core/RowLists.h"
#include "core/RunTimeError.h"
#include "planner/lists/TaskSelection.h"
#include "support/EventRecords.h"
#include "support/ScriptedPlatform.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

using Texts = std::vector<std::string>;

constexpr Date FirstCell{2009y / 9 / 28};
constexpr std::size_t Fourteenth = 16; // the cell of 2009-10-14

class DaysOf : public testing::Test {
protected:
    void SetUp() override {
        ResetScript();
        ResetStore();
        AddClassRecord({.name = "Introduction to Algebra"});
    }

    void TearDown() override { ResetStore(); }

    static Texts Homework() { return HomeworkDays(FirstCell)[Fourteenth].lines; }

    static Texts Tasks() { return TaskDays(FirstCell)[Fourteenth].lines; }

    static Texts Events() { return EventDays(FirstCell)[Fourteenth].lines; }
};

int Lines(const MonthDays& days) {
    std::size_t lines = 0;
    for (const CalendarDay& day : days) {
        lines += day.lines.size();
    }
    return static_cast<int>(lines);
}

TEST(PageClock, DropsOneLeadingZero) {
    EXPECT_EQ(PageClock(0), "0:00");
    EXPECT_EQ(PageClock(45), "0:45");
    EXPECT_EQ(PageClock(90), "1:30");
    EXPECT_EQ(PageClock(12 * 60 + 5), "12:05");
    EXPECT_EQ(PageClock(100 * 60 + 15), "100:15");
}

// --- Homework ------------------------------------------------------------------------------------

TEST_F(DaysOf, HomeworkHaveTheirTimeAndALinkOfTheClassCutTo14Characters) {
    AddAssignmentRecord({.desc = "Set 1", .time_left = "01 : 30"});
    EXPECT_EQ(Homework(), Texts{"&nbsp;1:30&nbsp;<a title=\"Reading: Set 1 (1:30 Study Time Left)\" "
                                "href=\"#top\">Introduction t</a>"});
}

TEST_F(DaysOf, DoneHomeworkStandBehindAllOthersWithoutATime) {
    AddAssignmentRecord({.desc = "A", .time_left = "rubbish", .done = "True"});
    AddAssignmentRecord({.desc = "B", .time_left = "00 : 45"});
    EXPECT_EQ(Homework(),
              (Texts{"&nbsp;0:45&nbsp;<a title=\"Reading: B (0:45 Study Time Left)\" href=\"#top\">"
                     "Introduction t</a>",
                     "&nbsp;<font color=\"Silver\">0:00</font>&nbsp;<a title=\"Reading: A (Done)\" "
                     "href=\"#top\">Introduction t</a>"}));
}

TEST_F(DaysOf, HomeworkOfAClassThatHasGoneHaveAnEmptyName) {
    AddClassRecord({.id = "2", .name = "DELETED RECORD"});
    AddAssignmentRecord({.class_ = "2", .desc = ""});
    AddAssignmentRecord({.class_ = "3", .desc = "", .type = ""});
    EXPECT_EQ(Homework(),
              (Texts{"&nbsp;1:00&nbsp;<a title=\"Reading:  (1:00 Study Time Left)\" href=\"#top\"></a>",
                     "&nbsp;1:00&nbsp;<a title=\":  (1:00 Study Time Left)\" href=\"#top\"></a>"}));
}

TEST_F(DaysOf, HomeworkAreCountedPastTheTwentiethLine) {
    for (int n = 0; n < 25; ++n) {
        AddAssignmentRecord({.desc = std::to_string(n), .time_left = "10 : 01"});
    }
    AddAssignmentRecord({.done = "True"});
    const CalendarDay day = HomeworkDays(FirstCell)[Fourteenth];
    ASSERT_EQ(day.lines.size(), 20U);
    EXPECT_NE(day.lines[19].find("Reading: 19 "), std::string::npos);
    EXPECT_EQ(day.minutesLeft, 25 * 601);
    EXPECT_TRUE(day.workLeft);
}

TEST_F(DaysOf, HomeworkWithoutTimeLeftLeavesNoWork) {
    AddAssignmentRecord({.time_left = "00 : 00"});
    AddAssignmentRecord({.time_left = "02 : 00", .done = "True"});
    const CalendarDay day = HomeworkDays(FirstCell)[Fourteenth];
    EXPECT_EQ(day.lines.size(), 2U);
    EXPECT_FALSE(day.workLeft);
}

TEST_F(DaysOf, HomeworkThatAreDeletedHaveNoDateOrFallOutsideStandNowhere) {
    AddAssignmentRecord({.desc = "DELETED RECORD"});
    AddAssignmentRecord({.desc = "DELETED RECORD", .done = "True"});
    AddAssignmentRecord({.date = "someday", .time_left = "x", .done = "x"});
    AddAssignmentRecord({.date = "//"});
    AddAssignmentRecord({.date = "2009/09/27"});
    AddAssignmentRecord({.date = "2009/11/09"});
    EXPECT_EQ(Lines(HomeworkDays(FirstCell)), 0);
    AddAssignmentRecord({.date = "2009/09/28"});
    AddAssignmentRecord({.date = "2009/11/08"});
    const MonthDays days = HomeworkDays(FirstCell);
    EXPECT_EQ(days.front().lines.size(), 1U);
    EXPECT_EQ(days.back().lines.size(), 1U);
}

TEST_F(DaysOf, ABadTextOfADayRaisesTheError) {
    AddAssignmentRecord({.time_left = "rubbish"});
    EXPECT_THROW(Homework(), RunTimeError);
    AddTaskRecord({.done = "perhaps"});
    EXPECT_THROW(Tasks(), RunTimeError);
    AddEventRecord({.recurrence = "Day", .repeat_daily = ""});
    Store.EventRecord.exceptions.Replace(1, "rubbish");
    EXPECT_THROW(Events(), RunTimeError);
}

// --- Tasks ---------------------------------------------------------------------------------------

TEST_F(DaysOf, TasksHaveAllTheirTextsInTheTipAndALinkCutTo20Characters) {
    AddTaskRecord({.desc = "Bring the book back to the library",
                   .type = "School",
                   .priority = "High",
                   .percent_complete = "50%"});
    EXPECT_EQ(Tasks(), Texts{"&nbsp;<a title=\"School: Bring the book back to the library - High Priority - "
                             "50% Complete\" href=\"#top\">Bring the book back </a>"});
}

TEST_F(DaysOf, TasksThatAreDoneSayItInPlaceOfThePercentage) {
    TypeTable.customname.Replace(TypeRow("Task", "School"), "College");
    AddTaskRecord({.desc = "Shop", .type = "School", .percent_complete = "100%", .done = "True"});
    EXPECT_EQ(Tasks(), Texts{"&nbsp;<a title=\"College: Shop - Done\" href=\"#top\">Shop</a>"});
}

TEST_F(DaysOf, TasksWithoutATypeOrOfAnUnknownOneHaveNeitherTypeNorColon) {
    AddTaskRecord({.desc = "Shop"});
    AddTaskRecord({.desc = "", .type = "Gone"});
    EXPECT_EQ(Tasks(), (Texts{"&nbsp;<a title=\"Shop - 0% Complete\" href=\"#top\">Shop</a>",
                              "&nbsp;<a title=\"New Task - 0% Complete\" href=\"#top\">New Task</a>"}));
}

TEST_F(DaysOf, TasksStandInTheOrderOfTheStoreDoneOrNot) {
    AddTaskRecord({.desc = "A", .done = "True"});
    AddTaskRecord({.desc = "B"});
    AddTaskRecord({.desc = "C", .done = "True"});
    EXPECT_EQ(Tasks(), (Texts{"&nbsp;<a title=\"A - Done\" href=\"#top\">A</a>",
                              "&nbsp;<a title=\"B - 0% Complete\" href=\"#top\">B</a>",
                              "&nbsp;<a title=\"C - Done\" href=\"#top\">C</a>"}));
}

TEST_F(DaysOf, TasksLeaveWorkWhereOneIsNotDoneAlsoPastTheTwentiethLine) {
    for (int n = 0; n < 20; ++n) {
        AddTaskRecord({.done = "True"});
    }
    EXPECT_FALSE(TaskDays(FirstCell)[Fourteenth].workLeft);
    AddTaskRecord({});
    const CalendarDay day = TaskDays(FirstCell)[Fourteenth];
    EXPECT_TRUE(day.workLeft);
    EXPECT_EQ(day.lines.size(), 20U);
    AddTaskRecord({.done = "True"});
    EXPECT_TRUE(TaskDays(FirstCell)[Fourteenth].workLeft);
}

TEST_F(DaysOf, TasksThatAreDeletedHaveNoDeadlineOrNoDateStandNowhere) {
    AddTaskRecord({.desc = "DELETED RECORD"});
    AddTaskRecord({.desc = "DELETED RECORD", .done = "True"});
    AddTaskRecord({.date_exists = "False"});
    AddTaskRecord({.date = "never"});
    EXPECT_EQ(Lines(TaskDays(FirstCell)), 0);
}

TEST_F(DaysOf, TasksNeitherTouchTheRowsNorTheCounters) {
    AddTaskRecord({});
    TaskRows.Add(77);
    TaskCount = 5;
    Tasks();
    EXPECT_EQ(TaskRows.values, std::vector<int>{77});
    EXPECT_EQ(TaskCount, 5);
}

// --- Events --------------------------------------------------------------------------------------

TEST_F(DaysOf, EventsHaveTheirTimeWithoutBlanksAndALinkCutTo9Characters) {
    AddEventRecord({.time = "9:05 am", .desc = "Chamber choir", .type = "Study Time"});
    EXPECT_EQ(Events(), Texts{"&nbsp;09:05AM <a title=\"09:05AM Study Time - Chamber choir\" "
                              "href=\"#top\">Chamber c</a>"});
}

TEST_F(DaysOf, EventsWithoutATimeATypeOrADescription) {
    AddEventRecord({.time = "None", .desc = "Choir"});
    AddEventRecord({.time = "", .desc = "", .type = "Birthday"});
    AddEventRecord({.time = "noon", .desc = ""});
    EXPECT_EQ(Events(), (Texts{"&nbsp;<a title=\"Choir\" href=\"#top\">Choir</a>",
                               "&nbsp;<a title=\"Birthday\" href=\"#top\">Birthday</a>",
                               "&nbsp;<a title=\"New Event\" href=\"#top\">New Event</a>"}));
}

TEST_F(DaysOf, EventsAreOfAllTypesAndMeetingsOfTheActiveTermAlone) {
    ActiveTermID = 1;
    AddClassRecord({.id = "2", .term = "2", .name = "Biology"});
    AddEventRecord({.desc = "", .type = "TermID1-ClassID1"});
    AddEventRecord({.desc = "", .type = "TermID2-ClassID2"});
    AddEventRecord({.desc = "", .type = "Class"});
    EXPECT_EQ(Events(),
              (Texts{"&nbsp;09:00AM <a title=\"09:00AM Introduction to Algebra\" href=\"#top\">Introduct</a>",
                     "&nbsp;09:00AM <a title=\"09:00AM Class\" href=\"#top\">Class</a>"}));
}

TEST_F(DaysOf, EventsThatRepeatStandOnEachOfTheirDaysButThoseGivenUp) {
    AddEventRecord({.date = "2009/10/12",
                    .recurrence = "Day",
                    .exceptions = "2009/10/14 2009/10/16",
                    .repeat_daily = "TTTTTTT"});
    const MonthDays days = EventDays(FirstCell);
    EXPECT_EQ(Lines(days), 28 - 2);
    EXPECT_TRUE(days[Fourteenth].lines.empty());
    EXPECT_EQ(days[Fourteenth - 2].lines.size(), 1U);
    EXPECT_EQ(days[41].lines.size(), 1U);
}

TEST_F(DaysOf, EventsStandInTheOrderOfTheStoreAndTwentyAtMost) {
    for (int n = 0; n < 22; ++n) {
        AddEventRecord({.time = "None", .desc = std::to_string(30 - n)});
    }
    const Texts lines = Events();
    ASSERT_EQ(lines.size(), 20U);
    EXPECT_EQ(lines[0], "&nbsp;<a title=\"30\" href=\"#top\">30</a>");
    EXPECT_EQ(lines[19], "&nbsp;<a title=\"11\" href=\"#top\">11</a>");
}

TEST_F(DaysOf, EventsThatAreDeletedOrHaveNoDateStandNowhere) {
    AddEventRecord({.desc = "DELETED RECORD"});
    AddEventRecord({.date = "someday"});
    AddEventRecord({.date = "", .recurrence = "Day", .exceptions = "rubbish"});
    EXPECT_EQ(Lines(EventDays(FirstCell)), 0);
}

} // namespace
