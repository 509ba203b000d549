// The panel "Study Time Today": how much has to be studied today, and how much should be.
#pragma once

#include "planner/rows/BoxText.h"
#include "platform/Clock.h"

struct StudyTimeBoxes {
    BoxText TextBoxMinimum;   // all that is due by the day after, late items included
    BoxText TextBoxSuggested; // the daily rate that finishes everything in time
};

// The two boxes for the day, from the estimates of the assignments that are neither done nor deleted. A bad
// date or estimate raises the run-time error.
StudyTimeBoxes StudyTimeToday(Date day);
