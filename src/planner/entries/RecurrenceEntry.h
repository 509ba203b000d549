// What the recurrence dialog makes of an event's date: its rank in the month, and the captions of the two
// choices that a monthly and a yearly series have.
#pragma once

#include "platform/Clock.h"
#include "platform/Formats.h"

#include <string_view>

// The texts of `repeat_number` and `repeat_day`.
struct RankOfDate {
    std::string_view number; // "First" to "Fourth", or "Last"
    std::string_view day;    // "Sunday" to "Saturday", or "Day" on the last day of the month

    friend bool operator==(const RankOfDate&, const RankOfDate&) = default;
};

RankOfDate RankOf(Date date);

// "st", "nd", "rd" or "th" for a day number from 1 to 31.
std::string_view OrdinalSuffix(int dayNumber);

// Captions of the radio buttons, with the month's name in the user's language.
struct RecurrenceCaptions {
    ScreenText RadioMonthlyThisDate; // "The 15th of every month"
    ScreenText RadioMonthlyUser;     // "The Third Friday of every month"
    ScreenText RadioYearlyThisDate;  // "The 15th of every May"
    ScreenText RadioYearlyUser;      // "The Third Friday of every May"
};

RecurrenceCaptions CaptionsOf(Date date);
