// The scan for reminders of events: single ones, series, and meetings of classes.
#include "planner/recurrence/SeriesEdits.h"
#include "planner/reminders/ReminderActions.h"
#include "planner/reminders/ReminderEngine.h"
#include "support/ReminderScan.h"

namespace {

using Texts = std::vector<std::string>;

void UseTerm(const std::string& id) {
    Store.Term.id.Add(id);
    Store.Term.name.Add("Term " + id);
    Store.Term.start.Add("2009/08/24");
    Store.Term.end.Add("2009/12/18");
    ChooseActiveTerm("Term " + id);
}

const EventTexts Daily{.date = "2009/10/01", .recurrence = "Day", .repeat_daily = "TTTTTTT"};

} // namespace

TEST_F(ReminderScan, FiresASingleEventOnce) {
    AddArmedEvent({.time = "12:20 PM", .desc = "Dentist"});
    window.QuietTick();
    ExpectRow(1, {"Event", "Dentist", "", "20 Minutes from Now"}, 20, 0, 0xFFFFFF);
    EXPECT_EQ(Store.EventRecord.reminder.Item(1), "False");
    EXPECT_EQ(Store.EventRecord.reminder_list.Item(1), "True");
    SetClock(2009, 10, 15);
    window.Tick();
    EXPECT_FALSE(window.flags.ReminderShowWindow);
    EXPECT_EQ(window.rows.ReminderWhens.Item(1), "23 Hours Ago");
    EXPECT_EQ(window.rows.ReminderSortKeys.Item(1), -(23 * 60 + 40));
}

TEST_F(ReminderScan, ShowsTheLatestOfFiveMissedDaysInOneRow) {
    AddArmedEvent({.date = "2009/10/10", .recurrence = "Day", .repeat_daily = "TTTTTTT"});
    window.Tick();
    EXPECT_EQ(window.Standing(), Texts{"Event 1"});
    EXPECT_EQ(Store.EventRecord.reminder_currentday.Item(1), "2009/10/14");
    EXPECT_EQ(Store.EventRecord.reminder_nextalarm.Item(1), "2009/10/15 08:30:00");
    EXPECT_EQ(window.rows.ReminderWhens.Item(1), "3 Hours Ago");
    EXPECT_TRUE(window.flags.ReminderEventsChanged);
}

TEST_F(ReminderScan, KeepsTheRowOfASeriesThatHasEnded) {
    EventTexts event = Daily;
    event.end = "True";
    event.end_date = "2009/10/12";
    AddArmedEvent(event);
    window.QuietTick();
    EXPECT_EQ(Store.EventRecord.reminder.Item(1), "False");
    EXPECT_EQ(Store.EventRecord.reminder_currentday.Item(1), "2009/10/12");
    SetClock(2009, 11, 14);
    window.Tick();
    EXPECT_EQ(window.Standing(), Texts{"Event 1"});
    EXPECT_FALSE(window.flags.ReminderEventsChanged);
}

TEST_F(ReminderScan, LeavesASeriesAloneWhileItStands) {
    AddArmedEvent(Daily);
    window.QuietTick();
    SetClock(2009, 10, 20);
    window.Tick();
    EXPECT_EQ(Store.EventRecord.reminder_currentday.Item(1), "2009/10/14");
    EXPECT_FALSE(window.flags.ReminderEventsChanged);
    RemoveReminder("Event", "1", window.flags);
    window.Tick();
    EXPECT_EQ(Store.EventRecord.reminder_currentday.Item(1), "2009/10/20");
}

TEST_F(ReminderScan, ShowsNoRowForAnOccurrenceGivenUp) {
    EventTexts event = Daily;
    event.exceptions = "2009/10/14";
    AddArmedEvent(event);
    window.QuietTick();
    EXPECT_EQ(Store.EventRecord.reminder_currentday.Item(1), "2009/10/13");
    EXPECT_EQ(Store.EventRecord.reminder_nextday.Item(1), "2009/10/15");
}

TEST_F(ReminderScan, WritesButShowsNothingWhenTheNextOccurrenceWasGivenUp) {
    EventTexts event = Daily;
    event.date = "2009/10/14";
    event.exceptions = "2009/10/14";
    AddArmedEvent(event);
    window.Tick();
    EXPECT_EQ(window.Standing(), Texts{});
    EXPECT_TRUE(window.flags.ReminderEventsChanged);
    EXPECT_FALSE(window.flags.ReminderShowWindow);
    EXPECT_TRUE(window.flags.ReminderFirstTick);
    EXPECT_EQ(Store.EventRecord.reminder_nextday.Item(1), "2009/10/15");
    window.flags = {};
    window.Tick();
    ExpectNothing();
    SetClock(2009, 10, 15, 9, 0);
    window.Tick();
    EXPECT_EQ(window.Standing(), Texts{"Event 1"});
}

TEST_F(ReminderScan, BringsASnoozedOccurrenceBackBesideTheNext) {
    AddArmedEvent(Daily);
    window.QuietTick();
    SnoozeReminder("Event", "1", "1 Hour", Now(), window.flags);
    SetClock(2009, 10, 14, 13, 0);
    window.Tick();
    EXPECT_EQ(window.Standing(), Texts{"Event 1"});
    EXPECT_TRUE(window.flags.ReminderShowWindow);
    EXPECT_EQ(Store.EventRecord.reminder_currentday.Item(1), "2009/10/14");
    EXPECT_EQ(Store.EventRecord.reminder_nextalarm.Item(1), "2009/10/15 08:30:00");
    EXPECT_EQ(window.rows.ReminderWhens.Item(1), "4 Hours Ago");
}

TEST_F(ReminderScan, LetsTheNextOccurrenceReplaceOneThatIsSnoozedBeyondIt) {
    AddArmedEvent(Daily);
    window.QuietTick();
    SnoozeReminder("Event", "1", "2 Days", Now(), window.flags);
    SetClock(2009, 10, 15, 8, 30);
    window.Tick();
    EXPECT_EQ(Store.EventRecord.reminder_currentday.Item(1), "2009/10/15");
    EXPECT_EQ(Store.EventRecord.reminder_alarm.Item(1), "2009/10/15 08:30:00");
}

TEST_F(ReminderScan, LetsASnoozedOccurrenceRestThatWasGivenUpSince) {
    AddArmedEvent(Daily);
    window.QuietTick();
    SnoozeReminder("Event", "1", "1 Hour", Now(), window.flags);
    Store.EventRecord.exceptions.Replace(1, "2009/10/14");
    SetClock(2009, 10, 14, 13, 0);
    window.QuietTick();
    EXPECT_EQ(window.Standing(), Texts{});
    EXPECT_EQ(Store.EventRecord.reminder_alarm.Item(1), "2009/10/15 08:30:00");
    SetClock(2009, 10, 15, 8, 30);
    window.Tick();
    EXPECT_EQ(Store.EventRecord.reminder_currentday.Item(1), "2009/10/15");
}

TEST_F(ReminderScan, KeepsARowWhoseOccurrenceWasGivenUpSinceUntilItIsRemoved) {
    AddArmedEvent(Daily);
    window.QuietTick();
    GiveUpOccurrence(1, Date{std::chrono::year{2009} / 10 / 14});
    SetClock(2009, 10, 14, 18, 0);
    window.Tick();
    EXPECT_EQ(window.Standing(), Texts{"Event 1"});
    EXPECT_EQ(Store.EventRecord.reminder_currentday.Item(1), "2009/10/14");
    EXPECT_FALSE(window.flags.ReminderEventsChanged);
    RemoveReminder("Event", "1", window.flags);
    window.Tick();
    EXPECT_EQ(window.Standing(), Texts{});
    EXPECT_EQ(Store.EventRecord.reminder_currentday.Item(1), "2009/10/15");
}

TEST_F(ReminderScan, FiresTheLastOccurrenceAgainAtOnceWhenItIsSnoozed) {
    EventTexts event = Daily;
    event.end = "True";
    event.end_date = "2009/10/12";
    AddArmedEvent(event);
    window.QuietTick();
    SnoozeReminder("Event", "1", "1 Hour", Now(), window.flags);
    window.Tick();
    EXPECT_EQ(window.Standing(), Texts{"Event 1"});
    EXPECT_EQ(Store.EventRecord.reminder_currentday.Item(1), "2009/10/12");
    EXPECT_EQ(Store.EventRecord.reminder.Item(1), "False");
}

TEST_F(ReminderScan, LeavesAClassMeetingOfAnotherTermAsItIs) {
    UseTerm("1");
    AddClassRecord({.id = "7", .term = "2"});
    AddArmedEvent({.type = "TermID2-ClassID7"});
    EventTexts series = Daily;
    series.type = "TermID2-ClassID7";
    AddArmedEvent(series);
    AddArmedEvent({.type = "TermID1-ClassID7"});
    AddArmedEvent({.type = "ClassID7-TermID1"});
    const EventLists before = Store.EventRecord;
    window.Tick();
    ExpectNothing();
    EXPECT_TRUE(window.flags.ReminderFirstTick);
    for (const Field<EventLists>& field : EventFields) {
        EXPECT_EQ(Store.EventRecord.*field.list, before.*field.list) << field.tag;
    }
}

TEST_F(ReminderScan, FiresAClassMeetingOnceItsTermIsActive) {
    UseTerm("1");
    UseTerm("2");
    AddClassRecord({.id = "7", .term = "1", .name = "Biology", .forecolor = "128", .backcolor = "65280"});
    AddArmedEvent({.time = "12:30 PM", .desc = "", .type = "TermID1-ClassID7"});
    window.Tick();
    ExpectNothing();
    ChooseActiveTerm("Term 1");
    window.Tick();
    ExpectRow(1, {"Event", "Class", "Biology", "30 Minutes from Now"}, 30, 128, 65280);
}

TEST_F(ReminderScan, KeepsARowOfAnotherTermOnTheListOutOfSight) {
    UseTerm("1");
    AddClassRecord({.id = "7", .term = "2"});
    AddEventRecord({.type = "TermID2-ClassID7", .reminder_list = "True"});
    window.Tick();
    ExpectNothing();
    EXPECT_EQ(Store.EventRecord.reminder_list.Item(1), "True");
}

TEST_F(ReminderScan, NamesAnEventWithoutADescriptionByItsKind) {
    UseTerm("1");
    AddClassRecord({.id = "7", .term = "1"});
    AddEventRecord({.desc = "", .type = "TermID1-ClassID7", .reminder_list = "True"});
    AddEventRecord({.desc = "", .type = "Study Time", .reminder_list = "True"});
    AddEventRecord({.desc = "", .type = "Class", .reminder_list = "True"});
    AddEventRecord({.desc = "Party", .type = "Birthday", .reminder_list = "True"});
    window.Tick();
    EXPECT_EQ(window.rows.ReminderNames.values, (Texts{"Class", "Study Time", "New Event", "Party"}));
    EXPECT_EQ(window.rows.ReminderTypes.values, (Texts{"Algebra", "Study Time", "Class", "Birthday"}));
    EXPECT_EQ(window.rows.ReminderBackColors.values,
              (std::vector<int>{0xFFFFFF, 0x4A4AFF, 0x9797F9, 0xE6B9E6}));
}

TEST_F(ReminderScan, TellsTheTimeToAnEventByWholeMinutes) {
    AddEventRecord({.time = "01:59 PM", .reminder_list = "True"});
    const auto when = [this] {
        window.Tick();
        return window.rows.ReminderWhens.Item(1);
    };
    EXPECT_EQ(when(), "1 Hour from Now"); // 119
    SetClock(2009, 10, 14, 11, 59, 59);
    EXPECT_EQ(when(), "2 Hours from Now"); // 120
    SetClock(2009, 10, 14, 13, 58, 1);
    EXPECT_EQ(when(), "1 Minute from Now");
    SetClock(2009, 10, 14, 13, 59, 59);
    EXPECT_EQ(when(), "Now");
    SetClock(2009, 10, 14, 14, 0, 0);
    EXPECT_EQ(when(), "1 Minute Ago");
    SetClock(2009, 10, 13, 13, 59, 0);
    EXPECT_EQ(when(), "24 Hours from Now");
    SetClock(2009, 10, 13, 13, 58, 0);
    EXPECT_EQ(when(), "Tomorrow");
}
