// The eight pages through the templates that come with the program.
#include "export/SamplePages.h"

#include "core/DateText.h"
#include "core/Preferences.h"
#include "drive/DriveLayout.h"
#include "persistence/modIO.h"
#include "planner/dates/DateHelpers.h"
#include "planner/lists/EventSelection.h"
#include "planner/lists/HomeworkSelection.h"
#include "planner/lists/ReminderSelection.h"
#include "planner/lists/RowSorts.h"
#include "planner/lists/TaskSelection.h"
#include "support/EventRecords.h"
#include "support/ScriptedPlatform.h"
#include "support/StoreRecords.h"

#include <cstdlib>
#include <stdexcept>

namespace {

namespace fs = std::filesystem;

void SelectRows(ListPage page) {
    switch (page) {
    case ListPage::Homework:
        SelectHomeworkRows({"All", "Term", Today()});
        SortHomeworkRows({static_cast<int>(HomeworkColumn::Done), Ascending});
        break;
    case ListPage::StudySessions:
        SelectStudyRows({"All", "Term", Today()});
        SortStudyRows({static_cast<int>(StudyColumn::DoneOn), Ascending});
        break;
    case ListPage::Tasks:
        SelectTasks(Today(), {"All", "All", Today()});
        SortTaskRows({static_cast<int>(TaskColumn::Day), Ascending});
        break;
    case ListPage::Reminders:
        SelectReminders(Today(), {"All", "Today", Today()});
        SortReminderRows({static_cast<int>(ReminderColumn::When), Ascending});
        break;
    case ListPage::Events:
        SelectEventRows({"All", "Month", Today()});
        SortEventRows({static_cast<int>(EventColumn::Day), Ascending});
        break;
    }
}

std::string Text(std::string_view text) {
    return std::string(text);
}

void AddClasses() {
    ResetStore();
    AddClassRecord({.id = "1", .name = "Introduction to Algebra"});
    AddClassRecord({.id = "2", .name = "World History"});
    ActiveTermID = 1;
}

void AddSession(int assignment) {
    StudySessionLists& log = Store.StudySessionRecord;
    log.id.Add(std::to_string(log.id.Count() + 1));
    log.assignment.Add(Store.Assignment.id.Item(assignment));
    log.time.Add("01 : 15");
    log.date.Add(StoredDate(Today()));
}

// A homework, a task and an event of the day.
void AddItems(int number, Date day) {
    const std::string date = StoredDate(day);
    const std::string n = std::to_string(number);
    AddAssignmentRecord({.class_ = number % 2 == 0 ? "1" : "2",
                         .date = date,
                         .desc = "Read chapter " + n + " and answer the questions behind it",
                         .time_left = "01 : 30",
                         .done = number % 5 == 4 ? "True" : "False"});
    AddTaskRecord({.date = date,
                   .desc = "Bring back book " + n + " to the library",
                   .type = "School",
                   .priority = "High",
                   .done = number % 5 == 4 ? "True" : "False",
                   .reminder = "30 Days"});
    AddEventRecord({.date = date, .desc = "Practice " + n, .type = "Study Time"});
}

} // namespace

ExportedMonth MonthOfToday() {
    return {Today(), FirstCellDate(Today(), "Monday"), "Monday"};
}

void WritePages(const fs::path& folder) {
    fs::create_directories(folder);
    for (const ListPage page : ListPages) {
        const PageNames& names = NamesOf(page);
        SelectRows(page);
        WritePage(folder / Text(names.fileName), TemplateFolder / Text(names.templateName),
                  [page](std::string_view text, const AddLine& add) { AddListPage(page, text, add); });
    }
    const ExportedMonth month = MonthOfToday();
    for (const CalendarPage page : CalendarPages) {
        const PageNames& names = NamesOf(page);
        WritePage(
            folder / Text(names.fileName.substr(1)), TemplateFolder / Text(names.templateName),
            [&](std::string_view text, const AddLine& add) { AddCalendarPage(page, month, text, add); });
    }
}

void ReadSampleDrive(const fs::path& laidOut) {
    ResetScript();
    ResetStore();
    SetClock(2026, 11, 16);
    const LayoutResult result = LayOutDrive(SampleDrive, laidOut, "2026-11-16");
    if (!result.succeeded) {
        throw std::runtime_error(result.output);
    }
    ::setenv("U3_DEVICE_PATH", laidOut.c_str(), 1);
    ::setenv("U3_DEVICE_DOCUMENT_PATH", (laidOut / "Documents").c_str(), 1);
    ::setenv("U3_DEVICE_EXEC_PATH", (laidOut / "Planovarium").c_str(), 1);
    SetupFolders();
    ReadTermsAndClasses();
    ReadTasks();
    ReadEvents();
    ChooseActiveTerm(ReadPreferencesFile(Script.screen).ActiveTerm);
    ReadAssignments();
    SetupActiveClasses();
    AddSession(1);
    AddSession(2);
}

void StoreRows(int rows) {
    AddClasses();
    for (int n = 0; n < rows; ++n) {
        AddItems(n, Today() + std::chrono::days{n % 14});
        AddSession(n + 1);
    }
}

void StoreFullDays(int weeks, int items) {
    AddClasses();
    for (int week = 0; week < weeks; ++week) {
        for (int n = 0; n < items; ++n) {
            AddItems(n, MonthOfToday().firstCell + std::chrono::days{DaysPerWeek * week + 9 % DaysPerWeek});
        }
    }
}
