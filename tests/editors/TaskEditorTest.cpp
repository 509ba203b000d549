// The editor of tasks: what it shows as it opens and what follows each entry.
#include "editors/EditorTest.h"
#include "planner/entries/ComboRows.h"

namespace {

class TaskEditor : public EditorTest {
protected:
    void SetUp() override {
        EditorTest::SetUp();
        dialog = TaskDialog;
    }

    // The fields of a task that is half done and has a deadline and a reminder.
    void OpenEdit() {
        dialog->tempTaskDescription = "Buy paper";
        dialog->tempTaskDateExists = "True";
        dialog->tempTaskDate = "2009/11/02";
        dialog->tempTaskType = "None";
        dialog->tempTaskPriority = "High";
        dialog->tempTaskPercentComplete = "50%";
        dialog->tempTaskDone = "False";
        dialog->tempTaskReminder = "True";
        dialog->tempTaskReminderDate = "2009/11/01";
        dialog->tempTaskReminderTime = "08:20 PM";
        dialog->tempTaskReminderAlarm = "2009/11/01 20:20:00";
        dialog->tempTaskReminderList = "True";
        dialog->tempTaskNotes = "A4\r\nwhite";
        Change(*dialog);
        Open(*dialog, "Edit");
    }

    std::function<void(FrmTask&)> Change = [](FrmTask&) {};
    FrmTask* dialog = nullptr;
};

} // namespace

// --- Opening -----------------------------------------------------------------------------------------------

TEST_F(TaskEditor, NewTaskOpensWithTheClickedDateAndADeadline) {
    Open(*dialog, "New");
    EXPECT_EQ(dialog->windowTitle(), "Planovarium - New Task");
    EXPECT_EQ(dialog->TextBoxDescription->text(), "");
    EXPECT_EQ(TextOf(dialog->TextBoxNotes), "");
    EXPECT_FALSE(dialog->CheckBoxDone->isChecked());
    EXPECT_FALSE(dialog->ButtonDelete->isEnabled());
    EXPECT_EQ(dialog->ComboPriority->currentText(), "None");
    EXPECT_EQ(dialog->ComboType->currentText(), "None");
    EXPECT_EQ(dialog->ComboReminderTime->currentIndex(), 36);
    EXPECT_EQ(dialog->ComboReminderTime->currentText(), "9:00 AM");
    EXPECT_EQ(dialog->ComboPercentComplete->currentIndex(), 0);
    EXPECT_EQ(dialog->TextboxTaskDate->text(), "Tuesday, October 20, 2009");
    EXPECT_EQ(dialog->tempTaskDate, "10/20/2009");
    EXPECT_TRUE(dialog->CheckBoxDeadline->isChecked());
    EXPECT_EQ(BackColorOf(dialog->LabelDeadline), 0x000000);
    EXPECT_EQ(TextColorOf(dialog->LabelDeadline), 0xFFFFFF);
    EXPECT_EQ(dialog->TextboxReminderDate->text(), "Tuesday, October 20, 2009");
    EXPECT_EQ(dialog->tempTaskReminderDate, "10/20/2009");
    EXPECT_FALSE(dialog->CheckboxReminder->isChecked());
    EXPECT_EQ(dialog->tempTaskReminderList, "False");
    EXPECT_EQ(dialog->tempTaskReminderAlarm, "2009/10/20 09:00:00");
    EXPECT_EQ(BackColorOf(dialog->CheckBoxDone), 0xA0522D);
}

TEST_F(TaskEditor, NewTaskKeepsNothingOfTheTaskEditedBefore) {
    Change = [](FrmTask& fields) {
        fields.tempTaskDone = "True";
        fields.tempTaskDateExists = "False";
        fields.tempTaskType = TypeTable.key.Item(1);
    };
    OpenEdit();
    Open(*dialog, "New");
    EXPECT_EQ(dialog->TextBoxDescription->text(), "");
    EXPECT_EQ(TextOf(dialog->TextBoxNotes), "");
    EXPECT_FALSE(dialog->CheckboxReminder->isChecked());
    EXPECT_EQ(dialog->tempTaskReminderList, "False");
    ExpectReminder(*dialog, false);
    EXPECT_EQ(dialog->ComboPriority->currentText(), "None");
    EXPECT_EQ(dialog->ComboPercentComplete->currentText(), "0%");
    EXPECT_EQ(dialog->ComboReminderTime->currentText(), "9:00 AM");
    EXPECT_EQ(dialog->ComboType->currentText(), "None");
    EXPECT_FALSE(dialog->CheckBoxDone->isChecked());
    EXPECT_TRUE(dialog->CheckBoxDeadline->isChecked());
    EXPECT_FALSE(dialog->ButtonDelete->isEnabled());
    EXPECT_EQ(dialog->tempTaskDate, "10/20/2009");
    EXPECT_EQ(dialog->tempTaskReminderDate, "10/20/2009");
}

TEST_F(TaskEditor, NewTaskKeepsTheReminderDisabledAndGrey) {
    Open(*dialog, "New");
    ExpectReminder(*dialog, false);
}

TEST_F(TaskEditor, EditShowsTheFields) {
    OpenEdit();
    EXPECT_EQ(dialog->windowTitle(), "Planovarium - Edit Task");
    EXPECT_EQ(dialog->TextBoxDescription->text(), "Buy paper");
    EXPECT_EQ(dialog->TextBoxNotes->toPlainText(), "A4\nwhite");
    EXPECT_TRUE(dialog->ButtonDelete->isEnabled());
    EXPECT_EQ(dialog->ComboPriority->currentText(), "High");
    EXPECT_EQ(dialog->ComboType->currentText(), "None");
    EXPECT_EQ(dialog->ComboPercentComplete->currentText(), "50%");
    EXPECT_EQ(dialog->TextboxTaskDate->text(), "Monday, November 2, 2009");
    EXPECT_EQ(dialog->tempTaskDate, "11/2/2009");
    EXPECT_EQ(dialog->TextboxReminderDate->text(), "Sunday, November 1, 2009");
    EXPECT_EQ(dialog->tempTaskReminderDate, "11/1/2009");
    EXPECT_EQ(dialog->ComboReminderTime->currentText(), "08:20 PM");
    ExpectReminder(*dialog, true);
}

TEST_F(TaskEditor, EditOfATaskWithoutDeadlineShowsItsDateAndGreyLabel) {
    Change = [](FrmTask& fields) { fields.tempTaskDateExists = "False"; };
    OpenEdit();
    EXPECT_FALSE(dialog->CheckBoxDeadline->isChecked());
    EXPECT_EQ(BackColorOf(dialog->LabelDeadline), 0x808080);
    EXPECT_EQ(TextColorOf(dialog->LabelDeadline), 0xC0C0C0);
    EXPECT_TRUE(dialog->TextboxTaskDate->isEnabled());
}

TEST_F(TaskEditor, EditOfADoneTaskIsGreen) {
    Change = [](FrmTask& fields) { fields.tempTaskDone = "True"; };
    OpenEdit();
    EXPECT_TRUE(dialog->CheckBoxDone->isChecked());
    EXPECT_EQ(BackColorOf(dialog->CheckBoxDone), 0x008000);
    EXPECT_EQ(BackColorOf(dialog->LabelDoneBG), 0x008000);
    EXPECT_EQ(dialog->ComboPercentComplete->currentText(), "50%");
}

TEST_F(TaskEditor, TypesAreOfferedAnewAtEachOpening) {
    Open(*dialog, "New");
    const int rows = dialog->ComboType->count();
    EXPECT_EQ(dialog->ComboType->itemText(0), "None");
    TypeTable.customname.Replace(1, "Errands");
    Open(*dialog, "New");
    EXPECT_EQ(dialog->ComboType->count(), rows);
    EXPECT_EQ(dialog->ComboType->itemText(1), "Errands");
}

TEST_F(TaskEditor, EditShowsTheCustomNameOfItsType) {
    TypeTable.customname.Replace(1, "Errands");
    Change = [](FrmTask& fields) { fields.tempTaskType = TypeTable.key.Item(1); };
    OpenEdit();
    EXPECT_EQ(dialog->ComboType->currentText(), "Errands");
}

TEST_F(TaskEditor, TypeThatHasGoneLeavesNothingSelected) {
    Change = [](FrmTask& fields) { fields.tempTaskType = "Gone"; };
    OpenEdit();
    EXPECT_EQ(dialog->ComboType->currentIndex(), -1);
}

TEST_F(TaskEditor, PriorityOutsideTheRowsIsShownAsTyped) {
    Change = [](FrmTask& fields) { fields.tempTaskPriority = "Urgent"; };
    OpenEdit();
    EXPECT_EQ(dialog->ComboPriority->currentText(), "Urgent");
    EXPECT_EQ(dialog->ComboPriority->currentIndex(), -1);
}

TEST_F(TaskEditor, OpeningClearsTheFourFlags) {
    dialog->ChangeFlag = dialog->CancelledFlag = dialog->CloseOK = dialog->DeleteFlag = true;
    OpenEdit();
    EXPECT_FALSE(dialog->ChangeFlag);
    EXPECT_FALSE(dialog->CancelledFlag);
    EXPECT_FALSE(dialog->CloseOK);
    EXPECT_FALSE(dialog->DeleteFlag);
}

TEST_F(TaskEditor, OpeningWritesTheHeadsOfThePickerAndHidesIt) {
    window->StartDayOfWeek = "Saturday";
    Open(*dialog, "New");
    EXPECT_TRUE(dialog->Picker->isHidden());
    EXPECT_EQ(dialog->Picker->LabelCalDay[2]->text(), "M");
}

TEST_F(TaskEditor, CombosOfferTheirRows) {
    dialog->MakeControls();
    const auto rowsOf = [](const QComboBox* combo) {
        QStringList rows;
        for (int row = 0; row < combo->count(); ++row) {
            rows.append(combo->itemText(row));
        }
        return rows;
    };
    EXPECT_EQ(rowsOf(dialog->ComboPriority), (QStringList{"None", "Low", "Medium", "High"}));
    EXPECT_EQ(rowsOf(dialog->ComboPercentComplete), (QStringList{"0%", "25%", "50%", "75%", "100%"}));
    EXPECT_EQ(dialog->ComboReminderTime->count(), 96);
    EXPECT_EQ(dialog->ComboReminderTime->itemText(36), "9:00 AM");
}

TEST_F(TaskEditor, ControlsHaveTheirHelpNumbers) {
    dialog->MakeControls();
    ExpectTopics(*dialog, {{"ButtonCancel", 601},
                           {"ButtonDelete", 602},
                           {"ButtonOK", 603},
                           {"CheckBoxDeadline", 604},
                           {"CheckBoxDone", 605},
                           {"CheckboxReminder", 606},
                           {"ComboPercentComplete", 607},
                           {"ComboPriority", 608},
                           {"ComboReminderTime", 609},
                           {"ComboType", 610},
                           {"PicButtonReminderDate", 611},
                           {"TextBoxDescription", 612},
                           {"TextBoxNotes", 613},
                           {"TextboxReminderDate", 614},
                           {"TextboxTaskDate", 615},
                           {"picButtonTaskDate", 616},
                           {"picHelp", 617}});
}

// --- Percent and done --------------------------------------------------------------------------------------

TEST_F(TaskEditor, LastPercentRowTicksDone) {
    Open(*dialog, "New");
    Choose(dialog->ComboPercentComplete, 4);
    EXPECT_TRUE(dialog->CheckBoxDone->isChecked());
    EXPECT_EQ(BackColorOf(dialog->LabelDoneBG), 0x008000);
    EXPECT_TRUE(dialog->ChangeFlag);
    Choose(dialog->ComboPercentComplete, 2);
    EXPECT_FALSE(dialog->CheckBoxDone->isChecked());
    EXPECT_EQ(BackColorOf(dialog->LabelDoneBG), 0xA0522D);
}

TEST_F(TaskEditor, UntickingDoneAfterHalfWayGivesNothingDone) {
    OpenEdit();
    Click(dialog->CheckBoxDone);
    EXPECT_EQ(dialog->ComboPercentComplete->currentText(), "100%");
    Click(dialog->CheckBoxDone);
    EXPECT_EQ(dialog->ComboPercentComplete->currentText(), "0%");
    EXPECT_TRUE(dialog->ChangeFlag);
}

TEST_F(TaskEditor, TypedPercentIsMadeWholeOnLeavingAndOnEnter) {
    struct Case {
        const char* typed;
        const char* percent;
        bool done;
    };

    for (const Case& entry : {Case{"40", "40%", false}, Case{"100", "100%", true}, Case{"1000", "0%", false},
                              Case{"x", "0%", false}, Case{"", "0%", false}, Case{"101", "0%", false}}) {
        Open(*dialog, "New");
        TypeAndLeave(dialog->ComboPercentComplete, entry.typed);
        EXPECT_EQ(dialog->ComboPercentComplete->currentText(), entry.percent) << entry.typed;
        EXPECT_EQ(dialog->CheckBoxDone->isChecked(), entry.done) << entry.typed;
        EXPECT_TRUE(dialog->ChangeFlag);
        TypeAndEnter(dialog->ComboPercentComplete, entry.typed);
        EXPECT_EQ(dialog->ComboPercentComplete->currentText(), entry.percent) << entry.typed;
        EXPECT_TRUE(dialog->isVisible()) << "Enter has pressed OK";
    }
}

// --- Deadline, priority, type ------------------------------------------------------------------------------

TEST_F(TaskEditor, DeadlineClickRecoloursAndLeavesTheDateEnabled) {
    Open(*dialog, "New");
    Click(dialog->CheckBoxDeadline);
    EXPECT_EQ(BackColorOf(dialog->LabelDeadline), 0x808080);
    EXPECT_EQ(TextColorOf(dialog->LabelDeadline), 0xC0C0C0);
    EXPECT_TRUE(dialog->TextboxTaskDate->isEnabled());
    EXPECT_TRUE(dialog->ChangeFlag);
    Click(dialog->LabelDeadline);
    EXPECT_TRUE(dialog->CheckBoxDeadline->isChecked());
    EXPECT_EQ(BackColorOf(dialog->LabelDeadline), 0x000000);
}

TEST_F(TaskEditor, TomorrowInThePickerTicksTheDeadlineAgain) {
    Open(*dialog, "New");
    Click(dialog->CheckBoxDeadline);
    dialog->ChangeFlag = false;
    Click(dialog->picButtonTaskDate);
    Click(dialog->Picker->LabelTomorrow);
    EXPECT_TRUE(dialog->CheckBoxDeadline->isChecked());
    EXPECT_EQ(BackColorOf(dialog->LabelDeadline), 0x000000);
    EXPECT_EQ(dialog->TextboxTaskDate->text(), "Thursday, October 15, 2009");
    EXPECT_EQ(dialog->tempTaskDate, "10/15/2009");
    EXPECT_EQ(dialog->tempTaskReminderDate, "10/20/2009");
    EXPECT_TRUE(dialog->ChangeFlag);
}

TEST_F(TaskEditor, PriorityIsCutToTenCharactersOnLeavingAndOnEnter) {
    Open(*dialog, "New");
    TypeAndLeave(dialog->ComboPriority, "Very urgent!");
    EXPECT_EQ(dialog->ComboPriority->currentText(), "Very urgen");
    TypeAndEnter(dialog->ComboPriority, "Most important");
    EXPECT_EQ(dialog->ComboPriority->currentText(), "Most impor");
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(TaskEditor, EntriesSetTheChangeFlag) {
    const std::vector<std::function<void()>> entries{
        [this] { Type(dialog->TextBoxDescription, "x"); },
        [this] { QTest::keyClicks(dialog->TextBoxNotes, "x"); },
        [this] { Choose(dialog->ComboType, 1); },
        [this] { Choose(dialog->ComboPriority, 1); },
        [this] { Click(dialog->CheckboxReminder); },
    };
    for (const auto& enter : entries) {
        Open(*dialog, "New");
        EXPECT_FALSE(dialog->ChangeFlag);
        enter();
        EXPECT_TRUE(dialog->ChangeFlag);
    }
}

// --- Reminder ----------------------------------------------------------------------------------------------

TEST_F(TaskEditor, ReminderClickEnablesColoursAndSetsTheAlarm) {
    Open(*dialog, "New");
    dialog->tempTaskReminderAlarm.clear();
    Click(dialog->CheckboxReminder);
    ExpectReminder(*dialog, true);
    EXPECT_EQ(dialog->tempTaskReminderAlarm, "2009/10/20 09:00:00");
    Click(dialog->CheckboxReminder);
    ExpectReminder(*dialog, false);
}

TEST_F(TaskEditor, BoxesTakeTheScreenReadersToggleAsAClick) {
    Open(*dialog, "New");
    dialog->tempTaskReminderAlarm.clear();
    ToggleByScreenReader(dialog->CheckboxReminder);
    ExpectReminder(*dialog, true);
    EXPECT_EQ(dialog->tempTaskReminderAlarm, "2009/10/20 09:00:00");
    dialog->ChangeFlag = false;
    ToggleByScreenReader(dialog->CheckBoxDeadline);
    EXPECT_EQ(BackColorOf(dialog->LabelDeadline), 0x808080);
    EXPECT_TRUE(dialog->ChangeFlag);
}

TEST_F(TaskEditor, ReminderTimeIsRewrittenAndSetsTheAlarm) {
    OpenEdit();
    TypeAndLeave(dialog->ComboReminderTime, "7:05 pm");
    EXPECT_EQ(dialog->ComboReminderTime->currentText(), "07:05 PM");
    EXPECT_EQ(dialog->tempTaskReminderAlarm, "2009/11/01 19:05:00");
    EXPECT_TRUE(dialog->ChangeFlag);
    TypeAndEnter(dialog->ComboReminderTime, "soon");
    EXPECT_EQ(dialog->ComboReminderTime->currentText(), "09:00 AM");
    EXPECT_EQ(dialog->tempTaskReminderAlarm, "2009/11/01 09:00:00");
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(TaskEditor, PickedReminderDateSetsTheAlarm) {
    OpenEdit();
    Click(dialog->PicButtonReminderDate);
    Click(dialog->Picker->LabelToday);
    EXPECT_EQ(dialog->tempTaskReminderDate, "10/14/2009");
    EXPECT_EQ(dialog->tempTaskReminderAlarm, "2009/10/14 20:20:00");
    EXPECT_EQ(dialog->tempTaskDate, "11/2/2009");
    EXPECT_TRUE(dialog->ChangeFlag);
}
