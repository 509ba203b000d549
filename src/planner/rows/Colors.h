// The colours by which the calendar, the counters and the lists tell what is done and what is not.
// Each is 0xBBGGRR.
#pragma once

inline constexpr int ColorBlack = 0x000000;
inline constexpr int ColorWhite = 0xFFFFFF;

// The month's cells and day numbers.
inline constexpr int ColorInMonth = 0x000000;      // day number of the month
inline constexpr int ColorOutMonth = 0xA9A9A9;     // day number of a neighbour month
inline constexpr int ColorSelectedText = 0xFFFFFF; // day number of the selected day
inline constexpr int ColorCell = 0xFFFFFF;         // unmarked cell
inline constexpr int ColorSelectedCell = 0x000000; // selected cell, unmarked

// A marked cell, by the filter that is chosen; also the fills of the counters and of the view menus.
inline constexpr int ColorAll = 0xF0E8E2;
inline constexpr int ColorDone = 0xE2F7E1;
inline constexpr int ColorNotDone = 0xE5E5FF; // also open items
inline constexpr int ColorTasks = 0xD7EBFA;

// The selected cell on each of these.
inline constexpr int ColorSelectedAll = 0xA88A76;
inline constexpr int ColorSelectedDone = 0x00A600;
inline constexpr int ColorSelectedNotDone = 0x374EC1; // also the text of open items
inline constexpr int ColorSelectedTasks = 0x20A5DA;
