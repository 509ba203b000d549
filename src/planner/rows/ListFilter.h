// What the selections and the sorts read from the window, filled just before the call and never kept.
#pragma once

#include "platform/Clock.h"
#include "platform/SortDirection.h"

#include <string>

struct ListFilter {
    std::string comboList;      // the word chosen in ComboList
    std::string comboDateRange; // the word chosen in ComboDateRange
    Date clickedDate;           // the day that the range "Day" means
    bool calendarMode = false;  // the window shows the month, where ComboList does not count
};

struct SortOrder {
    int column = 0; // by the column titles of the mode, from 1
    int direction = Ascending;
};
