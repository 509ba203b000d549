// The recurrence rules against libical's iterator, where they agree with RFC 5545.
#include "core/DateText.h"
#include "planner/dates/DateHelpers.h"
#include "planner/recurrence/EventOccursOn.h"
#include "planner/recurrence/EventWalk.h"
#include "support/RfcSeries.h"

#include <gtest/gtest.h>
#include <libical/ical.h>

#include <algorithm>
#include <bit>
#include <span>
#include <vector>

using namespace std::chrono_literals;
using std::chrono::days;

namespace {

constexpr int SeriesCount = 10000;
constexpr Date Earliest{1972y / 1 / 1};

icaltimetype IcalDate(Date date) {
    const std::chrono::year_month_day parts{date};
    icaltimetype time = icaltime_null_time();
    time.is_date = 1;
    time.year = static_cast<int>(parts.year());
    time.month = static_cast<int>(static_cast<unsigned>(parts.month()));
    time.day = static_cast<int>(static_cast<unsigned>(parts.day()));
    return time;
}

Date DateOf(const icaltimetype& time) {
    return Date{std::chrono::year{time.year} / time.month / time.day};
}

// What libical makes of the rule in the range.
std::vector<Date> IcalDates(const RfcSeries& series, Date from, Date to) {
    std::vector<Date> dates;
    icalrecurrencetype rule = icalrecurrencetype_from_string(series.rule.c_str());
    icalrecur_iterator* iterator = icalrecur_iterator_new(rule, IcalDate(series.first));
    EXPECT_NE(iterator, nullptr) << series.rule;
    for (icaltimetype time = icalrecur_iterator_next(iterator); !icaltime_is_null_time(time);
         time = icalrecur_iterator_next(iterator)) {
        if (DateOf(time) > to) {
            break;
        }
        if (DateOf(time) >= from) {
            dates.push_back(DateOf(time));
        }
    }
    icalrecur_iterator_free(iterator);
    return dates;
}

std::vector<Date> WalkedDates(Date from, std::string_view range) {
    std::vector<Date> dates;
    for (const EventOccurrence& occurrence : SelectEventsInRange(from, range)) {
        dates.push_back(occurrence.date);
    }
    std::ranges::sort(dates);
    return dates;
}

std::vector<Date> OccurringDates(std::span<const DayFacts> range) {
    std::vector<Date> dates;
    while (!range.empty()) {
        const auto row = range.first(std::min<std::size_t>(range.size(), GreatestDayBits));
        for (DayBits found = OccurringDays(row, 1); found != 0; found &= found - 1) {
            dates.push_back(row[static_cast<std::size_t>(std::countr_zero(found))].date);
        }
        range = range.subspan(row.size());
    }
    return dates;
}

} // namespace

TEST(RfcRecurrence, IsThatOfLibicalWhereTheRulesAgree) {
    const std::vector<DayFacts> calendar = FactsOfDays(Earliest, 4000);
    std::mt19937 random{5545};
    std::size_t occurrences = 0;
    for (int count = 0; count < SeriesCount; ++count) {
        const RfcSeries series = RandomRfcSeries(random, Earliest);
        const bool weekly = series.event.recurrence == "Day";
        const int start = DayDiff(Earliest, series.first) + std::uniform_int_distribution{-31, 500}(random);
        const Date from = Earliest + days{std::max(0, start)};
        const std::string_view range = weekly ? "Month" : "Year";
        const Date to = LastOfRange(from, range);
        Store = {};
        NextEventID = 1;
        AddEventRecord(series.event);
        const std::vector<Date> expected = IcalDates(series, from, to);
        ASSERT_EQ(WalkedDates(from, range), expected) << series.event.date << " " << series.rule;
        const auto length = static_cast<std::size_t>(DayDiff(from, to)) + 1;
        const auto facts =
            std::span{calendar}.subspan(static_cast<std::size_t>(DayDiff(Earliest, from)), length);
        ASSERT_EQ(OccurringDates(facts), expected) << series.event.date << " " << series.rule;
        occurrences += expected.size();
    }
    EXPECT_GT(occurrences, std::size_t{SeriesCount});
}
