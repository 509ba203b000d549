// What the buttons of the reminder window do.
#include "planner/reminders/ReminderActions.h"
#include "core/RunTimeError.h"
#include "support/Reminders.h"
#include "support/ScriptedPlatform.h"

#include <gtest/gtest.h>

namespace {

using Texts = std::vector<std::string>;

class ReminderButtons : public testing::Test {
protected:
    void SetUp() override {
        ResetScript(); // noon of 2009-10-14
        ResetStore();
        AddTaskRecord({.reminder_list = "True"});
        AddTaskRecord({.reminder_list = "True"});
        AddAssignmentRecord({.reminderlist = "True"});
        AddEventRecord({.reminder_list = "True"});
        AddArmedEvent({.date = "2009/10/01", .recurrence = "Day", .repeat_daily = "TTTTTTT"});
        window.QuietTick();
    }

    void TearDown() override { ResetStore(); }

    void ExpectChanged(bool tasks, bool homework, bool events) const {
        EXPECT_EQ(window.flags.ReminderTasksChanged, tasks);
        EXPECT_EQ(window.flags.ReminderHomeworkChanged, homework);
        EXPECT_EQ(window.flags.ReminderEventsChanged, events);
    }

    void Snooze(std::string_view mode, std::string_view id, std::string_view interval) {
        SnoozeReminder(mode, id, interval, Now(), window.flags);
    }

    ReminderWindow window;
};

} // namespace

TEST_F(ReminderButtons, SnoozingATaskArmsItAnewOffTheList) {
    Snooze("Task", "2", "1.5 Hours");
    EXPECT_EQ(Store.TaskRecord.reminder.Item(2), "True");
    EXPECT_EQ(Store.TaskRecord.reminder_date.Item(2), "2009/10/14");
    EXPECT_EQ(Store.TaskRecord.reminder_time.Item(2), "01:30 PM");
    EXPECT_EQ(Store.TaskRecord.reminder_alarm.Item(2), "2009/10/14 13:30:00");
    EXPECT_EQ(Store.TaskRecord.reminder_list.Item(2), "False");
    EXPECT_EQ(Store.TaskRecord.reminder_list.Item(1), "True");
    ExpectChanged(true, false, false);
}

TEST_F(ReminderButtons, SnoozingHomeworkOverMidnightMovesItsDay) {
    Snooze("Homework", "1", "18 Hours");
    EXPECT_EQ(Store.Assignment.reminder.Item(1), "True");
    EXPECT_EQ(Store.Assignment.reminderdate.Item(1), "2009/10/15");
    EXPECT_EQ(Store.Assignment.remindertime.Item(1), "06:00 AM");
    EXPECT_EQ(Store.Assignment.reminderalarm.Item(1), "2009/10/15 06:00:00");
    EXPECT_EQ(Store.Assignment.reminderlist.Item(1), "False");
    ExpectChanged(false, true, false);
}

TEST_F(ReminderButtons, SnoozingAtTheEndOfTheYearGoesToTheFirstMinutesOfTheNext) {
    SetClock(2009, 12, 31, 23, 55);
    Snooze("Task", "1", "5 Minutes");
    Snooze("Task", "2", "15 Minutes");
    EXPECT_EQ(Store.TaskRecord.reminder_date.values, (Texts{"2010/01/01", "2010/01/01"}));
    EXPECT_EQ(Store.TaskRecord.reminder_time.values, (Texts{"12:00 AM", "12:10 AM"}));
    EXPECT_EQ(Store.TaskRecord.reminder_alarm.values, (Texts{"2010/01/01 00:00:00", "2010/01/01 00:10:00"}));
}

TEST_F(ReminderButtons, SnoozingASingleEventSetsItsAlarm) {
    Snooze("Event", "1", "5 Minutes");
    EXPECT_EQ(Store.EventRecord.reminder.Item(1), "True");
    EXPECT_EQ(Store.EventRecord.reminder_alarm.Item(1), "2009/10/14 12:05:00");
    EXPECT_EQ(Store.EventRecord.reminder_list.Item(1), "False");
    EXPECT_EQ(Store.EventRecord.date.Item(1), "2009/10/14");
    ExpectChanged(false, false, true);
}

TEST_F(ReminderButtons, SnoozingASeriesForADayLeavesItsNextOccurrenceItsOwnAlarm) {
    Snooze("Event", "2", "1 Day");
    EXPECT_EQ(Store.EventRecord.reminder_alarm.Item(2), "2009/10/15 12:00:00");
    EXPECT_EQ(Store.EventRecord.reminder_currentday.Item(2), "2009/10/14");
    EXPECT_EQ(Store.EventRecord.reminder_nextday.Item(2), "2009/10/15");
    EXPECT_EQ(Store.EventRecord.reminder_nextalarm.Item(2), "2009/10/15 08:30:00");
    EXPECT_EQ(Store.EventRecord.reminder_list.Item(2), "False");
}

TEST_F(ReminderButtons, SnoozingIsExactToTheSecondAndWritesTheMinute) {
    SetClock(2009, 10, 14, 12, 0, 59);
    Snooze("Task", "1", ".01 Hours"); // 36 seconds
    EXPECT_EQ(Store.TaskRecord.reminder_alarm.Item(1), "2009/10/14 12:01:00");
    Snooze("Task", "1", "5 Minutes");
    EXPECT_EQ(Store.TaskRecord.reminder_alarm.Item(1), "2009/10/14 12:05:00");
}

TEST_F(ReminderButtons, SnoozingRefusesWhatIsNoInterval) {
    EXPECT_THROW(Snooze("Task", "1", "soon"), RunTimeError);
    EXPECT_THROW(Snooze("Task", "1", "99999999 Days"), RunTimeError);
    SetClock(9999, 12, 31, 23, 0);
    EXPECT_THROW(Snooze("Task", "1", "1 Hour"), RunTimeError) << "the first moment behind the calendar";
    EXPECT_EQ(Store.TaskRecord.reminder.Item(1), "False");
    EXPECT_EQ(Store.TaskRecord.reminder_list.Item(1), "True");
}

TEST_F(ReminderButtons, ASnoozedItemComesBackAfterItsInterval) {
    Snooze("Task", "1", "5 Minutes");
    window.QuietTick();
    EXPECT_EQ(window.Standing(), (Texts{"Task 2", "Homework 1", "Event 1", "Event 2"}));
    SetClock(2009, 10, 14, 12, 5);
    window.Tick();
    EXPECT_EQ(window.Standing(), (Texts{"Task 1", "Task 2", "Homework 1", "Event 1", "Event 2"}));
    EXPECT_TRUE(window.flags.ReminderShowWindow);
}

TEST_F(ReminderButtons, RemovingTakesAnItemOffTheList) {
    RemoveReminder("Task", "1", window.flags);
    EXPECT_EQ(Store.TaskRecord.reminder_list.values, (Texts{"False", "True"}));
    ExpectChanged(true, false, false);
    RemoveReminder("Homework", "1", window.flags);
    EXPECT_EQ(Store.Assignment.reminderlist.Item(1), "False");
    ExpectChanged(true, true, false);
    window.Tick();
    EXPECT_EQ(window.Standing(), (Texts{"Task 2", "Event 1", "Event 2"}));
}

TEST_F(ReminderButtons, RemovingASingleEventKeepsItsAlarm) {
    Store.EventRecord.reminder_alarm.Replace(1, "2009/10/14 08:30:00");
    RemoveReminder("Event", "1", window.flags);
    EXPECT_EQ(Store.EventRecord.reminder_list.Item(1), "False");
    EXPECT_EQ(Store.EventRecord.reminder_alarm.Item(1), "2009/10/14 08:30:00");
    ExpectChanged(false, false, true);
}

TEST_F(ReminderButtons, RemovingASeriesLetsItFollowItsNextOccurrence) {
    RemoveReminder("Event", "2", window.flags);
    EXPECT_EQ(Store.EventRecord.reminder_list.Item(2), "False");
    EXPECT_EQ(Store.EventRecord.reminder_alarm.Item(2), "2009/10/15 08:30:00");
    EXPECT_EQ(Store.EventRecord.reminder_currentday.Item(2), "2009/10/15");
    EXPECT_EQ(Store.EventRecord.reminder.Item(2), "True");
}

TEST_F(ReminderButtons, ChangeNothingOfARecordThatHasGone) {
    const PlannerStore before = Store;
    for (const char* mode : {"Task", "Homework", "Event"}) {
        Snooze(mode, "99", "5 Minutes");
        RemoveReminder(mode, "99", window.flags);
        EXPECT_EQ(ReminderPosition(mode, "99"), 0);
    }
    ExpectChanged(false, false, false);
    EXPECT_EQ(Store.TaskRecord.reminder_list, before.TaskRecord.reminder_list);
}

TEST_F(ReminderButtons, RemovingAllTakesEachRowsRecordOffTheListAndLeavesTheRows) {
    RemoveAllReminders(window.rows, window.flags);
    EXPECT_EQ(Store.TaskRecord.reminder_list.values, (Texts{"False", "False"}));
    EXPECT_EQ(Store.Assignment.reminderlist.values, Texts{"False"});
    EXPECT_EQ(Store.EventRecord.reminder_list.values, (Texts{"False", "False"}));
    EXPECT_EQ(Store.EventRecord.reminder_currentday.Item(2), "2009/10/15") << "a series follows";
    EXPECT_EQ(Store.EventRecord.reminder_alarm.Item(2), "2009/10/15 08:30:00");
    ExpectChanged(true, true, true);
    EXPECT_EQ(window.rows.ReminderIds.Count(), 5);
}

TEST_F(ReminderButtons, RemovingAllPassesOverWhatDoesNotStandAndWhatHasGone) {
    AddTaskRecord({.reminder_list = "True"}); // since the last scan
    window.rows.ReminderIds.values = {"99"};
    window.rows.ReminderModes.values = {"Homework"};
    RemoveAllReminders(window.rows, window.flags);
    ExpectChanged(false, false, false);
    window.rows.ReminderIds.values = {"99", "2"};
    window.rows.ReminderModes.values = {"Event", "Task"};
    RemoveAllReminders(window.rows, window.flags);
    ExpectChanged(true, false, false);
    EXPECT_EQ(Store.TaskRecord.reminder_list.values, (Texts{"True", "False", "True"}));
    EXPECT_EQ(Store.Assignment.reminderlist.values, Texts{"True"});
}

TEST_F(ReminderButtons, RemovingAllGoesByTheFirstOfTwoRecordsWithOneId) {
    Store.TaskRecord.id.values = {"7", "7"};
    window.rows = {};
    window.QuietTick();
    window.rows.ReminderIds.values = {"7"};
    window.rows.ReminderModes.values = {"Task"};
    RemoveAllReminders(window.rows, window.flags);
    EXPECT_EQ(Store.TaskRecord.reminder_list.values, (Texts{"False", "True"}));
}

TEST_F(ReminderButtons, EmptyRowsHaveNoSelection) {
    window.flags.ReminderSelectedRow = 3;
    EmptyReminderRows(window.rows, window.flags);
    EXPECT_EQ(window.flags.ReminderSelectedRow, 0);
    ForEachList(window.rows, [](const auto& list) { EXPECT_EQ(list.Count(), 0); });
}

// --- Another term ------------------------------------------------------------------------------------------

TEST_F(ReminderButtons, RowsOfATermAreThoseOfHomeworkAndOfMeetings) {
    Store.EventRecord.type.Replace(1, "TermID1-ClassID1");
    window.flags.ReminderSelectedRow = 5;
    TakeOutTermRows(window.rows, window.flags);
    EXPECT_EQ(window.Standing(), (Texts{"Task 1", "Task 2", "Event 2"}));
    EXPECT_EQ(window.flags.ReminderSelectedRow, 3) << "the selection stays on its item";
    ForEachList(window.rows, [](const auto& list) { EXPECT_EQ(list.Count(), 3); });
}

TEST_F(ReminderButtons, SelectionGoesWithTheRowsOfATerm) {
    window.flags.ReminderSelectedRow = 3; // the homework
    TakeOutTermRows(window.rows, window.flags);
    EXPECT_EQ(window.Standing(), (Texts{"Task 1", "Task 2", "Event 1", "Event 2"}));
    EXPECT_EQ(window.flags.ReminderSelectedRow, 0);
    TakeOutTermRows(window.rows, window.flags);
    EXPECT_EQ(window.Standing().size(), 4U) << "there are no more of them";
}

TEST_F(ReminderButtons, OfATermAloneLeaveNoRow) {
    window.rows = {};
    Store.TaskRecord = {};
    Store.EventRecord.reminder_list.values = {"False", "False"};
    Store.EventRecord.reminder.values = {"False", "False"};
    window.QuietTick();
    ASSERT_EQ(window.Standing(), Texts{"Homework 1"});
    TakeOutTermRows(window.rows, window.flags);
    EXPECT_EQ(window.Standing(), Texts{});
    EXPECT_EQ(window.rows.ReminderWhens.Count(), 0);
}

TEST_F(ReminderButtons, ARowWhoseEventHasGoneStaysWhenTheTermIsLeft) {
    Store.EventRecord.type.Replace(1, "TermID1-ClassID1");
    RemoveRecord(Store.EventRecord, EventFields, 1);
    TakeOutTermRows(window.rows, window.flags);
    EXPECT_EQ(window.Standing(), (Texts{"Task 1", "Task 2", "Event 1", "Event 2"}));
}

TEST_F(ReminderButtons, FindTheRecordOfARowByItsId) {
    Store.TaskRecord.id.Replace(2, "41");
    EXPECT_EQ(ReminderPosition("Task", "41"), 2);
    EXPECT_EQ(ReminderPosition("Homework", "1"), 1);
    EXPECT_EQ(ReminderPosition("Event", "2"), 2);
    Store.TaskRecord.id.values = {"1", "10"};
    EXPECT_EQ(ReminderPosition("Task", "10"), 2);
    Store.TaskRecord.id.values = {"10", "1"};
    EXPECT_EQ(ReminderPosition("Task", "1"), 2);
}

TEST_F(ReminderButtons, LeaveEveryOtherRecordAsItIs) {
    const PlannerStore before = Store;
    Snooze("Event", "2", "5 Minutes");
    RemoveReminder("Task", "2", window.flags);
    for (const Field<EventLists>& field : EventFields) {
        EXPECT_EQ((Store.EventRecord.*field.list).Item(1), (before.EventRecord.*field.list).Item(1));
    }
    for (const Field<TaskLists>& field : TaskFields) {
        EXPECT_EQ((Store.TaskRecord.*field.list).Item(1), (before.TaskRecord.*field.list).Item(1));
    }
    for (const Field<AssignmentLists>& field : AssignmentFields) {
        EXPECT_EQ(Store.Assignment.*field.list, before.Assignment.*field.list) << field.tag;
    }
}

TEST_F(ReminderButtons, TakingTheLastRowOutSelectsTheNewLast) {
    window.flags.ReminderSelectedRow = 5;
    TakeOutReminderRow(window.rows, 5, window.flags);
    EXPECT_EQ(window.flags.ReminderSelectedRow, 4);
    EXPECT_EQ(window.Standing(), (Texts{"Task 1", "Task 2", "Homework 1", "Event 1"}));
    EXPECT_EQ(window.rows.ReminderWhens.Count(), 4);
    EXPECT_EQ(window.rows.ReminderBackColors.Count(), 4);
}

TEST_F(ReminderButtons, TakingARowOutInFrontKeepsTheSelectedNumber) {
    window.flags.ReminderSelectedRow = 2;
    TakeOutReminderRow(window.rows, 2, window.flags);
    EXPECT_EQ(window.flags.ReminderSelectedRow, 2);
    EXPECT_EQ(window.rows.ReminderModes.Item(2), "Homework");
    while (window.rows.ReminderIds.Count() > 0) {
        TakeOutReminderRow(window.rows, 1, window.flags);
    }
    EXPECT_EQ(window.flags.ReminderSelectedRow, 0);
    EXPECT_THROW(TakeOutReminderRow(window.rows, 1, window.flags), RunTimeError);
}
