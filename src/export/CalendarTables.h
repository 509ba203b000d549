// The work tables of a month's page, all texts as they come onto the page.
#pragma once

#include "export/CalendarDays.h"

#include <array>
#include <string>

enum class CalendarPage { Homework, Tasks, Events };

// The month as the window's calendar shows it.
struct ExportedMonth {
    Date clicked;   // its month is that of the title
    Date firstCell; // of the 42 days
    std::string startDayOfWeek;
};

inline constexpr std::size_t HeaderTexts = 10;
inline constexpr int LeastRowHeight = 5;

template <class Value>
using OfWeek = std::array<Value, DaysPerWeek>;

struct CalendarTables {
    std::array<std::string, HeaderTexts> CalendarHeaderText; // title, day of the export, the seven weekdays
    OfWeek<std::string> CalendarDayNumber;
    std::array<OfWeek<std::string>, MostLines> CalendarLineText; // by line and column
    OfWeek<bool> CalendarLineColour{};                           // true for grey: a day of another month
    OfWeek<std::string> CalendarDayHead;                         // of homework alone: the time left
    OfWeek<bool> CalendarHeadIsBlack{};                          // no work is left
    int CalendarRowHeight = 0;                                   // lines of the week; none before the first
};

// Fills the texts of the header.
void CalendarHeader(CalendarTables& tables, CalendarPage page, const ExportedMonth& month);

// Fills the tables of the week, from 0 to 5, with its days out of those of the month.
void CalendarWeek(CalendarTables& tables, const MonthDays& days, const ExportedMonth& month, int week);

// The date whose month is the one shown, whatever is clicked.
Date DateOfShownMonth(const ExportedMonth& month);
