// The recurrence fields of an event, read once into plain values, and the days of a month that they name.
#include "planner/SeriesRule.h"

#include "core/Module1.h"
#include "core/Values.h"
#include "planner/DateHelpers.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr std::array<std::pair<std::string_view, Recurrence>, 4> RecurrenceTexts{{
    {"None", Recurrence::None},
    {"Day", Recurrence::Day},
    {"Month", Recurrence::Month},
    {"Year", Recurrence::Year},
}};

constexpr std::array<std::pair<std::string_view, Rank>, 5> RankTexts{{
    {"First", Rank::First},
    {"Second", Rank::Second},
    {"Third", Rank::Third},
    {"Fourth", Rank::Fourth},
    {"Last", Rank::Last},
}};

constexpr std::array<std::pair<std::string_view, int>, 6> WeekdayTexts{{
    {"Sunday", 1},
    {"Monday", 2},
    {"Tuesday", 3},
    {"Wednesday", 4},
    {"Thursday", 5},
    {"Friday", 6},
}};

constexpr int AnyOtherWeekday = 7;

template <class Value, std::size_t Count>
Value Listed(const std::array<std::pair<std::string_view, Value>, Count>& table, std::string_view text,
             Value anyOther) {
    for (const auto& [listed, value] : table) {
        if (listed == text) {
            return value;
        }
    }
    return anyOther;
}

} // namespace

Recurrence RecurrenceIn(std::string_view text) {
    return Listed(RecurrenceTexts, text, Recurrence::Unlisted);
}

Rank RankIn(std::string_view text) {
    return Listed(RankTexts, text, Rank::Unlisted);
}

int WeekdayIn(std::string_view text) {
    return Listed(WeekdayTexts, text, AnyOtherWeekday);
}

unsigned WeekdaysIn(std::string_view pattern) {
    constexpr std::array<int, DaysInWeek> weekdayOfLetter{2, 3, 4, 5, 6, 7, 1};
    unsigned weekdays = 0;
    for (std::size_t letter = 0; letter < std::min(pattern.size(), weekdayOfLetter.size()); ++letter) {
        if (pattern[letter] == 'T') {
            weekdays |= 1U << weekdayOfLetter[letter];
        }
    }
    return weekdays;
}

bool HasWeekday(unsigned weekdays, int weekdayNumber) {
    return (weekdays >> weekdayNumber & 1U) != 0;
}

SeriesRule ReadSeriesRule(int index) {
    const EventLists& events = Store.EventRecord;
    SeriesRule rule;
    rule.recurrence = RecurrenceIn(events.recurrence.Item(index));
    if (rule.recurrence == Recurrence::Day) {
        rule.weekdays = WeekdaysIn(events.repeat_daily.Item(index));
        return rule;
    }
    if (rule.recurrence != Recurrence::Month && rule.recurrence != Recurrence::Year) {
        return rule;
    }
    rule.sameDate = IsTrue(events.same_date.Item(index));
    if (!rule.sameDate) {
        rule.rank = RankIn(events.repeat_number.Item(index));
        rule.countsDays = events.repeat_day.Item(index) == "Day";
        rule.weekday = WeekdayIn(events.repeat_day.Item(index));
    }
    return rule;
}

int FirstDayOfRank(Rank rank, int daysInMonth) {
    const int past = rank == Rank::Last ? daysInMonth - DaysInWeek : static_cast<int>(rank) * DaysInWeek;
    return past + 1;
}

Date RankDay(std::chrono::year_month month, Rank rank, int weekdayNumber) {
    const Date first{month / 1};
    const int daysInMonth = DayDiff(first, LastDayOf(month)) + 1;
    const Date firstOfRank = first + std::chrono::days{FirstDayOfRank(rank, daysInMonth) - 1};
    const int ahead = (weekdayNumber - WeekdayNumber(firstOfRank) + DaysInWeek) % DaysInWeek;
    return firstOfRank + std::chrono::days{ahead};
}

Date LastDayOf(std::chrono::year_month month) {
    return Date{month / std::chrono::last};
}

std::chrono::year_month MonthOf(Date date) {
    const std::chrono::year_month_day parts{date};
    return parts.year() / parts.month();
}
