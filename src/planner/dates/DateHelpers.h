// The date arithmetic and the clock and duration texts that all the planner's rules share.
#pragma once

#include "platform/Clock.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

// Passed to a selection in place of a date, it means no date filter: 1953-08-12.
inline constexpr Date AllDates{std::chrono::year{1953} / 8 / 12};

inline constexpr int MinutesPerHour = 60;
inline constexpr int MinutesPerDay = 24 * MinutesPerHour;
inline constexpr int DaysPerWeek = 7;
inline constexpr int MonthsPerYear = 12;

// The days of the week by their numbers, Sunday 1 to Saturday 7, as the store and the screen name them.
inline constexpr std::array<std::string_view, DaysPerWeek> WeekdayNames{
    "Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};

// Number of days of the month. The last day of a month is day 0 of the following one, so month 13 is allowed
// and is January of the next year.
int DaysInMonth(int year, int month);

inline int DaysInMonth(std::chrono::year_month month) {
    return static_cast<int>(static_cast<unsigned>((month / std::chrono::last).day()));
}

std::chrono::year_month MonthOf(Date date);
int DayOfMonth(Date date);

// The first and the last day of the month.
Date FirstOfMonth(std::chrono::year_month month);
Date LastOfMonth(std::chrono::year_month month);

// Adds years, then months, then days. Each of the first two steps clamps to the last day of its target month,
// so the order counts: 31 January of a leap year, 0 years, 1 month, 1 day is 1 March.
Date DateAddMulti(Date base, int years, int months, int days);

// The calendar days from the first to the second date; negative when the second is earlier.
int DayDiff(Date first, Date second);
int DayDiff(Moment first, Moment second);

// Sunday 1 to Saturday 7, whatever day the calendar starts its week with.
int WeekdayNumber(Date date);

// The last two digits of the number, "0" in front of a single one.
std::string TwoDigits(std::int64_t number);

// "HH:MM", each part as the last two digits: 6015 minutes read "00:15".
std::string MinutesToClock(int minutes);

// The same as the editors write it: "01 : 45".
std::string SpacedClock(int minutes);

// Minutes of a clock length, from its first two and its last two characters: takes "00 : 30" and "00:30".
// Raises the run-time error where these are no numbers.
int ClockToMinutes(std::string_view clock);

// The number and the unit of a duration, split at its first blank; without a blank all of it is the number.
struct DurationPieces {
    std::string_view number;
    std::string_view unit;
};

DurationPieces SplitDuration(std::string_view duration);

// Minutes of a duration such as "1.5 Hours" where only the first letter of its unit counts: "H" is hours, any
// other or none is minutes, so "1 Day" is one minute. Raises the run-time error where the number is none.
double DurationToMinutes(std::string_view duration);

// Minutes that an event takes in a day's schedule: as above, but a unit that begins with "D" is days.
double EventLength(std::string_view duration);

// The hours and the minutes that a duration adds to a day's total, where the whole unit counts: "Hours" and
// "Minutes" add, any other unit ("1 Hour", "1 Day") adds nothing. It differs from the rule above, and is
// meant to.
struct DurationParts {
    double hours = 0;
    double minutes = 0;
};

DurationParts DurationByWholeUnit(std::string_view duration);
