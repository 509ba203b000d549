// What the editors store of a reminder.
#include "planner/entries/ReminderEntry.h"
#include "core/DateText.h"
#include "core/RunTimeError.h"
#include "planner/entries/ComboRows.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

using namespace std::chrono_literals;

namespace {

constexpr Date Wednesday{2009y / 10 / 14};

} // namespace

TEST(TimeEntries, AreWrittenWithTwoFiguresAndTheHalfOfTheDay) {
    EXPECT_EQ(ValidateTime("9:00 AM"), "09:00 AM");
    EXPECT_EQ(ValidateTime("9 pm"), "09:00 PM");
    EXPECT_EQ(ValidateTime("14:05"), "02:05 PM");
    EXPECT_EQ(ValidateTime("0:30"), "12:30 AM");
    EXPECT_EQ(ValidateTime("12:30 am"), "12:30 AM");
    EXPECT_EQ(ValidateTime("12:00 PM"), "12:00 PM");
    EXPECT_EQ(ValidateTime(" 11:59:59 PM "), "11:59 PM");
}

TEST(TimeEntries, ThatAreNoTimeBecomeNineInTheMorning) {
    for (const char* typed : {"", "soon", "25:00", "9:60", "9", "13 PM", "9:00 XM", "09.00"}) {
        EXPECT_EQ(ValidateTime(typed), "09:00 AM") << typed;
    }
}

TEST(TimeEntries, KeepTheTimeOfEachRowThatIsOffered) {
    for (const std::string& row : TimeOfDayRows()) {
        EXPECT_EQ(TimeValue(ValidateTime(row)), TimeValue(row));
        EXPECT_EQ(ValidateTime(row).size(), 8U);
    }
}

RC_GTEST_PROP(TimeEntryProperties, StayAsTheyAreOnceValid, ()) {
    const std::string valid = ValidateTime(
        *rc::gen::container<std::string>(rc::gen::elementOf(std::string("0123456789:: aApPmM"))));
    RC_ASSERT(ValidateTime(valid) == valid);
}

RC_GTEST_PROP(TimeEntryProperties, KeepTheMinute, ()) {
    const int hour = *rc::gen::inRange(0, 24);
    const int minute = *rc::gen::inRange(0, 60);
    const std::string valid = ValidateTime(std::to_string(hour) + ":" + std::to_string(minute));
    RC_ASSERT(TimeValue(valid) == std::chrono::hours{hour} + std::chrono::minutes{minute});
}

TEST(ItemAlarms, AreTheDateAndTheTime) {
    EXPECT_EQ(ItemReminderAlarm(Wednesday, "09:00 AM"), "2009/10/14 09:00:00");
    EXPECT_EQ(ItemReminderAlarm(Wednesday, "11:45 PM"), "2009/10/14 23:45:00");
    EXPECT_EQ(ItemReminderAlarm(Wednesday, "12:00 AM"), "2009/10/14 00:00:00");
    EXPECT_THROW(ItemReminderAlarm(Wednesday, "soon"), RunTimeError);
}

TEST(EventReminders, AreArmedForTheFirstDateOffTheList) {
    const EventReminderFields reminder = SetEventReminder(Wednesday, "09:00 AM", "1.5 Hours");
    EXPECT_EQ(reminder.reminder_alarm, "2009/10/14 07:30:00");
    EXPECT_EQ(reminder.reminder_nextalarm, "2009/10/14 07:30:00");
    EXPECT_EQ(reminder.reminder_currentday, "2009/10/14");
    EXPECT_EQ(reminder.reminder_nextday, "2009/10/14");
    EXPECT_EQ(reminder.reminder_list, "False");
}

TEST(EventReminders, ReachBackOverMidnightAndTheMonth) {
    EXPECT_EQ(SetEventReminder(Date{2009y / 3 / 1}, "12:10 AM", "15 Minutes").reminder_alarm,
              "2009/02/28 23:55:00");
    EXPECT_EQ(SetEventReminder(Date{2009y / 3 / 1}, "09:00 AM", "3 Days").reminder_alarm,
              "2009/02/26 09:00:00");
    EXPECT_EQ(SetEventReminder(Wednesday, "09:00 AM", "0 Minutes").reminder_alarm, "2009/10/14 09:00:00");
}

TEST(EventReminders, DropTheSecondsOfTheirAlarm) {
    EXPECT_EQ(SetEventReminder(Wednesday, "09:00 AM", ".33 Hours").reminder_alarm,
              "2009/10/14 08:40:00"); // 19 minutes 48 seconds before
}

TEST(EventReminders, NeedATimeAndANumber) {
    EXPECT_THROW(SetEventReminder(Wednesday, "noon", "1 Hour"), RunTimeError);
    EXPECT_THROW(SetEventReminder(Wednesday, "09:00 AM", ""), RunTimeError);
}

TEST(EventReminders, BeforeTheCalendarBeginsAreAnOverflow) {
    EXPECT_THROW(SetEventReminder(Date{100y / 1 / 1}, "12:00 AM", "1 Minute"), RunTimeError);
    EXPECT_THROW(SetEventReminder(Wednesday, "09:00 AM", "900000 Days"), RunTimeError);
    EXPECT_THROW(SetEventReminder(Date{9999y / 12 / 31}, "11:00 PM", "-1 Hours"), RunTimeError);
    EXPECT_EQ(SetEventReminder(Date{100y / 1 / 1}, "12:01 AM", "1 Minute").reminder_alarm,
              "0100/01/01 00:00:00");
}
