// The commands of a calendar's template.
#include "export/TemplateCommands.h"

#include "core/Values.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace {

constexpr char CommandMark = '`';

struct CommandWord {
    std::string_view word;
    Section section;
    bool numbered; // the command begins with the word; else it is the word
};

constexpr std::array<CommandWord, 4> CommandWords{{
    {"header", Section::Header, false},
    {"row", Section::Row, true},
    {"line", Section::Line, true},
    {"footer", Section::Footer, false},
}};

// The text up to the first of the character, which is taken off with it.
std::string_view TakeUpTo(std::string_view& text, char end) {
    const std::size_t length = std::min(text.find(end), text.size());
    const std::string_view piece = text.substr(0, length);
    text.remove_prefix(std::min(length + 1, text.size()));
    return piece;
}

// A number of digits alone; one that no week and no line has where there are too many of them.
std::optional<int> NumberOf(std::string_view text) {
    if (text.empty() || !std::ranges::all_of(text, IsDigit)) {
        return std::nullopt;
    }
    int number = std::numeric_limits<int>::max();
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

} // namespace

std::optional<TemplateCommand> CommandIn(std::string_view line) {
    TakeUpTo(line, CommandMark);
    std::string_view command = TakeUpTo(line, CommandMark);
    const auto* const found = std::ranges::find_if(CommandWords, [command](const CommandWord& known) {
        return known.numbered ? command.starts_with(known.word) : command == known.word;
    });
    if (found == CommandWords.end()) {
        return std::nullopt;
    }
    TakeUpTo(command, ' ');
    command = LeftTrim(command);
    return TemplateCommand{found->section, NumberOf(TakeUpTo(command, ' '))};
}
