// The clock: the only way in which the planner asks the time.
// All dates and moments are local wall time and know no zone.
#pragma once

#include <chrono>

using Date = std::chrono::local_days;
using Moment = std::chrono::local_seconds;
using TimeOfDay = std::chrono::seconds; // since midnight, 0 to 86399

// The present moment, in whole seconds.
Moment Now();

// The present date.
Date Today();
