// How the reminder of a series moves on from one occurrence to the next.
#include "planner/reminders/AdvanceEventReminder.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/Values.h"
#include "planner/dates/DateHelpers.h"
#include "planner/entries/DurationEntry.h"
#include "planner/entries/ReminderEntry.h"
#include "planner/recurrence/EventOccursOn.h"

#include <algorithm>
#include <string>

namespace {

using std::chrono::days;

std::optional<Date> StepByWeekdays(const SeriesRule& rule, Date day) {
    for (int step = 1; step <= DaysPerWeek; ++step) {
        if (HasWeekday(rule.weekdays, WeekdayNumber(day + days{step}))) {
            return day + days{step};
        }
    }
    return std::nullopt;
}

Date StepBySameDate(Date first, Date day, int months) {
    const int passed = static_cast<int>((MonthOf(day) - MonthOf(first)).count()) / months;
    int count = std::max(passed, 1);
    while (DateAddMulti(first, 0, count * months, 0) <= day) {
        ++count;
    }
    return DateAddMulti(first, 0, count * months, 0);
}

Date StepByRank(const SeriesRule& rule, Date day, int months) {
    const Date later = DateAddMulti(day, 0, months, 0);
    if (!rule.countsDays) {
        return RankDay(MonthOf(later), rule.rank, rule.weekday);
    }
    return rule.rank == Rank::Last ? LastOfMonth(MonthOf(later)) : later;
}

std::optional<Date> StepUnbounded(const SeriesRule& rule, Date first, Date day) {
    if (rule.recurrence == Recurrence::Day) {
        return StepByWeekdays(rule, day);
    }
    const bool repeats = rule.recurrence == Recurrence::Month || rule.recurrence == Recurrence::Year;
    if (!repeats || (!rule.sameDate && rule.rank == Rank::Unlisted)) {
        return std::nullopt;
    }
    const int months = rule.recurrence == Recurrence::Year ? MonthsPerYear : 1;
    return rule.sameDate ? StepBySameDate(first, day, months) : StepByRank(rule, day, months);
}

struct Occurrence {
    Date day;
    std::string alarm; // stored moment
};

struct SeriesReminder {
    SeriesRule rule;
    Date first;
    Date end;
    TimeOfDay time;
    std::chrono::seconds lead;
    std::string_view exceptions;
};

SeriesReminder ReadSeriesReminder(int position) {
    const EventLists& events = Store.EventRecord;
    return {ReadSeriesRule(position),
            DateValue(events.date.Item(position)),
            EndDate(position),
            TimeValue(events.time.Item(position)),
            LeadOf(events.reminder_time.Item(position)),
            events.exceptions.Item(position)};
}

// What lies behind an occurrence: the latest that is due, and the first that is not; nothing for either where
// the series has none. Those given up are passed over.
struct Following {
    std::optional<Occurrence> latestDue;
    std::optional<Occurrence> next;
};

Following WalkOn(const SeriesReminder& series, Date day, Moment now) {
    Following following;
    while (true) {
        const std::optional<Date> step = StepSeries(series.rule, series.first, day);
        if (!step || *step > series.end) {
            return following;
        }
        day = *step;
        if (IsException(series.exceptions, day)) {
            continue;
        }
        const Moment moment = RequireStorable(Moment{day} + series.time - series.lead);
        const Moment alarm = std::chrono::floor<std::chrono::minutes>(moment); // as it is written
        if (alarm > now) {
            following.next = {day, StoredMoment(alarm)};
            return following;
        }
        following.latestDue = {day, StoredMoment(alarm)};
    }
}

void SetPresent(int position, const Occurrence& present) {
    Store.EventRecord.reminder_currentday.Replace(position, StoredDate(present.day));
    Store.EventRecord.reminder_alarm.Replace(position, present.alarm);
}

void SetNext(int position, const Occurrence& next) {
    Store.EventRecord.reminder_nextday.Replace(position, StoredDate(next.day));
    Store.EventRecord.reminder_nextalarm.Replace(position, next.alarm);
}

} // namespace

bool AdvanceEventReminder(int position, Moment now) {
    EventLists& events = Store.EventRecord;
    const SeriesReminder series = ReadSeriesReminder(position);
    const bool snoozed = events.reminder_currentday.Item(position) != events.reminder_nextday.Item(position);
    Occurrence next{DateValue(events.reminder_nextday.Item(position)),
                    events.reminder_nextalarm.Item(position)};
    const Following following = WalkOn(series, next.day, now);
    std::optional<Occurrence> missed = following.latestDue;
    if (!missed && !IsException(series.exceptions, next.day)) {
        missed = next;
    }
    if (missed) {
        events.reminder_list.Replace(position, BooleanText(true));
        SetPresent(position, *missed);
    }
    if (following.next) {
        next = *following.next;
    } else if (!missed && snoozed) {
        // Only the snoozed occurrence is left, and comes next.
        next = {DateValue(events.reminder_currentday.Item(position)), events.reminder_alarm.Item(position)};
    } else {
        events.reminder.Replace(position, BooleanText(false));
    }
    SetNext(position, next);
    if (!missed && !snoozed) {
        FollowNextOccurrence(position);
    }
    return missed.has_value();
}

void FollowNextOccurrence(int position) {
    EventLists& events = Store.EventRecord;
    events.reminder_alarm.Replace(position, events.reminder_nextalarm.Item(position));
    events.reminder_currentday.Replace(position, events.reminder_nextday.Item(position));
}

std::optional<Date> StepSeries(const SeriesRule& rule, Date first, Date day) {
    const std::optional<Date> step = StepUnbounded(rule, first, day);
    return step && *step <= LastStoredDate ? step : std::nullopt;
}
