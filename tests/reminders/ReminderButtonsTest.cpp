// The buttons of the reminder window: what they change, what they write and what they leave in the list.
#include "core/Module1.h"
#include "core/RunTimeError.h"
#include "mainwindow/frame/Unload.h"
#include "reminders/RemindersTest.h"

namespace {

class ReminderButtons : public RemindersTest {
protected:
    // A task, an assignment, an event and a series that stand; the series has its next occurrence tomorrow.
    void ShowFour() {
        AddDueTask();
        AddDueHomework();
        AddDueEvent();
        AddDueSeries();
        QuietTick();
    }

    // The records that are not as they were, by kind and position.
    Texts Changed(const PlannerStore& before) const {
        Texts changed;
        AddChanged(changed, "Task", before.TaskRecord, Store.TaskRecord, TaskFields);
        AddChanged(changed, "Homework", before.Assignment, Store.Assignment, AssignmentFields);
        AddChanged(changed, "Event", before.EventRecord, Store.EventRecord, EventFields);
        return changed;
    }

    std::vector<bool> Enabled() const {
        return {list->ButtonView->isEnabled(), list->ButtonRemove->isEnabled(),
                list->ButtonReset->isEnabled(), list->ButtonRemoveAll->isEnabled()};
    }

    void Snooze(const std::string& item, const QString& interval) {
        Select(item);
        list->ComboReminderTime->setCurrentText(interval);
        Click(list->ButtonReset);
    }

private:
    template <class Lists, class Fields>
    static void AddChanged(Texts& changed, const std::string& kind, const Lists& before, const Lists& after,
                           const Fields& fields) {
        for (int i = 1; i <= after.id.Count(); ++i) {
            const bool differs = std::ranges::any_of(fields, [&](const auto& field) {
                return (before.*field.list).Item(i) != (after.*field.list).Item(i);
            });
            if (differs) {
                changed.push_back(kind + " " + after.id.Item(i));
            }
        }
    }
};

constexpr const char* RemoveAllQuestion = "Remove all reminders from the list?";

} // namespace

// --- Reset the Time ----------------------------------------------------------------------------------------

TEST_F(ReminderButtons, ResetArmsATaskAnewOnTheDisk) {
    ShowFour();
    Snooze("Task 1", "1.5 Hours");
    const std::string file = ReadData("tasks.xml");
    for (const char* line :
         {"<reminder>True</reminder>", "<reminder_date>2009/10/14</reminder_date>",
          "<reminder_time>01:30 PM</reminder_time>", "<reminder_alarm>2009/10/14 13:30:00</reminder_alarm>",
          "<reminder_list>False</reminder_list>"}) {
        EXPECT_NE(file.find(line), std::string::npos) << line;
    }
    EXPECT_EQ(saved, (Texts{"tasks.xml"}));
    EXPECT_EQ(Standing().size(), 3U);
    EXPECT_FALSE(list->ReminderHold);
}

TEST_F(ReminderButtons, ResetArmsHomeworkAnewOnTheDisk) {
    ShowFour();
    Snooze("Homework 1", "18 Hours");
    const std::string file = ReadData("assignments_1.xml");
    for (const char* line :
         {"<reminder>True</reminder>", "<reminderdate>2009/10/15</reminderdate>",
          "<remindertime>06:00 AM</remindertime>", "<reminderalarm>2009/10/15 06:00:00</reminderalarm>",
          "<reminderlist>False</reminderlist>"}) {
        EXPECT_NE(file.find(line), std::string::npos) << line;
    }
    EXPECT_EQ(saved, (Texts{"assignments_1.xml"}));
}

TEST_F(ReminderButtons, ResetSetsOnlyTheAlarmOfASeries) {
    ShowFour();
    const PlannerStore before = Store;
    Snooze("Event 2", "1 Day");
    const EventLists& events = Store.EventRecord;
    EXPECT_EQ(events.reminder_alarm.Item(2), "2009/10/15 12:00:00");
    EXPECT_EQ(events.reminder_list.Item(2), "False");
    EXPECT_EQ(events.reminder_nextalarm.Item(2), before.EventRecord.reminder_nextalarm.Item(2));
    EXPECT_EQ(events.reminder_nextday.Item(2), before.EventRecord.reminder_nextday.Item(2));
    EXPECT_EQ(events.reminder_currentday.Item(2), "2009/10/14");
    EXPECT_EQ(Changed(before), (Texts{"Event 2"}));
    EXPECT_EQ(saved, (Texts{"events.xml"}));
}

TEST_F(ReminderButtons, ResetLetsTheItemFireAgainWhenTheTimeIsOver) {
    ShowFour();
    Snooze("Event 1", "5 Minutes");
    Tick();
    EXPECT_EQ(Standing().size(), 3U);
    SetClock(2009, 10, 14, 12, 4, 59);
    Tick();
    EXPECT_EQ(Standing().size(), 3U);
    SetClock(2009, 10, 14, 12, 5);
    Tick();
    EXPECT_EQ(Standing().size(), 4U);
}

TEST_F(ReminderButtons, ResetPutsATypedTimeRightFirst) {
    ShowFour();
    Select("Task 1");
    list->ComboReminderTime->setCurrentText("45m");
    list->ButtonReset->click(); // which moves no focus
    EXPECT_EQ(list->ComboReminderTime->currentText(), "45 Minutes");
    EXPECT_EQ(Store.TaskRecord.reminder_alarm.Item(1), "2009/10/14 12:45:00");
}

TEST_F(ReminderButtons, ResetLeavesTheTitleToTheNextScan) {
    ShowFour();
    Snooze("Task 1", "1 Hour");
    EXPECT_EQ(list->windowTitle(), "4 Reminders");
    Tick();
    EXPECT_EQ(list->windowTitle(), "3 Reminders");
}

TEST_F(ReminderButtons, ResetOfTheSelectedLastRowSelectsTheNewLastRow) {
    ShowFour();
    Snooze(Standing().at(3), "1 Hour");
    EXPECT_EQ(list->ReminderSelectedRow, 3);
    EXPECT_EQ(list->CurrentRow, 3);
    EXPECT_EQ(list->RowCount, 3);
}

TEST_F(ReminderButtons, ResetOfTheOnlyRowLeavesAllButtonsDisabled) {
    AddDueTask();
    QuietTick();
    Snooze("Task 1", "1 Hour");
    EXPECT_EQ(Enabled(), (std::vector<bool>{false, false, false, false}));
}

TEST_F(ReminderButtons, ResetWhoseSaveFailsHoldsTheTicksAndStillTakesTheRow) {
    ShowFour();
    int boxes = 0;
    {
        const FailingFile failing = LetFail("tasks.xml");
        Script.whileBoxIsOpen = [&](const ShownBox&) {
            ++boxes;
            EXPECT_TRUE(list->ReminderHold);
        };
        Snooze("Task 1", "1 Hour");
    }
    EXPECT_EQ(boxes, 1);
    EXPECT_EQ(Standing().size(), 3U);
    EXPECT_FALSE(list->ReminderHold);
    EXPECT_FALSE(list->ReminderTasksChanged);
    EXPECT_EQ(Store.TaskRecord.reminder_list.Item(1), "False");
}

TEST_F(ReminderButtons, WhatASaveHasFailedToWriteIsWrittenWithTheNextChange) {
    AddDueTask("first");
    AddDueTask("second");
    QuietTick();
    {
        const FailingFile failing = LetFail("tasks.xml");
        Snooze("Task 1", "1 Hour");
    }
    EXPECT_EQ(saved, Texts{});
    Select("Task 2");
    Click(list->ButtonRemove);
    EXPECT_EQ(saved, Texts{"tasks.xml"});
    EXPECT_NE(ReadData("tasks.xml").find("<reminder_alarm>2009/10/14 13:00:00</reminder_alarm>"),
              std::string::npos);
    EXPECT_EQ(ReadData("tasks.xml").find("<reminder_list>True"), std::string::npos);
}

// --- Remove from List --------------------------------------------------------------------------------------

TEST_F(ReminderButtons, RemoveDismissesTheItemOnTheDiskAndSetsTheTitle) {
    ShowFour();
    const PlannerStore before = Store;
    Select("Homework 1");
    Click(list->ButtonRemove);
    EXPECT_EQ(Changed(before), (Texts{"Homework 1"}));
    EXPECT_NE(ReadData("assignments_1.xml").find("<reminderlist>False</reminderlist>"), std::string::npos);
    EXPECT_EQ(saved, (Texts{"assignments_1.xml"}));
    EXPECT_EQ(list->windowTitle(), "3 Reminders");
    EXPECT_FALSE(list->ReminderHold);
    Tick();
    EXPECT_EQ(Standing().size(), 3U);
}

TEST_F(ReminderButtons, RemoveLetsASeriesFollowItsNextOccurrence) {
    ShowFour();
    Select("Event 2");
    Click(list->ButtonRemove);
    const EventLists& events = Store.EventRecord;
    EXPECT_EQ(events.reminder_list.Item(2), "False");
    EXPECT_EQ(events.reminder_alarm.Item(2), "2009/10/15 08:30:00");
    EXPECT_EQ(events.reminder_currentday.Item(2), "2009/10/15");
    EXPECT_EQ(saved, (Texts{"events.xml"}));
}

TEST_F(ReminderButtons, RemoveOnTheOnlyRowLeavesZeroRemindersAndNoButton) {
    AddDueTask();
    QuietTick();
    Select("Task 1");
    Click(list->ButtonRemove);
    EXPECT_EQ(list->windowTitle(), "0 Reminders");
    EXPECT_EQ(Enabled(), (std::vector<bool>{false, false, false, false}));
    EXPECT_EQ(list->ReminderSelectedRow, 0);
}

TEST_F(ReminderButtons, RemoveOfTheSelectedLastRowSelectsTheNewLastRow) {
    ShowFour();
    Select(Standing().at(3));
    Click(list->ButtonRemove);
    EXPECT_EQ(list->ReminderSelectedRow, 3);
    EXPECT_EQ(Enabled(), (std::vector<bool>{true, true, true, true}));
}

TEST_F(ReminderButtons, RemoveOfAnInnerRowSelectsWhatMovesUp) {
    ShowFour();
    const std::string third = Standing().at(2);
    Select(Standing().at(1));
    Click(list->ButtonRemove);
    EXPECT_EQ(list->ReminderSelectedRow, 2);
    EXPECT_EQ(Selected(), third);
}

TEST_F(ReminderButtons, DeleteRemovesTheRowOnceHoweverLongItIsHeld) {
    ShowFour();
    Select(Standing().at(0));
    Press(Qt::Key_Delete);
    EXPECT_EQ(Standing().size(), 3U);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier, {}, true);
    QCoreApplication::sendEvent(list->picGrid, &held);
    EXPECT_EQ(Standing().size(), 3U);
}

// --- Remove All --------------------------------------------------------------------------------------------

TEST_F(ReminderButtons, RemoveAllAsksFirstAndNoChangesNothing) {
    ShowFour();
    const PlannerStore before = Store;
    Script.answers = {Answer::No};
    Click(list->ButtonRemoveAll);
    EXPECT_EQ(Script.boxes, (std::vector<ShownBox>{{"Planovarium", RemoveAllQuestion, Buttons::YesNo,
                                                    Icon::Information, Preset::No}}));
    EXPECT_EQ(Standing().size(), 4U);
    EXPECT_EQ(Changed(before), Texts{});
    EXPECT_EQ(saved, Texts{});
    EXPECT_FALSE(list->ReminderHold);
}

TEST_F(ReminderButtons, RemoveAllDismissesEveryItemAndWritesEachFileOnceInOrder) {
    ShowFour();
    Select("Task 1");
    Script.answers = {Answer::Yes};
    Click(list->ButtonRemoveAll);
    EXPECT_EQ(saved, (Texts{"tasks.xml", "assignments_1.xml", "events.xml"}));
    EXPECT_EQ(Standing(), Texts{});
    EXPECT_EQ(list->RowCount, 0);
    EXPECT_EQ(list->ReminderSelectedRow, 0);
    EXPECT_EQ(list->CurrentRow, 0);
    EXPECT_EQ(Store.TaskRecord.reminder_list.Item(1), "False");
    EXPECT_EQ(Store.Assignment.reminderlist.Item(1), "False");
    EXPECT_EQ(Store.EventRecord.reminder_list.Item(1), "False");
    EXPECT_EQ(Store.EventRecord.reminder_list.Item(2), "False");
    EXPECT_EQ(Store.EventRecord.reminder_currentday.Item(2), "2009/10/15");
    EXPECT_EQ(Enabled(), (std::vector<bool>{false, false, false, false}));
    EXPECT_FALSE(list->ReminderHold);
    EXPECT_EQ(list->windowTitle(), "4 Reminders") << "until the next scan";
    Tick();
    EXPECT_EQ(list->windowTitle(), "0 Reminders");
    EXPECT_EQ(Standing(), Texts{});
}

TEST_F(ReminderButtons, RemoveAllWritesOnlyTheFilesOfWhatStood) {
    AddDueEvent();
    AddDueEvent();
    AddTaskRecord({});
    QuietTick();
    Script.answers = {Answer::Yes};
    Click(list->ButtonRemoveAll);
    EXPECT_EQ(saved, (Texts{"events.xml"}));
}

TEST_F(ReminderButtons, RemoveAllOfASingleRowAsksNothing) {
    AddDueTask();
    QuietTick();
    Click(list->ButtonRemoveAll);
    EXPECT_TRUE(Script.boxes.empty());
    EXPECT_EQ(Standing(), Texts{});
    EXPECT_EQ(list->windowTitle(), "1 Reminder");
}

TEST_F(ReminderButtons, RemoveAllHoldsTheTicksWhileItAsks) {
    ShowFour();
    AddDueTask();
    Script.whileBoxIsOpen = [this](const ShownBox&) {
        EXPECT_TRUE(list->ReminderHold);
        Tick();
        EXPECT_EQ(Standing().size(), 4U);
    };
    Click(list->ButtonRemoveAll);
    EXPECT_FALSE(Script.boxes.empty());
}

TEST_F(ReminderButtons, RemoveAllStopsWhereAShutdownComesWhileItAsks) {
    ShowFour();
    const PlannerStore before = Store;
    Script.answers = {Answer::Yes};
    Script.whileBoxIsOpen = [this](const ShownBox&) { Unload(*window); };
    Click(list->ButtonRemoveAll);
    EXPECT_EQ(Changed(before), Texts{});
    EXPECT_FALSE(list->ReminderHold);
}

// --- The hold ----------------------------------------------------------------------------------------------

TEST_F(ReminderButtons, EachWritesInItsHoldBeforeTheRowLeavesTheList) {
    ShowFour();
    std::vector<int> standing;
    Script.whileSyncing = [&](const std::string& name) {
        if (name.ends_with(".tmp")) {
            EXPECT_TRUE(list->ReminderHold);
            EXPECT_EQ(list->RowCount, list->ReminderIds.Count()) << "as drawn";
            standing.push_back(list->ReminderIds.Count());
        }
    };
    Snooze("Task 1", "1 Hour");
    Select("Homework 1");
    Click(list->ButtonRemove);
    Script.answers = {Answer::Yes};
    Click(list->ButtonRemoveAll);
    EXPECT_EQ(standing, (std::vector<int>{4, 3, 2}));
    EXPECT_EQ(list->RowCount, 0);
}

TEST_F(ReminderButtons, HoldEndsWithAnErrorAndLeavesRowAndRecord) {
    ShowFour();
    const PlannerStore before = Store;
    Select("Task 1");
    SetClock(9999, 12, 31, 23, 0);
    list->ComboReminderTime->setCurrentText("1 Day"); // is later than any date that can be stored
    EXPECT_THROW(list->ResetItem(), RunTimeError);
    EXPECT_FALSE(list->ReminderHold);
    EXPECT_EQ(Standing().size(), 4U);
    EXPECT_EQ(Changed(before), Texts{});
    EXPECT_EQ(saved, Texts{});
    AddDueTask();
    Tick();
    EXPECT_EQ(Standing().size(), 5U) << "ticks are not held";
}

TEST_F(ReminderButtons, HoldEndsWithAnErrorBehindTheBoxesOfTheOtherButtons) {
    ShowFour();
    Script.whileBoxIsOpen = [](const ShownBox&) { throw RunTimeError("while the box is open"); };
    EXPECT_THROW(list->RemoveAllItems(), RunTimeError);
    EXPECT_FALSE(list->ReminderHold);
    Select("Task 1");
    const FailingFile failing = LetFail("tasks.xml");
    EXPECT_THROW(list->RemoveItem(), RunTimeError);
    EXPECT_FALSE(list->ReminderHold);
}

TEST_F(ReminderButtons, ResetLeavesTheTypedTimeAloneWhereItDoesNothing) {
    ShowFour();
    Select("Task 1");
    list->ComboReminderTime->setCurrentText("45m");
    list->ReminderBusy = true;
    list->ResetItem();
    list->ReminderBusy = false;
    EXPECT_EQ(list->ComboReminderTime->currentText(), "45m");
    EXPECT_EQ(Standing().size(), 4U);
}

// --- Busy, and records that have gone ----------------------------------------------------------------------

TEST_F(ReminderButtons, NoneDoesAnythingWhileATickRuns) {
    ShowFour();
    const PlannerStore before = Store;
    Select("Task 1");
    list->ReminderBusy = true;
    for (QPushButton* button :
         {list->ButtonView, list->ButtonRemove, list->ButtonReset, list->ButtonRemoveAll}) {
        Click(button);
    }
    list->ReminderBusy = false;
    EXPECT_EQ(Changed(before), Texts{});
    EXPECT_EQ(Standing().size(), 4U);
    EXPECT_FALSE(CalledFromReminders);
    EXPECT_TRUE(Script.boxes.empty());
}

TEST_F(ReminderButtons, ARecordThatHasGoneChangesNothingAndItsRowGoesAtTheNextScan) {
    ShowFour();
    Select("Task 1");
    RemoveRecord(Store.TaskRecord, TaskFields, 1);
    const PlannerStore before = Store;
    for (QPushButton* button : {list->ButtonView, list->ButtonRemove, list->ButtonReset}) {
        Click(button);
    }
    EXPECT_EQ(Changed(before), Texts{});
    EXPECT_EQ(saved, Texts{});
    EXPECT_FALSE(CalledFromReminders);
    EXPECT_EQ(Standing().size(), 4U);
    Tick();
    EXPECT_EQ(Standing().size(), 3U);
}
