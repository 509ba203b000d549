// What remains of an assignment's estimate once the study time logged for it is taken off.
#pragma once

#include <unordered_map>

// Minutes in the log of study sessions, by the id of the assignment.
using LoggedMinutes = std::unordered_map<int, int>;

// Raises the run-time error where a logged time is no clock length.
LoggedMinutes LoggedMinutesById();

// Minutes of the estimate of the assignment at the position that are not logged yet, never below 0. Raises
// the run-time error where the estimate is no clock length.
int RemainingMinutes(int position, const LoggedMinutes& logged);
