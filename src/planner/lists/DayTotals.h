// The counters beside the lists: the homework, the study time and the events of a day.
#pragma once

#include "planner/rows/BoxText.h"
#include "platform/Clock.h"

#include <vector>

struct HomeworkDayBoxes {
    BoxText TextBoxTotalAssignments;    // assignments due that day
    BoxText TextBoxFinishedAssignments; // those not done, under the caption "Assignments Left:"
    BoxText TextBoxTimeRemaining;       // their time left
};

// The homework that is due on the day; deleted assignments do not count. A bad text among them raises the
// run-time error.
HomeworkDayBoxes HomeworkDayTotals(Date day);

struct EventDayBoxes {
    BoxText TextBoxSchedStudy; // scheduled study time
    BoxText TextBoxClasses;
    BoxText TextBoxOtherEvents;
};

// The events that occur on a day, given by their positions. Study time counts only in "Hours" and "Minutes",
// as those two words are spelt, where the study alert takes any unit; the difference is meant. A bad text
// raises the run-time error.
EventDayBoxes EventDayTotals(const std::vector<int>& eventsOfDay);
