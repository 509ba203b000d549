// The work tables of a month's page.
#include "export/CalendarTables.h"

#include "export/Pages.h"
#include "planner/dates/DateTitles.h"

#include <algorithm>
#include <string_view>

namespace {

constexpr const char* EmptyCell = "&nbsp;";
constexpr int CellOfShownMonth = 20; // always lies in it
constexpr std::size_t FirstWeekdayText = 2;

// Behind month and year, in the order of CalendarPage.
constexpr std::array<std::string_view, 3> TitleTexts{" Homework Calendar", " Task Calendar",
                                                     " Event Calendar"};

std::string DayHead(const CalendarDay& day) {
    return day.workLeft ? EmptyCell + PageClock(day.minutesLeft) + "&nbsp;Study Left" : EmptyCell;
}

void FillColumn(CalendarTables& tables, std::size_t column, const CalendarDay& day, Date date, bool inMonth) {
    tables.CalendarDayNumber[column] = std::to_string(DayOfMonth(date));
    tables.CalendarLineColour[column] = !inMonth;
    tables.CalendarDayHead[column] = DayHead(day);
    tables.CalendarHeadIsBlack[column] = !day.workLeft;
    for (std::size_t line = 0; line < MostLines; ++line) {
        tables.CalendarLineText[line][column] = line < day.lines.size() ? day.lines[line] : EmptyCell;
    }
    tables.CalendarRowHeight = std::max(tables.CalendarRowHeight, static_cast<int>(day.lines.size()));
}

} // namespace

void CalendarHeader(CalendarTables& tables, CalendarPage page, const ExportedMonth& month) {
    tables.CalendarHeaderText[0] =
        PageText(MonthTitle(month.clicked)) + std::string(TitleTexts[static_cast<std::size_t>(page)]);
    tables.CalendarHeaderText[1] = CreatedOn();
    std::ranges::copy(WeekdayHeads(month.startDayOfWeek),
                      tables.CalendarHeaderText.begin() + FirstWeekdayText);
}

void CalendarWeek(CalendarTables& tables, const MonthDays& days, const ExportedMonth& month, int week) {
    const auto shown = MonthOf(DateOfShownMonth(month));
    tables.CalendarRowHeight = LeastRowHeight;
    for (std::size_t column = 0; column < DaysPerWeek; ++column) {
        const std::size_t cell = static_cast<std::size_t>(week) * DaysPerWeek + column;
        const Date date = month.firstCell + std::chrono::days{cell};
        FillColumn(tables, column, days[cell], date, MonthOf(date) == shown);
    }
}

Date DateOfShownMonth(const ExportedMonth& month) {
    return month.firstCell + std::chrono::days{CellOfShownMonth};
}
