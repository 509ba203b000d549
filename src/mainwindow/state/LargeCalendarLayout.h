// Where everything of the large calendar stands on the grid, for its painting and for the clicks on it.
#pragma once

#include "planner/lists/MonthCells.h"
#include "platform/Units.h"

#include <array>
#include <optional>
#include <string>

// The lines of a cell, from top to bottom.
enum class CalendarIcon { Homework, Tasks, Events };

inline constexpr int CalendarIcons = 3;

struct CalendarCell {
    UnitRect area;                            // the whole cell
    UnitRect tab;                             // of the day number
    std::array<UnitRect, CalendarIcons> icon; // by CalendarIcon; a line that is not drawn is empty, at 0
};

struct CalendarLayout {
    std::array<UnitRect, DaysPerWeek> head; // of the weekday names
    std::array<CalendarCell, MonthCells> cell;
};

inline constexpr int CalendarHeadHeight = 375;
inline constexpr int CalendarIconSize = 210; // of the picture at the left of a line
inline constexpr int TodayFrameWidth = 30;   // two lines

// The layout on a grid of that size. Which lines a cell has follows from the month's counters.
CalendarLayout LayOutCalendar(int gridWidth, int gridHeight, const CalendarMonth& month);

// What the line of homework or of tasks says: "1 / 2", those done of all.
std::string DoneOfAll(int done, int left);

// The number of the cell at a point of the grid, from 0 row by row; nothing over the weekday names and
// outside.
std::optional<int> CalendarCellAt(const CalendarLayout& layout, int x, int y);

// The line at a point of the cell. Where two overlap, the lower one.
std::optional<CalendarIcon> CalendarIconAt(const CalendarLayout& layout, int cell, int x, int y);
