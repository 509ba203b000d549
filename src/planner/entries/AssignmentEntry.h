// What the editors of assignments and tasks make of a typed text: percent, estimate, time left, and short
// words. A text that has been through one of these rules comes out of it unchanged.
#pragma once

#include <string>
#include <string_view>

// The number and "%", without zeros in front; "0%" for anything but a whole number from 0 to 100. Every "%"
// in the text is passed over.
std::string ValidatePercent(std::string_view text);

// An estimate as "HH : MM", from "00 : 01" to "99 : 59". Minutes that are none become 30, minutes above 59
// none; any other text at fault becomes "00 : 30".
std::string ValidateEstimate(std::string_view text);

// The time left of an estimate, as "HH : MM": nothing when the work is finished, else the share that the
// percent leaves, halves to the even minute, and at least one minute. Raises the run-time error where the
// estimate or the percent holds no numbers.
std::string UpdateTimeLeft(bool finished, std::string_view estimate, std::string_view percent);

// The first ten characters of a type or a priority.
std::string_view CutToLimit(std::string_view text);
