// A plain model of what the reminder list has to show.
#include "support/ReminderModel.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "planner/entries/DurationEntry.h"
#include "planner/recurrence/EventOccursOn.h"
#include "planner/reminders/ReminderActions.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace {

using std::chrono::days;
using std::chrono::floor;
using std::chrono::minutes;

constexpr int FarDays = 800; // longer than any series here goes without an occurrence

int IndexOf(const ModelItem& item) {
    return ReminderPosition(item.mode, item.id);
}

// The first day from the given one on which the event occurs.
std::optional<Date> FirstOccurrence(int index, Date from) {
    for (Date day = from; day < from + days{FarDays}; ++day) {
        if (EventOccursOn(day, index)) {
            return day;
        }
    }
    return std::nullopt;
}

std::optional<Moment> NextAlarm(const ModelItem& item) {
    const int index = IndexOf(item);
    const std::optional<Date> day = FirstOccurrence(index, item.from);
    return day ? std::optional<Moment>(AlarmOfOccurrence(index, *day)) : std::nullopt;
}

Date LatestDue(const ModelItem& item, Moment now) {
    const int index = IndexOf(item);
    Date latest = item.from;
    for (Date day = item.from; AlarmOfOccurrence(index, day) <= now; ++day) {
        latest = EventOccursOn(day, index) ? day : latest;
    }
    return latest;
}

// Lets the series go on from the day on.
void GoOnFrom(ModelItem& item, Date day) {
    item.from = day;
    item.next = FirstOccurrence(IndexOf(item), day).value_or(day);
    item.nextAlarm = NextAlarm(item);
    item.onlySnoozeLeft = false;
}

bool FireLatest(ModelItem& item, Moment now) {
    item.stands = true;
    item.shown = LatestDue(item, now);
    item.alarm.reset();
    if (FirstOccurrence(IndexOf(item), item.shown + days{1})) {
        GoOnFrom(item, item.shown + days{1});
    } else {
        item.armed = false; // and the next stays what it was: snoozed, the last one fires again at once
    }
    return true;
}

bool FireSnoozed(ModelItem& item) {
    const std::optional<Moment> alarm = std::exchange(item.alarm, std::nullopt);
    item.stands = !IsException(Store.EventRecord.exceptions.Item(IndexOf(item)), item.shown);
    if (item.stands && item.onlySnoozeLeft) {
        item.armed = false;
        GoOnFrom(item, item.shown);
        item.nextAlarm = alarm; // snoozed again, it fires at once, unless the clock was set back before this
    }
    return item.stands;
}

bool TickSeries(ModelItem& item, Moment now) {
    if (item.stands || !item.armed) {
        return false;
    }
    if (item.nextAlarm && *item.nextAlarm <= now) {
        return FireLatest(item, now);
    }
    if (!item.nextAlarm && AlarmOfOccurrence(IndexOf(item), item.next) <= now) {
        item.onlySnoozeLeft = true;
    }
    return item.alarm && *item.alarm <= now && FireSnoozed(item);
}

bool TickItem(ModelItem& item, Moment now) {
    if (item.series) {
        return TickSeries(item, now);
    }
    if (!item.alarm || *item.alarm > now) {
        return false;
    }
    item.alarm.reset();
    item.stands = true;
    return true;
}

bool IsVisible(const ModelItem& item, int activeTerm) {
    return !item.term || *item.term == activeTerm;
}

} // namespace

Moment AlarmOfOccurrence(int index, Date day) {
    const EventLists& events = Store.EventRecord;
    return floor<minutes>(Moment{day} + TimeValue(events.time.Item(index)) -
                          LeadOf(events.reminder_time.Item(index)));
}

ModelItem& ReminderModel::Find(const std::string& mode, const std::string& id, std::optional<int> term) {
    const auto found = std::ranges::find_if(items, [&](const ModelItem& item) {
        return item.mode == mode && item.id == id && (mode != "Homework" || item.term == term);
    });
    if (found == items.end()) {
        throw std::out_of_range("the model has no " + mode + " " + id);
    }
    return *found;
}

void ReminderModel::Arm(ModelItem& item, Moment alarm) {
    item.alarm = floor<minutes>(alarm);
    item.stands = false;
}

void ReminderModel::ArmSeries(ModelItem& item) {
    item.alarm.reset();
    item.stands = false;
    item.armed = true;
    GoOnFrom(item, DateValue(Store.EventRecord.date.Item(IndexOf(item))));
    item.shown = item.from;
}

void ReminderModel::Snooze(ModelItem& item, Moment alarm) {
    item.alarm = floor<minutes>(alarm);
    item.stands = false;
    item.armed = true; // a series that had run out too, which then fires again at once
}

void ReminderModel::Remove(ModelItem& item) {
    item.stands = false;
}

void ReminderModel::ForgetNextAlarm(ModelItem& item) {
    item.nextAlarm = NextAlarm(item);
}

std::vector<const ModelItem*> ReminderModel::Tick(Moment now, int activeTerm) {
    std::vector<const ModelItem*> fired;
    for (ModelItem& item : items) {
        if (IsVisible(item, activeTerm) && TickItem(item, now)) {
            fired.push_back(&item);
        }
    }
    return fired;
}

std::vector<std::string> ReminderModel::Rows(int activeTerm) const {
    std::vector<std::string> rows;
    for (const ModelItem& item : items) {
        if (item.stands && IsVisible(item, activeTerm)) {
            rows.push_back(item.mode + " " + item.id + (item.series ? " " + StoredDate(item.shown) : ""));
        }
    }
    return rows;
}
