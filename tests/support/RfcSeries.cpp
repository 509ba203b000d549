// Random series on whose rules the planner and RFC 5545 agree.
#include "support/RfcSeries.h"

#include "core/DateText.h"
#include "planner/dates/DateHelpers.h"

#include <algorithm>
#include <array>

namespace {

using std::chrono::days;
using std::chrono::year_month_day;

constexpr int GreatestDayNumber = 28;
constexpr std::array<const char*, 5> Ranks{"First", "Second", "Third", "Fourth", "Last"};

// By weekday number, Sunday 1.
struct WeekdayWords {
    const char* name;
    const char* code;
    std::size_t letter; // place in a pattern, Monday 0
};

constexpr std::array<WeekdayWords, 8> Weekdays{{
    {"", "", 0},
    {"Sunday", "SU", 6},
    {"Monday", "MO", 0},
    {"Tuesday", "TU", 1},
    {"Wednesday", "WE", 2},
    {"Thursday", "TH", 3},
    {"Friday", "FR", 4},
    {"Saturday", "SA", 5},
}};

const WeekdayWords& WeekdayOf(Date date) {
    return Weekdays[static_cast<std::size_t>(WeekdayNumber(date))];
}

bool Heads(std::mt19937& random) {
    return std::uniform_int_distribution{0, 1}(random) == 1;
}

int Number(Date date) {
    return static_cast<int>(static_cast<unsigned>(year_month_day{date}.day()));
}

int LengthOfMonth(Date date) {
    const year_month_day parts{date};
    return DaysInMonth(static_cast<int>(parts.year()),
                       static_cast<int>(static_cast<unsigned>(parts.month())));
}

void MakeWeekly(std::mt19937& random, RfcSeries& series) {
    std::string codes;
    series.event.recurrence = "Day";
    for (int offset = 0; offset < DaysPerWeek; ++offset) {
        const WeekdayWords& weekday = WeekdayOf(series.first + days{offset});
        if (offset == 0 || Heads(random)) {
            series.event.repeat_daily[weekday.letter] = 'T';
            codes += (codes.empty() ? "" : ",") + std::string(weekday.code);
        }
    }
    series.rule = "FREQ=WEEKLY;BYDAY=" + codes;
}

// The words of a rule that names a day of the month; the first date is moved to one that matches.
std::string MakeDayOfMonth(std::mt19937& random, RfcSeries& series) {
    if (Heads(random)) {
        series.first -= days{std::max(0, Number(series.first) - GreatestDayNumber)};
        series.event.same_date = "True";
        return "BYMONTHDAY=" + std::to_string(Number(series.first));
    }
    series.event.repeat_day = "Day";
    if (Heads(random)) {
        series.first += days{LengthOfMonth(series.first) - Number(series.first)};
        series.event.repeat_number = "Last";
        return "BYMONTHDAY=-1";
    }
    const int number = std::uniform_int_distribution{1, 4}(random);
    series.first += days{number - Number(series.first)};
    series.event.repeat_number = Ranks[static_cast<std::size_t>(number) - 1];
    return "BYMONTHDAY=" + std::to_string(number);
}

std::string MakeRankedWeekday(std::mt19937& random, RfcSeries& series) {
    const int number = Number(series.first);
    const bool isAmongLast = number > LengthOfMonth(series.first) - DaysPerWeek;
    const bool last = number > GreatestDayNumber || (isAmongLast && Heads(random));
    const int rank = last ? 5 : (number - 1) / DaysPerWeek + 1;
    series.event.repeat_number = Ranks[static_cast<std::size_t>(rank) - 1];
    series.event.repeat_day = WeekdayOf(series.first).name;
    return "BYDAY=" + std::to_string(last ? -1 : rank) + WeekdayOf(series.first).code;
}

void MakeMonthlyOrYearly(std::mt19937& random, RfcSeries& series) {
    const std::string day =
        Heads(random) ? MakeDayOfMonth(random, series) : MakeRankedWeekday(random, series);
    const bool yearly = Heads(random);
    const unsigned month{year_month_day{series.first}.month()};
    series.event.recurrence = yearly ? "Year" : "Month";
    series.rule = yearly ? "FREQ=YEARLY;BYMONTH=" + std::to_string(month) + ";" + day : "FREQ=MONTHLY;" + day;
}

} // namespace

RfcSeries RandomRfcSeries(std::mt19937& random, Date earliest) {
    RfcSeries series;
    series.first = earliest + days{std::uniform_int_distribution{31, 1500}(random)};
    if (std::uniform_int_distribution{1, 3}(random) == 1) {
        MakeWeekly(random, series);
    } else {
        MakeMonthlyOrYearly(random, series);
    }
    series.event.date = StoredDate(series.first);
    if (std::uniform_int_distribution{1, 3}(random) == 1) {
        std::string until = StoredDate(series.first + days{std::uniform_int_distribution{0, 2000}(random)});
        series.event.end = "True";
        series.event.end_date = until;
        std::erase(until, '/');
        series.rule += ";UNTIL=" + until;
    }
    return series;
}
