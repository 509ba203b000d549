// The rows of the Reminders list.
#include "planner/lists/ReminderSelection.h"
#include "core/RowLists.h"
#include "core/RunTimeError.h"
#include "core/TypeTable.h"
#include "support/EventRecords.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

using Numbers = std::vector<int>;
using Texts = std::vector<std::string>;

constexpr Date Wednesday{2009y / 10 / 14};
constexpr int White = 0xFFFFFF;
constexpr int NotDoneFill = 0xE5E5FF;

class ReminderRowsOf : public testing::Test {
protected:
    void SetUp() override {
        ResetStore();
        AddClassRecord({.id = "10", .term = "4", .name = "Algebra", .forecolor = "1", .backcolor = "100"});
    }

    void TearDown() override { ResetStore(); }
};

ReminderBoxes Select(const std::string& comboList = "All") {
    return SelectReminders(Wednesday, {comboList, "Today", Wednesday});
}

} // namespace

TEST_F(ReminderRowsOf, AllSourcesStandInTheOrderTasksHomeworkEvents) {
    AddEventRecord({.desc = "Party", .type = "Birthday"});
    AddAssignmentRecord({.class_ = "10", .date = "2009/10/12", .desc = "Pages 1-9", .type = "Reading"});
    AddTaskRecord({.date = "2009/10/14", .desc = "Call home", .type = "Home"});
    Select();
    EXPECT_EQ(ReminderRowKind.values, (Texts{"Task", "Homework", "Event"}));
    EXPECT_EQ(ReminderRows.values, (Numbers{1, 1, 1}));
    EXPECT_EQ(ReminderRowClass.values, (Texts{"", "Algebra", ""}));
    EXPECT_EQ(ReminderRowType.values, (Texts{"Home", "Reading", "Birthday"}));
    EXPECT_EQ(ReminderRowText.values, (Texts{"Call home", "Pages 1-9", "Party"}));
    EXPECT_EQ(ReminderRowDays.values, (Numbers{0, -2, 0}));
    EXPECT_EQ(ReminderRowDate.values, (std::vector<Date>{Wednesday, Date{2009y / 10 / 12}, Wednesday}));
    EXPECT_EQ(ReminderRowForeColor.values, (Numbers{0, 1, 0}));
    EXPECT_EQ(ReminderRowBackColor.values, (Numbers{0xC6E7FF, 100, 0xE6B9E6}));
}

TEST_F(ReminderRowsOf, EachFilterAreItsSourceWhileAllAreCounted) {
    AddTaskRecord({});
    AddTaskRecord({});
    AddAssignmentRecord({});
    AddEventRecord({});
    for (const auto& [word, kind, rows] :
         {std::tuple{"Tasks", "Task", 2}, std::tuple{"Homework", "Homework", 1},
          std::tuple{"Events", "Event", 1}}) {
        Select(word);
        EXPECT_EQ(ReminderRowKind.values, Texts(static_cast<std::size_t>(rows), kind));
        EXPECT_EQ(ReminderTaskCount, 2);
        EXPECT_EQ(ReminderHomeworkCount, 1);
        EXPECT_EQ(ReminderEventCount, 1);
    }
    Select("Classes");
    EXPECT_EQ(ReminderRows.Count(), 0);
    EXPECT_EQ(ReminderTaskCount, 2);
}

TEST_F(ReminderRowsOf, NothingDueShowWhiteBoxes) {
    const ReminderBoxes boxes = Select();
    EXPECT_EQ(boxes.TextboxAssignments, (BoxText{"0", White}));
    EXPECT_EQ(boxes.TextBoxTasks, (BoxText{"0", White}));
    EXPECT_EQ(boxes.TextBoxEvents, (BoxText{"0", White}));
}

TEST_F(ReminderRowsOf, WhatIsDueColorTheBoxesOfHomeworkAndTasks) {
    AddTaskRecord({});
    AddAssignmentRecord({});
    AddAssignmentRecord({});
    AddEventRecord({});
    const ReminderBoxes boxes = Select("Events");
    EXPECT_EQ(boxes.TextboxAssignments, (BoxText{"2", NotDoneFill}));
    EXPECT_EQ(boxes.TextBoxTasks, (BoxText{"1", NotDoneFill}));
    EXPECT_EQ(boxes.TextBoxEvents, (BoxText{"1", White}));
}

TEST_F(ReminderRowsOf, TasksAreDatedOpenAndNotDeleted) {
    AddTaskRecord({.done = "True"});
    AddTaskRecord({.desc = "DELETED RECORD"});
    AddTaskRecord({.date_exists = "False"});
    AddTaskRecord({.date = "2009/10/15"});
    AddTaskRecord({.date = "2001/01/01"});
    Select();
    EXPECT_EQ(ReminderRows.values, (Numbers{5}));
}

TEST_F(ReminderRowsOf, HomeworkIsOpenAndNotDeleted) {
    AddAssignmentRecord({.done = "True"});
    AddAssignmentRecord({.desc = "DELETED RECORD"});
    AddAssignmentRecord({.date = "2009/10/15"});
    AddAssignmentRecord({.date = "2001/01/01"});
    Select();
    EXPECT_EQ(ReminderRows.values, (Numbers{4}));
    EXPECT_EQ(ReminderHomeworkCount, 1);
}

TEST_F(ReminderRowsOf, ANumericReminderLeadsByItsDays) {
    AddTaskRecord({.date = "2009/10/17", .reminder = "3 Days"});
    AddTaskRecord({.date = "2009/10/18", .reminder = "3 Days"});
    AddAssignmentRecord({.date = "2009/10/24", .reminder = "10"});
    AddAssignmentRecord({.date = "2009/10/15", .reminder = "True"});
    AddEventRecord({.date = "2009/10/16", .reminder = "2"});
    AddEventRecord({.date = "2009/10/13"});
    Select();
    EXPECT_EQ(ReminderRowKind.values, (Texts{"Task", "Homework", "Event"}));
    EXPECT_EQ(ReminderRows.values, (Numbers{1, 1, 1}));
    EXPECT_EQ(ReminderRowDays.values, (Numbers{3, 10, 2}));
    EXPECT_EQ(ReminderRowDate.values,
              (std::vector<Date>{Date{2009y / 10 / 17}, Date{2009y / 10 / 24}, Date{2009y / 10 / 16}}));
}

TEST_F(ReminderRowsOf, EmptyDescriptionsHaveTheirStandIns) {
    AddTaskRecord({.desc = ""});
    AddAssignmentRecord({.desc = ""});
    AddEventRecord({.desc = "", .type = "Home"});
    AddEventRecord({.desc = "", .type = "Study Time"});
    AddEventRecord({.desc = "", .type = "TermID4-ClassID10"});
    Select();
    EXPECT_EQ(ReminderRowText.values,
              (Texts{"New Task", "New Assignment", "New Event", "Study Time", "Class"}));
}

TEST_F(ReminderRowsOf, AClassMeetingHasItsClassAndColors) {
    AddEventRecord({.type = "TermID4-ClassID10"});
    Select();
    EXPECT_EQ(ReminderRowClass.values, (Texts{"Algebra"}));
    EXPECT_EQ(ReminderRowType.values, (Texts{"Algebra"}));
    EXPECT_EQ(ReminderRowForeColor.values, (Numbers{1}));
    EXPECT_EQ(ReminderRowBackColor.values, (Numbers{100}));
}

TEST_F(ReminderRowsOf, HomeworkWithoutAClassIsNamelessBlackOnWhite) {
    AddAssignmentRecord({.class_ = "99"});
    AddAssignmentRecord({.class_ = "10"});
    Select();
    EXPECT_EQ(ReminderRowClass.values, (Texts{"", "Algebra"}));
    EXPECT_EQ(ReminderRowForeColor.values, (Numbers{0, 1}));
    EXPECT_EQ(ReminderRowBackColor.values, (Numbers{White, 100}));
}

TEST_F(ReminderRowsOf, ASeriesStandsOnADateThatItHasGivenUp) {
    AddEventRecord(
        {.date = "2009/10/07", .recurrence = "Day", .exceptions = "2009/10/14", .repeat_daily = "FFTFFFF"});
    Select();
    EXPECT_EQ(ReminderRowDate.values, (std::vector<Date>{Wednesday}));
}

TEST_F(ReminderRowsOf, OneSelectionReplaceThoseOfTheLast) {
    AddTaskRecord({});
    AddAssignmentRecord({});
    AddEventRecord({});
    Select();
    Select();
    for (const NumberList* rows :
         {&ReminderRows, &ReminderRowDays, &ReminderRowForeColor, &ReminderRowBackColor}) {
        EXPECT_EQ(rows->Count(), 3);
    }
    for (const TextList* rows : {&ReminderRowKind, &ReminderRowClass, &ReminderRowType, &ReminderRowText}) {
        EXPECT_EQ(rows->Count(), 3);
    }
    EXPECT_EQ(ReminderRowDate.Count(), 3);
    for (const int count : {ReminderTaskCount, ReminderHomeworkCount, ReminderEventCount}) {
        EXPECT_EQ(count, 1);
    }
}

TEST_F(ReminderRowsOf, AShorterSelectionLeaveNothingOfALongerOne) {
    AddTaskRecord({.desc = "Call home, and ask about the books that were left there", .type = "Home"});
    AddAssignmentRecord({.class_ = "10", .desc = "Pages 1-9", .type = "Reading"});
    AddEventRecord({.desc = "Party", .type = "Birthday"});
    Select();
    Select("Homework");
    EXPECT_EQ(ReminderRows.values, (Numbers{1}));
    EXPECT_EQ(ReminderRowKind.values, (Texts{"Homework"}));
    EXPECT_EQ(ReminderRowClass.values, (Texts{"Algebra"}));
    EXPECT_EQ(ReminderRowType.values, (Texts{"Reading"}));
    EXPECT_EQ(ReminderRowText.values, (Texts{"Pages 1-9"}));
    EXPECT_EQ(ReminderRowDays.Count(), 1);
    EXPECT_EQ(ReminderRowDate.Count(), 1);
    EXPECT_EQ(ReminderRowForeColor.values, (Numbers{1}));
    EXPECT_EQ(ReminderRowBackColor.values, (Numbers{100}));
}

TEST_F(ReminderRowsOf, EachKindHasTheLookOfItsOwnTypes) {
    TypeTable.backcolor.Replace(TypeRow("Task", "School"), "7");
    TypeTable.backcolor.Replace(TypeRow("Event", "School"), "8");
    AddTaskRecord({.type = "School"});
    AddTaskRecord({.type = "Home"});
    AddEventRecord({.type = "School"});
    Select();
    EXPECT_EQ(ReminderRowBackColor.values, (Numbers{7, 0xC6E7FF, 8}));
}

TEST_F(ReminderRowsOf, NewColorsOfAClassShowInTheNextSelection) {
    AddAssignmentRecord({.class_ = "10"});
    Select();
    Store.ClassRecord.backcolor.Replace(1, "200");
    Select();
    EXPECT_EQ(ReminderRowBackColor.values, (Numbers{200}));
}

TEST_F(ReminderRowsOf, ABadDateEndInTheRunTimeError) {
    AddTaskRecord({.date = "never"});
    EXPECT_THROW(Select(), RunTimeError);
}
