// The words of the reminder list.
#include "planner/reminders/ReminderPhrases.h"

#include <gtest/gtest.h>

TEST(DayPhrases, AreTheRowsOfTheirTable) {
    EXPECT_EQ(DayPhrase(3), "3 Days from Now");
    EXPECT_EQ(DayPhrase(2), "2 Days from Now");
    EXPECT_EQ(DayPhrase(1), "Tomorrow");
    EXPECT_EQ(DayPhrase(0), "Today");
    EXPECT_EQ(DayPhrase(-1), "Yesterday");
    EXPECT_EQ(DayPhrase(-2), "2 Days Ago");
    EXPECT_EQ(DayPhrase(-40), "40 Days Ago");
}

TEST(MomentPhrases, AreTheRowsOfTheirTable) {
    struct Row {
        int minutes;
        int days;
        const char* phrase;
    };

    for (const auto& [minutes, days, phrase] :
         {Row{2881, 2, "2 Days from Now"}, {1441, 1, "Tomorrow"},        {1441, 2, "2 Days from Now"},
          {1440, 1, "24 Hours from Now"},  {179, 0, "2 Hours from Now"}, {120, 0, "2 Hours from Now"},
          {119, 0, "1 Hour from Now"},     {61, 1, "1 Hour from Now"},   {60, 0, "60 Minutes from Now"},
          {2, 0, "2 Minutes from Now"},    {1, 0, "1 Minute from Now"},  {0, 0, "Now"},
          {-1, 0, "1 Minute Ago"},         {-2, -1, "2 Minutes Ago"},    {-60, 0, "60 Minutes Ago"},
          {-61, 0, "1 Hour Ago"},          {-119, 0, "1 Hour Ago"},      {-120, 0, "2 Hours Ago"},
          {-1440, -1, "24 Hours Ago"},     {-1441, -1, "Yesterday"},     {-1441, -2, "2 Days Ago"},
          {-4000, -3, "3 Days Ago"}}) {
        EXPECT_EQ(MomentPhrase(minutes, days), phrase) << minutes << " minutes, " << days << " days";
    }
}

TEST(MomentPhrases, ReachThroughTheWholeCalendar) {
    EXPECT_EQ(MomentPhrase(4'200'000'000, 2'916'666), "2916666 Days from Now");
}

TEST(ReminderTitles, CountTheRows) {
    EXPECT_EQ(ReminderTitle(0), "0 Reminders");
    EXPECT_EQ(ReminderTitle(1), "1 Reminder");
    EXPECT_EQ(ReminderTitle(2), "2 Reminders");
}
