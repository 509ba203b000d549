// When a new event begins that is asked for without a time.
#pragma once

inline constexpr const char* MorningTime = "9:00 AM";
