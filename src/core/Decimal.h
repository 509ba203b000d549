// Exact decimal numbers of any length, so that no grade and no shown figure hangs on a binary rounding.
#pragma once

#include <optional>
#include <string>
#include <string_view>

struct Decimal {
    std::string figures; // "0" to "9" without zeros in front; empty for 0
    int scale = 0;       // how many of the figures stand behind the point
    bool negative = false;

    friend bool operator==(const Decimal&, const Decimal&) = default;
};

// The number that a text holds, by the rule of NumberIn; nothing for any other text.
std::optional<Decimal> DecimalIn(std::string_view text);

// The same, raising the run-time error where the text is no number.
Decimal ToDecimal(std::string_view text);

Decimal DecimalOf(int number);

Decimal Sum(const Decimal& first, const Decimal& second);
Decimal Product(const Decimal& number, int factor);

// The quotient with so many places behind the point, halves away from zero. The divisor is not 0.
Decimal Quotient(const Decimal& dividend, const Decimal& divisor, int places);

// Below, at or above 0 as the first number is less than, equal to or greater than the second.
int Compare(const Decimal& first, const Decimal& second);

// Below, at or above 0 as the number is negative, 0 or positive.
int Sign(const Decimal& number);

// The number with all its places, at least one figure in front of the point: "0.50", "12".
std::string DecimalText(const Decimal& number);

// The same without zeros at the end of its places, and without a point that nothing follows: "0.5", "12".
std::string ShortDecimalText(const Decimal& number);
