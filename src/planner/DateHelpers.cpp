// The date arithmetic and the clock and duration texts that all the planner's rules share.
#include "planner/DateHelpers.h"

#include "core/Values.h"

#include <algorithm>

namespace {

using std::chrono::days;
using std::chrono::floor;
using std::chrono::last;
using std::chrono::month;
using std::chrono::months;
using std::chrono::year;
using std::chrono::year_month_day;
using std::chrono::years;

Date Clamped(year_month_day date) {
    return date.ok() ? Date{date} : Date{date.year() / date.month() / last};
}

// The last two characters of the number behind a "0".
std::string TwoDigits(int number) {
    std::string digits = std::to_string(number);
    return digits.size() < 2 ? "0" + digits : digits.erase(0, digits.size() - 2);
}

} // namespace

int DaysInMonth(int y, int m) {
    const auto wanted = year{y} / month{1} + months{m - 1};
    return static_cast<int>(static_cast<unsigned>((wanted / last).day()));
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

std::string MinutesToClock(int minutes) {
    return TwoDigits(minutes / MinutesPerHour) + ":" + TwoDigits(minutes % MinutesPerHour);
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
