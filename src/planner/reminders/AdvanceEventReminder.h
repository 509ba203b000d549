// How the reminder of a series moves on from one occurrence to the next.
#pragma once

#include "planner/recurrence/SeriesRule.h"
#include "platform/Clock.h"

#include <optional>

// Moves the series at the position, whose next reminder is due, to its next occurrence: passes over those
// that were missed and those that it has given up, puts the latest missed one on the list, and arms the first
// that is not due. When its occurrences have run out it is disarmed. Gives false when no occurrence was left
// to put on the list; the fields have moved on all the same, and the event file is to be written either way.
// Raises the run-time error at a bad text among those that it reads.
bool AdvanceEventReminder(int position, Moment now);

// Lets what stands for the present occurrence of the series follow its next one, as when the present one is
// done with.
void FollowNextOccurrence(int position);

// The first day after the given one that the series steps to, its exceptions and its end not asked; nothing
// when its rule names none or the calendar ends. Monthly and yearly series of one day number count from their
// first date, so that a series on the 31st comes back to it; all others step from the given day, which is one
// of theirs.
std::optional<Date> StepSeries(const SeriesRule& rule, Date first, Date day);
