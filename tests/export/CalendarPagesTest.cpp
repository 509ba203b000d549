// The pages of a month: the rules of a template over small ones of the tests' own.
#include "core/RunTimeError.h"
#include "export/PageLinesOf.h"
#include "support/EventRecords.h"
#include "support/ScriptedPlatform.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

// October 2009 in weeks that begin on Monday: the first cell is 28 September, the 14th stands in week 2.
const ExportedMonth October{Date{2009y / 10 / 14}, Date{2009y / 9 / 28}, "Monday"};

std::string Times(int count, const std::string& text) {
    std::string all;
    while (count-- > 0) {
        all += text;
    }
    return all;
}

class CalendarPageOf : public testing::Test {
protected:
    void SetUp() override {
        ResetScript();
        ResetStore();
        AddClassRecord({.name = "Algebra"});
    }

    void TearDown() override { ResetStore(); }

    static std::string Homework(const std::string& text) {
        return LinesOf(CalendarPage::Homework, October, text);
    }

    static std::string Tasks(const std::string& text) { return LinesOf(CalendarPage::Tasks, October, text); }

    static std::string Events(const std::string& text) {
        return LinesOf(CalendarPage::Events, October, text);
    }

    static void AddTasks(int count, const std::string& date = "2009/10/14") {
        while (count-- > 0) {
            AddTaskRecord({.date = date, .desc = "T"});
        }
    }
};

const std::string TaskLine = "&nbsp;<a title=\"T - 0% Complete\" href=\"#top\">T</a>";

// --- Header and footer ---------------------------------------------------------------------------

TEST_F(CalendarPageOf, TheHeaderHasTitleDayAndWeekdaysInThatOrderOneALine) {
    EXPECT_EQ(Homework("`header`\n<h1>~ ~</h1>\nplain\n~\n" + Times(7, "~\n")),
              "<h1>October 2009 Homework Calendar ~</h1>\nplain\nCreated on Wednesday, October 14, 2009\n"
              "Monday\nTuesday\nWednesday\nThursday\nFriday\nSaturday\nSunday\n");
    EXPECT_EQ(Tasks("`header`\n~"), "October 2009 Task Calendar\n");
    EXPECT_EQ(Events("`header`\n~"), "October 2009 Event Calendar\n");
}

TEST_F(CalendarPageOf, TheHeadersWeekdaysBeginWithTheStartDay) {
    ExportedMonth month = October;
    month.startDayOfWeek = "Saturday";
    EXPECT_EQ(LinesOf(CalendarPage::Tasks, month, "`header`\n~\n~\n~\n~"),
              "October 2009 Task Calendar\nCreated on Wednesday, October 14, 2009\nSaturday\nSunday\n");
}

TEST_F(CalendarPageOf, TheTitleIsOfTheDateClickedWhateverTheCellsShow) {
    ExportedMonth month = October;
    month.clicked = Date{2010y / 1 / 1};
    EXPECT_EQ(LinesOf(CalendarPage::Tasks, month, "`header`\n~\n`row 0`\n~xwhite1"),
              "January 2010 Task Calendar\n28xgray1\n");
    EXPECT_EQ(DateOfShownMonth(month), Date(2009y / 10 / 18));
}

TEST_F(CalendarPageOf, ASecondHeaderBeginsWithTheTitleAgain) {
    EXPECT_EQ(Tasks("`header`\n~\n`header`\n~"), "October 2009 Task Calendar\nOctober 2009 Task Calendar\n");
}

TEST_F(CalendarPageOf, MarksPastTheTextsOfTheHeaderAreFilledWithNothing) {
    const std::string lines = Tasks("`header`\n" + Times(9, "~\n") + "a~\nb~\nc~");
    EXPECT_EQ(lines.substr(lines.find("Sunday")), "Sunday\na\nb\nc\n");
}

TEST_F(CalendarPageOf, LinesOfTheFooterAndThoseBeforeTheFirstCommandStandAsTheyAre) {
    EXPECT_EQ(Homework("~ xredbg `~\n`footer`\n~ ~` xwhite1 class=xwhite3 xredbg"),
              "~ xredbg `~\n~ ~` xwhite1 class=xwhite3 xredbg\n");
}

TEST_F(CalendarPageOf, TemplatesMayEndTheirLinesWithCarriageReturnAndLineFeed) {
    EXPECT_EQ(Tasks("`row 2`\r\n~\r\n`footer`\r\nend"), "12\nend\n");
}

TEST_F(CalendarPageOf, LinesOfCommandsAreNotWrittenAndOthersWithTheMarkAre) {
    EXPECT_EQ(Tasks("a\n<!-- `row 1` -->\n`no command`\n`row 6`\n`row`\n`row2`\n`line`\n`line x`\n~\n"
                    "`footer of all`\n~\n`header `\n~\n`rows 2`\n~"),
              "a\n`no command`\n5\n`footer of all`\n6\n`header `\n7\n12\n")
        << "a row without a week and a line without a number leave week and column as they are";
}

// --- Rows ----------------------------------------------------------------------------------------

TEST_F(CalendarPageOf, ARowHasTheNumbersOfItsSevenDays) {
    EXPECT_EQ(Tasks("`row 2`\n" + Times(7, "<td>~</td>\n") + "~ xredbg\n"),
              "<td>12</td>\n<td>13</td>\n<td>14</td>\n<td>15</td>\n<td>16</td>\n<td>17</td>\n<td>18</td>\n"
              "~ xredbg\n")
        << "from the seventh on a line stands as it is";
    EXPECT_EQ(Tasks("`row 5`\n~~\n~"), "2~\n3\n") << "a mark counts once a line";
}

TEST_F(CalendarPageOf, ARowOfHomeworkHasTotalAndNumber) {
    AddAssignmentRecord({.date = "2009/10/12", .time_left = "01 : 30"});
    AddAssignmentRecord({.date = "2009/10/12", .time_left = "00 : 45"});
    EXPECT_EQ(Homework("`row 2`\n~`\n<b>`~</b>\n~`,`~\n`~,~`\n~`~`~\n~ alone\n~`~\n"),
              "&nbsp;2:15&nbsp;Study Left\n<b>12</b>\n&nbsp;,13\n14,&nbsp;\n&nbsp;~15\n~ alone\n&nbsp;~\n")
        << "the total comes first, and a mark of the number ends the column";
}

TEST_F(CalendarPageOf, ATotalOfAMinuteIsTold) {
    AddAssignmentRecord({.date = "2009/10/12", .time_left = "00 : 01"});
    EXPECT_EQ(Homework("`row 2`\n~` xredbg"), "&nbsp;0:01&nbsp;Study Left xredbg\n");
}

TEST_F(CalendarPageOf, HeadsOfHomeworkTurnBlackWithoutTimeLeftAtEveryPlace) {
    AddAssignmentRecord({.date = "2009/10/12"});
    AddAssignmentRecord({.date = "2009/10/13", .done = "True"});
    EXPECT_EQ(Homework("`row 2`\nxredbg\n`~ xredbg\nxredbg xredbg\n`~"),
              "xredbg\n12 xredbg\nxblackbg xblackbg\n13\n");
}

TEST_F(CalendarPageOf, HeadsOfTasksTurnBlackWithoutAnUnfinishedOne) {
    AddTaskRecord({.date = "2009/10/12", .done = "True"});
    AddTasks(1, "2009/10/13");
    AddTaskRecord({.date = "2009/10/13", .done = "True"});
    EXPECT_EQ(Tasks("`row 2`\nxredbg~\nxredbg~\nxredbg~"), "xblackbg12\nxredbg13\nxblackbg14\n");
}

TEST_F(CalendarPageOf, HeadsOfEventsAreAlwaysBlack) {
    AddEventRecord({.date = "2009/10/12"});
    EXPECT_EQ(Events("`row 2`\nxredbg~"), "xblackbg12\n");
}

TEST_F(CalendarPageOf, DaysOfOtherMonthsTurnGreyFromClassToClass) {
    const std::string styles = "xwhite1 xwhite2 xwhite3 xwhite4 xwhite5 xwhite1 ";
    EXPECT_EQ(Homework("`row 0`\n" + styles + "`~\n`~\n`~\n" + styles + "`~"),
              "xgray1 xgray2 xgray3 xgray4 xwhite5 xgray1 28\n29\n30\n" + styles + "1\n");
    EXPECT_EQ(Tasks("`row 5`\n" + styles + "~"), "xgray1 xgray2 xgray3 xwhite4 xwhite5 xgray1 2\n");
    EXPECT_EQ(Events("`row 0`\n`line 0`\n" + styles + "~").substr(0, 40),
              "xgray1 xgray2 xgray3 xwhite4 xwhite5 xgr");
}

// --- Lines ---------------------------------------------------------------------------------------

TEST_F(CalendarPageOf, ALineHasItsTextOfEachDayOnceALine) {
    AddTasks(1);
    EXPECT_EQ(Tasks("`row 2`\n`line 0`\n<td>~ ~</td>\n~\n~\nplain\n" + Times(5, "~\n")),
              "<td>&nbsp; ~</td>\n&nbsp;\n" + TaskLine + "\nplain\n" + Times(4, "&nbsp;\n") + "~\n");
}

TEST_F(CalendarPageOf, TextsThatArePutInAreNotLookedAtAgain) {
    AddTaskRecord({.date = "2009/10/12", .desc = "~ xredbg"});
    EXPECT_EQ(Tasks("`row 2`\n`line 0`\n~.~"),
              "&nbsp;<a title=\"~ xredbg - 0% Complete\" href=\"#top\">~ xredbg</a>.~\n");
    AddTaskRecord({.date = "2009/09/28", .desc = "class=xwhite2"});
    EXPECT_EQ(
        Tasks("`row 0`\n`line 0`\nclass=xwhite2 ~"),
        "class=xgray2 &nbsp;<a title=\"class=xwhite2 - 0% Complete\" href=\"#top\">class=xwhite2</a>\n");
    AddTasks(4, "2009/09/29");
    AddTaskRecord({.date = "2009/09/29", .desc = "class=xwhite2"});
    EXPECT_EQ(Tasks("`row 0`\n`line 4`\n~\nclass=xwhite2 ~"),
              "&nbsp;\nclass=xgray3 &nbsp;<a title=\"class=xwhite2 - 0% Complete\" "
              "href=\"#top\">class=xwhite2</a>\n");
}

TEST_F(CalendarPageOf, AWeekHasFiveLinesAtLeastAndThoseBeyondAreDropped) {
    AddTasks(3);
    std::string text = "`row 2`\n";
    for (int line = 0; line < 22; ++line) {
        text += "`line " + std::to_string(line) + "`\n<tr>\n" + Times(7, "~\n") + "</tr>\n";
    }
    const auto count = [](const std::string& lines) {
        int rows = 0;
        for (std::size_t at = lines.find("<tr>"); at != std::string::npos; at = lines.find("<tr>", at + 1)) {
            ++rows;
        }
        return rows;
    };
    EXPECT_EQ(count(Tasks(text)), 5);
    AddTasks(9);
    EXPECT_EQ(count(Tasks(text)), 12);
    AddTasks(30, "2009/10/15");
    EXPECT_EQ(count(Tasks(text)), 20);
    EXPECT_EQ(count(Tasks("`row 3`\n" + text.substr(8))), 5) << "each week by itself";
}

TEST_F(CalendarPageOf, DroppedLinesDoNotCountTheColumns) {
    AddTasks(6, "2009/10/12");
    EXPECT_EQ(Tasks("`row 3`\n`line 5`\n" + Times(9, "~\n") + "`footer`\nend"), "end\n");
    EXPECT_EQ(Tasks("`row 2`\n`line 5`\n~"), TaskLine + "\n");
}

TEST_F(CalendarPageOf, LinesBeforeTheFirstRowAreDropped) {
    EXPECT_EQ(Tasks("`line 0`\n~\n`footer`\nend"), "end\n");
}

TEST_F(CalendarPageOf, TheLastLineOfAWeekChangesItsStyleBeforeItTurnsGrey) {
    const std::string line = "class=xwhite2 class=xwhite3 xwhite2 xwhite3 class=xwhite2 ~\n";
    EXPECT_EQ(Tasks("`row 2`\n`line 3`\n" + line),
              "class=xwhite2 class=xwhite3 xwhite2 xwhite3 class=xwhite2 &nbsp;\n");
    EXPECT_EQ(Tasks("`row 2`\n`line 4`\n" + line),
              "class=xwhite3 class=xwhite3 xwhite2 xwhite3 class=xwhite3 &nbsp;\n");
    EXPECT_EQ(Events("`row 0`\n`line 4`\n" + line),
              "class=xgray3 class=xgray3 xgray2 xgray3 class=xgray3 &nbsp;\n");
    EXPECT_EQ(Homework("`row 2`\n`line 4`\n" + line),
              "class=xwhite2 class=xwhite4 xwhite2 xwhite3 class=xwhite2 &nbsp;\n");
    EXPECT_EQ(Homework("`row 0`\n`line 4`\n" + line),
              "class=xgray2 class=xgray4 xgray2 xgray3 class=xgray2 &nbsp;\n");
}

TEST_F(CalendarPageOf, TheLastLineIsThatOfTheBusiestDay) {
    AddTasks(7);
    EXPECT_EQ(Tasks("`row 2`\n`line 4`\nclass=xwhite2~\n`line 6`\nclass=xwhite2~"),
              "class=xwhite2&nbsp;\nclass=xwhite3&nbsp;\n");
}

TEST_F(CalendarPageOf, AHeadDoesNotChangeTheStyleOfALastLineNorALineTheHead) {
    EXPECT_EQ(Tasks("`row 2`\nclass=xwhite2~\n`line 4`\nxredbg~"), "class=xwhite212\nxredbg&nbsp;\n");
}

TEST_F(CalendarPageOf, WeeksMayStandInAnyOrderAndTwice) {
    EXPECT_EQ(Tasks("`row 5`\n~\n`row 0`\n~\n`row 5`\n~\n~"), "2\n28\n2\n3\n");
}

TEST(CalendarPageNames, AreThoseOfTheThreeCalendars) {
    const auto expect = [](CalendarPage page, const char* templateName, const char* fileName,
                           const char* title) {
        EXPECT_EQ(NamesOf(page).templateName, templateName);
        EXPECT_EQ(NamesOf(page).fileName, fileName);
        EXPECT_EQ(NamesOf(page).dialogTitle, title);
    };
    expect(CalendarPage::Homework, "Homework Calendar Template3.html", " Homework Calendar.html",
           "Export Assignments to HTML Calendar File");
    expect(CalendarPage::Tasks, "Tasks-Events Calendar Template3.html", " Task Calendar.html",
           "Export Tasks to HTML Calendar File");
    expect(CalendarPage::Events, "Tasks-Events Calendar Template3.html", " Event Calendar.html",
           "Export Events to HTML Calendar File");
}

} // namespace
