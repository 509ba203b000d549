// The commands of a calendar's template.
#include "export/TemplateCommands.h"

#include <gtest/gtest.h>
#include <ostream>

namespace {

struct CommandCase {
    const char* name;
    const char* line;
    Section section; // None where the line is no command
    int number = -1; // none
};

std::ostream& operator<<(std::ostream& out, const CommandCase& c) {
    return out << c.line;
}

constexpr CommandCase Cases[] = {
    {"Header", "`header`", Section::Header},
    {"Footer", "`footer`", Section::Footer},
    {"Row", "`row 0`", Section::Row, 0},
    {"Line", "`line 12`", Section::Line, 12},
    {"InAComment", "<!-- `row 3` -->", Section::Row, 3},
    {"WithoutTheSecondMark", "`line 4", Section::Line, 4},
    {"WithAThirdMark", "`line 4` and `line 5`", Section::Line, 4},
    {"TextBehindTheHeader", "`header of all`", Section::None},
    {"TextBehindTheFooter", "`footers`", Section::None},
    {"BlankBehindTheHeader", "`header `", Section::None},
    {"HeaderWithoutTheSecondMark", "<!--`header", Section::Header},
    {"RowsForRow", "`rows 2`", Section::Row, 2},
    {"LinesForLine", "`lines of week 3`", Section::Line},
    {"RowWithTheNumberAtOnce", "`row0`", Section::Row},
    {"TextBehindTheNumber", "`row 2 of six`", Section::Row, 2},
    {"SeveralBlanks", "`row   2  `", Section::Row, 2},
    {"LeadingZeros", "`line 007`", Section::Line, 7},
    {"RowWithoutNumber", "`row`", Section::Row},
    {"RowWithABlank", "`row `", Section::Row},
    {"RowWithAWord", "`row one`", Section::Row},
    {"NegativeNumber", "`row -1`", Section::Row},
    {"Fraction", "`line 1.5`", Section::Line},
    {"ManyDigits", "`line 99999999999999999999`", Section::Line, 2147483647},
    {"NoMark", "row 0", Section::None},
    {"EmptyLine", "", Section::None},
    {"MarkAlone", "`", Section::None},
    {"TwoMarks", "``", Section::None},
    {"OtherWord", "`column 0`", Section::None},
    {"PartOfAWord", "`ro 0`", Section::None},
    {"WordBehindAnother", "`a row 0`", Section::None},
    {"Capitals", "`Row 0`", Section::None},
    {"BlankInFront", "` row 0`", Section::None},
    {"BehindTheSecondMark", "``row 0", Section::None},
    {"TotalMark", "<td>~`</td>", Section::None},
    {"NumberMark", "<td>`~</td>", Section::None},
    {"BothMarks", "<td>~` `~</td>", Section::None},
};

class TemplateCommands : public testing::TestWithParam<CommandCase> {};

TEST_P(TemplateCommands, AreToldByWhatStandsBehindTheMark) {
    const std::optional<TemplateCommand> command = CommandIn(GetParam().line);
    EXPECT_EQ(command ? command->section : Section::None, GetParam().section);
    EXPECT_EQ(command ? command->number.value_or(-1) : -1, GetParam().number);
}

std::string NameOfCase(const testing::TestParamInfo<CommandCase>& info) {
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Lines, TemplateCommands, testing::ValuesIn(Cases), NameOfCase);

} // namespace
