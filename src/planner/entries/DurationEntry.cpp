// Lengths of time as the editors take them, and what such a text comes to.
#include "planner/entries/DurationEntry.h"

#include "core/DateText.h"
#include "core/Decimal.h"
#include "core/RunTimeError.h"
#include "core/Values.h"
#include "planner/dates/DateHelpers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

namespace {

using std::chrono::seconds;

constexpr std::string_view FallbackDuration = "30 Minutes";
constexpr std::string_view NoDuration = "0 Minutes";
constexpr int Places = 2;
constexpr double GreatestSeconds = 1e12; // far beyond the calendar, and far within the range of seconds

struct Unit {
    char letter;
    std::string_view name;
    int seconds;
};

constexpr std::array<Unit, 3> Units{{
    {'m', "Minute", 60},
    {'h', "Hour", 60 * 60},
    {'d', "Day", 24 * 60 * 60},
}};

constexpr const Unit& Minute = Units[0];

// The unit of that letter; minutes for any other.
const Unit& UnitOf(char letter) {
    const auto* const unit = std::ranges::find(Units, letter, &Unit::letter);
    return unit == Units.end() ? Minute : *unit;
}

bool IsAsciiLetter(char character) {
    return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}

char Lower(char character) {
    return static_cast<char>(FoldByte(static_cast<unsigned char>(character)));
}

std::string_view NumberInFront(std::string_view text) {
    return text.substr(0, std::min(text.find_first_not_of("0123456789."), text.size()));
}

// The first letter of the letters at the end of the text in lower case; a blank when there are none.
char UnitLetterBehind(std::string_view text) {
    const auto letters = std::find_if_not(text.rbegin(), text.rend(), IsAsciiLetter);
    return letters == text.rbegin() ? ' ' : Lower(*std::prev(letters));
}

// The form "####.##": at most two places, halves away from zero, and no zero in front of the point.
std::string ShortNumber(const Decimal& number) {
    const std::string text = ShortDecimalText(Quotient(number, DecimalOf(1), Places));
    return text.starts_with('0') ? text.substr(1) : text;
}

// Exact to the second.
seconds Length(std::string_view number, const Unit& unit) {
    const double length = ToNumber(number) * unit.seconds;
    if (!(std::abs(length) < GreatestSeconds)) {
        throw RunTimeError("Overflow", number);
    }
    return seconds{std::llround(length)};
}

} // namespace

std::string ValidateDuration(std::string_view text, const DurationRule& rule) {
    text = Trim(text);
    const std::optional<Decimal> number = DecimalIn(NumberInFront(text));
    const char letter = UnitLetterBehind(text);
    const bool allowed = rule.units.find(letter) != std::string_view::npos;
    if (!number || Compare(*number, DecimalOf(rule.limit)) > 0 || !allowed) {
        return std::string(FallbackDuration);
    }
    const std::string shown = ShortNumber(*number);
    if (shown.empty()) {
        return std::string(NoDuration);
    }
    const bool one = Compare(*number, DecimalOf(1)) == 0;
    return shown + " " + std::string(UnitOf(letter).name) + (one ? "" : "s");
}

seconds LeadOf(std::string_view leadTime) {
    const DurationPieces pieces = SplitDuration(Trim(leadTime));
    return Length(pieces.number, pieces.unit.empty() ? Minute : UnitOf(Lower(pieces.unit.front())));
}

seconds SnoozeInterval(std::string_view snoozeTime) {
    const DurationPieces pieces = SplitDuration(snoozeTime);
    for (const Unit& unit : Units) {
        if (pieces.unit.starts_with(unit.name.front())) {
            return Length(pieces.number, unit);
        }
    }
    throw RunTimeError("Not an interval", snoozeTime);
}

bool PassesMidnight(std::string_view startTime, std::string_view duration) {
    const DurationPieces pieces = SplitDuration(duration);
    // A small letter means minutes here, and only here.
    const char letter = pieces.unit.empty() ? ' ' : pieces.unit.front();
    const Unit& unit = letter == 'H' || letter == 'D' ? UnitOf(Lower(letter)) : Minute;
    return TimeValue(startTime) + Length(pieces.number, unit) > std::chrono::days{1};
}
