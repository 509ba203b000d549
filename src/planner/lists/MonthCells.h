// The month that the small and the large calendar show, computed once for both.
#pragma once

#include "planner/dates/MonthGrid.h"
#include "planner/rows/Colors.h"
#include "platform/Clock.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

// One entry a cell, from 0. Colours are 0xBBGGRR.
struct CalendarMonth {
    std::array<Date, 50> CellDate{}; // behind the cells stand the targets of the controls, see below
    std::array<std::string, MonthCells> CellText; // the day number
    std::array<int, MonthCells> CellForeColor{}, CellBackColor{};
    std::array<int, MonthCells> CellInMonth{}; // 1 for a day of the shown month, else 0
    std::array<bool, MonthCells> CellSelected{};
    std::array<bool, MonthCells> CellToday{};  // only while today's month is the shown month
    std::array<bool, MonthCells> CellMarked{}; // set by MarkMonth, as the counters and ColorMarked
    std::array<int, MonthCells> HomeworkDoneCount{}, HomeworkLeftCount{};
    std::array<int, MonthCells> TaskDoneCountByDay{}, TaskLeftCountByDay{};
    std::array<int, MonthCells> EventCountByDay{};
    std::array<Date, DaysPerWeek> WeekDates{}; // the week of the selected date
    int ColorMarked = ColorAll;                // of a marked cell, by the present filter
};

// The entries of CellDate to which the controls of the calendar go.
inline constexpr std::size_t TodayEntry = 42;
inline constexpr std::size_t MonthBackEntry = 43;
inline constexpr std::size_t MonthOnEntry = 44;
inline constexpr std::size_t TomorrowEntry = 45;
inline constexpr std::size_t DayOnEntry = 46;
inline constexpr std::size_t DayBackEntry = 47;

// The number of the cell of the selected date, from 0; MonthCells while no month is built.
std::size_t SelectedCellOf(const CalendarMonth& month);

// The colour of the selected cell on the colour that it would have otherwise.
int SelectedColor(int backcolor);

// Computes all but the marks and the counters for the month in which the clicked date lies, from the marks
// and the counters that stand. In Calendar mode a day with open tasks or assignments has the colour of open
// items.
void ComputeMonthCells(CalendarMonth& month, Date clicked, Date today, std::string_view startDayOfWeek,
                       bool calendarMode);
