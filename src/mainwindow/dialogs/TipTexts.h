// The tips of the day.
#pragma once

#include <string>

inline constexpr int TotalTips = 30; // number of the last tip; the first one's is 0

// The tip of that number; for a number without one, whom to ask.
std::string TipText(int number);

// The number of the tip to be shown after that one; behind the last the first again.
int NumberAfter(int tip);
