// The exports of the menu: where they ask for the place, what they write, what they show and refresh.
#include "mainwindow/flows/ExportFlow.h"
#include "core/Module1.h"
#include "core/RowLists.h"
#include "core/RunTimeError.h"
#include "mainwindow/modes/Modes.h"
#include "support/EventRecords.h"
#include "support/FileBytes.h"
#include "support/StoreRecords.h"
#include "support/WindowTest.h"

namespace {

namespace fs = std::filesystem;

constexpr const char* Filter = "HTML Files (*.html)|*.html|HTM Files (*.htm)|*.htm|All Files (*.*)|*.*";

// The names of the templates, each of which begins its page with its name.
constexpr std::array<const char*, 7> Templates{
    "Homework List Template.html",         "Study List Template.html", "Task List Template.html",
    "Reminder List Template.html",         "Event List Template.html", "Homework Calendar Template3.html",
    "Tasks-Events Calendar Template3.html"};

class ExportFlow : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        for (const std::string name : Templates) {
            const bool list = name.find("List") != std::string::npos;
            SetBytes(drive / "Planovarium" / name,
                     name + (list ? "\nINSERT\n" : "\n`header`\n~\n`row 0`\n~\n"));
        }
        WriteData("terms.xml", TermsFile({{}}));
        LoadWindow();
        AddClassRecord({.name = "Algebra"});
        SetupActiveClasses();
    }

    // Chooses the item while the student saves under the name; gives the lines of the page joined by "|".
    std::string Chosen(QAction* item, const std::string& name = "Page.html") {
        const fs::path place = drive / name;
        Script.savePlaces = {place};
        item->trigger();
        EXPECT_EQ(Script.opened, std::vector<std::string>{place.string()});
        Script.opened.clear();
        std::string lines = BytesIn(place);
        for (std::size_t at = lines.find("\r\n"); at != std::string::npos; at = lines.find("\r\n")) {
            lines.replace(at, 2, "|");
        }
        return lines;
    }

    // What the dialog proposed at the last export.
    static std::string Proposed() {
        const SaveQuestion& question = Script.saveDialogs.back();
        EXPECT_EQ(question.folder, DocumentFolder);
        EXPECT_EQ(question.filter, Filter);
        EXPECT_EQ(question.ending, "html");
        return question.title + ": " + question.name.utf8;
    }

    static bool Holds(const std::string& page, const std::string& text) {
        return page.find(text) != std::string::npos;
    }
};

TEST_F(ExportFlow, HomeworkListGoesToTheChosenPlaceAndIsShown) {
    ShowHomeworkMode(*window);
    AddAssignmentRecord({.desc = "Set 1"});
    window->RefreshFor(ReasonNewRecord);
    const std::string page = Chosen(window->MenuExportListAS);
    EXPECT_EQ(page.substr(0, 35), "Homework List Template.html|INSERT|");
    EXPECT_TRUE(Holds(page, "<td class=xl30>Set 1</td>"));
    EXPECT_EQ(Proposed(), "Export Assignment List to HTML File: Homework List.html");
}

TEST_F(ExportFlow, TaskListHasTheRowsOfTheFilterInTheOrderOfTheList) {
    ShowTaskMode(*window);
    AddTaskRecord({.desc = "B"});
    AddTaskRecord({.desc = "A"});
    AddTaskRecord({.desc = "C", .done = "True"});
    window->ComboList->setCurrentText("Not Done");
    window->SortColumn = 2;
    window->RefreshFor(ReasonNewRecord);
    const std::string page = Chosen(window->MenuExportListTA);
    EXPECT_EQ(page.substr(0, 31), "Task List Template.html|INSERT|");
    EXPECT_LT(page.find(">A<"), page.find(">B<"));
    EXPECT_TRUE(Holds(page, ">B<"));
    EXPECT_FALSE(Holds(page, ">C<"));
    EXPECT_EQ(Proposed(), "Export Tasks to HTML File: Task List.html");
}

TEST_F(ExportFlow, CalendarsAreOfTheMonthShownWhateverTheListHolds) {
    EXPECT_EQ(Chosen(window->MenuExportCalendarAS),
              "Homework Calendar Template3.html|October 2009 Homework Calendar|~|");
    EXPECT_EQ(Proposed(), "Export Assignments to HTML Calendar File: October Homework Calendar.html");
    EXPECT_EQ(Chosen(window->MenuExportCalendarTA),
              "Tasks-Events Calendar Template3.html|October 2009 Task Calendar|27|");
    EXPECT_EQ(Proposed(), "Export Tasks to HTML Calendar File: October Task Calendar.html");
    EXPECT_EQ(Chosen(window->MenuExportCalendarEV),
              "Tasks-Events Calendar Template3.html|October 2009 Event Calendar|27|");
    EXPECT_EQ(Proposed(), "Export Events to HTML Calendar File: October Event Calendar.html");
}

TEST_F(ExportFlow, CalendarsFollowTheMonthAndTheStartDay) {
    window->StartDayOfWeek = "Monday";
    window->ClickedDate = Date{std::chrono::year{2010} / 2 / 3};
    window->RefreshFor(ReasonCalendar);
    EXPECT_EQ(Chosen(window->MenuExportCalendarTA),
              "Tasks-Events Calendar Template3.html|February 2010 Task Calendar|25|");
    EXPECT_EQ(Proposed(), "Export Tasks to HTML Calendar File: February Task Calendar.html");
}

TEST_F(ExportFlow, AMonthIsNamedForTheOneShownAndTitledForTheDateClicked) {
    window->ClickedDate = Date{std::chrono::year{2010} / 2 / 3}; // to which the calendar has not yet come
    EXPECT_EQ(Chosen(window->MenuExportCalendarTA),
              "Tasks-Events Calendar Template3.html|February 2010 Task Calendar|27|");
    EXPECT_EQ(Proposed(), "Export Tasks to HTML Calendar File: October Task Calendar.html");
}

TEST_F(ExportFlow, TheHiddenItemsExportTheListAndTheCalendarOfTheMode) {
    struct Case {
        void (*enter)(frmMain&);
        const char* list;
        const char* calendar;
    };

    const Case cases[] = {
        {&ShowHomeworkMode, "Homework List.html", "October Homework Calendar.html"},
        {&ShowStudySessionsMode, "Study Time List.html", "October Homework Calendar.html"},
        {&ShowTaskMode, "Task List.html", "October Task Calendar.html"},
        {&ShowEventMode, "Event List.html", "October Event Calendar.html"},
        {&ShowReminderMode, "Reminder List.html", "October Homework Calendar.html"},
    };
    for (const Case& c : cases) {
        window->MenuCalendar->setChecked(false);
        for (QAction* item : {window->MenuHomework, window->MenuStudySessions, window->MenuTasks,
                              window->MenuEvents, window->MenuReminders}) {
            item->setChecked(false);
        }
        c.enter(*window);
        Chosen(window->MenuExportList);
        EXPECT_EQ(Script.saveDialogs.back().name.utf8, c.list);
        Chosen(window->MenuExportCalendar);
        EXPECT_EQ(Script.saveDialogs.back().name.utf8, c.calendar);
    }
}

TEST_F(ExportFlow, TheHiddenItemsOnlyRefreshInCalendarMode) {
    ShowCalendarMode(*window);
    for (QAction* item : {window->MenuExportList, window->MenuExportCalendar}) {
        AddTaskRecord({});
        const int before = window->Month.TaskLeftCountByDay[17];
        item->trigger();
        EXPECT_EQ(window->Month.TaskLeftCountByDay[17], before + 1);
    }
    EXPECT_TRUE(Script.saveDialogs.empty());
}

TEST_F(ExportFlow, EachListHasItsOwnProcedure) {
    const auto expect = [this](void (*exportList)(frmMain&), const char* question) {
        exportList(*window);
        EXPECT_EQ(Proposed(), question);
    };
    expect(&ExportHomeworkList, "Export Assignment List to HTML File: Homework List.html");
    expect(&ExportStudyList, "Export Study Sessions to HTML File: Study Time List.html");
    expect(&ExportTaskList, "Export Tasks to HTML File: Task List.html");
    expect(&ExportReminderList, "Export Reminder List to HTML File: Reminder List.html");
    expect(&ExportEventList, "Export Event List to HTML File: Event List.html");
}

TEST_F(ExportFlow, CancelWritesNothingOpensNothingAndRefreshes) {
    ShowTaskMode(*window);
    AddTaskRecord({});
    window->MenuExportListTA->trigger();
    EXPECT_EQ(Script.saveDialogs.size(), 1U);
    EXPECT_TRUE(Script.opened.empty());
    EXPECT_EQ(TaskRows.Count(), 1) << "refreshed";
    EXPECT_EQ(window->RefreshReason, "None");
    EXPECT_TRUE(Script.boxes.empty());
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(drive / "Documents")) {
        EXPECT_NE(entry.path().extension(), ".html");
    }
}

TEST_F(ExportFlow, RefreshesBehindAPageToo) {
    ShowTaskMode(*window);
    AddTaskRecord({.desc = "Late"});
    EXPECT_FALSE(Holds(Chosen(window->MenuExportListTA), "Late")) << "the page is of the list as it stood";
    EXPECT_EQ(TaskRows.Count(), 1);
}

TEST_F(ExportFlow, ASecondExportReplacesThePage) {
    ShowTaskMode(*window);
    AddTaskRecord({.desc = "Once"});
    window->RefreshFor(ReasonNewRecord);
    EXPECT_TRUE(Holds(Chosen(window->MenuExportListTA), "Once"));
    RemoveRecord(Store.TaskRecord, TaskFields, 1);
    window->RefreshFor(ReasonNewRecord);
    EXPECT_EQ(Chosen(window->MenuExportListTA), "Task List Template.html|INSERT|");
}

TEST_F(ExportFlow, AMissingTemplateLeavesAnEmptyPageAndRaisesTheError) {
    fs::remove(drive / "Planovarium/Task List Template.html");
    SetBytes(drive / "Page.html", "old");
    Script.savePlaces = {drive / "Page.html"};
    EXPECT_THROW(ExportTaskList(*window), RunTimeError);
    EXPECT_EQ(BytesIn(drive / "Page.html"), "");
    EXPECT_TRUE(fs::exists(drive / "Page.html"));
    EXPECT_TRUE(Script.opened.empty());
}

TEST_F(ExportFlow, APlaceThatCannotBeWrittenRaisesTheError) {
    Script.savePlaces = {drive / "no folder/Page.html"};
    EXPECT_THROW(ExportHomeworkCalendar(*window), RunTimeError);
    EXPECT_TRUE(Script.opened.empty());
}

TEST_F(ExportFlow, ThatTheShutdownClosesWritesNothing) {
    Script.savePlaces = {drive / "Page.html"};
    ShuttingDown = true;
    ExportTaskList(*window);
    ShuttingDown = false;
    EXPECT_FALSE(fs::exists(drive / "Page.html"));
    EXPECT_TRUE(Script.opened.empty());
}

} // namespace
