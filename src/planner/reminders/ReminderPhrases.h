// The words of the reminder list.
#pragma once

#include <cstdint>
#include <string>

// The phrase of a date so many calendar days from today: "Tomorrow", "3 Days Ago".
std::string DayPhrase(int days);

// The phrase of a moment so many minutes and calendar days from now: "2 Hours from Now", "Yesterday". An hour
// has 61 minutes here: 60 are still told in minutes.
std::string MomentPhrase(std::int64_t minutes, int days);

// The title of the reminder window: "1 Reminder", "0 Reminders".
std::string ReminderTitle(int rows);
