// The editor of assignments: what follows each entry.
#include "editors/AssignmentTest.h"

#include <QApplication>

namespace {

class AssignmentEntries : public AssignmentTest {
protected:
    void SetUp() override {
        AssignmentTest::SetUp();
        Open(*dialog, "New");
    }

    void ExpectDone(bool done) const {
        const int color = done ? 0x008000 : 0xA0522D;
        EXPECT_EQ(dialog->CheckBoxDone->isChecked(), done);
        EXPECT_EQ(BackColorOf(dialog->CheckBoxDone), color);
        EXPECT_EQ(BackColorOf(dialog->LabelDoneBG), color);
    }

    void ExpectTimeLeft(const char* text, bool finished) const {
        EXPECT_EQ(dialog->TextBoxTimeLeft->text(), text);
        EXPECT_EQ(BoxColorOf(dialog->TextBoxTimeLeft), finished ? 0xF0FFF0 : 0xFFE4E1);
    }
};

} // namespace

// --- Percent, done, estimate -------------------------------------------------------------------------------

TEST_F(AssignmentEntries, PercentRowsSetDoneAndTimeLeft) {
    Choose(dialog->ComboPercentComplete, 4);
    ExpectDone(true);
    ExpectTimeLeft("00 : 00", true);
    EXPECT_TRUE(dialog->ChangeFlag);
    Choose(dialog->ComboPercentComplete, 1);
    ExpectDone(false);
    ExpectTimeLeft("00 : 22", false); // 22.5 minutes go to the even minute
}

TEST_F(AssignmentEntries, SeventyFivePercentThenDoneThenNotDoneIsNothingDone) {
    TypeAndLeave(dialog->ComboPercentComplete, "75%");
    ExpectTimeLeft("00 : 08", false);
    dialog->ChangeFlag = false;
    Click(dialog->CheckBoxDone);
    EXPECT_EQ(dialog->ComboPercentComplete->currentText(), "100%");
    ExpectDone(true);
    ExpectTimeLeft("00 : 00", true);
    EXPECT_TRUE(dialog->ChangeFlag);
    Click(dialog->CheckBoxDone);
    EXPECT_EQ(dialog->ComboPercentComplete->currentText(), "0%");
    ExpectDone(false);
    ExpectTimeLeft("00 : 30", false);
}

TEST_F(AssignmentEntries, HundredTypedTicksDone) {
    TypeAndLeave(dialog->ComboPercentComplete, "100");
    EXPECT_EQ(dialog->ComboPercentComplete->currentText(), "100%");
    ExpectDone(true);
    ExpectTimeLeft("00 : 00", true);
}

TEST_F(AssignmentEntries, HundredWithABlankInFrontIsNothing) {
    TypeAndLeave(dialog->ComboPercentComplete, " 100");
    EXPECT_EQ(dialog->ComboPercentComplete->currentText(), "0%");
    ExpectDone(false);
}

TEST_F(AssignmentEntries, PercentIsValidatedOnLeavingAndOnEnter) {
    struct Case {
        const char* typed;
        const char* percent;
    };

    for (const Case& entry : {Case{"40%", "40%"}, Case{"40", "40%"}, Case{"7%%", "7%"}, Case{"1000", "0%"},
                              Case{"4.5", "0%"}, Case{"-5", "0%"}, Case{"", "0%"}, Case{"101", "0%"}}) {
        dialog->ChangeFlag = false;
        TypeAndLeave(dialog->ComboPercentComplete, entry.typed);
        EXPECT_EQ(dialog->ComboPercentComplete->currentText(), entry.percent) << entry.typed;
        EXPECT_TRUE(dialog->ChangeFlag);
        Type(dialog->ComboPercentComplete, "55");
        TypeAndEnter(dialog->ComboPercentComplete, entry.typed);
        EXPECT_EQ(dialog->ComboPercentComplete->currentText(), entry.percent) << entry.typed;
    }
    EXPECT_TRUE(dialog->isVisible()) << "Enter has pressed OK";
    EXPECT_TRUE(Script.boxes.empty());
}

TEST_F(AssignmentEntries, LessThanHundredTypedTakesDoneAway) {
    Click(dialog->CheckBoxDone);
    TypeAndLeave(dialog->ComboPercentComplete, "99");
    ExpectDone(false);
    ExpectTimeLeft("00 : 01", false);
}

TEST_F(AssignmentEntries, UnfinishedWorkKeepsAMinute) {
    TypeAndLeave(dialog->ComboEstTime, "00 : 01");
    TypeAndLeave(dialog->ComboPercentComplete, "99%");
    ExpectTimeLeft("00 : 01", false);
}

TEST_F(AssignmentEntries, EstimateIsValidatedOnLeavingAndOnEnter) {
    struct Case {
        const char* typed;
        const char* estimate;
    };

    for (const Case& entry :
         {Case{"5", "00 : 30"}, Case{"5:", "05 : 30"}, Case{"0:0", "00 : 01"}, Case{"100:75", "99 : 00"},
          Case{"1:2:3", "01 : 30"}, Case{"", "00 : 30"}, Case{"1 : 00 : 0", "00 : 30"},
          Case{"1;30", "00 : 30"}, Case{":45", "00 : 45"}, Case{"2:5", "02 : 05"}}) {
        Choose(dialog->ComboEstTime, 2);
        dialog->ChangeFlag = false;
        TypeAndLeave(dialog->ComboEstTime, entry.typed);
        EXPECT_EQ(dialog->ComboEstTime->currentText(), entry.estimate) << entry.typed;
        EXPECT_EQ(dialog->TextBoxTimeLeft->text(), entry.estimate) << entry.typed;
        EXPECT_TRUE(dialog->ChangeFlag);
        Choose(dialog->ComboEstTime, 2);
        TypeAndEnter(dialog->ComboEstTime, entry.typed);
        EXPECT_EQ(dialog->ComboEstTime->currentText(), entry.estimate) << entry.typed;
    }
    EXPECT_TRUE(dialog->isVisible()) << "Enter has pressed OK";
}

TEST_F(AssignmentEntries, EstimateRowSetsTimeLeft) {
    Choose(dialog->ComboEstTime, 26);
    ExpectTimeLeft("20 : 00", false);
    EXPECT_TRUE(dialog->ChangeFlag);
}

// --- Type, score and total ---------------------------------------------------------------------------------

TEST_F(AssignmentEntries, TypeIsCutToTenCharactersOnLeavingAndOnEnter) {
    TypeAndLeave(dialog->ComboTypeList, "Dissertation");
    EXPECT_EQ(dialog->ComboTypeList->currentText(), "Dissertati");
    TypeAndEnter(dialog->ComboTypeList, "Presentation");
    EXPECT_EQ(dialog->ComboTypeList->currentText(), "Presentati");
    EXPECT_EQ(dialog->ComboTypeList->count(), 7);
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(AssignmentEntries, ScoreAndTotalGiveTheGrade) {
    struct Case {
        const char *score, *total, *percentage, *letter;
    };

    for (const Case& entry :
         {Case{"85", "100", "85%", "B"}, Case{"82", "100", "82%", "B-"}, Case{"72", "100", "72%", "C-"},
          Case{"62", "100", "62%", "D-"}, Case{"1", "0", "", ""}, Case{"120", "100", "120%", "A"},
          Case{"", "100", "", ""}, Case{" 45 ", "50", "90%", "A-"}}) {
        TypeAndLeave(dialog->TextBoxScore, entry.score);
        TypeAndEnter(dialog->TextBoxTotal, entry.total);
        EXPECT_EQ(dialog->TextBoxPercentage->text(), entry.percentage) << entry.score;
        EXPECT_EQ(dialog->TextBoxGrade->text(), entry.letter) << entry.score;
        const int color = *entry.letter == '\0' ? 0x808080 : 0x000000;
        EXPECT_EQ(TextColorOf(dialog->LabelPercent), color) << entry.score;
        EXPECT_EQ(TextColorOf(dialog->LabelGrade), color) << entry.score;
    }
    EXPECT_EQ(dialog->TextBoxScore->text(), "45") << "trimmed";
    EXPECT_TRUE(Script.boxes.empty());
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(AssignmentEntries, ScoreThatIsNoneIsAskedForByTheTypeAsTyped) {
    TypeAndLeave(dialog->ComboTypeList, "Test");
    for (const char* typed : {"abc", "-5", "5x"}) {
        Script.boxes.clear();
        TypeAndLeave(dialog->TextBoxScore, typed);
        EXPECT_EQ(Script.boxes,
                  std::vector{Message("Enter the number score that you received on this Test.")})
            << typed;
        EXPECT_EQ(dialog->TextBoxScore->text(), "") << typed;
        EXPECT_EQ(QApplication::focusWidget(), dialog->TextBoxScore) << typed;
    }
    Script.boxes.clear();
    TypeAndEnter(dialog->TextBoxScore, "abc");
    EXPECT_EQ(Script.boxes.size(), 1U);
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(AssignmentEntries, TotalThatIsNoneIsAskedForAndTakesTheGradeAway) {
    TypeAndLeave(dialog->TextBoxScore, "85");
    TypeAndLeave(dialog->TextBoxTotal, "100");
    TypeAndLeave(dialog->TextBoxTotal, "many");
    EXPECT_EQ(Script.boxes,
              std::vector{Message("Enter the total number of points possible for this Assignment.")});
    EXPECT_EQ(dialog->TextBoxTotal->text(), "");
    EXPECT_EQ(QApplication::focusWidget(), dialog->TextBoxTotal);
    EXPECT_EQ(dialog->TextBoxGrade->text(), "");
    EXPECT_EQ(TextColorOf(dialog->LabelGrade), 0x808080);
}

TEST_F(AssignmentEntries, PressThatBringsTheMessageDoesNothingMore) {
    dialog->ComboClassNameList->setCurrentIndex(0);
    Type(dialog->TextBoxScore, "abc");
    Click(dialog->ButtonOK);
    EXPECT_EQ(Script.boxes.size(), 1U);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_FALSE(dialog->ButtonOK->isDown());
    EXPECT_EQ(QApplication::focusWidget(), dialog->TextBoxScore);
    Click(dialog->ButtonOK);
    EXPECT_FALSE(dialog->isVisible()) << "the next press counts again";
}

TEST_F(AssignmentEntries, PressOnCancelSkipsTheMessage) {
    Type(dialog->TextBoxScore, "abc");
    Script.answers = {Answer::No};
    Click(dialog->ButtonCancel);
    EXPECT_EQ(Script.boxes, std::vector{Question("Cancel this assignment?")});
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->TextBoxScore->text(), "");
}

TEST_F(AssignmentEntries, FocusThatGoesToAnotherWindowValidatesNothing) {
    Type(dialog->TextBoxScore, "abc");
    window->activateWindow();
    ASSERT_TRUE(WaitUntil([this] { return QApplication::activeWindow() == window.get(); }));
    EXPECT_TRUE(Script.boxes.empty());
    EXPECT_EQ(dialog->TextBoxScore->text(), "abc");
}

TEST_F(AssignmentEntries, FocusThatGoesToAMenuOrAListOfRowsValidatesNothing) {
    Type(dialog->TextBoxScore, "abc");
    for (const Qt::FocusReason reason : {Qt::PopupFocusReason, Qt::MenuBarFocusReason}) {
        QFocusEvent leaving(QEvent::FocusOut, reason);
        QCoreApplication::sendEvent(dialog->TextBoxScore, &leaving);
        EXPECT_TRUE(Script.boxes.empty());
        EXPECT_EQ(dialog->TextBoxScore->text(), "abc");
    }
}

// --- Reminder and dates ------------------------------------------------------------------------------------

TEST_F(AssignmentEntries, ReminderClickEnablesColoursAndSetsTheAlarm) {
    dialog->tempAssignmentReminderAlarm.clear();
    Click(dialog->CheckboxReminder);
    ExpectReminder(*dialog, true);
    EXPECT_EQ(dialog->tempAssignmentReminderAlarm, "2009/10/20 09:00:00");
    EXPECT_TRUE(dialog->ChangeFlag);
    dialog->ChangeFlag = false;
    Click(dialog->CheckboxReminder);
    ExpectReminder(*dialog, false);
    EXPECT_TRUE(dialog->ChangeFlag);
}

TEST_F(AssignmentEntries, BoxesTakeTheScreenReadersToggleAsAClick) {
    dialog->tempAssignmentReminderAlarm.clear();
    ToggleByScreenReader(dialog->CheckboxReminder);
    ExpectReminder(*dialog, true);
    EXPECT_EQ(dialog->tempAssignmentReminderAlarm, "2009/10/20 09:00:00");
    EXPECT_TRUE(dialog->ChangeFlag);
    ToggleByScreenReader(dialog->CheckBoxDone);
    EXPECT_EQ(dialog->ComboPercentComplete->currentText(), "100%");
}

TEST_F(AssignmentEntries, ReminderTimeIsRewrittenAndSetsTheAlarm) {
    struct Case {
        const char *typed, *time, *alarm;
    };

    Click(dialog->CheckboxReminder);
    for (const Case& entry :
         {Case{"7:05 pm", "07:05 PM", "2009/10/20 19:05:00"},
          Case{"14:30", "02:30 PM", "2009/10/20 14:30:00"}, Case{"soon", "09:00 AM", "2009/10/20 09:00:00"},
          Case{"", "09:00 AM", "2009/10/20 09:00:00"}, Case{"12:15 AM", "12:15 AM", "2009/10/20 00:15:00"}}) {
        dialog->ChangeFlag = false;
        TypeAndLeave(dialog->ComboReminderTime, entry.typed);
        EXPECT_EQ(dialog->ComboReminderTime->currentText(), entry.time) << entry.typed;
        EXPECT_EQ(dialog->tempAssignmentReminderAlarm, entry.alarm) << entry.typed;
        EXPECT_TRUE(dialog->ChangeFlag);
        Type(dialog->ComboReminderTime, "6 AM");
        TypeAndEnter(dialog->ComboReminderTime, entry.typed);
        EXPECT_EQ(dialog->tempAssignmentReminderAlarm, entry.alarm) << entry.typed;
    }
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(AssignmentEntries, PickedDueDateIsShownAndLeavesTheReminder) {
    Click(dialog->TextboxDateDue);
    ASSERT_TRUE(dialog->Picker->isVisible());
    Click(dialog->Picker->LabelTomorrow);
    EXPECT_EQ(dialog->TextboxDateDue->text(), "Thursday, October 15, 2009");
    EXPECT_EQ(dialog->tempAssignmentDate, "10/15/2009");
    EXPECT_EQ(dialog->tempAssignmentReminderDate, "10/20/2009");
    EXPECT_TRUE(dialog->ChangeFlag);
}

TEST_F(AssignmentEntries, PickedReminderDateSetsTheAlarm) {
    Click(dialog->CheckboxReminder);
    Click(dialog->TextboxReminderDate);
    Click(dialog->Picker->LabelToday);
    EXPECT_EQ(dialog->TextboxReminderDate->text(), "Wednesday, October 14, 2009");
    EXPECT_EQ(dialog->tempAssignmentReminderAlarm, "2009/10/14 09:00:00");
    EXPECT_EQ(dialog->tempAssignmentDate, "10/20/2009");
}

TEST_F(AssignmentEntries, PickOfTheSameDateIsAChange) {
    Click(dialog->picButtonDateDue);
    QTest::keyClick(dialog->Picker, Qt::Key_Return);
    EXPECT_EQ(dialog->tempAssignmentDate, "10/20/2009");
    EXPECT_TRUE(dialog->ChangeFlag);
}

TEST_F(AssignmentEntries, ReminderDateThatIsOffOpensNoPicker) {
    for (QWidget* control :
         std::initializer_list<QWidget*>{dialog->TextboxReminderDate, dialog->PicButtonReminderDate}) {
        ASSERT_FALSE(control->isEnabled());
        Click(control);
        EXPECT_TRUE(dialog->Picker->isHidden());
        EXPECT_FALSE(dialog->Picker->CalendarOpen); // it was not even open for a moment
    }
}

// --- What counts as a change -------------------------------------------------------------------------------

TEST_F(AssignmentEntries, EntriesSetTheChangeFlag) {
    const std::vector<std::function<void()>> entries{
        [this] { Type(dialog->TextBoxDescription, "x"); },
        [this] { QTest::keyClicks(dialog->TextBoxNotes, "x"); },
        [this] { Type(dialog->TextBoxScore, "1"); },
        [this] { Type(dialog->TextBoxTotal, "1"); },
        [this] { Choose(dialog->ComboTypeList, 2); },
        [this] { Choose(dialog->ComboClassNameList, 1); },
        [this] { Choose(dialog->ComboEstTime, 5); },
    };
    for (const auto& enter : entries) {
        Open(*dialog, "New");
        EXPECT_FALSE(dialog->ChangeFlag);
        enter();
        EXPECT_TRUE(dialog->ChangeFlag);
    }
}

TEST_F(AssignmentEntries, PriorityAndATypedTypeAreNoChange) {
    Click(dialog->CheckBoxPriority);
    TypeAndLeave(dialog->ComboTypeList, "Essay");
    EXPECT_FALSE(dialog->ChangeFlag);
}
