// What the term panel says of the active term.
#include "mainwindow/panels/TermStatus.h"

#include "core/Module1.h"
#include "planner/dates/DateHelpers.h"

namespace {

std::string DaysLeftText(int days) {
    if (days == 1) {
        return "1 day left in the term";
    }
    return days > 1 ? std::to_string(days) + " days left in the term" : "0 Days Left in Term";
}

} // namespace

TermStatus TermStatusOn(Date day) {
    if (!ActiveTermIsLiving()) {
        return {"No Term Selected", ""};
    }
    return {ActiveTermName, DaysLeftText(DayDiff(day, ActiveTermEnd))};
}
