// The pages of a month of homework, tasks or events.
#include "export/CalendarPages.h"

#include "core/TextFiles.h"
#include "export/TemplateCommands.h"

#include <array>
#include <optional>

namespace {

constexpr int Weeks = MonthCells / DaysPerWeek;
constexpr std::string_view TextMark = "~";
constexpr std::string_view OpenHead = "xredbg";
constexpr std::string_view ClosedHead = "xblackbg";
constexpr std::string_view White = "xwhite";
constexpr std::string_view Grey = "xgray";

constexpr std::string_view CalendarTemplate = "Tasks-Events Calendar Template3.html";

struct CalendarFacts {
    PageNames names;
    std::string_view totalMark; // of a day's head; empty for none
    std::string_view numberMark;
    char greatestWhite; // the classes from "xwhite1" to this one turn grey
    std::string_view lastLineFrom, lastLineTo;
};

// In the order of CalendarPage.
constexpr std::array<CalendarFacts, 3> Facts{{
    {{"Homework Calendar Template3.html", " Homework Calendar.html",
      "Export Assignments to HTML Calendar File"},
     "~`",
     "`~",
     '4',
     "class=xwhite3",
     "class=xwhite4"},
    {{CalendarTemplate, " Task Calendar.html", "Export Tasks to HTML Calendar File"},
     "",
     TextMark,
     '3',
     "class=xwhite2",
     "class=xwhite3"},
    {{CalendarTemplate, " Event Calendar.html", "Export Events to HTML Calendar File"},
     "",
     TextMark,
     '3',
     "class=xwhite2",
     "class=xwhite3"},
}};

// Where the template has come to.
struct Progress {
    CalendarPage page;
    const CalendarFacts& facts;
    const ExportedMonth& month;
    MonthDays days;
    CalendarTables tables;
    Section section = Section::None;
    int line = 0;           // of the section
    std::size_t column = 0; // of the section, from 0
    std::size_t nextHeaderText = 0;
};

MonthDays DaysOfPage(CalendarPage page, Date firstCell) {
    switch (page) {
    case CalendarPage::Homework:
        return HomeworkDays(firstCell);
    case CalendarPage::Tasks:
        return TaskDays(firstCell);
    case CalendarPage::Events:
        return EventDays(firstCell);
    }
    return {};
}

void TurnGrey(const Progress& at, std::string& line) {
    if (!at.tables.CalendarLineColour[at.column]) {
        return;
    }
    for (char white = '1'; white <= at.facts.greatestWhite; ++white) {
        ReplaceEach(line, std::string(White) + white, std::string(Grey) + white);
    }
}

bool ChangesNothing(const TemplateCommand& command) {
    const bool numbered = command.section == Section::Row || command.section == Section::Line;
    return numbered && (!command.number || (command.section == Section::Row && *command.number >= Weeks));
}

void Begin(Progress& at, const TemplateCommand& command) {
    if (ChangesNothing(command)) {
        return;
    }
    at.section = command.section;
    at.column = 0;
    if (at.section == Section::Header) {
        CalendarHeader(at.tables, at.page, at.month);
        at.nextHeaderText = 0;
    } else if (at.section == Section::Row) {
        CalendarWeek(at.tables, at.days, at.month, *command.number);
    } else if (at.section == Section::Line) {
        at.line = *command.number;
    }
}

void FillHeaderLine(Progress& at, std::string& line) {
    const std::size_t next = at.nextHeaderText;
    if (ReplaceFirst(line, TextMark, next < HeaderTexts ? at.tables.CalendarHeaderText[next] : "")) {
        ++at.nextHeaderText;
    }
}

void FillHead(Progress& at, std::string& line) {
    const CalendarTables& tables = at.tables;
    if (tables.CalendarHeadIsBlack[at.column]) {
        ReplaceEach(line, OpenHead, ClosedHead);
    }
    TurnGrey(at, line);
    if (!at.facts.totalMark.empty()) {
        ReplaceFirst(line, at.facts.totalMark, tables.CalendarDayHead[at.column]);
    }
    if (ReplaceFirst(line, at.facts.numberMark, tables.CalendarDayNumber[at.column])) {
        ++at.column;
    }
}

void FillDayLine(Progress& at, std::string& line) {
    if (at.line == at.tables.CalendarRowHeight - 1) {
        ReplaceEach(line, at.facts.lastLineFrom, at.facts.lastLineTo);
    }
    TurnGrey(at, line);
    const std::string& text = at.tables.CalendarLineText[static_cast<std::size_t>(at.line)][at.column];
    if (ReplaceFirst(line, TextMark, text)) {
        ++at.column;
    }
}

// False where the line is dropped.
bool FillLine(Progress& at, std::string& line) {
    if (at.section == Section::Header) {
        FillHeaderLine(at, line);
    } else if (at.section == Section::Line && at.line >= at.tables.CalendarRowHeight) {
        return false;
    } else if (at.column < DaysPerWeek && at.section == Section::Row) {
        FillHead(at, line);
    } else if (at.column < DaysPerWeek && at.section == Section::Line) {
        FillDayLine(at, line);
    }
    return true;
}

} // namespace

const PageNames& NamesOf(CalendarPage page) {
    return Facts[static_cast<std::size_t>(page)].names;
}

void AddCalendarPage(CalendarPage page, const ExportedMonth& month, std::string_view templateText,
                     const AddLine& add) {
    Progress at{page, Facts[static_cast<std::size_t>(page)], month, DaysOfPage(page, month.firstCell), {}};
    while (const std::optional<std::string_view> templateLine = TakeLine(templateText)) {
        if (const std::optional<TemplateCommand> command = CommandIn(*templateLine)) {
            Begin(at, *command);
            continue;
        }
        if (std::string line(*templateLine); FillLine(at, line)) {
            add(line);
        }
    }
}
