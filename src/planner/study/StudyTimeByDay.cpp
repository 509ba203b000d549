// The scheduled study of each day that the study alert looks at.
// Nothing but the sessions of today depends on the order of the days. So today is counted first, in store
// order, and then each event once over all later days, however far the last due date lies.
#include "planner/study/StudyTimeAlert.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/Values.h"
#include "planner/dates/DateHelpers.h"
#include "planner/recurrence/EventOccursOn.h"
#include "planner/recurrence/SeriesRule.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <span>
#include <vector>

namespace {

using std::chrono::days;

constexpr double SecondsPerMinute = 60;
constexpr double SecondsPerDay = 86400;

// Days are told by their index in AlertDays, today being 0.
struct LaterStudy {
    std::vector<DayFacts> facts; // of the days that were asked for so far

    // Weekly sessions that are not summed up yet: how much the minutes of a day differ from those of the same
    // weekday a week before. One week behind the last day catches what ends there.
    std::vector<int> weeklyChange;
    bool summedUp = true;
};

double LengthOf(int position) {
    return DurationToMinutes(Store.EventRecord.duration.Item(position));
}

// True when the session of today ends before the present. The end is a time of day: a session over midnight
// ends early in the morning and counts as over. That is meant.
bool IsOver(int position, TimeOfDay presentTime) {
    const auto present = static_cast<double>(presentTime.count());
    const auto start = static_cast<double>(TimeValue(Store.EventRecord.time.Item(position)).count());
    const double seconds = std::nearbyint(LengthOf(position) * SecondsPerMinute);
    const double end = std::fmod(start + seconds, SecondsPerDay);
    return (end < 0 ? end + SecondsPerDay : end) < present;
}

void AddMinutes(std::size_t day, double minutes) {
    int& study = AlertStudy.values[day];
    study = Int16Of(study + minutes);
}

// False when a session of today is over, which ends the count.
bool AddStudyOfToday(Moment now, const std::vector<int>& sessions) {
    const auto today = std::chrono::floor<days>(now);
    for (const int position : sessions) {
        if (EventOccursOn(today, position)) {
            if (IsOver(position, now - today)) {
                return false;
            }
            AddMinutes(0, LengthOf(position));
        }
    }
    return true;
}

// Whole minutes add up in any order. All others round by what stands before them, so they must keep their
// turn.
bool IsWhole(double minutes) {
    return minutes >= 0 && minutes <= GreatestInt16 && minutes == std::floor(minutes);
}

void SumUp(LaterStudy& later) {
    if (later.summedUp) {
        return;
    }
    for (std::size_t day = 0; day < AlertStudy.values.size(); ++day) {
        later.weeklyChange[day] += day < DaysPerWeek ? 0 : later.weeklyChange[day - DaysPerWeek];
        AddMinutes(day, later.weeklyChange[day]);
    }
    std::ranges::fill(later.weeklyChange, 0);
    later.summedUp = true;
}

std::span<const DayFacts> FactsFrom(LaterStudy& later, std::size_t first, std::size_t greatestCount) {
    const std::size_t count = std::min(greatestCount, AlertDays.values.size() - first);
    while (later.facts.size() < first + count) {
        later.facts.push_back(FactsOf(AlertDays.values[later.facts.size()]));
    }
    return {&later.facts[first], count};
}

// Adds the study of the event on the days from the given one that can be asked at once; gives the day behind.
std::size_t AddRow(LaterStudy& later, int position, std::size_t first) {
    const std::span<const DayFacts> row = FactsFrom(later, first, GreatestDayBits);
    DayBits occurring = OccurringDays(row, position);
    const double length = occurring == 0 ? 0 : LengthOf(position);
    if (!IsWhole(length)) {
        SumUp(later);
    }
    for (; occurring != 0; occurring &= occurring - 1) {
        AddMinutes(first + static_cast<std::size_t>(std::countr_zero(occurring)), length);
    }
    return first + row.size();
}

// The first day from which on all weeks of the event are alike as far as its end: behind its first date and
// the dates given up. A monthly or yearly series has none.
std::size_t FirstRegularDay(int position) {
    const EventLists& events = Store.EventRecord;
    const std::string& recurrence = events.recurrence.Item(position);
    if (recurrence == "Month" || recurrence == "Year") {
        return AlertDays.values.size();
    }
    Date lastIrregular = DateValue(events.date.Item(position));
    std::string_view exceptions = events.exceptions.Item(position);
    while (const std::optional<Date> date = TakeException(exceptions)) {
        lastIrregular = std::max(lastIrregular, *date);
    }
    const int firstRegular = DayDiff(AlertDays.values.front(), lastIrregular) + 1;
    return std::min(static_cast<std::size_t>(std::max(0, firstRegular)), AlertDays.values.size());
}

// The last day on which the event can occur.
std::size_t LastDayOfEvent(int position) {
    const Date last = std::min(AlertDays.values.back(), EndDate(position));
    return static_cast<std::size_t>(DayDiff(AlertDays.values.front(), last));
}

// Adds the study of the event on all days from the given one on, its weeks being alike.
void AddWeeks(LaterStudy& later, int position, std::size_t first) {
    DayBits occurring = OccurringDays(FactsFrom(later, first, DaysPerWeek), position);
    if (occurring == 0) {
        return;
    }
    const double length = LengthOf(position);
    const std::size_t last = LastDayOfEvent(position);
    for (; occurring != 0; occurring &= occurring - 1) {
        std::size_t day = first + static_cast<std::size_t>(std::countr_zero(occurring));
        if (IsWhole(length)) {
            const std::size_t weeks = (last - day) / DaysPerWeek + 1;
            later.weeklyChange[day] += static_cast<int>(length);
            later.weeklyChange[day + weeks * DaysPerWeek] -= static_cast<int>(length);
            later.summedUp = false;
            continue;
        }
        for (SumUp(later); day <= last; day += DaysPerWeek) {
            AddMinutes(day, length);
        }
    }
}

void AddStudyOfLaterDays(LaterStudy& later, int position) {
    const std::size_t count = AlertDays.values.size();
    if (count == 1 || Store.EventRecord.desc.Item(position) == DeletedRecord) {
        return;
    }
    std::size_t day = AddRow(later, position, 1);
    const std::size_t firstRegular = day < count ? FirstRegularDay(position) : count;
    while (day < firstRegular) {
        day = AddRow(later, position, day);
    }
    if (day < count) {
        AddWeeks(later, position, day);
    }
}

} // namespace

void StudyTimeByDay(Moment now) {
    const TextList& types = Store.EventRecord.type;
    std::vector<int> sessions;
    for (int position = 1, records = WholeRecords(Store.EventRecord); position <= records; ++position) {
        if (types.Item(position) == StudyTimeType) {
            sessions.push_back(position);
        }
    }
    if (!AddStudyOfToday(now, sessions)) {
        return;
    }
    LaterStudy later;
    later.facts.reserve(AlertDays.values.size());
    later.weeklyChange.resize(AlertDays.values.size() + DaysPerWeek);
    for (const int position : sessions) {
        AddStudyOfLaterDays(later, position);
    }
    SumUp(later);
}
