// Which events the words of the view menu keep.
#include "planner/EventFilter.h"

bool IsEventTaken(std::string_view type, const ListFilter& filter) {
    if (filter.calendarMode || filter.comboList == "All") {
        return true;
    }
    const bool isClass = type == "Class";
    return (filter.comboList == "Classes" && isClass) || (filter.comboList == "Other Events" && !isClass);
}
