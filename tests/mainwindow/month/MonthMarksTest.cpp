// The marks and the counters of the month's days, by mode and filter.
#include "mainwindow/month/MonthMarks.h"
#include "core/RowLists.h"
#include "core/RunTimeError.h"
#include "support/EventRecords.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

using namespace std::chrono_literals;

namespace {

constexpr Date FirstCell{2009y / 9 / 27}; // of October 2009 in a week from Sunday

using Cells = std::vector<int>;

class MonthMarks : public testing::Test {
protected:
    void SetUp() override { ResetStore(); }

    void TearDown() override { ResetStore(); }

    void Mark(Mode mode, const std::string& comboList, bool calendarMode = false) {
        ListFilter filter;
        filter.comboList = comboList;
        filter.calendarMode = calendarMode;
        MarkMonth(month, FirstCell, mode, filter);
    }

    Cells Marked() const {
        Cells cells;
        for (int cell = 0; cell < MonthCells; ++cell) {
            if (month.CellMarked[static_cast<std::size_t>(cell)]) {
                cells.push_back(cell);
            }
        }
        return cells;
    }

    Cells MarkedIn(Mode mode, const std::string& comboList) {
        Mark(mode, comboList);
        return Marked();
    }

    int ColorIn(Mode mode, const std::string& comboList) {
        Mark(mode, comboList);
        return month.ColorMarked;
    }

    CalendarMonth month;
};

void AddLogEntry(const std::string& assignment, const std::string& date) {
    StudySessionLists& log = Store.StudySessionRecord;
    log.id.Add("1");
    log.assignment.Add(assignment);
    log.time.Add("00:30");
    log.date.Add(date);
}

void AddReminderRow(const std::string& kind, Date date) {
    ReminderRows.Add(1);
    ReminderRowKind.Add(kind);
    ReminderRowDate.Add(date);
}

int Sum(const std::array<int, MonthCells>& counters) {
    int sum = 0;
    for (const int count : counters) {
        sum += count;
    }
    return sum;
}

void AddOpenAndDoneHomework() {
    AddAssignmentRecord({.date = "2009/10/01", .done = "False"});
    AddAssignmentRecord({.date = "2009/10/02", .done = "True"});
}

void AddOpenAndDoneTasks() {
    AddTaskRecord({.date = "2009/10/01", .done = "False"});
    AddTaskRecord({.date = "2009/10/02", .done = "True"});
}

} // namespace

// --- Homework ---

TEST_F(MonthMarks, HomeworkBelongsToTheCells0To41DaysAfterTheFirst) {
    for (const char* date : {"2009/09/26", "2009/09/27", "2009/11/07", "2009/11/08"}) {
        AddAssignmentRecord({.date = date});
    }
    EXPECT_EQ(MarkedIn(Mode::Homework, "All"), (Cells{0, 41}));
}

TEST_F(MonthMarks, HomeworkIsMarkedByTheFilter) {
    AddOpenAndDoneHomework();
    EXPECT_EQ(MarkedIn(Mode::Homework, "All"), (Cells{4, 5}));
    EXPECT_EQ(MarkedIn(Mode::Homework, "Done"), (Cells{5}));
    EXPECT_EQ(MarkedIn(Mode::Homework, "Not Done"), (Cells{4}));
}

TEST_F(MonthMarks, HomeworkIsColoredByTheFilter) {
    EXPECT_EQ(ColorIn(Mode::Homework, "All"), ColorAll);
    EXPECT_EQ(ColorIn(Mode::Homework, "Done"), ColorDone);
    EXPECT_EQ(ColorIn(Mode::Homework, "Not Done"), ColorNotDone);
    EXPECT_EQ(ColorIn(Mode::Homework, ""), ColorNotDone);
}

TEST_F(MonthMarks, DeletedHomeworkIsNotMarked) {
    AddAssignmentRecord({.date = "no date", .desc = "DELETED RECORD"});
    EXPECT_EQ(MarkedIn(Mode::Homework, "All"), Cells{});
}

TEST_F(MonthMarks, HomeworkIsCountedInCalendarModeAlone) {
    AddOpenAndDoneHomework();
    Mark(Mode::Homework, "All");
    EXPECT_EQ(Sum(month.HomeworkDoneCount) + Sum(month.HomeworkLeftCount), 0);
}

TEST_F(MonthMarks, HomeworkOfABadDateRaisesTheError) {
    AddAssignmentRecord({.date = "soon"});
    EXPECT_THROW(Mark(Mode::Homework, "All"), RunTimeError);
}

// --- Tasks ---

TEST_F(MonthMarks, TasksAreMarkedByTheFilter) {
    AddOpenAndDoneTasks();
    EXPECT_EQ(MarkedIn(Mode::Tasks, "All"), (Cells{4, 5}));
    EXPECT_EQ(MarkedIn(Mode::Tasks, "Done"), (Cells{5}));
    EXPECT_EQ(MarkedIn(Mode::Tasks, "Not Done"), (Cells{4}));
}

TEST_F(MonthMarks, TasksAreColoredByTheFilter) {
    EXPECT_EQ(ColorIn(Mode::Tasks, "All"), ColorAll);
    EXPECT_EQ(ColorIn(Mode::Tasks, "Done"), ColorDone);
    EXPECT_EQ(ColorIn(Mode::Tasks, "Not Done"), ColorNotDone);
}

TEST_F(MonthMarks, ATaskWithoutADateIsNotMarked) {
    AddTaskRecord({.date = "2009/10/01", .date_exists = "False"});
    EXPECT_EQ(MarkedIn(Mode::Tasks, "All"), Cells{});
}

TEST_F(MonthMarks, ADeletedTaskIsNotMarked) {
    AddTaskRecord({.date = "2009/10/01", .desc = "DELETED RECORD"});
    EXPECT_EQ(MarkedIn(Mode::Tasks, "All"), Cells{});
}

// --- Study sessions ---

TEST_F(MonthMarks, StudySessionsMarkTheDaysOfTheLog) {
    AddLogEntry("3", "2009/10/01");
    AddLogEntry("4", "2009/12/01");
    EXPECT_EQ(MarkedIn(Mode::StudySessions, "All"), Cells{4});
    EXPECT_EQ(month.ColorMarked, ColorAll);
}

TEST_F(MonthMarks, ALogEntryWithoutAssignmentMarksNoDay) {
    AddLogEntry("-1", "2009/10/01");
    EXPECT_EQ(MarkedIn(Mode::StudySessions, "All"), Cells{});
}

// --- Reminders ---

TEST_F(MonthMarks, RemindersAreMarkedByTheKindOfTheirRow) {
    AddReminderRow("Homework", Date{2009y / 10 / 1});
    AddReminderRow("Task", Date{2009y / 10 / 2});
    AddReminderRow("Event", Date{2009y / 10 / 3});
    AddReminderRow("Event", Date{2009y / 12 / 3});
    EXPECT_EQ(MarkedIn(Mode::Reminders, "All"), (Cells{4, 5, 6}));
    EXPECT_EQ(MarkedIn(Mode::Reminders, "Homework"), (Cells{4}));
    EXPECT_EQ(MarkedIn(Mode::Reminders, "Tasks"), (Cells{5}));
    EXPECT_EQ(MarkedIn(Mode::Reminders, "Events"), (Cells{6}));
}

TEST_F(MonthMarks, RemindersAreColoredByTheFilter) {
    EXPECT_EQ(ColorIn(Mode::Reminders, "Homework"), ColorNotDone);
    EXPECT_EQ(ColorIn(Mode::Reminders, "Tasks"), ColorTasks);
    EXPECT_EQ(ColorIn(Mode::Reminders, "Events"), ColorDone);
    EXPECT_EQ(ColorIn(Mode::Reminders, "All"), ColorAll);
    EXPECT_EQ(ColorIn(Mode::Reminders, "Done"), ColorAll);
}

// --- Events ---

TEST_F(MonthMarks, EventsAreMarkedByTheFilter) {
    AddEventRecord({.date = "2009/10/01", .type = "Class"});
    AddEventRecord({.date = "2009/10/02", .type = "Sports"});
    EXPECT_EQ(MarkedIn(Mode::Events, "All"), (Cells{4, 5}));
    EXPECT_EQ(MarkedIn(Mode::Events, "Classes"), (Cells{4}));
    EXPECT_EQ(MarkedIn(Mode::Events, "Other Events"), (Cells{5}));
}

TEST_F(MonthMarks, EventsAreCountedWhateverTheFilterSays) {
    AddEventRecord({.date = "2009/10/01", .type = "Class"});
    AddEventRecord({.date = "2009/10/01", .type = "Sports"});
    Mark(Mode::Events, "Classes");
    EXPECT_EQ(month.EventCountByDay[4], 2);
}

TEST_F(MonthMarks, EventsAreColoredAsTheViewMenus) {
    EXPECT_EQ(ColorIn(Mode::Events, "All"), ColorAll);
    EXPECT_EQ(ColorIn(Mode::Events, "Classes"), ColorTasks);
    EXPECT_EQ(ColorIn(Mode::Events, "Other Events"), ColorDone);
    EXPECT_EQ(ColorIn(Mode::Events, "Elsewhere"), ColorDone); // left as it was
}

TEST_F(MonthMarks, ADayThatASeriesHasGivenUpIsNotMarked) {
    AddEventRecord({.date = "2009/10/01",
                    .recurrence = "Day",
                    .exceptions = "2009/10/02",
                    .repeat_daily = "TTTTTTT",
                    .end = "True",
                    .end_date = "2009/10/03"});
    EXPECT_EQ(MarkedIn(Mode::Events, "All"), (Cells{4, 6}));
}

TEST_F(MonthMarks, ClassMeetingsAreKeptToTheActiveTerm) {
    AddClassRecord({.id = "2", .term = "1"});
    AddClassRecord({.id = "3", .term = "4"});
    Store.Term.id.Add("1");
    Store.Term.name.Add("Autumn");
    Store.Term.start.Add("2009/09/01");
    Store.Term.end.Add("2009/12/20");
    ChooseActiveTerm("Autumn");
    SetupActiveClasses();
    AddEventRecord({.date = "2009/10/01", .type = "TermID1-ClassID2"});
    AddEventRecord({.date = "2009/10/02", .type = "TermID4-ClassID3"});
    EXPECT_EQ(MarkedIn(Mode::Events, "All"), (Cells{4}));
    EXPECT_EQ(month.EventCountByDay[5], 0);
}

// --- The month as a whole ---

TEST_F(MonthMarks, CalendarModeMarksEventsHomeworkAndTasks) {
    AddEventRecord({.date = "2009/09/29"});
    AddOpenAndDoneHomework();
    AddTaskRecord({.date = "2009/10/05"});
    Mark(Mode::Calendar, "Done", true);
    EXPECT_EQ(Marked(), (Cells{2, 4, 5, 8}));
    EXPECT_EQ(month.ColorMarked, ColorAll);
}

TEST_F(MonthMarks, CalendarModeCountsTheItemsOfEachDay) {
    for (const char* done : {"True", "False", "True"}) {
        AddAssignmentRecord({.date = "2009/10/01", .done = done});
        AddTaskRecord({.date = "2009/10/02", .done = done});
    }
    AddEventRecord({.date = "2009/10/03"});
    Mark(Mode::Calendar, "All", true);
    EXPECT_EQ(month.HomeworkDoneCount[4], 2);
    EXPECT_EQ(month.HomeworkLeftCount[4], 1);
    EXPECT_EQ(month.TaskDoneCountByDay[5], 2);
    EXPECT_EQ(month.TaskLeftCountByDay[5], 1);
    EXPECT_EQ(month.EventCountByDay[6], 1);
    EXPECT_EQ(Sum(month.HomeworkDoneCount) + Sum(month.HomeworkLeftCount), 3);
    EXPECT_EQ(Sum(month.TaskDoneCountByDay) + Sum(month.TaskLeftCountByDay), 3);
}

TEST_F(MonthMarks, EachTimeTheMarksAndCountersBeginAnew) {
    AddOpenAndDoneHomework();
    AddOpenAndDoneTasks();
    AddEventRecord({.date = "2009/10/01"});
    Mark(Mode::Calendar, "All", true);
    const CalendarMonth once = month;
    Mark(Mode::Calendar, "All", true);
    EXPECT_EQ(month.HomeworkDoneCount, once.HomeworkDoneCount);
    EXPECT_EQ(month.HomeworkLeftCount, once.HomeworkLeftCount);
    EXPECT_EQ(month.TaskDoneCountByDay, once.TaskDoneCountByDay);
    EXPECT_EQ(month.TaskLeftCountByDay, once.TaskLeftCountByDay);
    EXPECT_EQ(month.EventCountByDay, once.EventCountByDay);
}

TEST_F(MonthMarks, AModeClearsItsOwnCountersAlone) {
    AddOpenAndDoneHomework();
    AddOpenAndDoneTasks();
    Mark(Mode::Calendar, "All", true);
    Mark(Mode::Homework, "All");
    EXPECT_EQ(Sum(month.HomeworkLeftCount), 0);
    EXPECT_EQ(Sum(month.TaskLeftCountByDay), 1);
}

TEST_F(MonthMarks, WithoutAModeNothingIsMarked) {
    month.CellMarked[3] = true;
    AddOpenAndDoneHomework();
    EXPECT_EQ(MarkedIn(Mode::None, "All"), Cells{});
}
