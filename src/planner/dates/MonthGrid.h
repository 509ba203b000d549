// The six rows of seven days on which every calendar of the planner shows a month.
#pragma once

#include "planner/dates/DateHelpers.h"

#include <array>
#include <string_view>

inline constexpr int MonthCells = 42;

// The calendars show no date outside these two.
inline constexpr Date EarliestDate{std::chrono::year{1600} / 1 / 1};
inline constexpr Date LatestDate{std::chrono::year{3100} / 12 / 31};

// The date itself, or the one of the two limits beyond which it lies.
Date WithinCalendar(Date date);

// The weekdays of the seven columns. They begin with the day given, "Sunday" or "Monday", and at any other
// text with Saturday.
std::array<std::string_view, DaysPerWeek> WeekdayHeads(std::string_view startDayOfWeek);

// The last date not after the given one whose weekday is the first of the week.
Date FirstOfWeek(Date date, std::string_view startDayOfWeek);

// The date of the first cell of the month in which the date lies. A grid always opens with the week of the
// last day of the month before, so it never begins on the first of the month.
Date FirstCellDate(Date shown, std::string_view startDayOfWeek);

struct MonthCell {
    Date date;
    int day = 0;           // day of the month
    bool inMonth = false;  // of the month shown, not of a neighbour
    bool selected = false; // the date shown; never a cell of a neighbour month
    bool today = false;    // never a cell of a neighbour month

    friend bool operator==(const MonthCell&, const MonthCell&) = default;
};

// The cells of the month in which the date shown lies, row by row.
std::array<MonthCell, MonthCells> CellsOfMonth(Date shown, Date today, std::string_view startDayOfWeek);
