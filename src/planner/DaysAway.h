// How far away an item is.
#pragma once

#include <string>

// "3 Days", "Tomorrow", "Today", "Yesterday" or "3 Days Ago", from the whole days to the item.
std::string DaysAway(int days);
