// Which list a mode shows, and the titles of its columns as they are said.
#include "mainwindow/list/ListTitles.h"

#include "core/Values.h"
#include "toolkit/Text.h"

#include <algorithm>
#include <array>

namespace {

struct SpokenMark {
    std::string_view mark;
    const char* spoken;
};

// What is said in place of a mark.
constexpr std::array<SpokenMark, 3> SpokenMarks{{
    {"#", "Number"},
    {ReminderMark, "Reminder"},
    {PriorityMark, "Priority"},
}};

} // namespace

std::optional<ListKind> ListOf(Mode mode) {
    switch (mode) {
    case Mode::Homework:
        return ListKind::Homework;
    case Mode::StudySessions:
        return ListKind::StudySessions;
    case Mode::Tasks:
        return ListKind::Tasks;
    case Mode::Reminders:
        return ListKind::Reminders;
    default:
        return std::nullopt;
    }
}

std::optional<QString> SpokenMarkOf(ListKind kind, int column) {
    const std::string_view title = Trim(ColumnsOf(kind)[static_cast<std::size_t>(column)].title);
    const auto* const mark = std::ranges::find(SpokenMarks, title, &SpokenMark::mark);
    return mark == SpokenMarks.end() ? std::nullopt : std::optional<QString>(QLatin1String(mark->spoken));
}

QString ListTitle(ListKind kind, int column) {
    return SpokenMarkOf(kind, column)
        .value_or(FromStore(Trim(ColumnsOf(kind)[static_cast<std::size_t>(column)].title)));
}
