// The titles under which a month and a day are shown.
#include "planner/dates/DateTitles.h"

ScreenText MonthTitle(Date date) {
    const auto year = static_cast<int>(std::chrono::year_month_day{date}.year());
    return {FormatDate(date, "MMMM").utf8 + " " + std::to_string(year)};
}

ScreenText DayTitle(Date date) {
    return FormatDate(date, "dddd, mmm d");
}
