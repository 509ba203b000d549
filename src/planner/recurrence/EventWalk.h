// The walks: events expanded into their occurrences over a range of dates.
// The dates that a series has given up are not asked here, although EventOccursOn asks them: such an
// occurrence stands in the lists of a week, a month and a year and among the reminders. The difference is
// meant.
#pragma once

#include "platform/Clock.h"

#include <string_view>
#include <vector>

struct EventOccurrence {
    int position = 0; // of the event in the store, from 1
    Date date;

    friend bool operator==(const EventOccurrence&, const EventOccurrence&) = default;
};

// The last date of a list that begins with the given one: "Week" is the same weekday of the next week, so
// eight days are listed; "Month" the same day of the next month, clamped; any other word ends the day before
// the same date of the next year.
Date LastOfRange(Date from, std::string_view comboDateRange);

// Every occurrence from the date to LastOfRange, both included: by event in store order, and within a weekly
// series by weekday, not by date. The range "Day" is not for here: it asks EventOccursOn.
// Raises the run-time error at a bad text among those that an event's kind and place let it read.
std::vector<EventOccurrence> SelectEventsInRange(Date from, std::string_view comboDateRange);

struct EventReminder {
    int position = 0; // of the event in the store, from 1
    Date date;        // of the occurrence
    Date reminderDate;

    friend bool operator==(const EventReminder&, const EventReminder&) = default;
};

// Every occurrence whose reminder period holds the day: it stands from LeadDays before it to its own day.
// The order and the errors are those of SelectEventsInRange.
std::vector<EventReminder> SelectEventReminders(Date day);

// The lead in days that a record's `reminder` may hold in data of older files: the number in its first two
// characters, blanks cut, when they are digits. "True" and "False", all that is written today, lead by 0
// days.
int LeadDays(std::string_view reminder);
