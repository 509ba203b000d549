// The rows of the Tasks list and of a day's tasks, and the counters of the Tasks mode.
#include "planner/lists/TaskSelection.h"
#include "core/RowLists.h"
#include "core/RunTimeError.h"
#include "planner/dates/DateHelpers.h"
#include "support/CaseName.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

using Numbers = std::vector<int>;
using Texts = std::vector<std::string>;

constexpr Date Wednesday{2009y / 10 / 14};
constexpr int White = 0xFFFFFF;
constexpr int DoneFill = 0xE2F7E1;
constexpr int NotDoneFill = 0xE5E5FF;

// 1 today, 2 today and done, 3 tomorrow, 4 and 5 without a date, 5 done, 6 deleted.
class TaskRowsOf : public testing::Test {
protected:
    void SetUp() override {
        ResetStore();
        AddTaskRecord({.date = "2009/10/14", .type = "School"});
        AddTaskRecord({.date = "2009/10/14", .type = "Home", .done = "True"});
        AddTaskRecord({.date = "2009/10/15"});
        AddTaskRecord({.date = "2009/10/14", .date_exists = "False"});
        AddTaskRecord({.date = "never", .date_exists = "False", .done = "True"});
        AddTaskRecord({.date = "2009/10/14", .desc = "DELETED RECORD"});
    }

    void TearDown() override { ResetStore(); }
};

class TaskCounts : public testing::Test {
protected:
    void SetUp() override { ResetStore(); }

    void TearDown() override { ResetStore(); }
};

struct Selection {
    const char* range;
    const char* list;
    Numbers rows;
    int count;
    int done;
};

class TaskFilters : public TaskRowsOf, public testing::WithParamInterface<Selection> {};

void ExpectBoxes(const BoxText& total, const BoxText& left, const BoxText& undated) {
    const TaskBoxes boxes = CountTasks(Wednesday);
    EXPECT_EQ(boxes.TextBoxTotalTasks, total) << boxes.TextBoxTotalTasks.text;
    EXPECT_EQ(boxes.TextBoxFinishedTasks, left) << boxes.TextBoxFinishedTasks.text;
    EXPECT_EQ(boxes.TextBoxUndatedTasks, undated) << boxes.TextBoxUndatedTasks.text;
}

} // namespace

TEST_P(TaskFilters, TakeTheirRowsAndCountTheRange) {
    const Selection& wanted = GetParam();
    SelectTasks(Wednesday, {wanted.list, wanted.range, Wednesday});
    EXPECT_EQ(TaskRows.values, wanted.rows);
    EXPECT_EQ(TaskCount, wanted.count);
    EXPECT_EQ(TaskDoneCount, wanted.done);
    EXPECT_EQ(TaskLeftCount, 0);
}

INSTANTIATE_TEST_SUITE_P(
    Words, TaskFilters,
    testing::Values(Selection{"Day", "All", {1, 2}, 2, 1}, Selection{"Day", "Done", {2}, 2, 1},
                    Selection{"Day", "Not Done", {1}, 2, 1}, Selection{"All", "All", {1, 2, 3, 4, 5}, 5, 2},
                    Selection{"All", "Done", {2, 5}, 5, 2}, Selection{"All", "Not Done", {1, 3, 4}, 5, 2},
                    Selection{"With Date", "All", {1, 2, 3}, 3, 1},
                    Selection{"Without Date", "All", {4, 5}, 2, 1},
                    Selection{"Without Date", "Not Done", {4}, 2, 1}, Selection{"Week", "All", {}, 0, 0},
                    Selection{"All", "Classes", {}, 5, 2}),
    [](const auto& each) { return CaseName(std::string(each.param.range) + " " + each.param.list); });

TEST_F(TaskRowsOf, ADayTakeTheirLookFromTheTypeTable) {
    TypeTable.customname.Replace(TypeRow("Task", "School"), "Campus");
    TypeTable.forecolor.Replace(TypeRow("Task", "School"), "77");
    SelectTasks(Wednesday, {"All", "Day", Wednesday});
    EXPECT_EQ(TaskRowType.values, (Texts{"Campus", "Home"}));
    EXPECT_EQ(TaskRowForeColor.values, (Numbers{77, 0}));
    EXPECT_EQ(TaskRowBackColor.values, (Numbers{0xA3C4DE, 0xC6E7FF}));
}

TEST_F(TaskRowsOf, NoTypeAndAnUnknownTypeAreBlackOnWhite) {
    Store.TaskRecord.type.Replace(1, "None");
    Store.TaskRecord.type.Replace(2, "Hobby");
    SelectTasks(Wednesday, {"All", "Day", Wednesday});
    EXPECT_EQ(TaskRowType.values, (Texts{"None", ""}));
    EXPECT_EQ(TaskRowForeColor.values, (Numbers{0, 0}));
    EXPECT_EQ(TaskRowBackColor.values, (Numbers{White, White}));
}

TEST_F(TaskRowsOf, NoDayAreEveryTask) {
    SelectTasks(AllDates, {"All", "Day", Wednesday});
    EXPECT_EQ(TaskRows.values, (Numbers{1, 2, 3, 4, 5}));
    SelectTasksForDay(AllDates);
    EXPECT_EQ(TaskRows.values, (Numbers{1, 2, 3, 4, 5, 6}));
}

TEST_F(TaskRowsOf, OneSelectionReplaceThoseOfTheLast) {
    SelectTasks(Wednesday, {"All", "All", Wednesday});
    SelectTasks(Wednesday, {"All", "Day", Wednesday});
    EXPECT_EQ(TaskRows.Count(), 2);
    EXPECT_EQ(TaskRowType.Count(), 2);
    EXPECT_EQ(TaskRowForeColor.Count(), 2);
    EXPECT_EQ(TaskRowBackColor.Count(), 2);
    EXPECT_EQ(TaskCount, 2);
    EXPECT_EQ(TaskDoneCount, 1);
}

TEST_F(TaskRowsOf, ADaysMenuAreItsDatedTasksDeletedOnesToo) {
    SelectTasksForDay(Wednesday);
    EXPECT_EQ(TaskRows.values, (Numbers{1, 2, 6}));
    EXPECT_EQ(TaskRowType.values, (Texts{"School", "Home", "None"}));
    EXPECT_EQ(TaskCount, 3);
    EXPECT_EQ(TaskDoneCount, 1);
    EXPECT_EQ(TaskLeftCount, 0);
}

TEST_F(TaskRowsOf, ABadDateEndInTheRunTimeError) {
    Store.TaskRecord.date_exists.Replace(5, "True");
    EXPECT_THROW(SelectTasks(Wednesday, {"All", "Day", Wednesday}), RunTimeError);
    EXPECT_NO_THROW(SelectTasks(Wednesday, {"All", "All", Wednesday}));
}

TEST_F(TaskCounts, OfADayWithoutTasksAreWhite) {
    ExpectBoxes({"0", White}, {"0", White}, {"0", White});
}

TEST_F(TaskCounts, OfADayWithOpenTasksAreNotDone) {
    AddTaskRecord({.done = "True"});
    AddTaskRecord({});
    AddTaskRecord({});
    AddTaskRecord({.date = "2009/10/15"});
    ExpectBoxes({"3", White}, {"2", NotDoneFill}, {"0", White});
    EXPECT_EQ(TaskCount, 3);
    EXPECT_EQ(TaskDoneCount, 1);
    EXPECT_EQ(TaskLeftCount, 2);
}

TEST_F(TaskCounts, OfAFinishedDayAreDone) {
    AddTaskRecord({.done = "True"});
    ExpectBoxes({"1", White}, {"0", DoneFill}, {"0", White});
}

TEST_F(TaskCounts, TellTheUndatedTasksThatAreNotDone) {
    AddTaskRecord({.date_exists = "False"});
    AddTaskRecord({.date_exists = "False", .done = "True"});
    ExpectBoxes({"0", White}, {"0", White}, {"1", NotDoneFill});
    EXPECT_EQ(UndatedTaskLeftCount, 1);
}

TEST_F(TaskCounts, CountDeletedTasksAsTheyStand) {
    AddTaskRecord({.desc = "DELETED RECORD"});
    AddTaskRecord({.desc = "DELETED RECORD", .date_exists = "False"});
    ExpectBoxes({"1", White}, {"1", NotDoneFill}, {"1", NotDoneFill});
}

TEST_F(TaskCounts, StartFromNothingEachTime) {
    AddTaskRecord({.done = "True"});
    AddTaskRecord({});
    AddTaskRecord({.date_exists = "False"});
    SelectTasks(Wednesday, {"All", "All", Wednesday});
    for (int time = 1; time <= 2; ++time) {
        ExpectBoxes({"2", White}, {"1", NotDoneFill}, {"1", NotDoneFill});
        EXPECT_EQ(TaskDoneCount, 1);
    }
}

TEST_F(TaskCounts, OfADaysMenuLeaveNothingOpenFromTheLastDay) {
    AddTaskRecord({});
    CountTasks(Wednesday);
    EXPECT_EQ(TaskLeftCount, 1);
    SelectTasksForDay(Wednesday);
    EXPECT_EQ(TaskLeftCount, 0);
}
