// The rule of whether an event falls on a date.
#pragma once

#include "platform/Clock.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

// True when the event at the position occurs on the day. A date that it has given up never counts, its first
// date always does, and the days after it as the rule of the series says until its end. A deleted event never
// occurs. The texts of the record are read in the order of these questions, none beyond the one that decides;
// a bad text among those read raises the run-time error.
bool EventOccursOn(Date day, int position);

// What the rules ask of a day.
struct DayFacts {
    Date date;
    int number = 0; // day of the month
    int month = 0;
    int weekday = 0;     // Sunday 1 to Saturday 7
    int daysInMonth = 0; // of its month
};

DayFacts FactsOf(Date date);

// The facts of so many days in a row.
std::vector<DayFacts> FactsOfDays(Date first, int count);

// Bit n stands for the n-th day of a row, counted from 0.
using DayBits = std::uint64_t;
inline constexpr int GreatestDayBits = 64;

// The days on which the event at the position occurs, out of 1 to 64 days in a row: the same answers as those
// of EventOccursOn day by day, and the same errors, with each text of the record read only once.
DayBits OccurringDays(std::span<const DayFacts> row, int position);

// The positions of the events that occur on the day, in store order.
std::vector<int> EventsOn(Date day);

// The bit of the date; none when it lies outside the row.
DayBits DayOf(std::span<const DayFacts> row, Date date);

// Takes the next date off the left end of a text of `exceptions`; nothing when none is left. Blanks separate;
// a piece that is no date raises the run-time error.
std::optional<Date> TakeException(std::string_view& exceptions);

// True when the day is listed in a text of `exceptions`, which is read from the left as far as that day.
bool IsException(std::string_view exceptions, Date day);
