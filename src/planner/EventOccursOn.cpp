// The rule of whether an event falls on a date.
#include "planner/EventOccursOn.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/Values.h"
#include "planner/DateHelpers.h"

#include <algorithm>

namespace {

// Day numbers above this one are lacking in some month, and move to the month's last day there.
constexpr int GreatestDayOfEveryMonth = 28;
constexpr int DaysInWeek = 7;

bool IsSameDayNumber(const DayFacts& first, const DayFacts& day) {
    const bool lastStandsIn =
        day.number == day.daysInMonth && first.number > GreatestDayOfEveryMonth && day.number < first.number;
    return day.number == first.number || lastStandsIn;
}

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
    return day.weekday == first.weekday && daysIntoRank >= 0 && daysIntoRank < DaysInWeek;
}

bool IsAfterEnd(Date day, int index) {
    const EventLists& events = Store.EventRecord;
    return IsTrue(events.end.Item(index)) && day > DateValue(events.end_date.Item(index));
}

} // namespace

bool EventOccursOn(Date day, int index) {
    const EventLists& events = Store.EventRecord;
    if (events.desc.Item(index) == DeletedRecord || IsException(events.exceptions.Item(index), day)) {
        return false;
    }
    const Date first = DateValue(events.date.Item(index));
    if (day == first) {
        return true; // also where the first date does not match its own rule
    }
    const bool single = RecurrenceIn(events.recurrence.Item(index)) == Recurrence::None;
    if (single || day < first || IsAfterEnd(day, index)) {
        return false;
    }
    return RuleHolds(ReadSeriesRule(index), FactsOf(first), FactsOf(day));
}

DayFacts FactsOf(Date date) {
    const std::chrono::year_month_day parts{date};
    const std::chrono::year_month_day_last last{parts.year(), parts.month() / std::chrono::last};
    return {date, static_cast<int>(static_cast<unsigned>(parts.day())),
            static_cast<int>(static_cast<unsigned>(parts.month())), WeekdayNumber(date),
            static_cast<int>(static_cast<unsigned>(last.day()))};
}

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
