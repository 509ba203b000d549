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

// The command in the line, which stands behind the first backtick up to the next one: it is "header" or
// "footer", or begins with "row" or "line". Nothing for any other.
std::optional<TemplateCommand> CommandIn(std::string_view line);
