// The date arithmetic and the clock and duration texts that all the planner's rules share.
#include "planner/dates/DateHelpers.h"

#include "core/Values.h"

#include <algorithm>

namespace {

using std::chrono::days;
using std::chrono::floor;
using std::chrono::last;
using std::chrono::month;
using std::chrono::months;
using std::chrono::year;
using std::chrono::year_month;
using std::chrono::year_month_day;
using std::chrono::years;

Date Clamped(year_month_day date) {
    return date.ok() ? Date{date} : Date{date.year() / date.month() / last};
}

} // namespace

int DaysInMonth(int y, int m) {
    return DaysInMonth(year{y} / month{1} + months{m - 1});
}

year_month MonthOf(Date date) {
    const year_month_day parts{date};
    return parts.year() / parts.month();
}

int DayOfMonth(Date date) {
    return static_cast<int>(static_cast<unsigned>(year_month_day{date}.day()));
}

Date FirstOfMonth(year_month month) {
    return Date{month / 1};
}

Date LastOfMonth(year_month month) {
    return Date{month / last};
}

Date DateAddMulti(Date base, int addedYears, int addedMonths, int addedDays) {
    const Date withYears = Clamped(year_month_day{base} + years{addedYears});
    const Date withMonths = Clamped(year_month_day{withYears} + months{addedMonths});
    return withMonths + days{addedDays};
}

int DayDiff(Date first, Date second) {
    return static_cast<int>((second - first).count());
}

int DayDiff(Moment first, Moment second) {
    return DayDiff(floor<days>(first), floor<days>(second));
}

int WeekdayNumber(Date date) {
    return static_cast<int>(std::chrono::weekday{date}.c_encoding()) + 1;
}

std::string TwoDigits(std::int64_t number) {
    if (number >= 0 && number < 100) {
        return {static_cast<char>('0' + number / 10), static_cast<char>('0' + number % 10)};
    }
    const std::string digits = "0" + std::to_string(number);
    return digits.substr(digits.size() - 2);
}

std::string MinutesToClock(int minutes) {
    return TwoDigits(minutes / MinutesPerHour) + ":" + TwoDigits(minutes % MinutesPerHour);
}

std::string SpacedClock(int minutes) {
    return MinutesToClock(minutes).replace(2, 1, " : ");
}

int ClockToMinutes(std::string_view clock) {
    const std::size_t width = std::min<std::size_t>(2, clock.size());
    const int hours = ToInt16(clock.substr(0, width));
    const int minutes = ToInt16(clock.substr(clock.size() - width));
    return hours * MinutesPerHour + minutes;
}

DurationPieces SplitDuration(std::string_view duration) {
    const std::size_t blank = duration.find(' ');
    if (blank == std::string_view::npos) {
        return {duration, {}};
    }
    return {duration.substr(0, blank), duration.substr(blank + 1)};
}

double DurationToMinutes(std::string_view duration) {
    const DurationPieces pieces = SplitDuration(duration);
    const double number = ToNumber(pieces.number);
    return pieces.unit.starts_with('H') ? number * MinutesPerHour : number;
}

double EventLength(std::string_view duration) {
    const DurationPieces pieces = SplitDuration(duration);
    return pieces.unit.starts_with('D') ? ToNumber(pieces.number) * MinutesPerDay
                                        : DurationToMinutes(duration);
}

DurationParts DurationByWholeUnit(std::string_view duration) {
    const DurationPieces pieces = SplitDuration(duration);
    if (pieces.unit == "Hours") {
        return {ToNumber(pieces.number), 0};
    }
    if (pieces.unit == "Minutes") {
        return {0, ToNumber(pieces.number)};
    }
    return {};
}
