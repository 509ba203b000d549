// Lists that are out of step: windows and rules see the records that every list of the kind has, and no more.
#include "core/DateText.h"
#include "core/Module1.h"
#include "core/RunTimeError.h"
#include "planner/recurrence/SeriesEdits.h"
#include "planner/reminders/ReminderActions.h"
#include "planner/reminders/ReminderItems.h"
#include "planner/rows/ClassLink.h"
#include "support/Reminders.h"
#include "support/RuleResults.h"
#include "support/ScriptedPlatform.h"

#include <gtest/gtest.h>

namespace {

class WholeRecordsTest : public testing::Test {
protected:
    void SetUp() override {
        ResetScript();
        ResetStore();
        AddTerm("1", "Fall 2009");
        AddTerm("2", "Spring 2010");
        ChooseActiveTerm("Fall 2009");
        AddClassRecord({.id = "1", .name = "Algebra"});
        AddClassRecord({.id = "2", .name = "History", .credits = "2"});
        AddClassRecord({.id = "3", .name = "Latin"});
        for (const char* day : {"2009/10/13", "2009/10/14", "2009/10/15", "2009/10/15"}) {
            AddAssignmentRecord(ArmedAssignment({.class_ = "1", .date = day, .score = "8", .total = "10"},
                                                "2009/10/14", "09:00 AM"));
            AddTaskRecord(ArmedTask({.date = day}, "2009/10/14", "09:00 AM"));
            AddArmedEvent({.date = day, .type = "Study Time"});
            AddArmedEvent(
                {.date = day, .type = "TermID1-ClassID1", .recurrence = "Month", .same_date = "True"});
        }
    }

    static void AddTerm(const std::string& id, const std::string& name) {
        Store.Term.id.Add(id);
        Store.Term.name.Add(name);
        Store.Term.start.Add("2009/08/24");
        Store.Term.end.Add("2009/12/18");
    }
};

// Takes the last entry out of each of the kind's lists in turn, and expects what is seen then to be what is
// seen without the whole last record.
template <class Lists, class Seen>
void ExpectWholeRecordsAlone(Lists& lists, Seen seen) {
    const Lists whole = lists;
    const int records = whole.id.Count();
    const auto& fields = FieldTable(lists);
    for (const auto& field : fields) {
        (lists.*field.list).Remove(records);
    }
    const std::string expected = seen();
    ASSERT_NE(expected, (lists = whole, seen())) << "the last record is seen while it is whole";
    for (const auto& field : fields) {
        (lists.*field.list).Remove(records);
        EXPECT_EQ(WholeRecords(lists), records - 1);
        EXPECT_EQ(seen(), expected) << field.tag << " is one short";
        lists = whole;
    }
}

std::string TermTaken() {
    const AssignmentLists assignments = Store.Assignment;
    ChooseActiveTerm("");
    const std::string byDefault = ActiveTermName;
    ChooseActiveTerm("Spring 2010");
    const std::string byName = ActiveTermName;
    Store.Assignment = assignments;
    return byDefault + "|" + byName;
}

} // namespace

TEST_F(WholeRecordsTest, AreAllOfThemWhileTheListsAreInStep) {
    EXPECT_EQ(WholeRecords(Store.Term), 2);
    EXPECT_EQ(WholeRecords(Store.ClassRecord), 3);
    EXPECT_EQ(WholeRecords(Store.TaskRecord), 4);
    EXPECT_EQ(WholeRecords(EventLists{}), 0);
}

TEST_F(WholeRecordsTest, OfTermsAloneAreTaken) {
    ExpectWholeRecordsAlone(Store.Term, TermTaken);
}

TEST_F(WholeRecordsTest, OfClassesAloneAreSeen) {
    ExpectWholeRecordsAlone(Store.ClassRecord, RuleResults);
}

TEST_F(WholeRecordsTest, OfAssignmentsAloneAreSeen) {
    ExpectWholeRecordsAlone(Store.Assignment, RuleResults);
}

TEST_F(WholeRecordsTest, OfTasksAloneAreSeen) {
    ExpectWholeRecordsAlone(Store.TaskRecord, RuleResults);
}

TEST_F(WholeRecordsTest, OfEventsAloneAreSeen) {
    ExpectWholeRecordsAlone(Store.EventRecord, RuleResults);
}

TEST_F(WholeRecordsTest, AloneAreFoundByTheirIds) {
    for (const std::string_view mode : {TaskMode, HomeworkMode}) {
        EXPECT_EQ(ReminderPosition(mode, "4"), 4);
    }
    EXPECT_EQ(ReminderPosition(EventMode, "8"), 8);
    Store.TaskRecord.notes.Remove(4);
    Store.Assignment.notes.Remove(4);
    Store.EventRecord.notes.Remove(8);
    for (const std::string_view mode : {TaskMode, HomeworkMode}) {
        EXPECT_EQ(ReminderPosition(mode, "4"), 0);
        EXPECT_EQ(ReminderPosition(mode, "3"), 3);
    }
    EXPECT_EQ(ReminderPosition(EventMode, "8"), 0);
}

TEST_F(WholeRecordsTest, AloneAreTakenOffTheListOfReminders) {
    Store.EventRecord.reminder_list.Replace(7, "True");
    Store.EventRecord.reminder_list.Replace(8, "True");
    ReminderWindow window;
    window.QuietTick();
    Store.TaskRecord.notes.Remove(4);
    Store.Assignment.notes.Remove(4);
    Store.EventRecord.notes.Remove(8);
    RemoveAllReminders(window.rows, window.flags);
    for (const TextList* list : {&Store.TaskRecord.reminder_list, &Store.Assignment.reminderlist}) {
        EXPECT_EQ(list->Item(3), "False");
        EXPECT_EQ(list->Item(4), "True");
    }
    EXPECT_EQ(Store.EventRecord.reminder_list.Item(7), "False");
    EXPECT_EQ(Store.EventRecord.reminder_list.Item(8), "True");
}

TEST_F(WholeRecordsTest, AloneAreMetByTheirLinks) {
    EXPECT_EQ(ClassPosition({1, 3}), 3);
    Store.ClassRecord.notes.Remove(3);
    EXPECT_EQ(ClassPosition({1, 3}), 0);
    EXPECT_EQ(ClassPosition({1, 2}), 2);
}

TEST_F(WholeRecordsTest, AloneGoWithTheirSeries) {
    Store.EventRecord.parent_id.Replace(7, "1");
    Store.EventRecord.parent_id.Replace(8, "1");
    Store.EventRecord.notes.Remove(8);
    RemoveSeries(1);
    EXPECT_EQ(WholeRecords(Store.EventRecord), 5);
    EXPECT_EQ(Store.EventRecord.id.values, (std::vector<std::string>{"2", "3", "4", "5", "6", "8"}));
}

TEST_F(WholeRecordsTest, APositionHandedInFromElsewhereStaysAnError) {
    Store.TaskRecord.desc.Remove(4);
    EXPECT_THROW(static_cast<void>(Store.TaskRecord.desc.Item(4)), RunTimeError);
    EXPECT_THROW(static_cast<void>(Store.TaskRecord.desc.Item(0)), RunTimeError);
    EXPECT_THROW(RemoveRecord(Store.TaskRecord, TaskFields, 4), RunTimeError);
}
