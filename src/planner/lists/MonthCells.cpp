// The month that the small and the large calendar show, computed once for both.
#include "planner/lists/MonthCells.h"

#include "planner/dates/DateHelpers.h"

#include <algorithm>

namespace {

using std::chrono::days;

struct ColorPair {
    int backcolor;
    int selected;
};

constexpr std::array<ColorPair, 4> SelectedColors{{
    {ColorAll, ColorSelectedAll},
    {ColorDone, ColorSelectedDone},
    {ColorNotDone, ColorSelectedNotDone},
    {ColorTasks, ColorSelectedTasks},
}};

int BackColor(const CalendarMonth& month, std::size_t cell, bool calendarMode) {
    if (calendarMode && (month.TaskLeftCountByDay[cell] > 0 || month.HomeworkLeftCount[cell] > 0)) {
        return ColorNotDone;
    }
    return month.CellMarked[cell] ? month.ColorMarked : ColorCell;
}

void ComputeCell(CalendarMonth& month, std::size_t index, const MonthCell& cell, bool calendarMode) {
    month.CellDate[index] = cell.date;
    month.CellText[index] = std::to_string(cell.day);
    month.CellInMonth[index] = cell.inMonth ? 1 : 0;
    month.CellForeColor[index] = cell.inMonth ? ColorInMonth : ColorOutMonth;
    month.CellBackColor[index] = BackColor(month, index, calendarMode);
    month.CellSelected[index] = cell.selected;
    month.CellToday[index] = cell.today;
    if (cell.selected) {
        month.CellForeColor[index] = ColorSelectedText;
        month.CellBackColor[index] = SelectedColor(month.CellBackColor[index]);
    }
}

void ComputeTargets(CalendarMonth& month, Date clicked, Date today) {
    month.CellDate[TodayEntry] = today;
    month.CellDate[MonthBackEntry] = DateAddMulti(clicked, 0, -1, 0);
    month.CellDate[MonthOnEntry] = DateAddMulti(clicked, 0, 1, 0);
    month.CellDate[TomorrowEntry] = today + days{1};
    month.CellDate[DayOnEntry] = clicked + days{1};
    month.CellDate[DayBackEntry] = clicked - days{1};
}

} // namespace

std::size_t SelectedCellOf(const CalendarMonth& month) {
    return static_cast<std::size_t>(std::ranges::find(month.CellSelected, true) - month.CellSelected.begin());
}

int SelectedColor(int backcolor) {
    for (const ColorPair& pair : SelectedColors) {
        if (pair.backcolor == backcolor) {
            return pair.selected;
        }
    }
    return ColorSelectedCell;
}

void ComputeMonthCells(CalendarMonth& month, Date clicked, Date today, std::string_view startDayOfWeek,
                       bool calendarMode) {
    const std::array<MonthCell, MonthCells> cells = CellsOfMonth(clicked, today, startDayOfWeek);
    for (std::size_t index = 0; index < cells.size(); ++index) {
        ComputeCell(month, index, cells[index], calendarMode);
    }
    Date date = FirstOfWeek(clicked, startDayOfWeek);
    for (Date& day : month.WeekDates) {
        day = date;
        date += days{1};
    }
    ComputeTargets(month, clicked, today);
}
