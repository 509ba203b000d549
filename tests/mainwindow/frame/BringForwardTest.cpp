// What the main window opens when the reminder window has called it forward.
#include "core/Module1.h"
#include "mainwindow/modes/Modes.h"
#include "support/EventRecords.h"
#include "support/StoreRecords.h"
#include "support/WindowTest.h"

using namespace std::chrono_literals;

namespace {

class OpenFromReminders : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        LoadWindow();
    }

    // The reminder window asks for a record, and the main window becomes the active one.
    void CallForward(const std::string& mode, int index) {
        CalledFromReminders = true;
        ReminderOpenMode = mode;
        ReminderIndex = index;
        ReminderOpenId = std::to_string(index);
        Activate();
        ASSERT_TRUE(WaitUntil([] { return !CalledFromReminders; }));
    }

    // The same for a record whose editor opens; gives the editor's title and cancels it.
    QString CallIntoEditor(const std::string& mode, int index) {
        QString title;
        WhenDialogOpens([&title](QWidget* editor) {
            title = editor->windowTitle();
            editor->close();
        });
        CallForward(mode, index);
        return title;
    }

    void Activate() {
        QEvent activation(QEvent::WindowActivate);
        QCoreApplication::sendEvent(window.get(), &activation);
    }
};

} // namespace

TEST_F(OpenFromReminders, TaskEntersTasksMode) {
    EXPECT_EQ(CallIntoEditor("Task", AddTaskRecord({})), "Planovarium - Edit Task");
    EXPECT_EQ(window->CurrentMode(), Mode::Tasks);
}

TEST_F(OpenFromReminders, HomeworkEntersHomeworkMode) {
    EXPECT_EQ(CallIntoEditor("Homework", AddAssignmentRecord({})), "Planovarium - Edit Assignment");
    EXPECT_EQ(window->CurrentMode(), Mode::Homework);
}

TEST_F(OpenFromReminders, ModeThatIsCheckedIsNotEnteredAgain) {
    ShowTaskMode(*window);
    window->SortColumn = 2;
    CallIntoEditor("Task", AddTaskRecord({}));
    EXPECT_EQ(window->SortColumn, 2);
    ShowHomeworkMode(*window);
    window->SortColumn = 3;
    CallIntoEditor("Homework", AddAssignmentRecord({}));
    EXPECT_EQ(window->SortColumn, 3);
}

TEST_F(OpenFromReminders, SingleEventShowsItsDate) {
    const int event = AddEventRecord({.date = "2009/11/03", .reminder_currentday = "2009/12/24"});
    CallIntoEditor("Event", event);
    EXPECT_EQ(window->CurrentMode(), Mode::Events);
    EXPECT_EQ(window->ClickedDate, Date{2009y / 11 / 3});
    EXPECT_EQ(window->SelectedDate, Date{2009y / 11 / 3});
}

TEST_F(OpenFromReminders, SeriesShowsTheDayOfItsReminder) {
    const int event =
        AddEventRecord({.date = "2009/11/03", .recurrence = "Day", .reminder_currentday = "2009/12/24"});
    CallIntoEditor("Event", event);
    EXPECT_EQ(window->ClickedDate, Date{2009y / 12 / 24});
}

TEST_F(OpenFromReminders, EventEntersItsModeEvenWhereItIsChecked) {
    ShowEventMode(*window);
    window->SortColumn = 1;
    CallIntoEditor("Event", AddEventRecord({.date = "2009/11/03"}));
    EXPECT_EQ(window->SortColumn, 3);
    EXPECT_EQ(window->ClickedDate, Date{2009y / 11 / 3});
}

TEST_F(OpenFromReminders, EditorOpensBehindTheActivationAndNotInIt) {
    CalledFromReminders = true;
    ReminderOpenMode = "Task";
    ReminderIndex = AddTaskRecord({});
    ReminderOpenId = "1";
    Activate();
    EXPECT_EQ(window->CurrentMode(), Mode::Calendar);
    WhenDialogOpens([](QWidget* editor) { editor->close(); });
    ASSERT_TRUE(WaitUntil([this] { return window->CurrentMode() == Mode::Tasks; }));
}

TEST_F(OpenFromReminders, ActivationAloneOpensNothing) {
    ReminderOpenMode = "Task";
    ReminderIndex = 1;
    Activate();
    QCoreApplication::processEvents();
    EXPECT_EQ(window->CurrentMode(), Mode::Calendar);
}
