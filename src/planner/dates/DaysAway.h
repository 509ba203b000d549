// How far away an item is.
#pragma once

#include <string>
#include <string_view>

// "3 Days" with the words given behind it, "Tomorrow", "Today", "Yesterday" or "3 Days Ago", from the whole
// days to the item.
std::string DaysAway(int days, std::string_view behindDaysToCome = {});
