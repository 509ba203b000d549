// "DELETED RECORD" typed as a description: the item is in its file and in none of the views, as the records
// that were deleted are.
#include "editors/EditorTest.h"
#include "mainwindow/flows/AssignmentFlow.h"
#include "mainwindow/flows/TaskFlow.h"
#include "mainwindow/flows/TermFlow.h"
#include "mainwindow/modes/Modes.h"

#include "persistence/modIO.h"
#include "support/EventRecords.h"

namespace {

constexpr const char* Description = "DELETED RECORD";

class DeletedRecords : public EditorTest {
protected:
    // What the view of each mode draws, on the day for which the items are.
    std::vector<QStringList> Views() {
        std::vector<QStringList> views;
        window->ClickedDate = Date{std::chrono::year{2009} / 10 / 20};
        window->SelectedDate = window->ClickedDate;
        for (void (*show)(frmMain&) :
             {&ShowHomeworkMode, &ShowTaskMode, &ShowEventMode, &ShowReminderMode, &ShowCalendarMode}) {
            show(*window);
            views.push_back(DrawnTexts(*window->picGrid));
        }
        return views;
    }

    void NewTask(const QString& description) {
        WhenDialogOpens([&](QWidget*) {
            Type(TaskDialog->TextBoxDescription, description);
            Click(TaskDialog->ButtonOK);
        });
        ::NewTask(*window);
    }

    void NewAssignment(const QString& description) {
        WhenDialogOpens([&](QWidget*) {
            Choose(AssignmentDialog->ComboClassNameList, 1);
            Type(AssignmentDialog->TextBoxDescription, description);
            Click(AssignmentDialog->ButtonOK);
        });
        ::NewAssignment(*window);
    }
};

} // namespace

TEST_F(DeletedRecords, TypedAsDescriptionsAreWrittenAndShownInNoView) {
    const std::vector<QStringList> empty = Views();
    NewTask(Description);
    NewAssignment(Description);
    EXPECT_EQ(Views(), empty);
    for (const char* file : {"tasks.xml", "assignments_1.xml"}) {
        EXPECT_NE(ReadData(file).find("  <desc>DELETED RECORD</desc>\n"), std::string::npos) << file;
    }
    Store.TaskRecord.desc.Replace(1, "a task");
    Store.Assignment.desc.Replace(1, "homework");
    const std::vector<QStringList> shown = Views();
    for (std::size_t view : {0U, 1U, 3U, 4U}) { // all but that of the events
        EXPECT_NE(shown[view], empty[view]) << view;
    }
}

TEST_F(DeletedRecords, OfEventsAreShownInNoView) {
    const std::vector<QStringList> empty = Views();
    AddEventRecord({.date = "2009/10/20", .desc = Description, .reminder = "True", .reminder_list = "True"});
    AddEventRecord({.date = "2009/10/01",
                    .desc = Description,
                    .recurrence = "Day",
                    .repeat_daily = "TTTTTTT",
                    .reminder = "True"});
    EXPECT_EQ(Views(), empty);
    Store.EventRecord.desc.Replace(1, "an event");
    EXPECT_NE(Views()[2], empty[2]);
    EXPECT_NE(Views()[4], empty[4]);
}

TEST_F(DeletedRecords, ReadBackAreShownInNoViewEither) {
    const std::vector<QStringList> empty = Views();
    NewTask(Description);
    NewAssignment(Description);
    Store.TaskRecord = {};
    ReadTasks();
    SetActiveTerm(*window, "Fall 2009");
    ASSERT_EQ(Store.TaskRecord.desc.values, std::vector<std::string>{Description});
    ASSERT_EQ(Store.Assignment.desc.values, std::vector<std::string>{Description});
    EXPECT_EQ(Views(), empty);
}
