// The walks: events expanded into their occurrences over a range of dates.
#include "planner/recurrence/EventWalk.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/Values.h"
#include "planner/dates/DateHelpers.h"
#include "planner/recurrence/SeriesRule.h"

#include <algorithm>
#include <charconv>

namespace {

using std::chrono::days;
using std::chrono::months;
using std::chrono::weeks;
using std::chrono::year_month;

// Where a series is walked; it holds no day when the last is before the first.
struct Span {
    Date first;
    Date last;
};

// What a monthly or yearly series makes of the month so many months behind that of its first date. The
// weekday of a rank is that of the text of `repeat_day`, where EventOccursOn takes it from the first date;
// and the first to the fourth day of a month are the day number of the first date, where EventOccursOn takes
// them by their word. Both differences are meant.
Date Candidate(const SeriesRule& rule, Date first, int addedMonths) {
    const bool lastOfMonth = rule.countsDays && rule.rank == Rank::Last;
    if (rule.sameDate || (rule.countsDays && !lastOfMonth)) {
        return DateAddMulti(first, 0, addedMonths, 0);
    }
    const year_month month = MonthOf(first) + months{addedMonths};
    return lastOfMonth ? LastOfMonth(month) : RankDay(month, rule.rank, rule.weekday);
}

// The candidates of each month or year, from that in which the span begins: earlier ones lie before it.
void WalkMonths(const SeriesRule& rule, Date first, Span span, std::vector<Date>& dates) {
    if (!rule.sameDate && rule.rank == Rank::Unlisted) {
        return;
    }
    const int step = rule.recurrence == Recurrence::Year ? MonthsPerYear : 1;
    const int monthsToSpan = static_cast<int>((MonthOf(span.first) - MonthOf(first)).count());
    int addedMonths = monthsToSpan / step * step;
    for (Date candidate = Candidate(rule, first, addedMonths); candidate <= span.last;
         candidate = Candidate(rule, first, addedMonths)) {
        if (candidate >= span.first) {
            dates.push_back(candidate);
        }
        addedMonths += step;
    }
}

// A first date off the pattern, then all days of one weekday, then of the next.
void WalkWeekdays(const SeriesRule& rule, Date first, Span span, std::vector<Date>& dates) {
    if (first >= span.first && first <= span.last && !HasWeekday(rule.weekdays, WeekdayNumber(first))) {
        dates.push_back(first);
    }
    for (int offset = 0; offset < DaysPerWeek; ++offset) {
        const Date start = span.first + days{offset};
        if (!HasWeekday(rule.weekdays, WeekdayNumber(start))) {
            continue;
        }
        for (Date date = start; date <= span.last; date += weeks{1}) {
            dates.push_back(date);
        }
    }
}

void WalkSeries(int position, Date first, Span span, std::vector<Date>& dates) {
    const SeriesRule rule = ReadSeriesRule(position);
    if (rule.recurrence == Recurrence::Day) {
        WalkWeekdays(rule, first, span, dates);
    }
    if (rule.recurrence == Recurrence::Month || rule.recurrence == Recurrence::Year) {
        WalkMonths(rule, first, span, dates);
    }
}

void WalkEvent(int position, Span range, std::vector<Date>& dates) {
    const Date first = DateValue(Store.EventRecord.date.Item(position));
    if (!IsSeries(position)) {
        if (first >= range.first && first <= range.last) {
            dates.push_back(first);
        }
        return;
    }
    if (first > range.last) {
        return;
    }
    const Date end = EndDate(position);
    if (end < range.first) {
        return;
    }
    const Date last = std::min(end, range.last);
    WalkSeries(position, first, {std::max(first, range.first), last}, dates);
}

// The occurrences on which the day lies at most the lead before. The end is asked of a series alone.
void WalkReminders(int position, Date day, days lead, std::vector<Date>& dates) {
    const Date first = DateValue(Store.EventRecord.date.Item(position));
    if (day < first - lead) {
        return;
    }
    if (!IsSeries(position)) {
        if (day <= first) {
            dates.push_back(first);
        }
        return;
    }
    const Date end = EndDate(position);
    if (day > end) {
        return;
    }
    const Date last = std::min(end, day + lead);
    WalkSeries(position, first, {std::max(first, day), last}, dates);
}

} // namespace

Date LastOfRange(Date from, std::string_view comboDateRange) {
    if (comboDateRange == "Week") {
        return from + weeks{1};
    }
    if (comboDateRange == "Month") {
        return DateAddMulti(from, 0, 1, 0);
    }
    return DateAddMulti(from, 1, 0, -1);
}

std::vector<EventOccurrence> SelectEventsInRange(Date from, std::string_view comboDateRange) {
    const Span range{from, LastOfRange(from, comboDateRange)};
    std::vector<EventOccurrence> occurrences;
    std::vector<Date> dates;
    for (int position = 1, records = WholeRecords(Store.EventRecord); position <= records; ++position) {
        if (Store.EventRecord.desc.Item(position) == DeletedRecord) {
            continue;
        }
        dates.clear();
        WalkEvent(position, range, dates);
        for (const Date date : dates) {
            occurrences.push_back({position, date});
        }
    }
    return occurrences;
}

std::vector<EventReminder> SelectEventReminders(Date day) {
    std::vector<EventReminder> reminders;
    std::vector<Date> dates;
    for (int position = 1, records = WholeRecords(Store.EventRecord); position <= records; ++position) {
        if (Store.EventRecord.desc.Item(position) == DeletedRecord) {
            continue;
        }
        const days lead{LeadDays(Store.EventRecord.reminder.Item(position))};
        dates.clear();
        WalkReminders(position, day, lead, dates);
        for (const Date date : dates) {
            reminders.push_back({position, date, date - lead});
        }
    }
    return reminders;
}

int LeadDays(std::string_view reminder) {
    const std::string_view digits = Trim(reminder.substr(0, 2));
    unsigned lead = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), lead);
    const bool numeric = result.ec == std::errc{} && result.ptr == digits.data() + digits.size();
    return numeric ? static_cast<int>(lead) : 0;
}
