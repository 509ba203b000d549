// The one place where the store's bytes become text of the screen and back.
#include "platform/Text.h"

#include <algorithm>
#include <array>

namespace {

// The characters of the bytes 0x80 to 0x9F in windows-1252; its unused bytes stand for themselves.
constexpr std::array<char16_t, 32> Windows1252{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
constexpr int FirstWindowsByte = 0x80;
constexpr int FirstLatinByte = 0xA0;
constexpr int LastByte = 0xFF;

char16_t CharacterOf(unsigned char byte) {
    const bool ofWindows = byte >= FirstWindowsByte && byte < FirstLatinByte;
    return ofWindows ? Windows1252[static_cast<std::size_t>(byte - FirstWindowsByte)] : char16_t{byte};
}

char ByteOf(char16_t character) {
    if (character < FirstWindowsByte || (character >= FirstLatinByte && character <= LastByte)) {
        return static_cast<char>(character);
    }
    const auto* const found = std::ranges::find(Windows1252, character);
    return found == Windows1252.end() ? '?'
                                      : static_cast<char>(FirstWindowsByte + (found - Windows1252.begin()));
}

} // namespace

QString FromStore(std::string_view text) {
    QString result(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
    std::ranges::transform(text, result.begin(),
                           [](char byte) { return QChar(CharacterOf(static_cast<unsigned char>(byte))); });
    return result;
}

QString FromScreen(const ScreenText& text) {
    return QString::fromStdString(text.utf8);
}

QString MenuText(std::string_view text) {
    return FromStore(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

std::string ToStore(const QString& text) {
    std::string result;
    result.reserve(static_cast<std::size_t>(text.size()));
    for (const QChar character : text) {
        if (character.isLowSurrogate()) {
            continue; // the pair's first half has become its "?"
        }
        result.push_back(ByteOf(character.unicode()));
    }
    return result;
}

QString WithinSet(const QString& text) {
    return FromStore(ToStore(text));
}
