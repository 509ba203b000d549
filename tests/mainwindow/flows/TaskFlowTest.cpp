// The flows of a task: what each way of closing the editor leaves in the store and on the drive.
#include "mainwindow/flows/TaskFlow.h"
#include "editors/EditorTest.h"

#include "core/RunTimeError.h"
#include "persistence/modIO.h"

namespace {

class TaskFlow : public EditorTest {
protected:
    // Runs the flow while the student acts in the dialog.
    void NewTask(const std::function<void()>& act) {
        WhenDialogOpens([act](QWidget*) { act(); });
        ::NewTask(*window);
    }

    void EditTask(int index, const std::function<void()>& act) {
        WhenDialogOpens([act](QWidget*) { act(); });
        ::EditTask(*window, index);
    }

    static void Ok() { Click(TaskDialog->ButtonOK); }

    static void Cancel() { Click(TaskDialog->ButtonCancel); }

    TaskLists& Tasks = Store.TaskRecord;
};

} // namespace

TEST_F(TaskFlow, NewTaskIsStoredAndWritten) {
    window->RefreshReason = "Calendar";
    NewTask([] {
        Type(TaskDialog->TextBoxDescription, "Buy paper");
        Choose(TaskDialog->ComboPriority, 3);
        Click(TaskDialog->CheckboxReminder);
        QTest::keyClicks(TaskDialog->TextBoxNotes, "A4");
        QTest::keyClick(TaskDialog->TextBoxNotes, Qt::Key_Return);
        QTest::keyClicks(TaskDialog->TextBoxNotes, "white");
        Ok();
    });
    ASSERT_EQ(Tasks.id.Count(), 1);
    EXPECT_EQ(
        ReadData("tasks.xml"),
        "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n<task_data>\n<task>\n  <id>1</id>\n"
        "  <date>2009/10/20</date>\n  <desc>Buy paper</desc>\n  <date_exists>True</date_exists>\n"
        "  <type>None</type>\n  <priority>High</priority>\n  <percent_complete>0%</percent_complete>\n"
        "  <done>False</done>\n  <reminder>True</reminder>\n  <reminder_date>2009/10/20</reminder_date>\n"
        "  <reminder_time>9:00 AM</reminder_time>\n  <reminder_alarm>2009/10/20 09:00:00</reminder_alarm>\n"
        "  <reminder_list>False</reminder_list>\n  <notes>A4\nwhite</notes>\n</task>\n</task_data>\n");
    EXPECT_EQ(Tasks.notes.Item(1), "A4\r\nwhite");
    EXPECT_EQ(NextTaskID, 2);
    EXPECT_EQ(window->RefreshReason, "None");
    EXPECT_TRUE(Script.boxes.empty());
}

TEST_F(TaskFlow, TaskWithoutDeadlineIsStoredWithToday) {
    NewTask([] {
        Click(TaskDialog->CheckBoxDeadline);
        Ok();
    });
    EXPECT_EQ(Tasks.date.Item(1), "2009/10/14");
    EXPECT_EQ(Tasks.date_exists.Item(1), "False");
    SetClock(2009, 10, 16);
    EditTask(1, Ok);
    EXPECT_EQ(Tasks.date.Item(1), "2009/10/16");
}

// As the older release's tasks without a date stand after their conversion.
TEST_F(TaskFlow, TaskWithoutADeadlineOpensThoughItsDatesAreNone) {
    AddTaskRecord({.date = "//",
                   .desc = "Old",
                   .date_exists = "False",
                   .reminder = "False",
                   .reminder_date = "//",
                   .notes = "kept"});
    WriteTasks();
    const std::string before = ReadData("tasks.xml");
    EditTask(1, [] {
        EXPECT_FALSE(TaskDialog->CheckBoxDeadline->isChecked());
        EXPECT_EQ(TaskDialog->TextboxTaskDate->text(), "Wednesday, October 14, 2009");
        EXPECT_EQ(TaskDialog->TextboxReminderDate->text(), "Wednesday, October 14, 2009");
        EXPECT_EQ(TaskDialog->tempTaskReminderAlarm, "2009/10/14 09:00:00");
        Cancel();
    });
    EXPECT_TRUE(Script.boxes.empty()) << "the opening is no change";
    EXPECT_EQ(ReadData("tasks.xml"), before);
    EditTask(1, [] {
        EXPECT_EQ(TaskDialog->TextBoxNotes->toPlainText(), "kept");
        Click(TaskDialog->CheckboxReminder);
        Ok();
    });
    EXPECT_EQ(Tasks.desc.Item(1), "Old");
    EXPECT_EQ(Tasks.notes.Item(1), "kept");
    EXPECT_EQ(Tasks.date_exists.Item(1), "False");
    EXPECT_EQ(Tasks.date.Item(1), "2009/10/14");
    EXPECT_EQ(Tasks.reminder_date.Item(1), "2009/10/14");
    EXPECT_EQ(Tasks.reminder_alarm.Item(1), "2009/10/14 09:00:00");
}

TEST_F(TaskFlow, DateThatIsNoneOfADeadlineOrAReminderStaysTheError) {
    AddTaskRecord({.date = "//", .date_exists = "True"});
    AddTaskRecord({.reminder = "True", .reminder_date = "//"});
    EXPECT_THROW(::EditTask(*window, 1), RunTimeError);
    EXPECT_THROW(::EditTask(*window, 2), RunTimeError);
}

TEST_F(TaskFlow, ReminderThatIsOffHasTheTasksDateWhereItsOwnIsNone) {
    AddTaskRecord({.date = "2009/10/30", .reminder = "False", .reminder_date = "soon"});
    EditTask(1, Ok);
    EXPECT_EQ(Tasks.date.Item(1), "2009/10/30");
    EXPECT_EQ(Tasks.reminder_date.Item(1), "2009/10/30");
    AddTaskRecord({.date = "2009/10/30", .date_exists = "False", .reminder_date = "2009/11/02"});
    EditTask(2, [] {
        EXPECT_EQ(TaskDialog->TextboxTaskDate->text(), "Friday, October 30, 2009") << "a date that is one";
        EXPECT_EQ(TaskDialog->TextboxReminderDate->text(), "Monday, November 2, 2009");
        Cancel();
    });
}

TEST_F(TaskFlow, EmptyTaskIsAccepted) {
    NewTask(Ok);
    EXPECT_EQ(Tasks.desc.Item(1), "");
    EXPECT_TRUE(Script.boxes.empty());
}

TEST_F(TaskFlow, TypeIsStoredByItsKey) {
    TypeTable.customname.Replace(1, "Errands");
    NewTask([] {
        Choose(TaskDialog->ComboType, 1);
        Ok();
    });
    EXPECT_EQ(Tasks.type.Item(1), TypeTable.key.Item(1));
}

TEST_F(TaskFlow, CustomNameThatIsAnotherKeyIsTheLastOfBoth) {
    TypeTable.customname.Replace(1, TypeTable.key.Item(3));
    NewTask([] {
        Choose(TaskDialog->ComboType, 1);
        Ok();
    });
    EXPECT_EQ(Tasks.type.Item(1), TypeTable.key.Item(3));
}

TEST_F(TaskFlow, NoneIsNotLookedUp) {
    TypeTable.customname.Replace(1, "None");
    NewTask(Ok);
    EXPECT_EQ(Tasks.type.Item(1), "None");
}

TEST_F(TaskFlow, TypeThatHasGoneStaysWhatItWas) {
    AddTaskRecord({.type = "Gone"});
    EditTask(1, Ok);
    EXPECT_EQ(Tasks.type.Item(1), "Gone");
}

TEST_F(TaskFlow, EditReplacesEveryFieldButTheId) {
    AddTaskRecord({});
    AddTaskRecord({.desc = "Second", .reminder = "True", .reminder_list = "True"});
    EditTask(2, [] {
        EXPECT_EQ(TaskDialog->TextBoxDescription->text(), "Second");
        Click(TaskDialog->CheckBoxDone);
        Ok();
    });
    EXPECT_EQ(Tasks.id.Item(2), "2");
    EXPECT_EQ(Tasks.done.Item(2), "True");
    EXPECT_EQ(Tasks.percent_complete.Item(2), "100%");
    EXPECT_EQ(Tasks.reminder_list.Item(2), "False") << "a saved reminder is armed again";
    EXPECT_EQ(Tasks.done.Item(1), "False");
    EXPECT_NE(ReadData("tasks.xml").find("<desc>Second</desc>"), std::string::npos);
}

TEST_F(TaskFlow, ReminderThatIsOffStaysOnTheListAsItWas) {
    AddTaskRecord({.reminder = "False", .reminder_list = "True"});
    EditTask(1, Ok);
    EXPECT_EQ(Tasks.reminder_list.Item(1), "True");
}

TEST_F(TaskFlow, CancelWithoutChangesAsksNothingAndWritesNothing) {
    AddTaskRecord({});
    const std::string before = ReadData("tasks.xml");
    EditTask(1, Cancel);
    NewTask(Cancel);
    EXPECT_TRUE(Script.boxes.empty());
    EXPECT_EQ(ReadData("tasks.xml"), before);
    EXPECT_EQ(Tasks.id.Count(), 1);
    EXPECT_EQ(NextTaskID, 2);
    EXPECT_TRUE(TaskDialog->CancelledFlag);
    EXPECT_TRUE(TaskDialog->CloseOK);
    EXPECT_FALSE(TaskDialog->DeleteFlag);
}

TEST_F(TaskFlow, CancelAfterAChangeAsksAndAnythingButYesKeepsTheDialogOpen) {
    Script.answers = {Answer::No, Answer::Yes};
    NewTask([] {
        Type(TaskDialog->TextBoxDescription, "x");
        Cancel();
        EXPECT_TRUE(TaskDialog->isVisible());
        EXPECT_FALSE(TaskDialog->CancelledFlag);
        EXPECT_FALSE(TaskDialog->CloseOK);
        QTest::keyClick(TaskDialog, Qt::Key_Escape);
    });
    EXPECT_EQ(Script.boxes, (std::vector{Question("Cancel this Task?"), Question("Cancel this Task?")}));
    EXPECT_EQ(Tasks.id.Count(), 0);
}

TEST_F(TaskFlow, CancelOfAnEditAsksForAllChanges) {
    AddTaskRecord({});
    Script.answers = {Answer::Yes};
    EditTask(1, [] {
        Type(TaskDialog->TextBoxDescription, "x");
        Cancel();
    });
    EXPECT_EQ(Script.boxes, std::vector{Question("Cancel all changes to this Task?")});
    EXPECT_EQ(Tasks.desc.Item(1), "Task");
}

TEST_F(TaskFlow, CloseBoxCountsAsCancel) {
    Script.answers = {Answer::No, Answer::Yes};
    NewTask([] {
        Type(TaskDialog->TextBoxDescription, "x");
        PressCloseBox(*TaskDialog);
        EXPECT_TRUE(TaskDialog->isVisible());
        PressCloseBox(*TaskDialog);
        EXPECT_FALSE(TaskDialog->isVisible());
    });
    EXPECT_EQ(Script.boxes.size(), 2U);
    EXPECT_TRUE(TaskDialog->CancelledFlag);
    EXPECT_EQ(Tasks.id.Count(), 0);
}

TEST_F(TaskFlow, CloseThatIsNotTheStudentsPassesAndSavesNothing) {
    NewTask([] {
        Type(TaskDialog->TextBoxDescription, "x");
        TaskDialog->close();
    });
    EXPECT_TRUE(Script.boxes.empty());
    EXPECT_EQ(Tasks.id.Count(), 0);
}

TEST_F(TaskFlow, UntouchedEditKeepsTheRecordAndStillWrites) {
    AddTaskRecord({.desc = "Old", .priority = "Urgent", .percent_complete = "40%", .notes = "a\r\nb"});
    const TaskLists before = Tasks;
    EditTask(1, Ok);
    for (const Field<TaskLists>& field : TaskFields) {
        EXPECT_EQ(Tasks.*field.list, before.*field.list) << field.tag;
    }
    EXPECT_NE(ReadData("tasks.xml").find("<desc>Old</desc>"), std::string::npos);
}

TEST_F(TaskFlow, OkByKeyFirstValidatesTheFieldInHand) {
    NewTask([] {
        Type(TaskDialog->ComboPercentComplete, "100");
        TaskDialog->ButtonOK->click();
    });
    EXPECT_EQ(Tasks.percent_complete.Item(1), "100%");
    EXPECT_EQ(Tasks.done.Item(1), "True");
}

TEST_F(TaskFlow, DeleteAsksAndTakesTheRecordOutOfEveryList) {
    AddTaskRecord({.desc = "First"});
    AddTaskRecord({.desc = "Second"});
    Script.answers = {Answer::No, Answer::Yes};
    EditTask(1, [] {
        Click(TaskDialog->ButtonDelete);
        EXPECT_TRUE(TaskDialog->isVisible());
        EXPECT_FALSE(TaskDialog->DeleteFlag);
        Click(TaskDialog->ButtonDelete);
    });
    const ShownBox question = Question("Are you sure you want to Delete this Task?");
    EXPECT_EQ(Script.boxes, (std::vector{question, question}));
    for (const Field<TaskLists>& field : TaskFields) {
        EXPECT_EQ((Tasks.*field.list).Count(), 1) << field.tag;
    }
    EXPECT_EQ(Tasks.desc.Item(1), "Second");
    EXPECT_EQ(ReadData("tasks.xml").find("First"), std::string::npos);
}

TEST_F(TaskFlow, DialogOpensBesideTheWindowOnceAndThenWhereItWasLeft) {
    window->move(100, 80);
    NewTask([] {
        EXPECT_EQ(TaskDialog->pos(), QPoint(350, 130));
        TaskDialog->move(10, 20);
        Cancel();
    });
    EXPECT_FALSE(TaskDBFirstOpen);
    NewTask([] {
        EXPECT_EQ(TaskDialog->pos(), QPoint(10, 20));
        Cancel();
    });
}

TEST_F(TaskFlow, ShutdownWhileTheDialogIsOpenWritesNothing) {
    const std::string before = ReadData("tasks.xml");
    NewTask([] {
        Type(TaskDialog->ComboPercentComplete, "x");
        ShuttingDown = true;
        TaskDialog->hide();
    });
    EXPECT_EQ(Tasks.id.Count(), 0);
    EXPECT_EQ(ReadData("tasks.xml"), before);
    EXPECT_TRUE(Script.boxes.empty());
}

TEST_F(TaskFlow, AValueThatTheDialogCannotUseIsToldByItsPlaceInTheFile) {
    AddTaskRecord({.desc = "Read", .reminder = "True", .reminder_date = "some other day"});
    std::string text;
    try {
        ::EditTask(*window, 1);
    } catch (const RunTimeError& error) {
        text = FaultText(error);
    }
    EXPECT_EQ(text,
              "Not a date: \"some other day\"\n\nFile: tasks.xml\nRecord: 1, \"Read\"\nField: reminder_date\n"
              "Value: \"some other day\"\n\nCopies of the last good files, where there are any, lie in "
              "the Backup folder. The program plancheck beside the planner tells more of the fault and gets "
              "a copy back.");
}

TEST_F(TaskFlow, EditBesideATaskThatWasCutDropsIt) {
    for (const bool deletes : {false, true}) {
        Tasks = {};
        AddTaskRecord({.desc = "one"});
        AddTaskRecord({.desc = "two"});
        AddTaskRecord({.desc = "three"});
        WriteTasks();
        WriteData("tasks.xml", ReadData("tasks.xml").substr(0, ReadData("tasks.xml").rfind("</desc>")));
        Tasks = {};
        FileWrittenFlags = {};
        ReadTasks();
        Script.answers = {Answer::Yes};
        EditTask(1, [deletes] { deletes ? Click(TaskDialog->ButtonDelete) : Ok(); });
        EXPECT_TRUE(FileWrittenFlags.tasks);
        for (const Field<TaskLists>& field : TaskFields) {
            EXPECT_EQ((Tasks.*field.list).Count(), deletes ? 1 : 2) << field.tag;
        }
        EXPECT_EQ(ReadData("tasks.xml").find("<id>3"), std::string::npos);
    }
}

TEST_F(TaskFlow, TaskBehindOneThatWasCutDoesNotMergeWithIt) {
    AddTaskRecord({.desc = "one"});
    AddTaskRecord({.desc = "two"});
    WriteTasks();
    const std::string cut = ReadData("tasks.xml").substr(0, ReadData("tasks.xml").rfind("</desc>"));
    WriteData("tasks.xml", cut);
    Tasks = {};
    ReadTasks();
    NewTask([] {
        Type(TaskDialog->TextBoxDescription, "three");
        Ok();
    });
    EditTask(1, [] {
        Type(TaskDialog->TextBoxDescription, "changed");
        Ok();
    });
    EXPECT_EQ(Tasks.desc.values, (std::vector<std::string>{"changed", "three"}));
    EXPECT_EQ(Tasks.id.values, (std::vector<std::string>{"1", "3"}));
    EXPECT_NE(ReadData("tasks.xml").find("three"), std::string::npos);
    EXPECT_EQ(ReadData("Backup/tasks_damaged.xml"), cut);
}
