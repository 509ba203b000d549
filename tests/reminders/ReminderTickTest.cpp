// The tick of the reminder window: when it comes, what it shows, what it writes and what it leaves alone.
#include "core/Module1.h"
#include "mainwindow/flows/TermFlow.h"
#include "mainwindow/frame/Unload.h"
#include "persistence/modIO.h"
#include "platform/MessageBoxes.h"
#include "reminders/RemindersTest.h"
#include "toolkit/Modal.h"

#include <QAccessible>

namespace {

class ReminderTicks : public RemindersTest {};

} // namespace

TEST_F(ReminderTicks, ComeEveryFortySecondsFromTheEndOfTheLoadToTheShutdown) {
    EXPECT_EQ(list->TimerReminders->interval(), 40000);
    EXPECT_TRUE(list->TimerReminders->isActive());
    Unload(*window);
    EXPECT_FALSE(list->TimerReminders->isActive());
}

TEST_F(ReminderTicks, TellTheNumberOfRowsInTheTitle) {
    EXPECT_EQ(list->windowTitle(), "Planovarium - Reminder List");
    Tick();
    EXPECT_EQ(list->windowTitle(), "0 Reminders");
    AddDueTask();
    Tick();
    EXPECT_EQ(list->windowTitle(), "1 Reminder");
    AddDueTask();
    Tick();
    EXPECT_EQ(list->windowTitle(), "2 Reminders");
}

TEST_F(ReminderTicks, ShowWhatHasBecomeDueWhileTheProgramWasClosedWithASoundAndAWrittenFile) {
    AddDueTask("Call home");
    SetClock(2009, 10, 14, 14, 0);
    Tick();
    EXPECT_EQ(Standing(), (Texts{"Task 1"}));
    EXPECT_TRUE(list->isVisible());
    EXPECT_EQ(Script.sounds, (std::vector<std::filesystem::path>{drive / "Planovarium" / "Reminder.wav"}));
    EXPECT_EQ(saved, (Texts{"tasks.xml"}));
    EXPECT_NE(ReadData("tasks.xml").find("<reminder_list>True</reminder_list>"), std::string::npos);
    EXPECT_NE(ReadData("tasks.xml").find("<reminder>False</reminder>"), std::string::npos);
}

TEST_F(ReminderTicks, ShowWhatStoodBeforeARestartAndWriteNothing) {
    AddTaskRecord({.reminder_list = "True"});
    Tick();
    EXPECT_EQ(Standing(), (Texts{"Task 1"}));
    EXPECT_TRUE(list->isVisible());
    EXPECT_EQ(Script.sounds.size(), 1U);
    EXPECT_EQ(saved, Texts{});
}

TEST_F(ReminderTicks, ThatFindNothingNewNeitherShowTheWindowNorSoundNorWrite) {
    AddDueTask();
    QuietTick();
    list->hide();
    Tick();
    EXPECT_EQ(Standing(), (Texts{"Task 1"}));
    EXPECT_FALSE(list->isVisible());
    EXPECT_TRUE(Script.sounds.empty());
    EXPECT_EQ(saved, Texts{});
}

TEST_F(ReminderTicks, WithoutARowShowNothing) {
    Tick();
    EXPECT_FALSE(list->isVisible());
    EXPECT_TRUE(Script.sounds.empty());
    EXPECT_TRUE(list->ReminderFirstTick);
}

TEST_F(ReminderTicks, WriteTasksFirstThenHomeworkThenEventsAndEachOnce) {
    for (int i = 0; i < 2; ++i) {
        AddDueEvent();
        AddDueHomework();
        AddDueTask();
    }
    Tick();
    EXPECT_EQ(saved, (Texts{"tasks.xml", "assignments_1.xml", "events.xml"}));
    EXPECT_FALSE(list->ReminderTasksChanged || list->ReminderHomeworkChanged || list->ReminderEventsChanged);
}

TEST_F(ReminderTicks, SetTheTitleThenWriteThenDrawTheRowsAndShowTheWindowLast) {
    AddTaskRecord({.desc = "Old", .reminder_list = "True"});
    QuietTick();
    Select("Task 1");
    list->hide();
    AddDueTask("New");
    int saves = 0;
    Script.whileSyncing = [&](const std::string& name) {
        saves += name == "tasks.xml.tmp" ? 1 : 0;
        EXPECT_EQ(list->windowTitle(), "2 Reminders");
        EXPECT_TRUE(DrawnTexts(*list->picGrid).contains(" Old"));
        EXPECT_FALSE(DrawnTexts(*list->picGrid).contains(" New"));
        EXPECT_TRUE(list->ButtonView->isEnabled()) << "the buttons follow the rows that are drawn";
        EXPECT_FALSE(list->isVisible());
    };
    Tick();
    EXPECT_EQ(saves, 1);
    EXPECT_TRUE(DrawnTexts(*list->picGrid).contains(" New"));
    EXPECT_FALSE(list->ButtonView->isEnabled());
    EXPECT_TRUE(list->isVisible());
}

TEST_F(ReminderTicks, WriteOnlyTheFileOfWhatHasFired) {
    AddTaskRecord({.reminder_list = "True"});
    AddDueEvent();
    Tick();
    EXPECT_EQ(saved, (Texts{"events.xml"}));
}

TEST_F(ReminderTicks, ShowTheRowsInTheOrderOfTheListsColumn) {
    AddTaskRecord({.date = "2009/10/15", .reminder_list = "True"});
    AddTaskRecord({.date = "2009/10/20", .reminder_list = "True"});
    AddTaskRecord({.date = "2009/10/12", .reminder_list = "True"});
    Tick();
    EXPECT_EQ(Standing(), (Texts{"Task 2", "Task 1", "Task 3"}));
}

TEST_F(ReminderTicks, PutDaysAndMinutesInOneOrder) {
    AddTaskRecord({.date = "2010/02/10", .reminder_list = "True"}); // in 119 days
    AddTaskRecord({.date = "2010/02/12", .reminder_list = "True"}); // in 121 days
    AddEventRecord({.time = "02:00 PM", .reminder_list = "True"});  // in 120 minutes
    Tick();
    EXPECT_EQ(Standing(), (Texts{"Task 2", "Event 1", "Task 1"}));
    ClickTitle(ReminderListColumn::Time);
    EXPECT_EQ(Standing(), (Texts{"Task 1", "Event 1", "Task 2"}));
}

TEST_F(ReminderTicks, WaitWhileADialogIsOpenAndLoseNothing) {
    AddDueTask();
    {
        const ModalScope dialog;
        Tick();
        EXPECT_EQ(Standing(), Texts{});
        EXPECT_EQ(list->windowTitle(), "Planovarium - Reminder List");
    }
    Tick();
    EXPECT_EQ(Standing(), (Texts{"Task 1"}));
}

TEST_F(ReminderTicks, WaitWhileAButtonHoldsTheStore) {
    AddDueTask();
    list->ReminderHold = true;
    Tick();
    EXPECT_EQ(Standing(), Texts{});
    list->ReminderHold = false;
    Tick();
    EXPECT_EQ(Standing(), (Texts{"Task 1"}));
}

TEST_F(ReminderTicks, ThatMeetAnotherOneDoNothingAndLeaveItBusy) {
    AddDueTask();
    list->ReminderBusy = true;
    Tick();
    EXPECT_EQ(Standing(), Texts{});
    EXPECT_TRUE(list->ReminderBusy);
}

TEST_F(ReminderTicks, AreNotBusyBehindTheirEnd) {
    AddDueTask();
    Tick();
    EXPECT_FALSE(list->ReminderBusy);
}

TEST_F(ReminderTicks, AreNotBusyBehindAnError) {
    AddTaskRecord({.reminder = "True", .reminder_alarm = "nonsense"});
    EXPECT_THROW(list->Tick(), RunTimeError);
    EXPECT_FALSE(list->ReminderBusy);
}

TEST_F(ReminderTicks, DoNothingOnceAShutdownHasBegun) {
    AddDueTask();
    ShuttingDown = true;
    Tick();
    EXPECT_EQ(Standing(), Texts{});
    EXPECT_EQ(saved, Texts{});
    EXPECT_FALSE(list->isVisible());
}

TEST_F(ReminderTicks, WhoseSaveFailsShowTheBoxAndKeepTheRowWithItsChangeInMemory) {
    AddDueTask();
    int boxes = 0;
    {
        const FailingFile failing = LetFail("tasks.xml");
        Script.whileBoxIsOpen = [&](const ShownBox&) {
            ++boxes;
            EXPECT_TRUE(list->ReminderBusy);
            EXPECT_EQ(Standing(), Texts{}) << "as drawn";
            AddDueEvent();
            Tick();
            EXPECT_EQ(Store.EventRecord.reminder_list.Item(1), "False")
                << "a tick that meets it does nothing";
            EXPECT_FALSE(list->isVisible());
        };
        Tick();
    }
    Script.whileBoxIsOpen = nullptr;
    EXPECT_EQ(boxes, 1);
    EXPECT_EQ(Standing(), (Texts{"Task 1"}));
    EXPECT_FALSE(list->ReminderTasksChanged);
    EXPECT_EQ(Store.TaskRecord.reminder_list.Item(1), "True");
    EXPECT_TRUE(list->isVisible());
    EXPECT_FALSE(FileWrittenFlags.tasks);
    AddDueTask();
    Tick();
    EXPECT_TRUE(FileWrittenFlags.tasks);
    EXPECT_EQ(ReadData("tasks.xml").find("<reminder_list>False"), std::string::npos);
}

TEST_F(ReminderTicks, DropTheRecordInWhichItsFileWasCutBeforeTheyWrite) {
    AddDueTask("one");
    AddDueTask("two");
    WriteTasks();
    WriteData("tasks.xml", ReadData("tasks.xml").substr(0, ReadData("tasks.xml").rfind("</desc>")));
    Store.TaskRecord = {};
    FileWrittenFlags = {};
    ReadTasks();
    ASSERT_EQ(Store.TaskRecord.id.Count(), 2) << "the beginning of the second one";
    Tick();
    EXPECT_EQ(Standing(), Texts{"Task 1"});
    EXPECT_TRUE(FileWrittenFlags.tasks);
    for (const Field<TaskLists>& field : TaskFields) {
        EXPECT_EQ((Store.TaskRecord.*field.list).Count(), 1) << field.tag;
    }
    EXPECT_NE(ReadData("tasks.xml").find("<reminder_list>True"), std::string::npos);
}

TEST_F(ReminderTicks, DropTheRecordInWhichTheFileOfHomeworkOrOfEventsWasCut) {
    for (const char* desc : {"one", "two"}) {
        AddDueHomework(desc);
        AddDueEvent(desc);
    }
    WriteAssignments();
    WriteEvents();
    for (const char* name : {"assignments_1.xml", "events.xml"}) {
        WriteData(name, ReadData(name).substr(0, ReadData(name).rfind("</desc>")));
    }
    Store.Assignment = {};
    Store.EventRecord = {};
    FileWrittenFlags = {};
    ReadAssignments();
    ReadEvents();
    Tick();
    EXPECT_EQ(Standing().size(), 2U);
    EXPECT_TRUE(FileWrittenFlags.assignments && FileWrittenFlags.events);
    EXPECT_EQ(Store.Assignment.id.Count(), 1);
    EXPECT_EQ(Store.EventRecord.id.Count(), 1);
    EXPECT_EQ(ReadData("assignments_1.xml").find("two"), std::string::npos);
    EXPECT_EQ(ReadData("events.xml").find("two"), std::string::npos);
}

TEST_F(ReminderTicks, WhoseSaveFailsAsTheShutdownComesShowNoWindow) {
    AddDueTask();
    const FailingFile failing = LetFail("tasks.xml");
    Script.whileBoxIsOpen = [this](const ShownBox&) { Unload(*window); };
    Tick();
    EXPECT_FALSE(list->isVisible());
    EXPECT_TRUE(Script.sounds.empty());
}

TEST_F(ReminderTicks, CanBeReadToAScreenReaderWhileTheirBoxIsOpen) {
    for (int i = 0; i < 3; ++i) {
        AddTaskRecord({.reminder_list = "True"});
    }
    QuietTick();
    Store.TaskRecord.reminder_list.values = {"False", "False", "False"};
    AddDueEvent();
    QAccessibleTableInterface* const table =
        QAccessible::queryAccessibleInterface(list->picGrid)->tableInterface();
    int boxes = 0;
    const FailingFile failing = LetFail("events.xml");
    Script.whileBoxIsOpen = [&](const ShownBox&) {
        ++boxes;
        for (int row = 0; row < table->rowCount(); ++row) {
            EXPECT_NO_THROW(table->cellAt(row, 3)->text(QAccessible::Name)) << row;
        }
    };
    Tick();
    EXPECT_EQ(boxes, 1);
}

TEST_F(ReminderTicks, KeepTheSelectionOnItsItemWhenNothingNewFires) {
    AddTaskRecord({.date = "2010/02/11", .reminder_list = "True"}); // in 120 days
    AddEventRecord({.time = "02:30 PM", .reminder_list = "True"});  // in 150 minutes
    QuietTick();
    Select("Event 1");
    ASSERT_EQ(list->ReminderSelectedRow, 1);
    SetClock(2009, 10, 14, 13, 0); // in 90 minutes
    Tick();
    EXPECT_EQ(Standing(), (Texts{"Task 1", "Event 1"}));
    EXPECT_EQ(Selected(), "Event 1");
    EXPECT_EQ(list->CurrentRow, 2);
    EXPECT_TRUE(list->ButtonView->isEnabled());
}

TEST_F(ReminderTicks, TellAnItemByItsKindToo) {
    AddTaskRecord({.reminder_list = "True"});
    AddAssignmentRecord({.reminderlist = "True"});
    AddEventRecord({.time = "02:30 PM", .reminder_list = "True"});
    QuietTick();
    for (const char* item : {"Task 1", "Homework 1", "Event 1"}) {
        Select(item);
        Tick();
        EXPECT_EQ(Selected(), item);
    }
}

TEST_F(ReminderTicks, ClearTheSelectionWhenSomethingFires) {
    AddTaskRecord({.reminder_list = "True"});
    QuietTick();
    Select("Task 1");
    AddDueTask();
    Tick();
    EXPECT_EQ(list->ReminderSelectedRow, 0);
    EXPECT_EQ(list->CurrentRow, 0);
    EXPECT_FALSE(list->ButtonView->isEnabled());
    EXPECT_TRUE(list->ButtonRemoveAll->isEnabled());
}

TEST_F(ReminderTicks, SelectNothingWhenTheSelectedItemHasGone) {
    AddTaskRecord({.reminder_list = "True"});
    AddTaskRecord({.reminder_list = "True"});
    QuietTick();
    Select("Task 2");
    Store.TaskRecord.reminder_list.Replace(2, "False");
    Tick();
    EXPECT_EQ(Standing(), (Texts{"Task 1"}));
    EXPECT_EQ(list->ReminderSelectedRow, 0);
    EXPECT_EQ(list->CurrentRow, 0);
    EXPECT_FALSE(list->ButtonRemove->isEnabled());
}

TEST_F(ReminderTicks, BringTheFirstVisibleRowAndTheHoveredOneWithinTheRows) {
    for (int i = 0; i < 100; ++i) {
        AddTaskRecord({.reminder_list = "True"});
    }
    QuietTick();
    list->VSGridScroll->setValue(list->VSGridScroll->maximum());
    ASSERT_GT(list->FirstRow, 50);
    PointAt(list->FirstRow + 3);
    ASSERT_TRUE(list->picGrid->Hover().has_value());
    for (int i = 2; i <= 100; ++i) {
        Store.TaskRecord.reminder_list.Replace(i, "False");
    }
    Tick();
    EXPECT_EQ(list->FirstRow, 1);
    EXPECT_FALSE(list->picGrid->Hover().has_value());
}

TEST_F(ReminderTicks, LeaveAPressedRowThatHasGoneUnselected) {
    for (int i = 0; i < 5; ++i) {
        AddTaskRecord({.reminder_list = "True"});
    }
    QuietTick();
    QTest::mousePress(list->picGrid, Qt::LeftButton, {}, PointOfRow(4));
    for (int i = 2; i <= 5; ++i) {
        Store.TaskRecord.reminder_list.Replace(i, "False");
    }
    Tick();
    QTest::mouseRelease(list->picGrid, Qt::LeftButton, {}, PointOfRow(4));
    EXPECT_EQ(list->ReminderSelectedRow, 0);
}

TEST_F(ReminderTicks, PassOverAMeetingOfAnotherTermUntilThatIsActive) {
    AddDueEvent("", "TermID2-ClassID9");
    AddClassRecord({.id = "9", .term = "2", .name = "Physics"});
    Tick();
    EXPECT_EQ(Standing(), Texts{});
    SetActiveTerm(*window, "Spring 2010");
    Tick();
    EXPECT_EQ(Standing(), (Texts{"Event 1"}));
}

// --- Another term ------------------------------------------------------------------------------------------

TEST_F(ReminderTicks, RowsOfHomeworkAndOfMeetingsLeaveAtOnceWithTheirTerm) {
    AddDueHomework();
    AddDueEvent("", "TermID1-ClassID1");
    AddDueEvent("Party");
    AddDueTask();
    QuietTick();
    ASSERT_EQ(list->windowTitle(), "4 Reminders");
    Select("Task 1");
    SetActiveTerm(*window, "Spring 2010");
    Texts standing = Standing();
    std::ranges::sort(standing);
    EXPECT_EQ(standing, (Texts{"Event 2", "Task 1"}));
    EXPECT_EQ(list->windowTitle(), "2 Reminders");
    EXPECT_EQ(Selected(), "Task 1");
    EXPECT_EQ(list->CurrentRow, list->ReminderSelectedRow);
    EXPECT_EQ(list->RowCount, 2);
}

TEST_F(ReminderTicks, ASelectedRowThatLeavesWithItsTermTakesTheSelectionAndTheButtonsAlong) {
    AddDueHomework();
    QuietTick();
    Select("Homework 1");
    SetActiveTerm(*window, "Spring 2010");
    EXPECT_EQ(Standing(), Texts{});
    EXPECT_EQ(list->ReminderSelectedRow, 0);
    EXPECT_FALSE(list->ButtonView->isEnabled());
    EXPECT_FALSE(list->ButtonRemoveAll->isEnabled());
    EXPECT_EQ(list->windowTitle(), "0 Reminders");
}

TEST_F(ReminderTicks, RowsStayWhenTheActiveTermIsChosenAgain) {
    AddDueHomework();
    QuietTick();
    WriteAssignments();
    SetActiveTerm(*window, "Fall 2009");
    EXPECT_EQ(Standing(), (Texts{"Homework 1"}));
}

TEST_F(ReminderTicks, AChangeOfTheTermBeforeTheFirstScanLeavesTheTitle) {
    SetActiveTerm(*window, "Spring 2010");
    EXPECT_EQ(list->windowTitle(), "Planovarium - Reminder List");
}
