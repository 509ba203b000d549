// Conversion of the store's texts at the place of use, and the comparisons of texts.
#include "core/Values.h"

#include "core/RunTimeError.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <functional>
#include <limits>

namespace {

constexpr int GreatestColor = 0xFFFFFF;
constexpr std::size_t GreatestBareLength = 9;

// As the program writes them.
constexpr std::string_view True = "True";
constexpr std::string_view False = "False";

// Letters beyond ASCII whose lower-case form is another byte: 0xC0 to 0xDE but for the multiplication sign
// are 32 apart, and the letters of windows-1252 stand singly.
unsigned char FoldLatin(unsigned char byte) {
    if (byte >= 0xC0 && byte <= 0xDE && byte != 0xD7) {
        return static_cast<unsigned char>(byte + 0x20);
    }
    switch (byte) {
    case 0x8A: // S with caron
        return 0x9A;
    case 0x8C: // OE
        return 0x9C;
    case 0x8E: // Z with caron
        return 0x9E;
    case 0x9F: // Y with diaeresis
        return 0xFF;
    default:
        return byte;
    }
}

std::array<unsigned char, 256> FoldTable() {
    std::array<unsigned char, 256> table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        const auto byte = static_cast<unsigned char>(i);
        const bool upperAscii = byte >= 'A' && byte <= 'Z';
        table[i] = upperAscii ? static_cast<unsigned char>(byte + 0x20) : FoldLatin(byte);
    }
    return table;
}

const std::array<unsigned char, 256> Folded = FoldTable();

// The number in a text of a few bare digits, which is what nearly every text of a number is.
std::optional<int> BareNumberIn(std::string_view text) {
    if (text.empty() || text.size() > GreatestBareLength) {
        return std::nullopt;
    }
    int number = 0;
    for (const char character : text) {
        if (!IsDigit(character)) {
            return std::nullopt;
        }
        number = number * 10 + (character - '0');
    }
    return number;
}

// The number rounded, halves to even; raises the run-time error beyond the limits.
int WholeBetween(int least, int greatest, double number) {
    const double rounded = std::nearbyint(number); // the default rounding mode takes halves to even
    if (!(rounded >= least && rounded <= greatest)) {
        throw RunTimeError("Overflow", std::to_string(number));
    }
    return static_cast<int>(rounded);
}

// What CompareFolded tells too, in half the time.
bool EqualsFolded(std::string_view text, std::string_view lowerCase) {
    return std::ranges::equal(text, lowerCase, [](char a, char b) {
        return Folded[static_cast<unsigned char>(a)] == static_cast<unsigned char>(b);
    });
}

} // namespace

std::string_view LeftTrim(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

std::string_view RightTrim(std::string_view text) {
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string_view Trim(std::string_view text) {
    return LeftTrim(RightTrim(text));
}

std::optional<double> NumberIn(std::string_view text) {
    if (const std::optional<int> bare = BareNumberIn(text)) {
        return *bare;
    }
    std::string_view digits = Trim(text);
    const bool negative = digits.starts_with('-');
    if (negative || digits.starts_with('+')) {
        digits.remove_prefix(1);
    }
    const auto points = std::ranges::count(digits, '.');
    const auto figures = std::ranges::count_if(digits, IsDigit);
    if (points > 1 || figures == 0 || points + figures != std::ssize(digits)) {
        return std::nullopt;
    }
    double value = 0;
    const auto result =
        std::from_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed);
    if (result.ec != std::errc{}) {
        return std::nullopt;
    }
    return negative ? -value : value;
}

double ToNumber(std::string_view text) {
    const std::optional<double> number = NumberIn(text);
    if (!number) {
        throw RunTimeError("Not a number", text);
    }
    return *number;
}

int Int16Of(double number) {
    return WholeBetween(LeastInt16, GreatestInt16, number);
}

int Int32Of(double number) {
    return WholeBetween(std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), number);
}

int ToInt16(std::string_view text) {
    if (const std::optional<int> bare = BareNumberIn(text); bare && *bare <= GreatestInt16) {
        return *bare;
    }
    const double rounded = std::nearbyint(ToNumber(text)); // as Int16Of rounds
    if (rounded < LeastInt16 || rounded > GreatestInt16) {
        throw RunTimeError("Overflow", text);
    }
    return static_cast<int>(rounded);
}

std::optional<int> IdIn(std::string_view text) {
    if (const std::optional<int> bare = BareNumberIn(text); bare && *bare <= GreatestInt16) {
        return *bare;
    }
    const std::optional<double> number = NumberIn(text);
    const bool fits = number && *number >= LeastInt16 && *number <= GreatestInt16;
    if (!fits || static_cast<int>(*number) != *number) {
        return std::nullopt;
    }
    return static_cast<int>(*number);
}

int ToColor(std::string_view text) {
    const double number = ToNumber(text);
    if (number < 0 || number > GreatestColor) {
        throw RunTimeError("Not a color", text);
    }
    return static_cast<int>(number);
}

bool IsTrue(std::string_view text) {
    if (text == True || EqualsFolded(text, "true")) {
        return true;
    }
    if (text == False || EqualsFolded(text, "false")) {
        return false;
    }
    throw RunTimeError("Neither True nor False", text);
}

std::string BooleanText(bool value) {
    return std::string(value ? True : False);
}

unsigned char FoldByte(unsigned char byte) {
    return Folded[byte];
}

char* CopyFolded(std::string_view text, char* to) {
    for (const char character : text) {
        *to++ = static_cast<char>(Folded[static_cast<unsigned char>(character)]);
    }
    return to;
}

int CompareFolded(std::string_view first, std::string_view second) {
    const std::size_t shared = std::min(first.size(), second.size());
    for (std::size_t i = 0; i < shared; ++i) {
        const int difference =
            Folded[static_cast<unsigned char>(first[i])] - Folded[static_cast<unsigned char>(second[i])];
        if (difference != 0) {
            return difference;
        }
    }
    return first.size() < second.size() ? -1 : static_cast<int>(first.size() > second.size());
}

bool LiesIn(std::string_view text, const char* place) {
    const std::less_equal<const char*> notBehind; // orders the places of different texts too
    return notBehind(text.data(), place) && notBehind(place, text.data() + text.size());
}

int NextId(int& counter) {
    if (counter >= GreatestInt16) {
        throw RunTimeError("Overflow", std::to_string(counter));
    }
    return counter++;
}
