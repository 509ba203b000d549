// Random series on whose rules the planner and RFC 5545 agree: weekly patterns, day numbers up to 28, the
// last day of the month, the nth and the last weekday. Their first date matches their rule.
#pragma once

#include "platform/Clock.h"
#include "support/EventRecords.h"

#include <random>
#include <string>

struct RfcSeries {
    Date first;
    EventTexts event;
    std::string rule; // the same as an RRULE
};

// A series that begins up to 1500 days after the date.
RfcSeries RandomRfcSeries(std::mt19937& random, Date earliest);
