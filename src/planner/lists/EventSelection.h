// The rows of the day's events, of the day schedule and of the Events list.
#pragma once

#include "planner/rows/ListFilter.h"
#include "platform/Clock.h"

#include <vector>

// Fills EventRows, EventRowDate, EventRowForeColor, EventRowBackColor and EventRowType with the events that
// occur on the day and pass ComboList, which does not count in Calendar mode. A class meeting stands there
// only when its class is one of the active term. EventClassCount, EventOtherCount and EventTotalCount count
// the day, whatever the filter. A bad text raises the run-time error.
void SelectEventsForDay(Date day, const ListFilter& filter);

// The same where the positions of the day's events are known.
void SelectEventsForDay(Date day, const std::vector<int>& eventsOfDay, const ListFilter& filter);

// Counts one occurrence and adds its row if it passes ComboList. "Classes" are the events of the type
// "Class"; a meeting of one of the student's classes is another event here, and is meant to be.
void AddEventRow(int position, Date date, const ListFilter& filter);

// The rows of the range in ComboDateRange: the clicked day, or the week, month or year from it on.
void SelectEventRows(const ListFilter& filter);
