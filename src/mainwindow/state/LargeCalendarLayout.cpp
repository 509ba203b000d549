// Where everything of the large calendar stands on the grid.
#include "mainwindow/state/LargeCalendarLayout.h"

#include <algorithm>

namespace {

constexpr int Rows = MonthCells / DaysPerWeek;
constexpr int TabWidth = 345;
constexpr int TabHeight = 330;
constexpr int LineHeight = 270;
constexpr int HeightWithoutGaps = 900; // of a cell; what is beyond it is divided into six gaps
constexpr int GapsInCell = 6;

// By CalendarIcon.
constexpr std::array<int, CalendarIcons> LineWidths{750, 750, 480};
constexpr int WidestLine = 750;

// Where the part begins when a length is divided into equal parts.
int Edge(int length, int part, int parts) {
    return length * part / parts;
}

UnitRect CellArea(int gridWidth, int gridHeight, int row, int column) {
    const int left = Edge(gridWidth, column, DaysPerWeek);
    const int top = CalendarHeadHeight + Edge(gridHeight - CalendarHeadHeight, row, Rows);
    return {left, top, Edge(gridWidth, column + 1, DaysPerWeek) - left,
            CalendarHeadHeight + Edge(gridHeight - CalendarHeadHeight, row + 1, Rows) - top};
}

std::array<bool, CalendarIcons> LinesOf(const CalendarMonth& month, std::size_t cell) {
    return {month.HomeworkDoneCount[cell] + month.HomeworkLeftCount[cell] > 0,
            month.TaskDoneCountByDay[cell] + month.TaskLeftCountByDay[cell] > 0,
            month.EventCountByDay[cell] > 0};
}

// The lines stack under the tab, all from one left. In a low cell they move together, so that three of them
// still end within it, inside the frame of today.
void StackLines(CalendarCell& cell, const std::array<bool, CalendarIcons>& drawn) {
    const int gap = std::max(0, (cell.area.height - HeightWithoutGaps) / GapsInCell);
    const int top = cell.area.top + TabHeight + gap;
    const int lastTop = cell.area.top + cell.area.height - TodayFrameWidth - CalendarIconSize;
    const int pitch = std::min(LineHeight + gap, (lastTop - top) / (CalendarIcons - 1));
    const int left = cell.area.left + (cell.area.width - WidestLine) / 2;
    int place = 0;
    for (std::size_t line = 0; line < drawn.size(); ++line) {
        if (drawn[line]) {
            cell.icon[line] = {left, top + place * pitch, LineWidths[line], LineHeight};
            ++place;
        }
    }
}

} // namespace

CalendarLayout LayOutCalendar(int gridWidth, int gridHeight, const CalendarMonth& month) {
    CalendarLayout layout;
    for (int column = 0; column < DaysPerWeek; ++column) {
        const int left = Edge(gridWidth, column, DaysPerWeek);
        layout.head[static_cast<std::size_t>(column)] = {
            left, 0, Edge(gridWidth, column + 1, DaysPerWeek) - left, CalendarHeadHeight};
    }
    for (int index = 0; index < MonthCells; ++index) {
        const auto at = static_cast<std::size_t>(index);
        CalendarCell& cell = layout.cell[at];
        cell.area = CellArea(gridWidth, gridHeight, index / DaysPerWeek, index % DaysPerWeek);
        cell.tab = {cell.area.left + cell.area.width - TabWidth, cell.area.top, TabWidth, TabHeight};
        StackLines(cell, LinesOf(month, at));
    }
    return layout;
}

std::string DoneOfAll(int done, int left) {
    return std::to_string(done) + " / " + std::to_string(done + left);
}

std::optional<int> CalendarCellAt(const CalendarLayout& layout, int x, int y) {
    for (int index = 0; index < MonthCells; ++index) {
        if (Holds(layout.cell[static_cast<std::size_t>(index)].area, x, y)) {
            return index;
        }
    }
    return std::nullopt;
}

std::optional<CalendarIcon> CalendarIconAt(const CalendarLayout& layout, int cell, int x, int y) {
    const auto& icons = layout.cell[static_cast<std::size_t>(cell)].icon;
    for (int line = CalendarIcons - 1; line >= 0; --line) {
        if (Holds(icons[static_cast<std::size_t>(line)], x, y)) {
            return static_cast<CalendarIcon>(line);
        }
    }
    return std::nullopt;
}
