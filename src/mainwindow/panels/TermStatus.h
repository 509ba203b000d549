// What the term panel says of the active term.
#pragma once

#include "platform/Clock.h"

#include <string>

struct TermStatus {
    std::string term;     // its name, or that none is selected
    std::string daysLeft; // empty with no term
};

// The two texts for the active term as seen on the day.
TermStatus TermStatusOn(Date day);
