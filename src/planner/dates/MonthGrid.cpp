// The six rows of seven days on which every calendar of the planner shows a month.
#include "planner/dates/MonthGrid.h"

#include <algorithm>

namespace {

using std::chrono::days;
using std::chrono::year_month_day;

constexpr int Sunday = 1;
constexpr int Monday = 2;
constexpr int Saturday = 7;

int FirstWeekday(std::string_view startDayOfWeek) {
    if (startDayOfWeek == "Sunday") {
        return Sunday;
    }
    return startDayOfWeek == "Monday" ? Monday : Saturday;
}

} // namespace

Date WithinCalendar(Date date) {
    return std::clamp(date, EarliestDate, LatestDate);
}

std::array<std::string_view, DaysPerWeek> WeekdayHeads(std::string_view startDayOfWeek) {
    std::array<std::string_view, DaysPerWeek> heads = WeekdayNames;
    std::rotate(heads.begin(), heads.begin() + FirstWeekday(startDayOfWeek) - Sunday, heads.end());
    return heads;
}

Date FirstOfWeek(Date date, std::string_view startDayOfWeek) {
    const int column = (WeekdayNumber(date) - FirstWeekday(startDayOfWeek) + DaysPerWeek) % DaysPerWeek;
    return date - days{column};
}

Date FirstCellDate(Date shown, std::string_view startDayOfWeek) {
    return FirstOfWeek(FirstOfMonth(MonthOf(shown)) - days{1}, startDayOfWeek);
}

std::array<MonthCell, MonthCells> CellsOfMonth(Date shown, Date today, std::string_view startDayOfWeek) {
    const auto month = year_month_day{shown}.month();
    std::array<MonthCell, MonthCells> cells;
    Date date = FirstCellDate(shown, startDayOfWeek);
    for (MonthCell& cell : cells) {
        const year_month_day parts{date};
        const bool inMonth = parts.month() == month;
        cell = {date, static_cast<int>(static_cast<unsigned>(parts.day())), inMonth, date == shown,
                inMonth && date == today};
        date += days{1};
    }
    return cells;
}
