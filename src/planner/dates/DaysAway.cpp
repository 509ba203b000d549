// How far away an item is.
#include "planner/dates/DaysAway.h"

#include <cstdlib>

std::string DaysAway(int days, std::string_view behindDaysToCome) {
    switch (days) {
    case 1:
        return "Tomorrow";
    case 0:
        return "Today";
    case -1:
        return "Yesterday";
    default:
        return std::to_string(std::abs(days)) + " Days" +
               std::string(days > 0 ? behindDaysToCome : std::string_view(" Ago"));
    }
}
