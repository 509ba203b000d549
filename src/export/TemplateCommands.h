// The commands of a calendar's template, which stand between backticks: "`header`", "`row 0`" to "`row 5`",
// "`line 0`" and on, "`footer`".
#pragma once

#include <optional>
#include <string_view>

enum class Section { None, Header, Row, Line, Footer };

struct TemplateCommand {
    Section section = Section::None;
    std::optional<int> number; // behind the first blank; nothing where there is no number
};

// The command in the line; nothing where the first word behind the first backtick is none of the four, as
// they are spelt.
std::optional<TemplateCommand> CommandIn(std::string_view line);
