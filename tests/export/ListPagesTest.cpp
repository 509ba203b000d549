// The pages of the five lists: the rules of a template, and the rows of each list byte for byte.
#include "core/RowLists.h"
#include "core/RunTimeError.h"
#include "export/PageLinesOf.h"
#include "planner/lists/EventSelection.h"
#include "planner/lists/HomeworkSelection.h"
#include "planner/lists/ReminderSelection.h"
#include "planner/lists/TaskSelection.h"
#include "support/EventRecords.h"
#include "support/ScriptedPlatform.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>

namespace {

const std::string RowStart = "<tr height=21 style='mso-height-source:userset;height:15.95pt'>\n";

class ListPageOf : public testing::Test {
protected:
    void SetUp() override {
        ResetScript();
        ResetStore();
    }

    void TearDown() override { ResetStore(); }

    // The page without the line of the template.
    static std::string Rows(ListPage page) {
        const std::string lines = LinesOf(page, "insert");
        EXPECT_EQ(lines.substr(0, 7), "insert\n");
        return lines.substr(7);
    }

    // The texts of the cells, each ended by "|", of all rows.
    static std::string Cells(ListPage page) {
        std::string cells;
        const std::string rows = Rows(page);
        for (std::size_t at = rows.find("<td"); at != std::string::npos; at = rows.find("<td", at + 1)) {
            const std::size_t begin = rows.find('>', at) + 1;
            cells += rows.substr(begin, rows.find("</td>\n", begin) - begin) + "|";
        }
        return cells;
    }

    static std::string HomeworkCells() {
        HomeworkDayList(Today(), {"All", "Day", Today()});
        return Cells(ListPage::Homework);
    }

    static std::string TaskCells() {
        SelectTasks(Today(), {"All", "All", Today()});
        return Cells(ListPage::Tasks);
    }

    static std::string EventCells() {
        SelectEventRows({"All", "Day", Today()});
        return Cells(ListPage::Events);
    }

    static std::string ReminderCells() {
        SelectReminders(Today(), {"All", "Today", Today()});
        return Cells(ListPage::Reminders);
    }
};

using ListTemplate = ListPageOf;

TEST_F(ListTemplate, PutsTheDayInPlaceOfEachMark) {
    EXPECT_EQ(LinesOf(ListPage::Tasks, "a ~ b\n~~\nc"),
              "a Created on Wednesday, October 14, 2009 b\n"
              "Created on Wednesday, October 14, 2009Created on Wednesday, October 14, 2009\nc\n");
}

TEST_F(ListTemplate, IsTheWholePageOfAnEmptyList) {
    EXPECT_EQ(LinesOf(ListPage::Homework, "<table>\r\n<!-- INSERT -->\r\n\r\n</table>\n"),
              "<table>\n<!-- INSERT -->\n\n</table>\n");
    EXPECT_EQ(LinesOf(ListPage::Homework, ""), "");
}

TEST_F(ListTemplate, HasTheRowsBehindEachLineOfTheWordInAnyCase) {
    AddTaskRecord({.desc = "Insert a coin"});
    SelectTasks(Today(), {"All", "All", Today()});
    const std::string rows = Rows(ListPage::Tasks);
    ASSERT_NE(rows.find(">Insert a coin<"), std::string::npos) << "and no rows behind a value";
    EXPECT_EQ(LinesOf(ListPage::Tasks, "INSERT\nx\n<!-- inSErt~ -->\ninser\nreinserted\nend"),
              "INSERT\n" + rows + "x\n<!-- inSErtCreated on Wednesday, October 14, 2009 -->\n" + rows +
                  "inser\nreinserted\n" + rows + "end\n");
}

TEST_F(ListTemplate, WithoutTheWordHasNoRows) {
    AddTaskRecord({});
    SelectTasks(Today(), {"All", "All", Today()});
    EXPECT_EQ(LinesOf(ListPage::Tasks, "I N S E R T\nINSEPT\n\x09NSERT"), "I N S E R T\nINSEPT\n\x09NSERT\n");
}

TEST(ListPageNames, AreThoseOfTheFiveLists) {
    const auto expect = [](ListPage page, const char* templateName, const char* fileName, const char* title) {
        EXPECT_EQ(NamesOf(page).templateName, templateName);
        EXPECT_EQ(NamesOf(page).fileName, fileName);
        EXPECT_EQ(NamesOf(page).dialogTitle, title);
    };
    expect(ListPage::Homework, "Homework List Template.html", "Homework List.html",
           "Export Assignment List to HTML File");
    expect(ListPage::StudySessions, "Study List Template.html", "Study Time List.html",
           "Export Study Sessions to HTML File");
    expect(ListPage::Tasks, "Task List Template.html", "Task List.html", "Export Tasks to HTML File");
    expect(ListPage::Reminders, "Reminder List Template.html", "Reminder List.html",
           "Export Reminder List to HTML File");
    expect(ListPage::Events, "Event List Template.html", "Event List.html", "Export Event List to HTML File");
}

// --- The rows of each list -----------------------------------------------------------------------

TEST_F(ListPageOf, HomeworkHasItsRowsByteForByte) {
    AddClassRecord({.name = "Algebra"});
    AddAssignmentRecord({.desc = "Set 1", .type = " Reading ", .time_left = " 01 : 30 ", .done = "True"});
    AddAssignmentRecord({.desc = "", .type = "None", .time_left = "00 : 45"});
    HomeworkDayList(Today(), {"All", "Day", Today()});
    EXPECT_EQ(Rows(ListPage::Homework), RowStart +
                                            "  <td height=21 class=xl30 style='height:15.95pt'>Algebra</td>\n"
                                            "  <td class=xl30>Reading</td>\n"
                                            "  <td class=xl30>Set 1</td>\n"
                                            "  <td class=xl30>01 : 30</td>\n"
                                            "  <td class=xl30>14-Oct-09</td>\n"
                                            "  <td class=xl30>Yes</td>\n"
                                            "</tr>\n" +
                                            RowStart +
                                            "  <td height=21 class=xl30 style='height:15.95pt'>Algebra</td>\n"
                                            "  <td class=xl30>None</td>\n"
                                            "  <td class=xl30></td>\n"
                                            "  <td class=xl30>00 : 45</td>\n"
                                            "  <td class=xl30>14-Oct-09</td>\n"
                                            "  <td class=xl30></td>\n"
                                            "</tr>\n");
}

TEST_F(ListPageOf, StudySessionsHasItsRowsByteForByte) {
    AddClassRecord({.name = "Algebra"});
    AddAssignmentRecord({.date = "2009/10/21", .desc = "Set 2"});
    AddAssignmentRecord({.date = "2009/10/20", .desc = "Set 1", .type = " Reading "});
    StudySessionLists& log = Store.StudySessionRecord;
    const auto addSession = [&log](const char* assignment, const char* time, const char* date) {
        log.id.Add("1");
        log.assignment.Add(assignment);
        log.time.Add(time);
        log.date.Add(date);
    };
    addSession("-1", "03 : 00", "2009/10/11 10:00:00");
    addSession("2", "01 : 15", "2009/10/12 10:00:00");
    SelectStudyRows({"All", "Term", Today()});
    EXPECT_EQ(Rows(ListPage::StudySessions),
              RowStart + "  <td height=21 class=xl28 style='height:15.95pt'>Algebra</td>\n"
                         "  <td class=xl28>Reading</td>\n"
                         "  <td class=xl28>Set 1</td>\n"
                         "  <td class=xl28>01:15</td>\n"
                         "  <td class=xl28>12-Oct-09</td>\n"
                         "  <td class=xl28>20-Oct-09</td>\n"
                         "</tr>\n");
}

TEST_F(ListPageOf, TasksHasItsRowsByteForByte) {
    AddTaskRecord({.desc = "Shop", .type = "School", .priority = " High "});
    SelectTasks(Today(), {"All", "All", Today()});
    EXPECT_EQ(Rows(ListPage::Tasks),
              RowStart + "  <td height=21 class=xl29 style='height:15.95pt;border-top:none'>Shop</td>\n"
                         "  <td class=xl29>School</td>\n"
                         "  <td class=xl29>High</td>\n"
                         "  <td class=xl29>14-Oct-09</td>\n"
                         "  <td class=xl29></td>\n"
                         "</tr>\n");
}

TEST_F(ListPageOf, RemindersHasItsRowsByteForByte) {
    AddTaskRecord({.desc = "Shop", .type = "School", .reminder = "5 Days"});
    SelectReminders(Today(), {"All", "Today", Today()});
    EXPECT_EQ(Rows(ListPage::Reminders), RowStart +
                                             "  <td height=21 class=xl29 style='height:15.95pt'>Task</td>\n"
                                             "  <td class=xl29>School</td>\n"
                                             "  <td class=xl29>Shop</td>\n"
                                             "  <td class=xl29>Today</td>\n"
                                             "  <td class=xl29></td>\n"
                                             "</tr>\n");
}

TEST_F(ListPageOf, EventsHasItsRowsByteForByteWithABlankInFront) {
    AddEventRecord({.time = "9:05 am", .desc = "Choir", .type = "Study Time", .recurrence = "Day"});
    SelectEventRows({"All", "Day", Today()});
    EXPECT_EQ(Rows(ListPage::Events),
              " " + RowStart +
                  "  <td height=21 class=xl29 style='height:15.95pt;border-top:none'>Choir</td>\n"
                  "  <td class=xl29>Study Time</td>\n"
                  "  <td class=xl29>14-Oct-09</td>\n"
                  "  <td class=xl29>09:05 AM</td>\n"
                  "  <td class=xl29>Day</td>\n"
                  " </tr>\n");
}

TEST_F(ListPageOf, ValuesGoInUnescaped) {
    AddTaskRecord({.desc = "<b>loud</b> & \"~\" `row 0` \xE9\x80"});
    EXPECT_EQ(TaskCells(), "<b>loud</b> & \"~\" `row 0` \xE9\x80||None|14-Oct-09||");
}

TEST_F(ListPageOf, HomeworkOfAClassThatHasGoneHasNoClass) {
    AddAssignmentRecord({.class_ = "9", .desc = "Set 1"});
    EXPECT_EQ(HomeworkCells(), "|Reading|Set 1|01 : 00|14-Oct-09||");
}

TEST_F(ListPageOf, HomeworkOfAHundredHoursKeepsItsDigits) {
    AddAssignmentRecord({.desc = "Thesis", .time_left = "100 : 30"});
    EXPECT_EQ(HomeworkCells(), "|Reading|Thesis|100 : 30|14-Oct-09||");
}

TEST_F(ListPageOf, TasksHaveANameATypeByItsCustomNameAndABlankWithoutADeadline) {
    TypeTable.customname.Replace(TypeRow("Task", "School"), "College");
    AddTaskRecord({.desc = "", .date_exists = "False", .type = "School", .done = "True"});
    AddTaskRecord({.desc = "Unknown", .type = "Gone"});
    EXPECT_EQ(TaskCells(), "New Task|College|None| |Yes|Unknown||None|14-Oct-09||");
}

TEST_F(ListPageOf, EventsWithoutATimeATypeARecurrenceOrADescriptionHaveEmptyCells) {
    AddEventRecord({.time = "None", .desc = ""});
    EXPECT_EQ(EventCells(), "||14-Oct-09|||");
}

TEST_F(ListPageOf, AClassMeetingShowsTheClassAsItsType) {
    AddClassRecord({.name = "Algebra"});
    ActiveTermID = 1;
    AddEventRecord({.desc = "Lecture", .type = "TermID1-ClassID1", .recurrence = "Week"});
    EXPECT_EQ(EventCells(), "Lecture|Algebra|14-Oct-09|09:00 AM|Week|");
}

TEST_F(ListPageOf, RemindersBeginWithTheClassAndCountTheDays) {
    AddClassRecord({.name = "Algebra"});
    AddAssignmentRecord({.date = "2009/10/17", .desc = "Set 1", .reminder = "5"});
    AddAssignmentRecord({.date = "2009/10/15", .desc = "Set 2", .reminder = "5"});
    AddAssignmentRecord({.class_ = "9", .date = "2009/10/13", .desc = "Set 3"});
    AddTaskRecord({.date = "2009/10/01", .desc = ""});
    EXPECT_EQ(ReminderCells(), "Task||New Task|13 Days Ago||Algebra|Reading|Set 1|3 Days||"
                               "Algebra|Reading|Set 2|Tomorrow||Homework|Reading|Set 3|Yesterday||");
}

TEST_F(ListPageOf, RowsStandInTheOrderOfTheList) {
    AddTaskRecord({.desc = "B"});
    AddTaskRecord({.desc = "A"});
    SelectTasks(Today(), {"All", "All", Today()});
    std::swap(TaskRows.values[0], TaskRows.values[1]);
    EXPECT_EQ(Cells(ListPage::Tasks), "A||None|14-Oct-09||B||None|14-Oct-09||");
}

TEST_F(ListPageOf, ABadTextRaisesTheError) {
    AddTaskRecord({.done = "False"});
    SelectTasks(Today(), {"All", "All", Today()});
    Store.TaskRecord.done.Replace(1, "perhaps");
    EXPECT_THROW(Rows(ListPage::Tasks), RunTimeError);
}

} // namespace
