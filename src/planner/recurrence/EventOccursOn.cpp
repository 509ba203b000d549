// The rule of whether an event falls on a date.
#include "planner/recurrence/EventOccursOn.h"

#include "core/DateText.h"
#include "core/FetchAhead.h"
#include "core/Module1.h"
#include "core/Values.h"
#include "planner/dates/DateHelpers.h"
#include "planner/recurrence/SeriesRule.h"

#include <algorithm>
#include <bit>

namespace {

using Row = std::span<const DayFacts>;

// Day numbers above this one are lacking in some month, and move to the month's last day there.
constexpr int GreatestDayOfEveryMonth = 28;

bool IsSameDayNumber(const DayFacts& first, const DayFacts& day) {
    const bool lastStandsIn =
        day.number == day.daysInMonth && first.number > GreatestDayOfEveryMonth && day.number < first.number;
    return day.number == first.number || lastStandsIn;
}

// The weekday of a rank is that of the first date, whatever the text of `repeat_day` says; the walks take it
// from the text, and the difference is meant.
bool HoldsInMonth(const SeriesRule& rule, const DayFacts& first, const DayFacts& day) {
    if (rule.sameDate) {
        return IsSameDayNumber(first, day);
    }
    if (rule.rank == Rank::Unlisted) {
        return false;
    }
    if (rule.countsDays) {
        const int wanted = rule.rank == Rank::Last ? day.daysInMonth : static_cast<int>(rule.rank) + 1;
        return day.number == wanted;
    }
    const int daysIntoRank = day.number - FirstDayOfRank(rule.rank, day.daysInMonth);
    return day.weekday == first.weekday && daysIntoRank >= 0 && daysIntoRank < DaysPerWeek;
}

// True when a series with that first date falls on a later day by its rule alone.
bool RuleHolds(const SeriesRule& rule, const DayFacts& first, const DayFacts& day) {
    switch (rule.recurrence) {
    case Recurrence::Day:
        return HasWeekday(rule.weekdays, day.weekday);
    case Recurrence::Month:
        return HoldsInMonth(rule, first, day);
    case Recurrence::Year:
        return day.month == first.month && HoldsInMonth(rule, first, day);
    case Recurrence::None:
    case Recurrence::Unlisted:
        return false;
    }
    return false;
}

DayBits BitsBelow(int count) {
    return count >= GreatestDayBits ? ~DayBits{0} : (DayBits{1} << count) - 1;
}

// The days of the row up to the date and with it.
DayBits DaysThrough(Row row, Date date) {
    return BitsBelow(std::clamp(DayDiff(row.front().date, date) + 1, 0, static_cast<int>(row.size())));
}

// The days of the row that the exceptions leave; the text is read as far as a day is left.
DayBits DaysNotGivenUp(Row row, std::string_view exceptions) {
    DayBits open = BitsBelow(static_cast<int>(row.size()));
    while (open != 0) {
        const std::optional<Date> date = TakeException(exceptions);
        if (!date) {
            break;
        }
        open &= ~DayOf(row, *date);
    }
    return open;
}

DayBits DaysOfRule(Row row, DayBits open, Date first, int position) {
    const SeriesRule rule = ReadSeriesRule(position);
    const DayFacts firstFacts = FactsOf(first);
    DayBits held = 0;
    for (; open != 0; open &= open - 1) {
        const int n = std::countr_zero(open);
        if (RuleHolds(rule, firstFacts, row[static_cast<std::size_t>(n)])) {
            held |= DayBits{1} << n;
        }
    }
    return held;
}

} // namespace

bool EventOccursOn(Date day, int position) {
    const DayFacts facts = FactsOf(day);
    return OccurringDays({&facts, 1}, position) != 0;
}

DayFacts FactsOf(Date date) {
    const std::chrono::year_month_day parts{date};
    return {date, static_cast<int>(static_cast<unsigned>(parts.day())),
            static_cast<int>(static_cast<unsigned>(parts.month())), WeekdayNumber(date),
            DaysInMonth(parts.year() / parts.month())};
}

std::vector<DayFacts> FactsOfDays(Date first, int count) {
    std::vector<DayFacts> facts(static_cast<std::size_t>(count));
    for (std::size_t n = 0; n < facts.size(); ++n) {
        facts[n] = FactsOf(first + std::chrono::days{n});
    }
    return facts;
}

DayBits DayOf(std::span<const DayFacts> row, Date date) {
    const int n = DayDiff(row.front().date, date);
    return n >= 0 && n < static_cast<int>(row.size()) ? DayBits{1} << n : 0;
}

DayBits OccurringDays(std::span<const DayFacts> row, int position) {
    const EventLists& events = Store.EventRecord;
    if (events.desc.Item(position) == DeletedRecord) {
        return 0;
    }
    DayBits open = DaysNotGivenUp(row, events.exceptions.Item(position));
    if (open == 0) {
        return 0;
    }
    const Date first = DateValue(events.date.Item(position));
    const DayBits onFirst = open & DayOf(row, first); // also where its rule says no
    open &= ~DaysThrough(row, first);
    if (open == 0 || !IsSeries(position)) {
        return onFirst;
    }
    open &= DaysThrough(row, EndDate(position));
    return open == 0 ? onFirst : onFirst | DaysOfRule(row, open, first, position);
}

std::vector<int> EventsOn(Date day) {
    const DayFacts facts = FactsOf(day);
    std::vector<int> positions;
    for (int position = 1, records = WholeRecords(Store.EventRecord); position <= records; ++position) {
        FetchAhead(Store.EventRecord.exceptions, position);
        if (OccurringDays({&facts, 1}, position) != 0) {
            positions.push_back(position);
        }
    }
    return positions;
}

std::optional<Date> TakeException(std::string_view& exceptions) {
    exceptions = LeftTrim(exceptions);
    if (exceptions.empty()) {
        return std::nullopt;
    }
    const std::size_t length = std::min(exceptions.find(' '), exceptions.size());
    const Date date = DateValue(exceptions.substr(0, length));
    exceptions.remove_prefix(length);
    return date;
}

bool IsException(std::string_view exceptions, Date day) {
    while (const std::optional<Date> date = TakeException(exceptions)) {
        if (*date == day) {
            return true;
        }
    }
    return false;
}
