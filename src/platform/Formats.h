// The user's forms of dates: what the screen shows, and the order in which a short date is read.
// The C locale counts as US English.
#pragma once

#include "platform/Clock.h"

#include <string>
#include <string_view>

// Text for the screen, in UTF-8. The names of months and days of many languages do not fit the one byte a
// character of the store, so this is a type of its own and never goes into a record.
struct ScreenText {
    std::string utf8;

    friend bool operator==(const ScreenText&, const ScreenText&) = default;
};

// Order of day, month and year in the user's short dates.
enum class DateOrder { MonthDayYear, DayMonthYear, YearMonthDay };

// The order in which a date without a four-digit year in front is read.
DateOrder LocaleDateOrder();

// A date in one of the forms "Long Date", "Medium Date" (24-Aug-09), "Short Date" (ASCII digits in the user's
// order, four of them the year, so that it reads back as the same day), "dddd, mmm d", "dddd, MMMM d"
// and "MMMM".
ScreenText FormatDate(Date date, std::string_view form);
