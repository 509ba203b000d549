// How a page for printing comes onto the disk.
#include "export/Pages.h"

#include "core/TextFiles.h"
#include "platform/CharacterSet.h"

#include <utility>

namespace {

// So many bytes of a page wait to be written at once.
constexpr std::size_t BlockSize = 65536;

// The character at the front of well-formed UTF-8, which is taken off.
char32_t TakeCharacter(std::string_view& utf8) {
    const auto byte = [&utf8](std::size_t n) { return static_cast<unsigned char>(utf8[n]); };
    const std::size_t length = byte(0) < 0x80 ? 1 : byte(0) < 0xE0 ? 2 : byte(0) < 0xF0 ? 3 : 4;
    char32_t character = length == 1 ? byte(0) : byte(0) & (0xFFU >> (length + 1));
    for (std::size_t n = 1; n < length && n < utf8.size(); ++n) {
        character = (character << 6U) | (byte(n) & 0x3FU);
    }
    utf8.remove_prefix(std::min(length, utf8.size()));
    return character;
}

std::string PageCharacter(char32_t character) {
    const bool inUnit = character <= 0xFFFF;
    const char byte = inUnit ? ByteOf(static_cast<char16_t>(character)) : '?';
    if (byte == '?' && character != U'?') {
        return "&#" + std::to_string(static_cast<std::uint32_t>(character)) + ";";
    }
    return {byte};
}

} // namespace

void WritePage(const std::filesystem::path& page, const std::filesystem::path& templateFile,
               const PageLines& lines) {
    OutputFile file = OpenForWriting(page.string());
    const std::string templateText = FileBytes(templateFile.string());
    std::string waiting;
    waiting.reserve(2 * BlockSize);
    lines(templateText, [&file, &waiting](std::string_view line) {
        waiting.append(line).append(LineEnd);
        if (waiting.size() >= BlockSize) {
            WriteBytes(file, waiting);
            waiting.clear();
        }
    });
    WriteBytes(file, waiting);
    CloseFile(std::move(file));
}

std::string PageText(const ScreenText& text) {
    std::string page;
    for (std::string_view rest = text.utf8; !rest.empty();) {
        page += PageCharacter(TakeCharacter(rest));
    }
    return page;
}

std::string CreatedOn() {
    return "Created on " + PageText(FormatDate(Today(), "Long Date"));
}

std::string PageDate(Date date) {
    return PageText(FormatDate(date, "Medium Date"));
}

void ReplaceEach(std::string& line, std::string_view from, std::string_view to) {
    for (std::size_t at = line.find(from); at != std::string::npos; at = line.find(from, at + to.size())) {
        line.replace(at, from.size(), to);
    }
}

bool ReplaceFirst(std::string& line, std::string_view from, std::string_view to) {
    const std::size_t at = line.find(from);
    if (at == std::string::npos) {
        return false;
    }
    line.replace(at, from.size(), to);
    return true;
}
