// The rows of the Homework and the Study Sessions lists.
#include "planner/lists/HomeworkSelection.h"
#include "core/RowLists.h"
#include "core/RunTimeError.h"
#include "planner/dates/DateHelpers.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

using Numbers = std::vector<int>;
using Texts = std::vector<std::string>;

constexpr Date Wednesday{2009y / 10 / 14};

ListFilter Filter(const std::string& comboList, const std::string& comboDateRange = "Day") {
    return {comboList, comboDateRange, Wednesday};
}

class HomeworkRowsOf : public testing::Test {
protected:
    void SetUp() override {
        ResetStore();
        AddClassRecord({.id = "1", .name = "Algebra", .forecolor = "1", .backcolor = "100"});
        AddClassRecord({.id = "2", .name = "Biology", .forecolor = "2", .backcolor = "200"});
        AddClassRecord({.id = "3", .name = "Chemistry", .forecolor = "3", .backcolor = "300"});
    }

    void TearDown() override { ResetStore(); }
};

class StudyRowsOf : public HomeworkRowsOf {};

void AddHomework(const std::string& class_, const std::string& date, const std::string& done = "False") {
    AddAssignmentRecord(
        {.class_ = class_, .date = date, .est_time = "01 : 30", .time_left = "00 : 45", .done = done});
}

void AddLogEntry(const std::string& assignment, const std::string& date, const std::string& time) {
    StudySessionLists& log = Store.StudySessionRecord;
    log.id.Add(std::to_string(log.id.Count() + 1));
    log.assignment.Add(assignment);
    log.time.Add(time);
    log.date.Add(date);
}

} // namespace

TEST_F(HomeworkRowsOf, ADayAreWhatIsDueThen) {
    AddHomework("1", "2009/10/14");
    AddHomework("2", "2009/10/15");
    AddHomework("2", "2009/10/14", "True");
    SelectHomeworkRows(Filter("All"));
    EXPECT_EQ(HomeworkRows.values, (Numbers{1, 3}));
    EXPECT_EQ(RowClass.values, (Texts{"Algebra", "Biology"}));
    EXPECT_EQ(RowForeColor.values, (Numbers{1, 2}));
    EXPECT_EQ(RowBackColor.values, (Numbers{100, 200}));
    EXPECT_EQ(RowTimeLeft.values, (Texts{"01:30", "00:00"}));
}

TEST_F(HomeworkRowsOf, TheTermAreAllOfThem) {
    AddHomework("1", "2009/10/14");
    AddHomework("2", "2010/10/15");
    SelectHomeworkRows(Filter("All", "Term"));
    EXPECT_EQ(HomeworkRows.values, (Numbers{1, 2}));
    HomeworkDayList(AllDates, Filter("All", "Day"));
    EXPECT_EQ(HomeworkRows.values, (Numbers{1, 2}));
}

TEST_F(HomeworkRowsOf, AnyOtherRangeAreThoseOfTheTerm) {
    AddHomework("1", "2010/10/15");
    SelectHomeworkRows(Filter("All", "Week"));
    EXPECT_EQ(HomeworkRows.values, (Numbers{1}));
    SelectHomeworkRows(Filter("All", ""));
    EXPECT_EQ(HomeworkRows.values, (Numbers{1}));
}

TEST_F(HomeworkRowsOf, TheFilterDoneLeaveOutWhatIsNot) {
    AddHomework("1", "2009/10/14");
    AddHomework("2", "2009/10/14", "True");
    SelectHomeworkRows(Filter("Done"));
    EXPECT_EQ(HomeworkRows.values, (Numbers{2}));
    EXPECT_EQ(RowClass.values, (Texts{"Biology"}));
    EXPECT_EQ(RowTimeLeft.values, (Texts{"00:00"}));
}

TEST_F(HomeworkRowsOf, TheFilterNotDoneLeaveOutWhatIs) {
    AddHomework("1", "2009/10/14");
    AddHomework("2", "2009/10/14", "True");
    SelectHomeworkRows(Filter("Not Done"));
    EXPECT_EQ(HomeworkRows.values, (Numbers{1}));
    EXPECT_EQ(RowTimeLeft.values, (Texts{"01:30"}));
}

TEST_F(HomeworkRowsOf, AnyOtherFilterKeepBoth) {
    AddHomework("1", "2009/10/14");
    AddHomework("2", "2009/10/14", "True");
    SelectHomeworkRows(Filter("Classes"));
    EXPECT_EQ(HomeworkRows.values, (Numbers{1, 2}));
}

TEST_F(HomeworkRowsOf, AFilteredDayStillCountWhatWasTakenOut) {
    AddHomework("1", "2009/10/14");
    AddHomework("1", "2009/10/14");
    AddHomework("2", "2009/10/14", "True");
    AddHomework("2", "2009/10/15");
    const HomeworkCounts counts = SelectHomeworkRows(Filter("Done"));
    EXPECT_EQ(HomeworkRows.Count(), 1);
    EXPECT_EQ(counts.total, 3);
    EXPECT_EQ(counts.left, 2);
}

TEST_F(HomeworkRowsOf, AFinishedDayAreAllDone) {
    AddHomework("1", "2009/10/14", "True");
    const HomeworkCounts counts = SelectHomeworkRows(Filter("All"));
    EXPECT_EQ(counts.total, 1);
    EXPECT_EQ(counts.left, 0);
}

TEST_F(HomeworkRowsOf, DeletedAssignmentsAreNone) {
    AddAssignmentRecord({.date = "never", .desc = "DELETED RECORD"});
    EXPECT_EQ(SelectHomeworkRows(Filter("All")).total, 0);
    EXPECT_EQ(HomeworkRows.Count(), 0);
}

TEST_F(HomeworkRowsOf, OneSelectionReplaceThoseOfTheLast) {
    AddHomework("1", "2009/10/14");
    SelectHomeworkRows(Filter("All"));
    SelectHomeworkRows(Filter("All"));
    EXPECT_EQ(HomeworkRows.values, (Numbers{1}));
    EXPECT_EQ(RowClass.values, (Texts{"Algebra"}));
    EXPECT_EQ(RowForeColor.values, (Numbers{1}));
    EXPECT_EQ(RowBackColor.values, (Numbers{100}));
    EXPECT_EQ(RowTimeLeft.values, (Texts{"01:30"}));
    Store.Assignment = {};
    SelectHomeworkRows(Filter("All"));
    for (const NumberList* rows : {&HomeworkRows, &RowForeColor, &RowBackColor}) {
        EXPECT_EQ(rows->Count(), 0);
    }
    EXPECT_EQ(RowClass.Count(), 0);
    EXPECT_EQ(RowTimeLeft.Count(), 0);
}

TEST_F(HomeworkRowsOf, ARemovedClassTakeTheLookOfTheRowAfter) {
    AddHomework("1", "2009/10/14");
    AddHomework("9", "2009/10/14");
    AddHomework("2", "2009/10/14");
    AddHomework("3", "2009/10/14");
    SelectHomeworkRows(Filter("All"));
    EXPECT_EQ(HomeworkRows.values, (Numbers{1, 2, 3, 4}));
    EXPECT_EQ(RowClass.values, (Texts{"Algebra", "Biology", "Biology", "Chemistry"}));
    EXPECT_EQ(RowForeColor.values, (Numbers{1, 2, 2, 3}));
    EXPECT_EQ(RowBackColor.values, (Numbers{100, 200, 200, 300}));
}

TEST_F(HomeworkRowsOf, RemovedClassesInARowTakeTheLookOfTheFirstRowWithOne) {
    AddHomework("9", "2009/10/14");
    AddHomework("8", "2009/10/14");
    AddHomework("2", "2009/10/14");
    SelectHomeworkRows(Filter("All"));
    EXPECT_EQ(RowClass.values, (Texts{"Biology", "Biology", "Biology"}));
}

TEST_F(HomeworkRowsOf, ARemovedClassAtTheEndAreNamelessBlackOnWhite) {
    AddHomework("2", "2009/10/14");
    AddHomework("none", "2009/10/14");
    SelectHomeworkRows(Filter("All"));
    EXPECT_EQ(RowClass.values, (Texts{"Biology", ""}));
    EXPECT_EQ(RowForeColor.values, (Numbers{2, 0}));
    EXPECT_EQ(RowBackColor.values, (Numbers{200, 0xFFFFFF}));
}

TEST_F(HomeworkRowsOf, ARowAfterThatWasFilteredOutDoNotLendItsLook) {
    AddHomework("9", "2009/10/14");
    AddHomework("2", "2009/10/14", "True");
    AddHomework("3", "2009/10/14");
    SelectHomeworkRows(Filter("Not Done"));
    EXPECT_EQ(RowClass.values, (Texts{"Chemistry", "Chemistry"}));
}

TEST_F(HomeworkRowsOf, LoggedStudyHaveLessTimeLeft) {
    AddHomework("1", "2009/10/14");
    AddLogEntry(Store.Assignment.id.Item(1), "2009/10/13", "00 : 40");
    SelectHomeworkRows(Filter("All"));
    EXPECT_EQ(RowTimeLeft.values, (Texts{"00:50"}));
}

TEST_F(HomeworkRowsOf, ABadDateOrEstimateEndInTheRunTimeError) {
    AddHomework("1", "never");
    EXPECT_THROW(SelectHomeworkRows(Filter("All")), RunTimeError);
    Store.Assignment.date.Replace(1, "2009/10/14");
    Store.Assignment.est_time.Replace(1, "long");
    EXPECT_THROW(SelectHomeworkRows(Filter("All")), RunTimeError);
}

TEST_F(StudyRowsOf, AnEmptyLogAreNone) {
    AddHomework("1", "2009/10/14");
    const StudySessionBoxes boxes = SelectStudyRows(Filter("All", "Term"));
    EXPECT_EQ(HomeworkRows.Count(), 0);
    EXPECT_EQ(boxes.TextBoxStudySessions, (BoxText{"0", 0xFFFFFF}));
    EXPECT_EQ(boxes.TextboxStudyTime, (BoxText{"00:00", 0xFFFFFF}));
}

TEST_F(StudyRowsOf, ADayAreItsEntriesWithAssignmentAndClass) {
    AddHomework("1", "2009/10/14");
    AddHomework("2", "2009/10/20");
    AddLogEntry(Store.Assignment.id.Item(2), "2009/10/14", "01 : 40");
    AddLogEntry("-1", "2009/10/14", "01 : 00");
    AddLogEntry(Store.Assignment.id.Item(1), "2009/10/13", "01 : 00");
    AddLogEntry(Store.Assignment.id.Item(1), "2009/10/14", "00 : 30");
    const StudySessionBoxes boxes = SelectStudyRows(Filter("All", "Day"));
    EXPECT_EQ(StudyRowTime.values, (Numbers{1, 4}));
    EXPECT_EQ(StudyRowDate.values, (Numbers{1, 4}));
    EXPECT_EQ(HomeworkRows.values, (Numbers{2, 1}));
    EXPECT_EQ(RowClass.values, (Texts{"Biology", "Algebra"}));
    EXPECT_EQ(RowBackColor.values, (Numbers{200, 100}));
    EXPECT_EQ(boxes.TextBoxStudySessions.text, "2");
    EXPECT_EQ(boxes.TextboxStudyTime.text, "02:10");
}

TEST_F(StudyRowsOf, TheTermAreAllOfThem) {
    AddHomework("1", "2009/10/14");
    AddLogEntry(Store.Assignment.id.Item(1), "2009/10/13", "01 : 00");
    AddLogEntry(Store.Assignment.id.Item(1), "2009/11/14", "00 : 30");
    SelectStudyRows(Filter("All", "Term"));
    EXPECT_EQ(StudyRowTime.values, (Numbers{1, 2}));
}

TEST_F(StudyRowsOf, OneSelectionReplaceThoseOfTheLast) {
    AddHomework("1", "2009/10/14");
    SelectHomeworkRows(Filter("All"));
    AddLogEntry(Store.Assignment.id.Item(1), "2009/10/14", "01 : 00");
    for (int time = 1; time <= 2; ++time) {
        SelectStudyRows(Filter("All", "Term"));
        for (const NumberList* rows : {&HomeworkRows, &StudyRowTime, &StudyRowDate}) {
            EXPECT_EQ(rows->values, (Numbers{1}));
        }
        EXPECT_EQ(RowForeColor.values, (Numbers{1}));
        EXPECT_EQ(RowBackColor.values, (Numbers{100}));
        EXPECT_EQ(RowTimeLeft.Count(), 0) << "that is a row of homework";
    }
}
