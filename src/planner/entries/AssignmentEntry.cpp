// What the editors of assignments and tasks make of a typed text: percent, estimate, time left, and short
// words.
#include "planner/entries/AssignmentEntry.h"

#include "core/Values.h"
#include "planner/dates/DateHelpers.h"

#include <algorithm>

namespace {

constexpr std::string_view FallbackEstimate = "00 : 30";
constexpr std::size_t GreatestEstimateLength = 8;
constexpr std::size_t GreatestPercentLength = 3;
constexpr int GreatestHours = 99;
constexpr int GreatestMinutes = 59;
constexpr int FallbackMinutes = 30;
constexpr std::size_t WordLimit = 10;

bool IsEstimateCharacter(char character) {
    return character == ' ' || character == ':' || IsDigit(character);
}

} // namespace

std::string ValidatePercent(std::string_view text) {
    std::string digits(text);
    std::erase(digits, '%');
    if (digits.empty() || digits.size() > GreatestPercentLength || !std::ranges::all_of(digits, IsDigit)) {
        return "0%";
    }
    const int percent = ToInt16(digits);
    return percent > 100 ? "0%" : std::to_string(percent) + "%";
}

std::string ValidateEstimate(std::string_view text) {
    const std::size_t colon = text.find(':');
    if (text.size() > GreatestEstimateLength || colon == std::string_view::npos ||
        !std::ranges::all_of(text, IsEstimateCharacter)) {
        return std::string(FallbackEstimate);
    }
    const double typedHours = NumberIn(text.substr(0, colon)).value_or(0);
    const double typedMinutes = NumberIn(text.substr(colon + 1)).value_or(FallbackMinutes);
    const int hours = typedHours > GreatestHours ? GreatestHours : static_cast<int>(typedHours);
    const int minutes = typedMinutes > GreatestMinutes ? 0 : static_cast<int>(typedMinutes);
    return SpacedClock(hours == 0 && minutes == 0 ? 1 : hours * MinutesPerHour + minutes);
}

std::string UpdateTimeLeft(bool finished, std::string_view estimate, std::string_view percent) {
    if (finished) {
        return SpacedClock(0);
    }
    std::string number(percent);
    std::erase(number, '%');
    const int left = Int16Of(ClockToMinutes(estimate) * (100 - ToInt16(number)) / 100.0);
    return SpacedClock(left == 0 ? 1 : left);
}

std::string_view CutToLimit(std::string_view text) {
    return text.substr(0, WordLimit);
}
