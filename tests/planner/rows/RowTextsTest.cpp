// What rows say of their records, the same in every place that shows them.
#include "planner/rows/RowTexts.h"
#include "core/Module1.h"
#include "core/RunTimeError.h"
#include "support/EventRecords.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>

namespace {

class RowTexts : public testing::Test {
protected:
    void SetUp() override { ResetStore(); }

    void TearDown() override { ResetStore(); }
};

std::string_view NameOfEventOf(const std::string& type) {
    return EventName(AddEventRecord({.desc = "", .type = type}));
}

} // namespace

TEST_F(RowTexts, NameARecordByItsDescription) {
    AddAssignmentRecord({.desc = ""});
    AddTaskRecord({.desc = ""});
    EXPECT_EQ(AssignmentName(AddAssignmentRecord({.desc = "Essay"})), "Essay");
    EXPECT_EQ(TaskName(AddTaskRecord({.desc = " "})), " ");
    EXPECT_EQ(EventName(AddEventRecord({.desc = "Lunch", .type = "TermID4-ClassID12"})), "Lunch");
}

TEST_F(RowTexts, NameARecordWithoutDescriptionByItsKind) {
    EXPECT_EQ(AssignmentName(AddAssignmentRecord({.desc = ""})), "New Assignment");
    EXPECT_EQ(TaskName(AddTaskRecord({.desc = ""})), "New Task");
    EXPECT_EQ(NameOfEventOf("TermID4-ClassID12"), "Class");
    EXPECT_EQ(NameOfEventOf("Study Time"), "Study Time");
    EXPECT_EQ(NameOfEventOf("Class"), "New Event");
    EXPECT_EQ(NameOfEventOf("None"), "New Event");
}

TEST_F(RowTexts, EndInTheRunTimeErrorAtAPositionThatIsNone) {
    EXPECT_THROW(AssignmentName(1), RunTimeError);
    EXPECT_THROW(TaskName(0), RunTimeError);
    EXPECT_THROW(EventName(1), RunTimeError);
}

TEST_F(RowTexts, OfAnEventWithNeitherTypeNorDescriptionAreNewEvent) {
    EXPECT_EQ(EventTitle("", ""), "New Event");
    EXPECT_EQ(EventTitle("Club", ""), "Club");
    EXPECT_EQ(EventTitle("", "Chess"), "Chess");
    EXPECT_EQ(EventTitle("Club", "Chess"), "Club - Chess");
}

TEST_F(RowTexts, TellATimeInTheStoredFormAndNothingOfATextThatIsNone) {
    EXPECT_EQ(ShownTime("14:05"), "02:05 PM");
    EXPECT_EQ(ShownTime("11:30PM"), "11:30 PM");
    EXPECT_EQ(ShownTime("soon"), "");
    EXPECT_EQ(ShownTime(""), "");
}

TEST(ShownText, OfNoneIsNothing) {
    EXPECT_EQ(ShownChoice("None"), "");
    EXPECT_EQ(ShownChoice("High"), "High");
    EXPECT_EQ(ShownChoice("none"), "none");
}

TEST(ShownText, OfAClockLengthHasNoBlanks) {
    EXPECT_EQ(ShownClock("01 : 30"), "01:30");
    EXPECT_EQ(ShownClock(""), "");
}

TEST(ShownText, OfATypeAndADescriptionJoinsThemWhereThereAreBoth) {
    EXPECT_EQ(TypeAndDescription("Club", "Chess"), "Club - Chess");
    EXPECT_EQ(TypeAndDescription("Club", ""), "Club");
    EXPECT_EQ(TypeAndDescription("", "Chess"), "Chess");
    EXPECT_EQ(TypeAndDescription("", ""), "");
}
