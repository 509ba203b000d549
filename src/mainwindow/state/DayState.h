// The schedule of a day: where its keys stand, and the half hour clicked last.
#pragma once

#include <string>

struct DayState {
    int CurrentHalfHour = -1;          // half hour on which the keys stand; -1 for none
    int CurrentEvent = 0;              // and the event row of it; 0 for none
    std::string EventClickedStartTime; // the half hour clicked last
};
