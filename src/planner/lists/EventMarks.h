// The events of a month's 42 day cells.
#pragma once

#include "planner/dates/MonthGrid.h"
#include "planner/rows/ListFilter.h"
#include "platform/Clock.h"

#include <array>

// One entry a cell, from 0.
struct EventMarks {
    std::array<int, MonthCells> count{};   // events on the day, whatever the view menu says
    std::array<bool, MonthCells> marked{}; // one of them is taken by the view menu
};

// The marks of the 42 days from the given one. A series is in the cells on which EventOccursOn finds it, a
// single event in that of its date alone: a single event's exceptions are not asked here, as is meant. Class
// meetings of other terms and deleted events are left out. Raises the run-time error at a bad text as
// EventOccursOn does.
EventMarks MarkEventDays(Date firstCell, const ListFilter& filter);
