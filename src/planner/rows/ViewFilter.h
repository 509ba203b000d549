// Which events, assignments and tasks the words of the view menu keep.
#pragma once

#include "planner/rows/ListFilter.h"

#include <string_view>

// True when an event of that type is taken: in Calendar mode always, else "All" takes every event, "Classes"
// those of the type "Class", "Other Events" all the others, and any other word none. A class meeting counts
// as an other event, its type being a link.
bool IsEventTaken(std::string_view type, const ListFilter& filter);

// True when an assignment or a task with that stored flag is taken: "All" takes every one and does not read
// the flag, "Done" and "Not Done" those that are, and any other word none. Raises the run-time error where
// the flag is read and no boolean.
bool IsItemTaken(std::string_view done, const ListFilter& filter);
