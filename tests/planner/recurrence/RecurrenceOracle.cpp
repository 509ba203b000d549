// Random series, and the rules of recurrence once more: day by day, from texts alone, as slow and plain as
// can be.
#include "planner/recurrence/RecurrenceOracle.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "support/EventRecords.h"

#include <algorithm>
#include <array>
#include <tuple>

namespace {

using std::chrono::days;
using std::chrono::year_month_day;

constexpr std::array<const char*, 7> WeekdayNames{"Monday", "Tuesday",  "Wednesday", "Thursday",
                                                  "Friday", "Saturday", "Sunday"};

int LetterOf(Date date) {
    const Date someMonday{std::chrono::year{2000} / 1 / 3};
    return static_cast<int>(((date - someMonday).count() % 7 + 7) % 7);
}

bool IsRank(const std::string& rank) {
    return rank == "First" || rank == "Second" || rank == "Third" || rank == "Fourth" || rank == "Last";
}

// The day is the wanted one of its weekday within the month.
bool HasRank(const std::string& rank, const OracleDay& day) {
    return (rank == "First" && day.number <= 7) || (rank == "Second" && day.number > 7 && day.number <= 14) ||
           (rank == "Third" && day.number > 14 && day.number <= 21) ||
           (rank == "Fourth" && day.number > 21 && day.number <= 28) ||
           (rank == "Last" && day.number + 7 > day.length);
}

bool HasRankNumber(const std::string& rank, const OracleDay& day) {
    return (rank == "First" && day.number == 1) || (rank == "Second" && day.number == 2) ||
           (rank == "Third" && day.number == 3) || (rank == "Fourth" && day.number == 4) ||
           (rank == "Last" && day.number == day.length);
}

bool HasLetter(const OracleSeries& series, const OracleDay& day) {
    const auto letter = static_cast<std::size_t>(day.letter);
    return letter < series.repeatDaily.size() && series.repeatDaily[letter] == 'T';
}

bool IsSameNumber(const OracleSeries& series, const OracleDay& day) {
    return day.number == std::min(series.first.number, day.length);
}

bool IsMonthly(const OracleSeries& series) {
    return series.recurrence == "Month" || series.recurrence == "Year";
}

std::string WantedWeekday(const OracleSeries& series) {
    const bool named = std::ranges::count(WeekdayNames, series.repeatDay) > 0;
    return named ? series.repeatDay : "Saturday";
}

int Uniform(std::mt19937& random, int least, int greatest) {
    return std::uniform_int_distribution<int>{least, greatest}(random);
}

template <class Table>
auto AnyOf(std::mt19937& random, const Table& table) {
    return table[static_cast<std::size_t>(Uniform(random, 0, static_cast<int>(std::size(table)) - 1))];
}

bool Chance(std::mt19937& random, int percent) {
    return Uniform(random, 1, 100) <= percent;
}

std::string RandomPattern(std::mt19937& random) {
    constexpr std::array<const char*, 6> special{"FFFFFFF", "TTTTTTT", "", "TFT", "TxTfFTt", "TTTTTTTTTT"};
    if (Chance(random, 30)) {
        return AnyOf(random, special);
    }
    std::string pattern;
    for (int letter = 0; letter < 7; ++letter) {
        pattern += Chance(random, 40) ? 'T' : 'F';
    }
    return pattern;
}

std::string RandomExceptions(std::mt19937& random, const OracleSeries& series, Date anchor) {
    std::string text;
    for (int count = Uniform(random, 0, 5); count > 0; --count) {
        const Date date = Chance(random, 20) ? series.first.date : anchor + days{Uniform(random, -10, 45)};
        text += (text.empty() ? "" : " ") + StoredDate(date);
    }
    return text;
}

Date RandomFirst(std::mt19937& random, Date anchor) {
    const Date near =
        anchor + days{Chance(random, 40) ? Uniform(random, -20, 45) : Uniform(random, -800, 45)};
    const year_month_day parts{near};
    return Chance(random, 30) ? Date{parts.year() / parts.month() / std::chrono::last} : near;
}

} // namespace

OracleDay OracleDayOf(Date date) {
    const year_month_day parts{date};
    OracleDay day;
    day.date = date;
    day.text = StoredDate(date);
    day.month = static_cast<int>(static_cast<unsigned>(parts.month()));
    day.number = static_cast<int>(static_cast<unsigned>(parts.day()));
    day.length = 28;
    while ((parts.year() / parts.month() / std::chrono::day{static_cast<unsigned>(day.length) + 1}).ok()) {
        ++day.length;
    }
    day.letter = LetterOf(date);
    day.weekday = WeekdayNames[static_cast<std::size_t>(day.letter)];
    return day;
}

std::vector<OracleDay> OracleDays(Date first, Date last) {
    std::vector<OracleDay> all;
    for (Date date = first; date <= last; date += days{1}) {
        all.push_back(OracleDayOf(date));
    }
    return all;
}

bool OracleOccurs(const OracleSeries& series, const OracleDay& day) {
    const bool isGone = series.desc == "DELETED RECORD";
    if (isGone || series.exceptions.find(day.text) != std::string::npos) {
        return false;
    }
    if (day.date == series.first.date) {
        return true;
    }
    const bool isPastEnd = series.end == "True" && day.text > series.endDate;
    if (series.recurrence == "None" || day.date < series.first.date || isPastEnd) {
        return false;
    }
    if (series.recurrence == "Day") {
        return HasLetter(series, day);
    }
    if (!IsMonthly(series) || (series.recurrence == "Year" && day.month != series.first.month)) {
        return false;
    }
    if (series.sameDate == "True") {
        return IsSameNumber(series, day);
    }
    if (series.repeatDay == "Day") {
        return HasRankNumber(series.repeatNumber, day);
    }
    return day.weekday == series.first.weekday && HasRank(series.repeatNumber, day);
}

bool OracleWalks(const OracleSeries& series, const OracleDay& day) {
    if (series.desc == "DELETED RECORD") {
        return false;
    }
    if (series.recurrence == "None") {
        return day.date == series.first.date;
    }
    if (day.date < series.first.date || (series.end == "True" && day.text > series.endDate)) {
        return false;
    }
    if (series.recurrence == "Day") {
        return HasLetter(series, day) || day.date == series.first.date;
    }
    if (!IsMonthly(series) || (series.recurrence == "Year" && day.month != series.first.month)) {
        return false;
    }
    if (series.sameDate == "True") {
        return IsSameNumber(series, day);
    }
    if (series.repeatDay == "Day") {
        const bool last = series.repeatNumber == "Last";
        return IsRank(series.repeatNumber) && (last ? day.number == day.length : IsSameNumber(series, day));
    }
    return day.weekday == WantedWeekday(series) && HasRank(series.repeatNumber, day);
}

std::vector<Date> OracleWalk(const OracleSeries& series, std::span<const OracleDay> row) {
    std::vector<Date> dates;
    for (const OracleDay& day : row) {
        if (OracleWalks(series, day)) {
            dates.push_back(day.date);
        }
    }
    if (series.recurrence != "Day") {
        return dates;
    }
    const Date start = std::max(series.first.date, row.front().date);
    const bool offPattern = !HasLetter(series, series.first);
    std::ranges::sort(dates, {}, [&](Date date) {
        const bool leads = offPattern && date == series.first.date;
        return std::tuple{leads ? -1 : (date - start).count() % 7, date};
    });
    return dates;
}

bool OracleRulesDiffer(const OracleSeries& series) {
    if (!series.exceptions.empty()) {
        return true;
    }
    if (series.recurrence == "None") {
        return false;
    }
    const bool endsBeforeItBegins = series.end == "True" && series.endDate < series.first.text;
    const bool unlisted =
        series.recurrence != "Day" && !IsMonthly(series); // the first date occurs all the same
    if (endsBeforeItBegins || unlisted) {
        return true;
    }
    if (!IsMonthly(series) || series.sameDate == "True") {
        return false;
    }
    const bool firstMatches = series.repeatDay == "Day" ? HasRankNumber(series.repeatNumber, series.first)
                                                        : HasRank(series.repeatNumber, series.first);
    const bool sameWeekday = series.repeatDay == "Day" || WantedWeekday(series) == series.first.weekday;
    return !firstMatches || !sameWeekday;
}

Date RandomAnchor(std::mt19937& random) {
    constexpr std::array<int, 12> years{1600, 1604, 1700, 1899, 1900, 2000,
                                        2008, 2009, 2012, 2100, 3099, 3100};
    const int year = Chance(random, 50) ? AnyOf(random, years) : Uniform(random, 1600, 3100);
    const auto month = std::chrono::year{year} / Uniform(random, 1, 12);
    return Chance(random, 30) ? Date{month / std::chrono::last} : Date{month / Uniform(random, 1, 28)};
}

OracleSeries RandomSeries(std::mt19937& random, Date anchor) {
    constexpr std::array<const char*, 9> kinds{"None", "Day",  "Day",  "Month", "Month",
                                               "Year", "Year", "Week", "Month"};
    constexpr std::array<const char*, 7> ranks{"First", "Second", "Third", "Fourth", "Last", "Last", "Fifth"};
    OracleSeries series;
    series.first = OracleDayOf(RandomFirst(random, anchor));
    series.desc = Chance(random, 2) ? "DELETED RECORD" : "Event";
    series.recurrence = AnyOf(random, kinds);
    series.exceptions = Chance(random, 25) ? RandomExceptions(random, series, anchor) : "";
    series.sameDate = Chance(random, 35) ? "True" : "False";
    series.repeatNumber = AnyOf(random, ranks);
    series.repeatDay = Chance(random, 50) ? series.first.weekday : AnyOf(random, WeekdayNames);
    if (Chance(random, 25)) {
        series.repeatDay = Chance(random, 80) ? "Day" : "day";
    }
    series.repeatDaily = RandomPattern(random);
    series.end = Chance(random, 35) ? "True" : "False";
    series.endDate = StoredDate(Chance(random, 50) ? anchor + days{Uniform(random, -5, 45)}
                                                   : series.first.date + days{Uniform(random, -40, 900)});
    series.lead = Chance(random, 50) ? Uniform(random, 0, 40) : 0;
    series.reminder = series.lead > 0 ? std::to_string(series.lead) : "True";
    return series;
}

void FillStore(const std::vector<OracleSeries>& all) {
    Store.EventRecord = {};
    NextEventID = 1;
    for (const OracleSeries& series : all) {
        AddEventRecord({.date = series.first.text,
                        .desc = series.desc,
                        .recurrence = series.recurrence,
                        .exceptions = series.exceptions,
                        .same_date = series.sameDate,
                        .repeat_number = series.repeatNumber,
                        .repeat_day = series.repeatDay,
                        .repeat_daily = series.repeatDaily,
                        .end = series.end,
                        .end_date = series.endDate,
                        .reminder = series.reminder});
    }
}
