// The scan for reminders: what stands, what fires, and what that changes.
#include "planner/reminders/ReminderEngine.h"
#include "core/DateText.h"
#include "core/RunTimeError.h"
#include "support/ReminderScan.h"

#include <rapidcheck/gtest.h>

namespace {

using Texts = std::vector<std::string>;

const EventTexts Daily{.date = "2009/10/01", .recurrence = "Day", .repeat_daily = "TTTTTTT"};

template <class Lists, std::size_t Count>
void ExpectEqualLists(const Lists& found, const Lists& expected,
                      const std::array<Field<Lists>, Count>& fields) {
    for (const Field<Lists>& field : fields) {
        EXPECT_EQ(found.*field.list, expected.*field.list) << field.tag;
    }
}

} // namespace

// --- Tasks and homework ------------------------------------------------------------------------------------

TEST_F(ReminderScan, FiresATaskWhoseAlarmPassedWhileTheProgramWasClosed) {
    AddTaskRecord(ArmedTask({}, "2009/10/14", "09:00 AM"));
    SetClock(2009, 10, 14, 14, 0);
    window.Tick();
    EXPECT_EQ(window.Standing(), Texts{"Task 1"});
    EXPECT_TRUE(window.flags.ReminderShowWindow);
    EXPECT_TRUE(window.flags.ReminderTasksChanged);
    EXPECT_FALSE(window.flags.ReminderHomeworkChanged || window.flags.ReminderEventsChanged);
    EXPECT_EQ(Store.TaskRecord.reminder.Item(1), "False");
    EXPECT_EQ(Store.TaskRecord.reminder_list.Item(1), "True");
}

TEST_F(ReminderScan, ShowsWhatStoodAtTheLastExitWithoutWriting) {
    AddTaskRecord({.reminder_list = "True"});
    window.Tick();
    EXPECT_EQ(window.Standing(), Texts{"Task 1"});
    EXPECT_TRUE(window.flags.ReminderShowWindow);
    EXPECT_FALSE(window.flags.ReminderFirstTick);
    EXPECT_FALSE(window.flags.ReminderTasksChanged);
}

TEST_F(ReminderScan, BringsTheWindowUpOnlyForTheFirstRowsAndForWhatFires) {
    AddTaskRecord(ArmedTask({.reminder_list = "True"}, "2009/10/14", "12:30 PM"));
    Store.TaskRecord.reminder.Replace(1, "False");
    AddTaskRecord(ArmedTask({}, "2009/10/14", "12:30 PM"));
    window.QuietTick();
    window.Tick();
    EXPECT_FALSE(window.flags.ReminderShowWindow);
    EXPECT_EQ(window.Standing(), Texts{"Task 1"});
    SetClock(2009, 10, 14, 12, 30, 20);
    window.Tick();
    EXPECT_TRUE(window.flags.ReminderShowWindow);
    EXPECT_EQ(window.Standing(), (Texts{"Task 1", "Task 2"}));
}

TEST_F(ReminderScan, ChangesNothingButTheReminderOfWhatFires) {
    AddTaskRecord({});
    AddTaskRecord(ArmedTask({}, "2009/10/14", "09:00 AM"));
    AddAssignmentRecord({});
    AddEventRecord({});
    AddArmedEvent({});
    AddArmedEvent(Daily);
    AddArmedEvent({.date = "2009/10/20"});
    PlannerStore expected = Store;
    expected.TaskRecord.reminder.Replace(2, "False");
    expected.TaskRecord.reminder_list.Replace(2, "True");
    expected.EventRecord.reminder.Replace(2, "False");
    expected.EventRecord.reminder_list.Replace(2, "True");
    expected.EventRecord.reminder_list.Replace(3, "True");
    expected.EventRecord.reminder_currentday.Replace(3, "2009/10/14");
    expected.EventRecord.reminder_alarm.Replace(3, "2009/10/14 08:30:00");
    expected.EventRecord.reminder_nextday.Replace(3, "2009/10/15");
    expected.EventRecord.reminder_nextalarm.Replace(3, "2009/10/15 08:30:00");
    window.Tick();
    ExpectEqualLists(Store.TaskRecord, expected.TaskRecord, TaskFields);
    ExpectEqualLists(Store.Assignment, expected.Assignment, AssignmentFields);
    ExpectEqualLists(Store.EventRecord, expected.EventRecord, EventFields);
}

TEST_F(ReminderScan, KeepsTheFirstTickUntilARowIsFound) {
    window.Tick();
    ExpectNothing();
    EXPECT_TRUE(window.flags.ReminderFirstTick);
    EXPECT_EQ(window.flags.ReminderSelectedRow, 0);
}

TEST_F(ReminderScan, WaitsForTheSecondOfTheAlarm) {
    AddTaskRecord(ArmedTask({}, "2009/10/14", "03:00 PM"));
    SetClock(2009, 10, 14, 14, 59, 59);
    window.Tick();
    ExpectNothing();
    EXPECT_EQ(Store.TaskRecord.reminder.Item(1), "True");
    SetClock(2009, 10, 14, 15, 0, 0);
    window.Tick();
    EXPECT_EQ(window.Standing(), Texts{"Task 1"});
}

TEST_F(ReminderScan, FiresHowEverOldAnAlarmIs) {
    AddTaskRecord(ArmedTask({}, "1999/01/31", "09:00 AM"));
    window.Tick();
    EXPECT_EQ(window.Standing(), Texts{"Task 1"});
}

TEST_F(ReminderScan, TakesAnArmedItemOnTheListAsFiredJustNow) {
    AddTaskRecord(ArmedTask({.reminder_list = "True"}, "2009/10/20", "09:00 AM"));
    window.Tick();
    EXPECT_TRUE(window.flags.ReminderTasksChanged);
    EXPECT_EQ(Store.TaskRecord.reminder.Item(1), "False");
}

TEST_F(ReminderScan, ClearsTheSelectionOnlyWhenSomethingFires) {
    AddTaskRecord({.reminder_list = "True"});
    AddTaskRecord(ArmedTask({}, "2009/10/14", "01:00 PM"));
    window.QuietTick();
    window.flags.ReminderSelectedRow = 1;
    window.Tick();
    EXPECT_EQ(window.flags.ReminderSelectedRow, 1);
    SetClock(2009, 10, 14, 13, 0);
    window.Tick();
    EXPECT_EQ(window.flags.ReminderSelectedRow, 0);
}

TEST_F(ReminderScan, NamesAndColorsATaskByItsType) {
    TypeTable.customname.Replace(TypeRow("Task", "Home"), "Chores");
    TypeTable.forecolor.Replace(TypeRow("Task", "Home"), "255");
    AddTaskRecord({.date = "2009/10/17", .desc = "Sweep", .type = "Home", .reminder_list = "True"});
    AddTaskRecord({.date = "2009/10/13", .desc = "", .type = "School", .reminder_list = "True"});
    window.Tick();
    ExpectRow(1, {"Task", "Sweep", "Chores", "3 Days from Now"}, 3, 255, 0xC6E7FF);
    ExpectRow(2, {"Task", "New Task", "School", "Yesterday"}, -1, 0, 0xA3C4DE);
}

TEST_F(ReminderScan, ShowsATaskOfNoTypeEmptyBlackOnWhite) {
    AddTaskRecord({.type = "None", .reminder_list = "True"});
    AddTaskRecord({.type = "Gone", .reminder_list = "True"});
    window.Tick();
    ExpectRow(1, {"Task", "Task", "", "Today"}, 0, 0, 0xFFFFFF);
    ExpectRow(2, {"Task", "Task", "", "Today"}, 0, 0, 0xFFFFFF);
}

TEST_F(ReminderScan, ShowsATaskWithoutADateAsSuch) {
    AddTaskRecord({.date = "2009/10/20", .date_exists = "False", .reminder_list = "True"});
    window.Tick();
    ExpectRow(1, {"Task", "Task", "", "No Date"}, 0, 0, 0xFFFFFF);
}

TEST_F(ReminderScan, NamesAndColorsHomeworkByItsClass) {
    AddClassRecord({.id = "7", .name = "Biology", .forecolor = "128", .backcolor = "65280"});
    AddAssignmentRecord(
        ArmedAssignment({.class_ = "7", .date = "2009/10/15", .desc = ""}, "2009/10/14", "09:00 AM"));
    window.Tick();
    ExpectRow(1, {"Homework", "New Assignment", "Biology", "Tomorrow"}, 1, 128, 65280);
    EXPECT_TRUE(window.flags.ReminderHomeworkChanged);
    EXPECT_EQ(Store.Assignment.reminder.Item(1), "False");
    EXPECT_EQ(Store.Assignment.reminderlist.Item(1), "True");
}

TEST_F(ReminderScan, KeepsHomeworkWithoutAClassBlackOnWhite) {
    AddClassRecord({.id = "8", .name = "DELETED RECORD", .backcolor = "65280"});
    AddAssignmentRecord({.class_ = "7", .reminderlist = "True"});
    AddAssignmentRecord({.class_ = "8", .reminderlist = "True"});
    window.Tick();
    ExpectRow(1, {"Homework", "Assignment", "", "Today"}, 0, 0, 0xFFFFFF);
    ExpectRow(2, {"Homework", "Assignment", "", "Today"}, 0, 0, 0xFFFFFF);
}

TEST_F(ReminderScan, RemindsOfDoneItemsToo) {
    AddTaskRecord(ArmedTask({.done = "True"}, "2009/10/14", "09:00 AM"));
    AddAssignmentRecord(ArmedAssignment({.done = "True"}, "2009/10/14", "09:00 AM"));
    window.Tick();
    EXPECT_EQ(window.Standing(), (Texts{"Task 1", "Homework 1"}));
}

TEST_F(ReminderScan, PassesOverDeletedRecords) {
    AddTaskRecord(ArmedTask({.desc = "DELETED RECORD", .reminder_list = "True"}, "2009/10/14", "09:00 AM"));
    AddAssignmentRecord(ArmedAssignment({.desc = "DELETED RECORD"}, "2009/10/14", "09:00 AM"));
    AddArmedEvent({.desc = "DELETED RECORD"});
    EventTexts series = Daily;
    series.desc = "DELETED RECORD";
    AddArmedEvent(series);
    const PlannerStore before = Store;
    window.Tick();
    ExpectNothing();
    EXPECT_EQ(Store.TaskRecord.reminder, before.TaskRecord.reminder);
    EXPECT_EQ(Store.EventRecord.reminder_nextday, before.EventRecord.reminder_nextday);
}

TEST_F(ReminderScan, ListsTasksThenHomeworkThenEventsInStoreOrder) {
    AddArmedEvent({});
    AddTaskRecord({.reminder_list = "True"});
    AddTaskRecord({});
    AddTaskRecord({.reminder_list = "True"});
    AddAssignmentRecord({.reminderlist = "True"});
    AddArmedEvent(Daily);
    window.Tick();
    EXPECT_EQ(window.Standing(), (Texts{"Task 1", "Task 3", "Homework 1", "Event 1", "Event 2"}));
    window.Tick();
    EXPECT_EQ(window.rows.ReminderIds.Count(), 5); // rebuilt, not added to
}

// --- Bad texts ---------------------------------------------------------------------------------------------

TEST_F(ReminderScan, RaisesAtABadAlarmOfWhatIsArmed) {
    for (const char* alarm : {"", "soon", "2009/02/31 09:00:00", "2009/02/29 09:00:00", "2009/13/01 09:00:00",
                              "2009/10/10 24:00:00", "2009/10/10 09:60:00", "2009/00/10 09:00:00",
                              "2009/10/00 09:00:00", "0000/10/10 09:00:00", "2009/10/10T09:00:00"}) {
        Store.TaskRecord = {};
        AddTaskRecord({.reminder = "True", .reminder_alarm = alarm});
        EXPECT_THROW(window.Tick(), RunTimeError) << alarm;
    }
}

TEST_F(ReminderScan, LooksAtNoAlarmOfWhatIsNotArmed) {
    AddTaskRecord({.reminder = "False", .reminder_alarm = "soon"});
    AddEventRecord({.reminder = "False", .reminder_alarm = "", .reminder_nextalarm = ""});
    AddEventRecord(
        {.reminder = "True", .reminder_alarm = "2009/12/01 09:00:00", .reminder_nextalarm = "soon"});
    window.Tick();
    ExpectNothing();
}

TEST_F(ReminderScan, ReadsMomentsInAnyFormThatAMomentHas) {
    for (const char* alarm : {"2009/10/14 12:00:00", "2009/10/14 11:59:59", "2009-10-14 09:00",
                              "10/14/2009 9:00 AM", "2009/10/14", "2009/09/30 23:59:00"}) {
        Store.TaskRecord = {};
        AddTaskRecord({.reminder = "True", .reminder_alarm = alarm});
        window.Tick();
        EXPECT_EQ(window.rows.ReminderIds.Count(), 1) << alarm;
    }
    for (const char* alarm : {"2009/10/14 12:01:00", "2009/10/14 12:00:01", "2009/10/31 00:00:00",
                              "2009/10/15", "2010/01/01 00:00:00"}) {
        Store.TaskRecord = {};
        AddTaskRecord({.reminder = "True", .reminder_alarm = alarm});
        window.Tick();
        EXPECT_EQ(window.rows.ReminderIds.Count(), 0) << alarm;
    }
}

// --- Any store ---------------------------------------------------------------------------------------------

// Whether an alarm is due does not hang on how it is spelt.
RC_GTEST_PROP(ReminderScanProperties, FireExactlyWhatIsNotAfterThePresent, ()) {
    ResetStore();
    const Moment now = Moment{Date{std::chrono::year{2009} / 1 / 1}} +
                       std::chrono::seconds{*rc::gen::inRange(0, 2 * 366 * 86400)};
    const Moment alarm = now + std::chrono::seconds{*rc::gen::inRange(-90'000, 90'000)};
    std::string text = StoredMoment(alarm);
    const bool withSeconds = *rc::gen::arbitrary<bool>();
    const auto seconds = (alarm - std::chrono::floor<std::chrono::minutes>(alarm)).count();
    if (withSeconds) {
        text = text.substr(0, text.size() - 2) + (seconds < 10 ? "0" : "") + std::to_string(seconds);
    }
    AddTaskRecord({.reminder = "True", .reminder_alarm = text});
    ReminderFlags flags;
    ReminderListRows rows;
    CheckReminders(now, flags, rows);
    const Moment written = withSeconds ? alarm : std::chrono::floor<std::chrono::minutes>(alarm);
    RC_ASSERT(rows.ReminderIds.Count() == static_cast<int>(written <= now));
    RC_ASSERT(flags.ReminderShowWindow == (written <= now));
}
