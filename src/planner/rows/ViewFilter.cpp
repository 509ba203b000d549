// Which events, assignments and tasks the words of the view menu keep.
#include "planner/rows/ViewFilter.h"

#include "core/Values.h"

bool IsEventTaken(std::string_view type, const ListFilter& filter) {
    if (filter.calendarMode || filter.comboList == "All") {
        return true;
    }
    const bool isClass = type == "Class";
    return (filter.comboList == "Classes" && isClass) || (filter.comboList == "Other Events" && !isClass);
}

bool IsItemTaken(std::string_view done, const ListFilter& filter) {
    return filter.comboList == "All" || filter.comboList == (IsTrue(done) ? "Done" : "Not Done");
}
