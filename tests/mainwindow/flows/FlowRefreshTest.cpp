// What the flows of assignments and tasks do beside the record: the refresh that follows, and nothing at all
// once a shutdown has begun.
#include "core/DateText.h"
#include "editors/EditorTest.h"
#include "mainwindow/flows/AssignmentFlow.h"
#include "mainwindow/flows/TaskFlow.h"
#include "mainwindow/modes/Modes.h"

namespace {

constexpr int NightRow = 3; // the half hour that the day's schedule shows first

class FlowRefresh : public EditorTest {
protected:
    // The day's schedule tells the refresh of a new record from that of any other reason.
    void SetUp() override {
        EditorTest::SetUp();
        ShowEventMode(*window);
        window->VSGridScroll->setValue(NightRow);
        AddTaskRecord({});
        AddAssignmentRecord({.class_ = "4"});
        window->SelectedDate = DateValue("2009/10/21");
        window->LabelTop->setText("stale");
        window->ButtonAlert[LateAlert]->show(); // there is no late homework
    }

    static void Run(const std::function<void()>& flow, const std::function<void()>& act) {
        WhenDialogOpens([act](QWidget*) { act(); });
        flow();
    }

    void ExpectRefreshOfANewRecord() {
        EXPECT_NE(window->LabelTop->text(), "stale") << "the list was not filled";
        EXPECT_EQ(window->ClickedDate, DateValue("2009/10/21")) << "the month was not built";
        EXPECT_TRUE(window->ButtonAlert[LateAlert]->isHidden()) << "the alerts were not asked";
        EXPECT_EQ(window->VSGridScroll->value(), NightRow) << "the mode was entered anew";
        EXPECT_EQ(window->RefreshReason, "None");
    }

    void ExpectNoRefresh() { EXPECT_EQ(window->LabelTop->text(), "stale"); }

    // What a shutdown does to a dialog that is open.
    static void ShutDown(QDialog& dialog) {
        ShuttingDown = true;
        dialog.hide();
    }

    static constexpr std::size_t LateAlert = 3;
};

} // namespace

TEST_F(FlowRefresh, FollowsANewTask) {
    Run([this] { NewTask(*window); }, [] { Click(TaskDialog->ButtonOK); });
    ExpectRefreshOfANewRecord();
}

TEST_F(FlowRefresh, FollowsAnEditedTask) {
    Run([this] { EditTask(*window, 1); }, [] { Click(TaskDialog->ButtonOK); });
    ExpectRefreshOfANewRecord();
}

TEST_F(FlowRefresh, FollowsADeletedTask) {
    Script.answers = {Answer::Yes};
    Run([this] { EditTask(*window, 1); }, [] { Click(TaskDialog->ButtonDelete); });
    EXPECT_EQ(Store.TaskRecord.id.Count(), 0);
    ExpectRefreshOfANewRecord();
}

TEST_F(FlowRefresh, FollowsANewAssignment) {
    Run([this] { NewAssignment(*window); },
        [] {
            Choose(AssignmentDialog->ComboClassNameList, 0);
            Click(AssignmentDialog->ButtonOK);
        });
    ExpectRefreshOfANewRecord();
}

TEST_F(FlowRefresh, FollowsAnEditedAssignment) {
    Run([this] { EditAssignment(*window, 1); }, [] { Click(AssignmentDialog->ButtonOK); });
    ExpectRefreshOfANewRecord();
}

TEST_F(FlowRefresh, FollowsADeletedAssignment) {
    Script.answers = {Answer::Yes};
    Run([this] { EditAssignment(*window, 1); }, [] { Click(AssignmentDialog->ButtonDelete); });
    EXPECT_EQ(Store.Assignment.id.Count(), 0);
    ExpectRefreshOfANewRecord();
}

TEST_F(FlowRefresh, DoesNotFollowACancel) {
    Run([this] { EditTask(*window, 1); }, [] { Click(TaskDialog->ButtonCancel); });
    Run([this] { EditAssignment(*window, 1); }, [] { Click(AssignmentDialog->ButtonCancel); });
    ExpectNoRefresh();
}

TEST_F(FlowRefresh, EditedTaskIsGivenUpByAShutdown) {
    const std::string before = ReadData("tasks.xml");
    Run([this] { EditTask(*window, 1); },
        [] {
            Type(TaskDialog->TextBoxDescription, "Changed");
            ShutDown(*TaskDialog);
        });
    EXPECT_EQ(Store.TaskRecord.desc.Item(1), "Task");
    EXPECT_EQ(ReadData("tasks.xml"), before);
    EXPECT_FALSE(FileWrittenFlags.tasks);
    ExpectNoRefresh();
}

TEST_F(FlowRefresh, EditedAssignmentIsGivenUpByAShutdown) {
    const std::string before = ReadData("assignments_1.xml");
    Run([this] { EditAssignment(*window, 1); },
        [] {
            Type(AssignmentDialog->TextBoxDescription, "Changed");
            ShutDown(*AssignmentDialog);
        });
    EXPECT_EQ(Store.Assignment.desc.Item(1), "Assignment");
    EXPECT_EQ(ReadData("assignments_1.xml"), before);
    EXPECT_FALSE(FileWrittenFlags.assignments);
    ExpectNoRefresh();
}
