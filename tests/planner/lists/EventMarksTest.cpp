// The events of a month's 42 day cells.
#include "planner/lists/EventMarks.h"
#include "core/RunTimeError.h"
#include "planner/recurrence/EventOccursOn.h"
#include "support/EventRecords.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

constexpr Date FirstCell{2009y / 9 / 27}; // of October 2009 in a week from Sunday

class Marks : public testing::Test {
protected:
    void SetUp() override { ResetStore(); }

    void TearDown() override { ResetStore(); }
};

EventMarks MarksIn(std::string_view comboList) {
    ListFilter filter;
    filter.comboList = comboList;
    return MarkEventDays(FirstCell, filter);
}

// The cells that hold an event, of the one event given.
std::vector<int> CellsOf(const EventTexts& event) {
    Store.EventRecord = {};
    AddEventRecord(event);
    const EventMarks marks = MarksIn("All");
    std::vector<int> cells;
    for (int cell = 0; cell < MonthCells; ++cell) {
        const auto i = static_cast<std::size_t>(cell);
        EXPECT_EQ(marks.marked[i], marks.count[i] == 1);
        if (marks.marked[i]) {
            cells.push_back(cell);
        }
    }
    return cells;
}

using Cells = std::vector<int>;

void AddClass(const std::string& id, const std::string& term, const std::string& name) {
    AddClassRecord({.id = id, .term = term, .name = name});
}

} // namespace

TEST_F(Marks, OfASingleEventAreInTheCellOfItsDate) {
    EXPECT_EQ(CellsOf({.date = "2009/09/26"}), Cells{});
    EXPECT_EQ(CellsOf({.date = "2009/09/27"}), Cells{0});
    EXPECT_EQ(CellsOf({.date = "2009/10/14"}), Cells{17});
    EXPECT_EQ(CellsOf({.date = "2009/11/07"}), Cells{41});
    EXPECT_EQ(CellsOf({.date = "2009/11/08"}), Cells{});
}

TEST_F(Marks, OfASingleEventDoNotAskItsExceptions) {
    EXPECT_EQ(CellsOf({.exceptions = "2009/10/14"}), Cells{17});
}

TEST_F(Marks, OfADeletedEventAreNone) {
    EXPECT_EQ(CellsOf({.date = "never", .desc = "DELETED RECORD"}), Cells{});
    EXPECT_EQ(CellsOf({.desc = "DELETED RECORD", .recurrence = "Day", .repeat_daily = "TTTTTTT"}), Cells{});
}

TEST_F(Marks, OfASeriesAreWhereItOccurs) {
    EXPECT_EQ(CellsOf({.date = "2009/10/16", .recurrence = "Day", .repeat_daily = "TFTFFFF"}),
              (Cells{19, 22, 24, 29, 31, 36, 38}));
    EXPECT_EQ(CellsOf({.date = "2009/01/31", .recurrence = "Month", .same_date = "True"}), (Cells{3, 34}));
}

TEST_F(Marks, LeaveOutADateThatTheSeriesHasGivenUp) {
    EXPECT_EQ(CellsOf({.recurrence = "Day",
                       .exceptions = "2009/10/14 2009/10/21",
                       .repeat_daily = "FFTFFFF",
                       .end = "True",
                       .end_date = "2009/11/04"}),
              (Cells{31, 38}));
}

TEST_F(Marks, OfASeriesThatFillsTheMonthAreInAllCells) {
    EXPECT_EQ(CellsOf({.date = "2009/01/01", .recurrence = "Day", .repeat_daily = "TTTTTTT"}).size(), 42U);
}

TEST_F(Marks, CountTheEventsOfADay) {
    AddEventRecord({});
    AddEventRecord({.recurrence = "Day", .repeat_daily = "TTTTTTT"});
    AddEventRecord({.date = "2009/10/15"});
    const EventMarks marks = MarksIn("All");
    EXPECT_EQ(marks.count[16], 0);
    EXPECT_EQ(marks.count[17], 2);
    EXPECT_EQ(marks.count[18], 2);
    EXPECT_EQ(marks.count[19], 1);
}

TEST_F(Marks, KeepToTheEventsThatTheViewMenuTakes) {
    AddEventRecord({.type = "Class"});
    AddEventRecord({.date = "2009/10/15", .type = "Study Time"});
    const EventMarks classes = MarksIn("Classes");
    EXPECT_TRUE(classes.marked[17]);
    EXPECT_FALSE(classes.marked[18]);
    EXPECT_EQ(classes.count[18], 1);
    const EventMarks others = MarksIn("Other Events");
    EXPECT_FALSE(others.marked[17]);
    EXPECT_TRUE(others.marked[18]);
}

TEST_F(Marks, InCalendarModeAreThoseOfAllEvents) {
    AddEventRecord({.type = "Study Time"});
    ListFilter filter;
    filter.comboList = "Classes";
    filter.calendarMode = true;
    EXPECT_TRUE(MarkEventDays(FirstCell, filter).marked[17]);
}

TEST_F(Marks, StayWhenATakenEventIsFollowedByOneThatIsNot) {
    AddEventRecord({.type = "Class"});
    AddEventRecord({.type = "None"});
    EXPECT_TRUE(MarksIn("Classes").marked[17]);
    EXPECT_EQ(MarksIn("Classes").count[17], 2);
}

TEST_F(Marks, KeepClassMeetingsToTheActiveTerm) {
    AddClass("10", "4", "Chemistry");
    AddClass("12", "5", "Algebra");
    ActiveTermID = 4;
    AddEventRecord({.type = "TermID4-ClassID10"});
    AddEventRecord({.date = "2009/10/15", .type = "TermID5-ClassID12"});
    AddEventRecord({.date = "2009/10/16", .type = "TermID4-ClassID99"});
    const EventMarks marks = MarksIn("All");
    EXPECT_EQ(marks.count[17], 1);
    EXPECT_EQ(marks.count[18], 0);
    EXPECT_EQ(marks.count[19], 0);
    EXPECT_FALSE(marks.marked[18]);
}

TEST_F(Marks, RaiseTheErrorAtABadTextThatADayReads) {
    EXPECT_THROW(CellsOf({.date = "never"}), RunTimeError);
    EventTexts series{.date = "2009/11/07", .recurrence = "Day", .end = "True", .end_date = "//"};
    EXPECT_EQ(CellsOf(series), Cells{41});
    series.date = "2009/11/06";
    EXPECT_THROW(CellsOf(series), RunTimeError);
    series.exceptions = "2009/11/07"; // no cell is left that would ask for the end
    EXPECT_EQ(CellsOf(series), Cells{40});
    series.exceptions = "2009/11/07 soon";
    EXPECT_THROW(CellsOf(series), RunTimeError);
}

TEST_F(Marks, OfARowOfOneToSixtyFourDaysAreTheAnswersDayByDay) {
    const int index = AddEventRecord({.date = "2009/01/29",
                                      .recurrence = "Month",
                                      .exceptions = "2009/03/29",
                                      .same_date = "True",
                                      .end = "True",
                                      .end_date = "2009/04/29"});
    std::vector<DayFacts> row;
    for (int day = 0; day < GreatestDayBits; ++day) {
        row.push_back(FactsOf(Date{2009y / 2 / 25} + std::chrono::days{day}));
        const DayBits found = OccurringDays(row, index);
        for (std::size_t n = 0; n < row.size(); ++n) {
            ASSERT_EQ((found >> n & 1U) != 0, EventOccursOn(row[n].date, index)) << n << " of " << row.size();
        }
    }
    EXPECT_EQ(OccurringDays(row, index), DayBits{1} << 3 | DayBits{1} << 63);
}
