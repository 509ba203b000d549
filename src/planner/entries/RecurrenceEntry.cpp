// What the recurrence dialog makes of an event's date.
#include "planner/entries/RecurrenceEntry.h"

#include "planner/dates/DateHelpers.h"
#include "planner/recurrence/SeriesRule.h"

#include <string>

namespace {

ScreenText Caption(const std::string& day, const std::string& period) {
    return {"The " + day + " of every " + period};
}

} // namespace

RankOfDate RankOf(Date date) {
    if (date == LastOfMonth(MonthOf(date))) {
        return {RankTexts.back(), DayOfMonthText};
    }
    return {RankTexts.at(static_cast<std::size_t>((DayOfMonth(date) - 1) / DaysPerWeek)),
            WeekdayNames.at(static_cast<std::size_t>(WeekdayNumber(date) - 1))};
}

std::string_view OrdinalSuffix(int dayNumber) {
    switch (dayNumber) {
    case 1:
    case 21:
    case 31:
        return "st";
    case 2:
    case 22:
        return "nd";
    case 3:
    case 23:
        return "rd";
    default:
        return "th";
    }
}

RecurrenceCaptions CaptionsOf(Date date) {
    const std::string thisDate =
        std::to_string(DayOfMonth(date)) + std::string(OrdinalSuffix(DayOfMonth(date)));
    const RankOfDate rank = RankOf(date);
    const std::string user = std::string(rank.number) + " " + std::string(rank.day);
    const std::string month = FormatDate(date, "MMMM").utf8;
    return {Caption(thisDate, "month"), Caption(user, "month"), Caption(thisDate, month),
            Caption(user, month)};
}
