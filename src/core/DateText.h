// Dates, times and moments as texts: what the store holds and what a student or an old file may have written.
#pragma once

#include "platform/Clock.h"

#include <optional>
#include <string>
#include <string_view>

// A text holds dates of the years 100 to 9999 alone.
inline constexpr Date FirstStoredDate{std::chrono::year{100} / 1 / 1};
inline constexpr Date LastStoredDate{std::chrono::year{9999} / 12 / 31};

// The date in a text: year, month, day with a four-digit year first, else in the order of the user's short
// dates, where a two-digit year below 30 means 2000 and later. "/", "-" and "." separate; blanks around are
// trimmed. Nothing when the text holds no date of the calendar between those two.
std::optional<Date> DateIn(std::string_view text);

// The time of day in a text: "9:00 AM", "09:00 am", "11:30PM", "9 AM", "14:05", with seconds or without.
std::optional<TimeOfDay> TimeIn(std::string_view text);

// A date with or without a time behind it, midnight where there is none.
std::optional<Moment> MomentIn(std::string_view text);

bool IsDate(std::string_view text);
bool IsTime(std::string_view text);

// The same, raising the run-time error where the text holds none.
Date DateValue(std::string_view text);
TimeOfDay TimeValue(std::string_view text);
Moment MomentValue(std::string_view text);

// The stored form of a date: "yyyy/mm/dd".
std::string StoredDate(Date date);

// The stored form of a time, which is also the "Medium Time" that the screen shows: "09:00 AM", the same in
// every language, so that what an editor has rewritten reads back. The seconds are dropped.
std::string StoredTime(TimeOfDay time);

// The stored form of a moment: "yyyy/mm/dd Hh:Nn:00". The seconds are dropped.
std::string StoredMoment(Moment moment);
