// "View this Item": the main window comes forward and opens the editor of what is selected.
#include "core/Module1.h"
#include "mainwindow/frame/Unload.h"
#include "planner/recurrence/SeriesEdits.h"
#include "reminders/RemindersTest.h"
#include "toolkit/Modal.h"

using namespace std::chrono_literals;

namespace {

class ViewedReminder : public RemindersTest {
protected:
    // Presses the button for the item; gives the title of the editor that opens, and cancels it.
    QString View(const std::string& item) {
        Select(item);
        QString title;
        WhenDialogOpens([&](QWidget* editor) {
            EXPECT_FALSE(CalledFromReminders);
            title = editor->windowTitle();
            editor->close();
        });
        Click(list->ButtonView);
        EXPECT_TRUE(WaitUntil([&] { return !title.isEmpty(); }));
        QCoreApplication::processEvents(); // an opening too many would come now
        return title;
    }

    // Closes each editor that opens from now on, and counts them.
    void CloseEditors() {
        QObject::connect(&watch, &QTimer::timeout, &watch, [this] {
            if (QWidget* editor = QApplication::activeModalWidget()) {
                ++editorsOpened;
                editor->close();
            }
        });
        watch.start(1);
    }

    QTimer watch;
    int editorsOpened = 0;
};

} // namespace

TEST_F(ViewedReminder, OpensATaskInTasksMode) {
    AddTaskRecord({.desc = "other"});
    AddDueTask();
    QuietTick();
    EXPECT_EQ(View("Task 2"), "Planovarium - Edit Task");
    EXPECT_EQ(ReminderIndex, 2);
    EXPECT_EQ(window->CurrentMode(), Mode::Tasks);
    EXPECT_EQ(Standing(), (Texts{"Task 2"})) << "the row stays until it is acted on";
}

TEST_F(ViewedReminder, OpensHomeworkInHomeworkMode) {
    AddDueHomework();
    QuietTick();
    EXPECT_EQ(View("Homework 1"), "Planovarium - Edit Assignment");
    EXPECT_EQ(window->CurrentMode(), Mode::Homework);
}

TEST_F(ViewedReminder, OpensAnEventInEventsModeOnItsDay) {
    AddEventRecord({.date = "2009/10/21", .reminder = "True", .reminder_alarm = "2009/10/14 09:00:00"});
    QuietTick();
    EXPECT_EQ(View("Event 1"), "Planovarium - Edit Event");
    EXPECT_EQ(window->CurrentMode(), Mode::Events);
    EXPECT_EQ(window->ClickedDate, (Date{2009y / 10 / 21}));
    EXPECT_EQ(window->SelectedDate, window->ClickedDate);
    EXPECT_TRUE(Script.boxes.empty());
}

TEST_F(ViewedReminder, OpensTheOccurrenceOfASeriesThatItIsAbout) {
    AddArmedEvent({.date = "2009/10/02", .desc = "Club", .recurrence = "Day", .repeat_daily = "FFFFTFF"});
    SetClock(2009, 10, 17); // the last Friday is the 16th
    QuietTick();
    Select("Event 1");
    QString title;
    QString day;
    WhenDialogOpens([&](QWidget* editor) {
        title = editor->windowTitle();
        day = editor->findChild<QLineEdit*>("TextboxEventStartDate")->text();
        editor->close();
    });
    Click(list->ButtonView); // and No: this specific event
    EXPECT_TRUE(WaitUntil([&] { return !title.isEmpty(); }));
    EXPECT_EQ(title, "Planovarium - Edit Event");
    EXPECT_EQ(day.toStdString(), "Friday, October 16, 2009");
    EXPECT_EQ(Script.boxes.size(), 1U);
    EXPECT_EQ(window->CurrentMode(), Mode::Events);
    EXPECT_EQ(window->ClickedDate, (Date{2009y / 10 / 16}));
    EXPECT_EQ(window->SelectedDate, window->ClickedDate);
}

// The row stands although its occurrence has been given up; saved again it is given up once more.
TEST_F(ViewedReminder, OfAnOccurrenceGivenUpSinceAppendsItsDateAgain) {
    AddArmedEvent({.date = "2009/10/02", .recurrence = "Day", .repeat_daily = "FFFFTFF"});
    SetClock(2009, 10, 17);
    QuietTick();
    GiveUpOccurrence(1, Date{2009y / 10 / 16});
    ASSERT_EQ(Store.EventRecord.exceptions.Item(1), "2009/10/16");
    Tick();
    Select("Event 1");
    bool answered = false;
    WhenDialogOpens([&](QWidget* editor) {
        answered = true;
        editor->findChild<QPushButton*>("ButtonOK")->click();
    });
    Click(list->ButtonView);
    EXPECT_TRUE(
        WaitUntil([&] { return answered && !CalledFromReminders && Store.EventRecord.id.Count() == 2; }));
    EXPECT_EQ(Store.EventRecord.exceptions.Item(1), "2009/10/16 2009/10/16");
    EXPECT_EQ(Store.EventRecord.parent_id.Item(2), "1");
}

TEST_F(ViewedReminder, OpensTheWholeSeriesWhereTheStudentSaysSo) {
    AddArmedEvent({.date = "2009/10/02", .recurrence = "Day", .repeat_daily = "FFFFTFF"});
    SetClock(2009, 10, 17);
    QuietTick();
    Script.answers = {Answer::Yes};
    QString day;
    Select("Event 1");
    WhenDialogOpens([&](QWidget* editor) {
        day = editor->findChild<QLineEdit*>("TextboxEventStartDate")->text();
        editor->close();
    });
    Click(list->ButtonView);
    EXPECT_TRUE(WaitUntil([&] { return !day.isEmpty(); }));
    EXPECT_EQ(day.toStdString(), "Friday, October 2, 2009");
}

TEST_F(ViewedReminder, OfASecondItemOpensThatOne) {
    AddDueTask();
    AddDueHomework();
    QuietTick();
    EXPECT_EQ(View("Task 1"), "Planovarium - Edit Task");
    EXPECT_EQ(View("Homework 1"), "Planovarium - Edit Assignment");
    EXPECT_EQ(View("Task 1"), "Planovarium - Edit Task");
    EXPECT_EQ(window->CurrentMode(), Mode::Tasks);
}

TEST_F(ViewedReminder, OpensFromTheHiddenWindow) {
    AddDueTask();
    QuietTick();
    window->hide();
    EXPECT_EQ(View("Task 1"), "Planovarium - Edit Task");
    EXPECT_TRUE(window->isVisible());
}

TEST_F(ViewedReminder, OpensFromTheMinimizedWindow) {
    AddDueTask();
    QuietTick();
    window->showMinimized();
    EXPECT_EQ(View("Task 1"), "Planovarium - Edit Task");
    EXPECT_FALSE(window->isMinimized());
}

TEST_F(ViewedReminder, OpensByEnter) {
    AddDueTask();
    QuietTick();
    Select("Task 1");
    bool opened = false;
    WhenDialogOpens([&](QWidget* editor) {
        opened = true;
        editor->close();
    });
    Press(Qt::Key_Return);
    EXPECT_TRUE(WaitUntil([&] { return opened; }));
}

TEST_F(ViewedReminder, OpensOnceHoweverLongEnterIsHeld) {
    AddDueTask();
    QuietTick();
    Select("Task 1");
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
    QCoreApplication::sendEvent(list->picGrid, &held);
    EXPECT_FALSE(CalledFromReminders);
}

TEST_F(ViewedReminder, OpensOnceWhereAnActivationComesToo) {
    AddDueTask();
    QuietTick();
    Select("Task 1");
    CloseEditors();
    Click(list->ButtonView);
    QEvent activation(QEvent::WindowActivate);
    QCoreApplication::sendEvent(window.get(), &activation);
    EXPECT_TRUE(WaitUntil([this] { return editorsOpened > 0; }));
    QCoreApplication::processEvents();
    EXPECT_EQ(editorsOpened, 1);
}

TEST_F(ViewedReminder, IsNamedToTheMainWindowAsTheButtonIsPressed) {
    AddTaskRecord({.desc = "other"});
    AddDueTask();
    AddDueEvent();
    QuietTick();
    Select("Event 1");
    CloseEditors();
    Click(list->ButtonView);
    EXPECT_TRUE(CalledFromReminders);
    EXPECT_EQ(ReminderOpenMode, "Event");
    EXPECT_EQ(ReminderIndex, 1);
    Select("Task 2");
    Click(list->ButtonView);
    EXPECT_EQ(ReminderOpenMode, "Task");
    EXPECT_EQ(ReminderIndex, 2);
    EXPECT_TRUE(WaitUntil([this] { return editorsOpened > 0; }));
    QCoreApplication::processEvents();
    EXPECT_EQ(editorsOpened, 1) << "the last one that was chosen";
    EXPECT_EQ(window->CurrentMode(), Mode::Tasks);
}

TEST_F(ViewedReminder, IsLookedUpAgainAsItOpens) {
    AddDueTask("first");
    AddDueTask("second");
    QuietTick();
    Select("Task 2");
    QString description;
    WhenDialogOpens([&](QWidget* editor) {
        description = editor->findChild<QLineEdit*>("TextBoxDescription")->text();
        editor->close();
    });
    Click(list->ButtonView);
    RemoveRecord(Store.TaskRecord, TaskFields, 1); // between the press and the opening
    EXPECT_TRUE(WaitUntil([&] { return !description.isEmpty(); }));
    EXPECT_EQ(description, "second");
}

TEST_F(ViewedReminder, ThatHasGoneAsItOpensOpensNothing) {
    AddDueTask();
    QuietTick();
    Select("Task 1");
    Click(list->ButtonView);
    RemoveRecord(Store.TaskRecord, TaskFields, 1);
    EXPECT_TRUE(WaitUntil([] { return !CalledFromReminders; }));
    EXPECT_EQ(window->CurrentMode(), Mode::Calendar);
}

TEST_F(ViewedReminder, OpensNothingUnderADialogThatHasComeInBetween) {
    AddDueTask();
    QuietTick();
    Select("Task 1");
    CloseEditors();
    Click(list->ButtonView);
    const ModalScope dialog;
    EXPECT_TRUE(WaitUntil([] { return !CalledFromReminders; }));
    EXPECT_EQ(editorsOpened, 0);
    EXPECT_EQ(window->CurrentMode(), Mode::Calendar);
}

TEST_F(ViewedReminder, OpensNothingOnceAShutdownHasBegun) {
    AddDueTask();
    QuietTick();
    Select("Task 1");
    Click(list->ButtonView);
    Unload(*window);
    EXPECT_TRUE(WaitUntil([] { return !CalledFromReminders; }));
    EXPECT_EQ(window->CurrentMode(), Mode::Calendar);
}
