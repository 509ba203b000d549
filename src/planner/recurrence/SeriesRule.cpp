// The recurrence fields of an event, read once into plain values, and the days of a month that they name.
#include "planner/recurrence/SeriesRule.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/Values.h"
#include "planner/dates/DateHelpers.h"

#include <algorithm>

namespace {

// The place of the text in the table from 0, or the table's size where it does not stand there.
template <std::size_t Count>
int PlaceIn(const std::array<std::string_view, Count>& table, std::string_view text) {
    return static_cast<int>(std::ranges::find(table, text) - table.begin());
}

} // namespace

Recurrence RecurrenceIn(std::string_view text) {
    return static_cast<Recurrence>(PlaceIn(RecurrenceTexts, text));
}

Rank RankIn(std::string_view text) {
    return static_cast<Rank>(PlaceIn(RankTexts, text));
}

int WeekdayIn(std::string_view text) {
    return std::min(PlaceIn(WeekdayNames, text) + 1, DaysPerWeek);
}

unsigned WeekdaysIn(std::string_view pattern) {
    constexpr std::array<int, DaysPerWeek> weekdayOfLetter{2, 3, 4, 5, 6, 7, 1};
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

bool IsSeries(int position) {
    return Store.EventRecord.recurrence.Item(position) != NoRecurrence;
}

Date EndDate(int position) {
    const EventLists& events = Store.EventRecord;
    return IsTrue(events.end.Item(position)) ? DateValue(events.end_date.Item(position)) : LastStoredDate;
}

SeriesRule ReadSeriesRule(int position) {
    const EventLists& events = Store.EventRecord;
    SeriesRule rule;
    rule.recurrence = RecurrenceIn(events.recurrence.Item(position));
    if (rule.recurrence == Recurrence::Day) {
        rule.weekdays = WeekdaysIn(events.repeat_daily.Item(position));
        return rule;
    }
    if (rule.recurrence != Recurrence::Month && rule.recurrence != Recurrence::Year) {
        return rule;
    }
    rule.sameDate = IsTrue(events.same_date.Item(position));
    if (!rule.sameDate) {
        rule.rank = RankIn(events.repeat_number.Item(position));
        rule.countsDays = events.repeat_day.Item(position) == DayOfMonthText;
        rule.weekday = WeekdayIn(events.repeat_day.Item(position));
    }
    return rule;
}

int FirstDayOfRank(Rank rank, int daysInMonth) {
    const int past = rank == Rank::Last ? daysInMonth - DaysPerWeek : static_cast<int>(rank) * DaysPerWeek;
    return past + 1;
}

Date RankDay(std::chrono::year_month month, Rank rank, int weekdayNumber) {
    const int firstDay = FirstDayOfRank(rank, DaysInMonth(month));
    const Date firstOfRank{month / firstDay};
    const int ahead = (weekdayNumber - WeekdayNumber(firstOfRank) + DaysPerWeek) % DaysPerWeek;
    return firstOfRank + std::chrono::days{ahead};
}
