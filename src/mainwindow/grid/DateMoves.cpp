// How the keys move the selected day.
#include "mainwindow/grid/DateMoves.h"

#include "planner/dates/DateHelpers.h"

using std::chrono::days;

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
