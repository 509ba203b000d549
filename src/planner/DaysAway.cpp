// How far away an item is.
#include "planner/DaysAway.h"

std::string DaysAway(int days) {
    if (days > 1) {
        return std::to_string(days) + " Days";
    }
    if (days < -1) {
        return std::to_string(-days) + " Days Ago";
    }
    return days == 1 ? "Tomorrow" : days == 0 ? "Today" : "Yesterday";
}
