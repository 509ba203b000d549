// The set of characters that the store holds, one byte each, read as a page labelled ISO-8859-1 is read: 0x80
// to 0x9F are the letters of windows-1252, and its five unused bytes the control characters of the same
// number, as the Encoding Standard of the WHATWG has it.
#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

// The characters of the bytes 0x80 to 0x9F.
inline constexpr std::array<char16_t, 32> Windows1252{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
inline constexpr int FirstWindowsByte = 0x80;
inline constexpr int FirstLatinByte = 0xA0;
inline constexpr int LastByte = 0xFF;

constexpr char16_t CharacterOf(unsigned char byte) {
    const bool ofWindows = byte >= FirstWindowsByte && byte < FirstLatinByte;
    return ofWindows ? Windows1252[static_cast<std::size_t>(byte - FirstWindowsByte)] : char16_t{byte};
}

// "?" for a character that the set lacks.
constexpr char ByteOf(char16_t character) {
    if (character < FirstWindowsByte || (character >= FirstLatinByte && character <= LastByte)) {
        return static_cast<char>(character);
    }
    const auto* const found = std::ranges::find(Windows1252, character);
    return found == Windows1252.end() ? '?'
                                      : static_cast<char>(FirstWindowsByte + (found - Windows1252.begin()));
}

// The characters as the store holds them.
inline std::string StoreText(std::u16string_view characters) {
    std::string text;
    text.reserve(characters.size());
    for (const char16_t character : characters) {
        const bool secondOfPair = character >= 0xDC00 && character <= 0xDFFF;
        if (!secondOfPair) { // the first half has become the "?"
            text.push_back(ByteOf(character));
        }
    }
    return text;
}
