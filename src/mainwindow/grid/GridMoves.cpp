// How the keys move in a list, in the month and in the schedule of a day.
#include "mainwindow/grid/GridMoves.h"

#include "planner/dates/DateHelpers.h"

#include <algorithm>

namespace {

using std::chrono::days;

int RowAfter(GridMove move, int row, const ListView& view) {
    switch (move) {
    case GridMove::Up:
        return row - 1;
    case GridMove::Down:
        return row + 1;
    case GridMove::PageUp:
        return row - std::max(view.rowsVisible, 1);
    case GridMove::PageDown:
        return row + std::max(view.rowsVisible, 1);
    case GridMove::Home:
        return 1;
    case GridMove::End:
        return view.rowCount;
    case GridMove::Left:
    case GridMove::Right:
        return row;
    }
    return row;
}

} // namespace

int MovedRow(GridMove move, int row, const ListView& view) {
    const bool aside = move == GridMove::Left || move == GridMove::Right;
    const bool toAnEnd = move == GridMove::Home || move == GridMove::End;
    if (aside || view.rowCount == 0) {
        return row;
    }
    const int target = row == 0 && !toAnEnd ? view.firstRow : RowAfter(move, row, view);
    return std::clamp(target, 1, view.rowCount);
}

Date MovedDate(GridMove move, Date date) {
    switch (move) {
    case GridMove::Up:
        return date - days{DaysPerWeek};
    case GridMove::Down:
        return date + days{DaysPerWeek};
    case GridMove::Left:
        return date - days{1};
    case GridMove::Right:
        return date + days{1};
    case GridMove::PageUp:
        return DateAddMulti(date, 0, -1, 0);
    case GridMove::PageDown:
        return DateAddMulti(date, 0, 1, 0);
    case GridMove::Home:
        return FirstOfMonth(MonthOf(date));
    case GridMove::End:
        return LastOfMonth(MonthOf(date));
    }
    return date;
}
