// The recurrence fields of an event, read once into plain values, and the days of a month that they name.
#pragma once

#include "platform/Clock.h"

#include <array>
#include <string_view>

// The text of `recurrence` of a single event.
inline constexpr std::string_view NoRecurrence = "None";

// The texts of `recurrence` and of `repeat_number`, in the order of the two enums below.
inline constexpr std::array<std::string_view, 4> RecurrenceTexts{NoRecurrence, "Day", "Month", "Year"};
inline constexpr std::array<std::string_view, 5> RankTexts{"First", "Second", "Third", "Fourth", "Last"};

// The text of `repeat_day` where the days of the month are counted; any other names a weekday.
inline constexpr std::string_view DayOfMonthText = "Day";

// What `recurrence` says. A weekly event is a Day with some of the days of the week set.
enum class Recurrence { None, Day, Month, Year, Unlisted };

// What `repeat_number` says.
enum class Rank { First, Second, Third, Fourth, Last, Unlisted };

static_assert(RecurrenceTexts.size() == static_cast<std::size_t>(Recurrence::Unlisted));
static_assert(RankTexts.size() == static_cast<std::size_t>(Rank::Unlisted));

struct SeriesRule {
    Recurrence recurrence = Recurrence::None;
    unsigned weekdays = 0;      // of Day: bit n for the weekday number n, Sunday 1 to Saturday 7
    bool sameDate = false;      // of Month and Year, as all that follows
    Rank rank = Rank::Unlisted; // read where sameDate is false, as all that follows
    bool countsDays = false;    // repeat_day is "Day": the days of the month are counted, not a weekday
    int weekday = 0;            // weekday number in the text of repeat_day; any text but a day's name is 7
};

Recurrence RecurrenceIn(std::string_view text);
Rank RankIn(std::string_view text);

// The days of the week in `repeat_daily`, whose letters run from Monday to Sunday, as the bits of SeriesRule.
// A missing letter and any other than "T" leave their day out.
unsigned WeekdaysIn(std::string_view pattern);

bool HasWeekday(unsigned weekdays, int weekdayNumber);

// The weekday number that the text of `repeat_day` stands for: Sunday 1 to Friday 6, any other text 7.
int WeekdayIn(std::string_view text);

// True when the event at the position repeats; false when it is a single one.
bool IsSeries(int position);

// The last date on which the series at the position can happen: where it has no end, the last that a text can
// hold. Raises the run-time error where `end` is no boolean, or `end_date` is read and no date.
Date EndDate(int position);

// Reads the fields that the event's recurrence looks at and no others; raises the run-time error where a
// `same_date` among them is no boolean.
SeriesRule ReadSeriesRule(int position);

// The least day number of the rank in a month of that many days; the rank's seven days follow from it. The
// last seven days of a month are those of Last. Not for Unlisted.
int FirstDayOfRank(Rank rank, int daysInMonth);

// The day of the rank that falls on the weekday. Not for Unlisted.
Date RankDay(std::chrono::year_month month, Rank rank, int weekdayNumber);
