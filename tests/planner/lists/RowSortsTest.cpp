// The orders of the Homework, Study Sessions and Tasks lists by each of their columns.
#include "core/RunTimeError.h"
#include "planner/lists/HomeworkSelection.h"
#include "planner/lists/SortedRows.h"

namespace {

using Numbers = std::vector<int>;
using Texts = std::vector<std::string>;

// Sorts up, then down, and expects the rows by their positions in the store.
template <class Column>
void ExpectHomework(Column column, const Numbers& up, const Numbers& down) {
    SortHomeworkRows(Up(column));
    EXPECT_EQ(HomeworkRows.values, up);
    SortHomeworkRows(Up(HomeworkColumn::Description)); // where the records are numbered, so as they came
    SortHomeworkRows(Down(column));
    EXPECT_EQ(HomeworkRows.values, down);
}

void ExpectTasks(TaskColumn column, const Numbers& up, const Numbers& down) {
    SortTaskRows(Up(column));
    EXPECT_EQ(TaskRows.values, up);
    SortTaskRows(Up(TaskColumn::Name));
    SortTaskRows(Down(column));
    EXPECT_EQ(TaskRows.values, down);
}

} // namespace

// --- Homework ---

TEST_F(RowSorts, OfHomeworkByTheReminderMark) {
    AddHomeworkRow({.desc = "1", .reminder = "True"});
    AddHomeworkRow({.desc = "2", .reminder = "false"});
    AddHomeworkRow({.desc = "3", .reminder = "FALSE"});
    ExpectHomework(HomeworkColumn::Reminder, {2, 3, 1}, {1, 2, 3});
}

TEST_F(RowSorts, OfHomeworkByPriorityByteWise) {
    AddHomeworkRow({.desc = "1", .priority = "True"});
    AddHomeworkRow({.desc = "2", .priority = "false"});
    AddHomeworkRow({.desc = "3", .priority = "False"});
    ExpectHomework(HomeworkColumn::Priority, {3, 1, 2}, {2, 1, 3});
}

TEST_F(RowSorts, OfHomeworkByClass) {
    AddHomeworkRow({.desc = "1"}, "chemistry");
    AddHomeworkRow({.desc = "2"}, "Biology");
    AddHomeworkRow({.desc = "3"}, "Chemistry");
    AddHomeworkRow({.desc = "4"}, "");
    ExpectHomework(HomeworkColumn::Class, {4, 2, 1, 3}, {1, 3, 2, 4});
}

TEST_F(RowSorts, OfHomeworkByType) {
    AddHomeworkRow({.desc = "1", .type = "test"});
    AddHomeworkRow({.desc = "2", .type = "Quiz"});
    AddHomeworkRow({.desc = "3", .type = "Test"});
    ExpectHomework(HomeworkColumn::Type, {2, 1, 3}, {1, 3, 2});
}

TEST_F(RowSorts, OfHomeworkByDescriptionTakeAnEmptyOneAsANewAssignment) {
    AddHomeworkRow({.desc = "notes"});
    AddHomeworkRow({.desc = ""});
    AddHomeworkRow({.desc = "Essay"});
    AddHomeworkRow({.desc = "NEW ASSIGNMENT"});
    SortHomeworkRows(Up(HomeworkColumn::Description));
    EXPECT_EQ(HomeworkRows.values, (Numbers{3, 2, 4, 1}));
    SortHomeworkRows(Down(HomeworkColumn::Description));
    EXPECT_EQ(HomeworkRows.values, (Numbers{1, 2, 4, 3}));
}

TEST_F(RowSorts, OfTextsCompareLettersBeyondAsciiByTheirFoldedByte) {
    AddHomeworkRow({.desc = "\xE9tude"}); // e with acute, behind every letter of ASCII
    AddHomeworkRow({.desc = "zebra"});
    AddHomeworkRow({.desc = "\xC9TUDE"});
    SortHomeworkRows(Up(HomeworkColumn::Description));
    EXPECT_EQ(HomeworkRows.values, (Numbers{2, 1, 3}));
}

TEST_F(RowSorts, OfTextsPutTheBeginningOfAnotherInFront) {
    AddHomeworkRow({.desc = "Essay 10"});
    AddHomeworkRow({.desc = "Essay 1"});
    AddHomeworkRow({.desc = "essay"});
    SortHomeworkRows(Up(HomeworkColumn::Description));
    EXPECT_EQ(HomeworkRows.values, (Numbers{3, 2, 1}));
}

TEST_F(RowSorts, OfHomeworkByTheTimeLeft) {
    AddHomeworkRow({.desc = "1", .time_left = "10 : 00"});
    AddHomeworkRow({.desc = "2", .time_left = "01:75"});
    AddHomeworkRow({.desc = "3", .time_left = "02 : 00"});
    AddHomeworkRow({.desc = "4", .time_left = "02 : 15"});
    ExpectHomework(HomeworkColumn::Time, {3, 2, 4, 1}, {1, 2, 4, 3});
}

TEST_F(RowSorts, OfHomeworkByDueDateKeepEqualDatesInStoreOrderBothWays) {
    AddHomeworkRow({.date = "2009/12/01", .desc = "1"});
    AddHomeworkRow({.date = "2009/2/28", .desc = "2"});
    AddHomeworkRow({.date = "2009/12/01", .desc = "3"});
    AddHomeworkRow({.date = "2010/01/01", .desc = "4"});
    ExpectHomework(HomeworkColumn::Due, {2, 1, 3, 4}, {4, 1, 3, 2});
}

TEST_F(RowSorts, OfHomeworkByDoneByteWise) {
    AddHomeworkRow({.desc = "1", .done = "True"});
    AddHomeworkRow({.desc = "2", .done = "False"});
    AddHomeworkRow({.desc = "3", .done = "false"});
    ExpectHomework(HomeworkColumn::Done, {2, 1, 3}, {3, 1, 2});
}

TEST_F(RowSorts, OfHomeworkByScoreTakeNoneAsMinusOne) {
    AddHomeworkRow({.desc = "1", .grade = "100%"});
    AddHomeworkRow({.desc = "2", .grade = ""});
    AddHomeworkRow({.desc = "3", .grade = " 9.5 %"});
    AddHomeworkRow({.desc = "4", .grade = "0%"});
    ExpectHomework(HomeworkColumn::Score, {2, 4, 3, 1}, {1, 3, 4, 2});
}

TEST_F(RowSorts, MoveEveryListOfHomework) {
    AddHomeworkRow({.date = "2009/10/15"}, "Algebra");
    AddHomeworkRow({.date = "2009/10/14"}, "Biology");
    SortHomeworkRows(Up(HomeworkColumn::Due));
    EXPECT_EQ(HomeworkRows.values, (Numbers{2, 1}));
    EXPECT_EQ(RowClass.values, (Texts{"Biology", "Algebra"}));
    EXPECT_EQ(RowForeColor.values, (Numbers{2, 1}));
    EXPECT_EQ(RowBackColor.values, (Numbers{20, 10}));
    EXPECT_EQ(RowTimeLeft.values, (Texts{"00:02", "00:01"}));
}

TEST_F(RowSorts, OfASecondClickTurnTheOrderAround) {
    AddHomeworkRow({.date = "2009/10/15"});
    AddHomeworkRow({.date = "2009/10/14"});
    AddHomeworkRow({.date = "2009/10/16"});
    SortHomeworkRows(Up(HomeworkColumn::Due));
    EXPECT_EQ(HomeworkRows.values, (Numbers{2, 1, 3}));
    SortHomeworkRows(Down(HomeworkColumn::Due));
    EXPECT_EQ(HomeworkRows.values, (Numbers{3, 1, 2}));
}

TEST_F(RowSorts, ByAColumnThatIsNoneLeaveTheRows) {
    AddHomeworkRow({.date = "2009/10/15"});
    AddHomeworkRow({.date = "2009/10/14"});
    AddTaskRow({.desc = "b"});
    AddTaskRow({.desc = "a"});
    AddEventRowOf({.desc = "b"});
    AddEventRowOf({.desc = "a"});
    AddReminderRow("b", "", "", "", 2);
    AddReminderRow("a", "", "", "", 1);
    for (const int column : {-1, 0, 10, 99}) {
        SortHomeworkRows({column, Ascending});
        SortStudyRows({column, Ascending});
        SortTaskRows({column, Ascending});
        SortEventRows({column, Ascending});
        SortReminderRows({column, Ascending});
    }
    EXPECT_EQ(HomeworkRows.values, (Numbers{1, 2}));
    EXPECT_EQ(TaskRows.values, (Numbers{1, 2}));
    EXPECT_EQ(EventRows.values, (Numbers{1, 2}));
    EXPECT_EQ(ReminderRows.values, (Numbers{1, 2}));
}

TEST_F(RowSorts, OfFewerThanTwoRowsReadNothing) {
    SortHomeworkRows(Up(HomeworkColumn::Due));
    AddHomeworkRow({.date = "never", .time_left = "long", .grade = "A"});
    SortHomeworkRows(Up(HomeworkColumn::Due));
    SortHomeworkRows(Up(HomeworkColumn::Time));
    SortHomeworkRows(Up(HomeworkColumn::Score));
    EXPECT_EQ(HomeworkRows.values, (Numbers{1}));
    AddHomeworkRow({});
    EXPECT_THROW(SortHomeworkRows(Up(HomeworkColumn::Due)), RunTimeError);
    EXPECT_THROW(SortHomeworkRows(Up(HomeworkColumn::Time)), RunTimeError);
    EXPECT_THROW(SortHomeworkRows(Up(HomeworkColumn::Score)), RunTimeError);
}

TEST_F(RowSorts, FollowASelection) {
    AddClassRecord({.id = "1", .name = "Biology"});
    AddClassRecord({.id = "2", .name = "Algebra"});
    AddAssignmentRecord({.class_ = "1"});
    AddAssignmentRecord({.class_ = "2"});
    HomeworkDayList(Wednesday, {"All", "Day", Wednesday});
    SortHomeworkRows(Up(HomeworkColumn::Class));
    EXPECT_EQ(HomeworkRows.values, (Numbers{2, 1}));
    EXPECT_EQ(RowClass.values, (Texts{"Algebra", "Biology"}));
}

// --- Study Sessions ---

struct StudyColumnCase {
    const char* name;
    StudyColumn column;
    Numbers up;
    Numbers down;
};

class StudySorts : public RowSorts, public testing::WithParamInterface<StudyColumnCase> {};

TEST_P(StudySorts, FollowTheColumn) {
    AddStudyRow({.date = "2009/10/20", .desc = "b", .type = "Quiz", .priority = "True"}, "Biology", "02 : 00",
                "2009/10/12");
    AddStudyRow({.date = "2009/10/18", .desc = "", .type = "Test", .priority = "False"}, "algebra", "10 : 00",
                "2009/10/11");
    AddStudyRow({.date = "2009/10/19", .desc = "A", .type = "paper", .priority = "False"}, "Chemistry",
                "00 : 15", "2009/10/13");
    SortStudyRows(Up(GetParam().column));
    EXPECT_EQ(HomeworkRows.values, GetParam().up);
    EXPECT_EQ(StudyRowTime.values, GetParam().up);
    EXPECT_EQ(StudyRowDate.values, GetParam().up);
    EXPECT_EQ(RowForeColor.values, GetParam().up);
    SortStudyRows(Down(GetParam().column));
    EXPECT_EQ(HomeworkRows.values, GetParam().down);
}

INSTANTIATE_TEST_SUITE_P(
    Columns, StudySorts,
    testing::Values(StudyColumnCase{"Class", StudyColumn::Class, {2, 1, 3}, {3, 1, 2}},
                    StudyColumnCase{"Type", StudyColumn::Type, {3, 1, 2}, {2, 1, 3}},
                    StudyColumnCase{"Description", StudyColumn::Description, {2, 3, 1}, {1, 3, 2}},
                    StudyColumnCase{"Priority", StudyColumn::Priority, {2, 3, 1}, {1, 2, 3}},
                    StudyColumnCase{"Time", StudyColumn::Time, {3, 1, 2}, {2, 1, 3}},
                    StudyColumnCase{"DoneOn", StudyColumn::DoneOn, {2, 1, 3}, {3, 1, 2}},
                    StudyColumnCase{"Due", StudyColumn::Due, {2, 3, 1}, {1, 3, 2}}),
    [](const auto& each) { return each.param.name; });

// --- Tasks ---

TEST_F(RowSorts, OfTasksByTheReminderMark) {
    AddTaskRow({.desc = "1", .reminder = "True"});
    AddTaskRow({.desc = "2", .reminder = "False"});
    ExpectTasks(TaskColumn::Reminder, {2, 1}, {1, 2});
}

TEST_F(RowSorts, OfTasksByNameTakeAnEmptyOneAsANewTask) {
    AddTaskRow({.desc = "open door"});
    AddTaskRow({.desc = ""});
    AddTaskRow({.desc = "Mail"});
    SortTaskRows(Up(TaskColumn::Name));
    EXPECT_EQ(TaskRows.values, (Numbers{3, 2, 1}));
    SortTaskRows(Down(TaskColumn::Name));
    EXPECT_EQ(TaskRows.values, (Numbers{1, 2, 3}));
}

TEST_F(RowSorts, OfTasksByTypeHoldThoseWithoutAtTheEndBothWays) {
    AddTaskRow({.desc = "1"}, "None");
    AddTaskRow({.desc = "2"}, "work");
    AddTaskRow({.desc = "3"}, "");
    AddTaskRow({.desc = "4"}, "Home");
    ExpectTasks(TaskColumn::Type, {4, 2, 1, 3}, {2, 4, 1, 3});
}

TEST_F(RowSorts, OfTasksByTypeCompareTheSentinelAsAText) {
    AddTaskRow({.desc = "1"}, "None");
    AddTaskRow({.desc = "2"}, "Zzzzzzz");
    AddTaskRow({.desc = "3"}, "AAAA");
    ExpectTasks(TaskColumn::Type, {3, 1, 2}, {2, 1, 3});
}

TEST_F(RowSorts, OfTasksByPriorityHoldNoneAtTheEndBothWays) {
    AddTaskRow({.desc = "1", .priority = "None"});
    AddTaskRow({.desc = "2", .priority = "Medium"});
    AddTaskRow({.desc = "3", .priority = "High"});
    AddTaskRow({.desc = "4", .priority = "Low"});
    ExpectTasks(TaskColumn::Priority, {3, 4, 2, 1}, {2, 4, 3, 1});
}

TEST_F(RowSorts, OfTasksByDateHoldThoseWithoutAtTheEndBothWays) {
    AddTaskRow({.date = "never", .desc = "1", .date_exists = "False"});
    AddTaskRow({.date = "2009/10/20", .desc = "2"});
    AddTaskRow({.date = "1700/01/01", .desc = "3"});
    AddTaskRow({.date = "3100/12/30", .desc = "4"});
    ExpectTasks(TaskColumn::Day, {3, 2, 4, 1}, {4, 2, 3, 1});
}

TEST_F(RowSorts, OfTasksByDoneByteWise) {
    AddTaskRow({.desc = "1", .done = "True"});
    AddTaskRow({.desc = "2", .done = "false"});
    AddTaskRow({.desc = "3", .done = "False"});
    ExpectTasks(TaskColumn::Done, {3, 1, 2}, {2, 1, 3});
}

TEST_F(RowSorts, MoveEveryListOfTasks) {
    AddTaskRow({.desc = "b"}, "Home");
    AddTaskRow({.desc = "a"}, "Work");
    SortTaskRows(Up(TaskColumn::Name));
    EXPECT_EQ(TaskRows.values, (Numbers{2, 1}));
    EXPECT_EQ(TaskRowType.values, (Texts{"Work", "Home"}));
    EXPECT_EQ(TaskRowForeColor.values, (Numbers{2, 1}));
    EXPECT_EQ(TaskRowBackColor.values, (Numbers{20, 10}));
}
