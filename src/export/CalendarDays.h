// What stands in the 42 days of a month's page. It comes from the store, whatever list, filter or order is on
// the screen, and changes no row list and no counter.
#pragma once

#include "planner/dates/MonthGrid.h"
#include "platform/Clock.h"

#include <array>
#include <string>
#include <vector>

inline constexpr std::size_t MostLines = 20; // of a day; what it has beyond is not on the page

struct CalendarDay {
    std::vector<std::string> lines; // at most MostLines
    int minutesLeft = 0;            // of homework alone
    bool workLeft = false;          // homework with time left, or a task that is not done
};

using MonthDays = std::array<CalendarDay, MonthCells>;

// The days from the first cell on. Deleted records stand nowhere, and neither do those whose date is none;
// any other bad text of a record of these days raises the run-time error. Homework that is not done stands
// before what is done; tasks and events are in the order of the store, and meetings of classes that are not
// of the active term are left out.
MonthDays HomeworkDays(Date firstCell);
MonthDays TaskDays(Date firstCell);
MonthDays EventDays(Date firstCell);

// A length of time as the page shows it: "1:30", "0:45", "12:05". 100 hours and more keep all their digits.
std::string PageClock(int minutes);
