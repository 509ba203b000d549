// Lengths of time as the editors take them: the duration of an event, its lead time, and the snooze of a
// reminder are one rule with a limit and a set of units; and what such a text comes to.
#pragma once

#include <chrono>
#include <string>
#include <string_view>

struct DurationRule {
    int limit;              // the greatest number
    std::string_view units; // first letters of those allowed: "m" minutes, "h" hours, "d" days
};

inline constexpr DurationRule EventDuration{999, "mh"};
inline constexpr DurationRule LeadTime{9999, "mhd"};
inline constexpr DurationRule SnoozeTime{9999, "mhd"};

// The number in front of the text with at most two places and the unit behind it, as "1.5 Hours"; "30
// Minutes" where either is missing or not allowed, "0 Minutes" where nothing is left of the number. "s" is
// added unless the number as typed is exactly 1.
std::string ValidateDuration(std::string_view text, const DurationRule& rule);

// The lead of an event's reminder. The first letter of the unit counts, in either case: "h" hours, "d" days,
// anything else minutes. Raises the run-time error where the number is none.
std::chrono::seconds LeadOf(std::string_view leadTime);

// The interval of a snooze. The first letter of the unit counts, in its case: "M", "H" or "D"; raises the
// run-time error at any other and where the number is none.
std::chrono::seconds SnoozeInterval(std::string_view snoozeTime);

// True when an event runs beyond midnight, which its editor remarks. Ending at midnight is not beyond. The
// unit of the duration is looked at by its first letter, "H" or "D", anything else is minutes. Raises the
// run-time error where the time is none or the duration has no number.
bool PassesMidnight(std::string_view startTime, std::string_view duration);
