// The editor of assignments as it opens.
#include "core/DateText.h"
#include "editors/AssignmentTest.h"

#include <QWhatsThis>

#include <algorithm>

void AssignmentTest::SetUp() {
    EditorTest::SetUp();
    dialog = AssignmentDialog;
    dialog->tempAssignmentClassName = "History";
    dialog->tempAssignmentDate = "2009/11/02";
    dialog->tempAssignmentType = "Quiz";
    dialog->tempAssignmentPriority = "True";
    dialog->tempAssignmentEstTime = "02 : 00";
    dialog->tempAssignmentTimeLeft = "01 : 00";
    dialog->tempAssignmentPercentComplete = "50%";
    dialog->tempAssignmentDescription = "Chapter 7";
    dialog->tempAssignmentDone = "False";
    dialog->tempAssignmentScore = "41";
    dialog->tempAssignmentTotal = "50";
    dialog->tempAssignmentGrade = "80%";
    dialog->tempAssignmentReminder = "True";
    dialog->tempAssignmentReminderDate = "2009/11/01";
    dialog->tempAssignmentReminderTime = "08:20 PM";
    dialog->tempAssignmentReminderAlarm = "2009/11/01 20:20:00";
    dialog->tempAssignmentReminderList = "True";
    dialog->tempAssignmentNotes = "One\r\nTwo";
}

void AssignmentTest::OpenEdit() {
    Open(*dialog, "Edit");
}

namespace {

using AssignmentOpening = AssignmentTest;

}

TEST_F(AssignmentOpening, CombosOfferTheirRows) {
    dialog->MakeControls();
    ASSERT_EQ(dialog->ComboTypeList->count(), 7);
    EXPECT_EQ(dialog->ComboTypeList->itemText(6), "Project");
    EXPECT_EQ(dialog->ComboPercentComplete->count(), 5);
    ASSERT_EQ(dialog->ComboEstTime->count(), 27);
    EXPECT_EQ(dialog->ComboEstTime->itemText(0), "00 : 15");
    EXPECT_EQ(dialog->ComboEstTime->itemText(26), "20 : 00");
    EXPECT_EQ(dialog->ComboReminderTime->count(), 96);
}

TEST_F(AssignmentOpening, NewAssignmentIsEmptyAndNotDone) {
    OpenEdit();
    Open(*dialog, "New");
    EXPECT_EQ(dialog->windowTitle(), "Planovarium - New Assignment");
    for (const QLineEdit* box : {dialog->TextBoxDescription, dialog->TextBoxScore, dialog->TextBoxTotal,
                                 dialog->TextBoxPercentage, dialog->TextBoxGrade}) {
        EXPECT_EQ(box->text(), "") << box->objectName().toStdString();
    }
    EXPECT_EQ(TextOf(dialog->TextBoxNotes), "");
    EXPECT_FALSE(dialog->CheckBoxDone->isChecked());
    EXPECT_EQ(BackColorOf(dialog->CheckBoxDone), 0xA0522D);
    EXPECT_EQ(BackColorOf(dialog->LabelDoneBG), 0xA0522D);
    EXPECT_FALSE(dialog->ButtonDelete->isEnabled());
    EXPECT_EQ(dialog->ComboTypeList->currentIndex(), 0);
    EXPECT_EQ(dialog->ComboTypeList->currentText(), "Assignment");
    EXPECT_FALSE(dialog->CheckBoxPriority->isChecked());
    EXPECT_EQ(dialog->ComboReminderTime->currentIndex(), 36);
    EXPECT_EQ(TextColorOf(dialog->LabelPercent), 0x808080);
    EXPECT_EQ(TextColorOf(dialog->LabelGrade), 0x808080);
    EXPECT_EQ(dialog->ComboEstTime->currentIndex(), 1);
    EXPECT_EQ(dialog->ComboPercentComplete->currentIndex(), 0);
    EXPECT_EQ(dialog->TextBoxTimeLeft->text(), "00 : 30");
    EXPECT_EQ(BoxColorOf(dialog->TextBoxTimeLeft), 0xFFE4E1);
}

TEST_F(AssignmentOpening, ClassesAreThoseOfTheTermAndNoneIsSelected) {
    Open(*dialog, "New");
    EXPECT_EQ(WithoutMnemonics(dialog->LabelClass->text()), "Fall 2009 Classes ");
    ASSERT_EQ(dialog->ComboClassNameList->count(), 2);
    EXPECT_EQ(dialog->ComboClassNameList->itemText(0), "Algebra");
    EXPECT_EQ(dialog->ComboClassNameList->itemText(1), "History");
    EXPECT_EQ(dialog->ComboClassNameList->currentIndex(), -1);
    EXPECT_EQ(dialog->ComboClassNameList->currentText(), "");
}

TEST_F(AssignmentOpening, NewAssignmentHasTheClickedDateTwice) {
    Open(*dialog, "New");
    EXPECT_EQ(dialog->TextboxDateDue->text(), "Tuesday, October 20, 2009");
    EXPECT_EQ(dialog->tempAssignmentDate, "10/20/2009");
    EXPECT_EQ(dialog->TextboxReminderDate->text(), "Tuesday, October 20, 2009");
    EXPECT_EQ(dialog->tempAssignmentReminderDate, "10/20/2009");
    EXPECT_EQ(dialog->tempAssignmentReminderAlarm, "2009/10/20 09:00:00");
}

TEST_F(AssignmentOpening, NewAssignmentHasNoReminder) {
    OpenEdit();
    Open(*dialog, "New");
    EXPECT_FALSE(dialog->CheckboxReminder->isChecked());
    EXPECT_EQ(dialog->tempAssignmentReminderList, "False");
    ExpectReminder(*dialog, false);
}

TEST_F(AssignmentOpening, EditShowsTheFields) {
    OpenEdit();
    EXPECT_EQ(dialog->windowTitle(), "Planovarium - Edit Assignment");
    EXPECT_EQ(dialog->TextBoxDescription->text(), "Chapter 7");
    EXPECT_EQ(dialog->TextBoxNotes->toPlainText(), "One\nTwo");
    EXPECT_TRUE(dialog->ButtonDelete->isEnabled());
    EXPECT_EQ(dialog->ComboClassNameList->currentText(), "History");
    EXPECT_EQ(dialog->ComboTypeList->currentText(), "Quiz");
    EXPECT_TRUE(dialog->CheckBoxPriority->isChecked());
    EXPECT_EQ(dialog->ComboEstTime->currentText(), "02 : 00");
    EXPECT_EQ(dialog->ComboPercentComplete->currentText(), "50%");
    EXPECT_EQ(dialog->TextBoxTimeLeft->text(), "01 : 00");
    EXPECT_FALSE(dialog->CheckBoxDone->isChecked());
    EXPECT_EQ(dialog->TextboxDateDue->text(), "Monday, November 2, 2009");
    EXPECT_EQ(dialog->tempAssignmentDate, "11/2/2009");
    EXPECT_EQ(dialog->TextboxReminderDate->text(), "Sunday, November 1, 2009");
    EXPECT_EQ(dialog->tempAssignmentReminderDate, "11/1/2009");
    EXPECT_EQ(dialog->ComboReminderTime->currentText(), "08:20 PM");
    EXPECT_EQ(dialog->tempAssignmentReminderAlarm, "2009/11/01 20:20:00");
}

TEST_F(AssignmentOpening, EditShowsTheTimeLeftOfTheRecordWhateverItsEstimate) {
    dialog->tempAssignmentTimeLeft = "00 : 10";
    OpenEdit();
    EXPECT_EQ(dialog->TextBoxTimeLeft->text(), "00 : 10");
}

TEST_F(AssignmentOpening, EditComputesTheGradeAnewFromScoreAndTotal) {
    OpenEdit();
    EXPECT_EQ(dialog->TextBoxPercentage->text(), "82%");
    EXPECT_EQ(dialog->TextBoxGrade->text(), "B-");
    EXPECT_EQ(TextColorOf(dialog->LabelPercent), 0x000000);
    EXPECT_EQ(TextColorOf(dialog->LabelGrade), 0x000000);
}

TEST_F(AssignmentOpening, EditClearsAGradeThatScoreAndTotalDoNotGive) {
    dialog->tempAssignmentTotal.clear();
    OpenEdit();
    EXPECT_EQ(dialog->TextBoxPercentage->text(), "");
    EXPECT_EQ(TextColorOf(dialog->LabelPercent), 0x808080);
}

TEST_F(AssignmentOpening, EditEnablesTheReminderThatIsOn) {
    OpenEdit();
    EXPECT_TRUE(dialog->CheckboxReminder->isChecked());
    ExpectReminder(*dialog, true);
}

TEST_F(AssignmentOpening, ReminderLabelsAreReadableOnTheirStripInBothStates) {
    for (const char* mode : {"New", "Edit"}) {
        Open(*dialog, mode);
        const QColor strip = QColor::fromRgb(static_cast<QRgb>(BackColorOf(dialog->LabelRemBG)));
        const QColor text = QColor::fromRgb(static_cast<QRgb>(TextColorOf(dialog->LabelRemDate)));
        EXPECT_GT(text.lightness() - strip.lightness(), 100) << mode;
    }
}

TEST_F(AssignmentOpening, EditOfADoneAssignmentIsGreen) {
    dialog->tempAssignmentDone = "True";
    dialog->tempAssignmentTimeLeft = "00 : 00";
    OpenEdit();
    EXPECT_TRUE(dialog->CheckBoxDone->isChecked());
    EXPECT_EQ(BackColorOf(dialog->CheckBoxDone), 0x008000);
    EXPECT_EQ(BackColorOf(dialog->LabelDoneBG), 0x008000);
    EXPECT_EQ(BoxColorOf(dialog->TextBoxTimeLeft), 0xF0FFF0);
    EXPECT_EQ(dialog->ComboPercentComplete->currentText(), "50%") << "shown as the record has it";
}

TEST_F(AssignmentOpening, TextsWithoutARowAreShownAsTyped) {
    dialog->tempAssignmentType = "Essay";
    dialog->tempAssignmentEstTime = "00 : 20";
    dialog->tempAssignmentPercentComplete = "40%";
    OpenEdit();
    EXPECT_EQ(dialog->ComboTypeList->currentText(), "Essay");
    EXPECT_EQ(dialog->ComboEstTime->currentText(), "00 : 20");
    EXPECT_EQ(dialog->ComboPercentComplete->currentText(), "40%");
    EXPECT_EQ(dialog->ComboPercentComplete->currentIndex(), -1);
}

TEST_F(AssignmentOpening, ClassOutsideTheTermLeavesNothingSelected) {
    dialog->tempAssignmentClassName = "Chemistry";
    OpenEdit();
    EXPECT_EQ(dialog->ComboClassNameList->currentIndex(), -1);
}

TEST_F(AssignmentOpening, OpeningClearsTheFourFlags) {
    for (const char* mode : {"New", "Edit"}) {
        dialog->ChangeFlag = dialog->CancelledFlag = dialog->CloseOK = dialog->DeleteFlag = true;
        Open(*dialog, mode);
        EXPECT_FALSE(dialog->ChangeFlag);
        EXPECT_FALSE(dialog->CancelledFlag);
        EXPECT_FALSE(dialog->CloseOK);
        EXPECT_FALSE(dialog->DeleteFlag);
    }
}

TEST_F(AssignmentOpening, OpeningWritesTheHeadsOfThePickerAndHidesIt) {
    window->StartDayOfWeek = "Sunday";
    OpenEdit();
    EXPECT_TRUE(dialog->Picker->isHidden());
    EXPECT_EQ(dialog->Picker->LabelCalDay[0]->text(), "S");
    EXPECT_EQ(dialog->Picker->LabelCalDay[1]->text(), "M");
}

TEST_F(AssignmentOpening, FieldThatValidatesItselfHasNotTheFirstFocus) {
    OpenEdit();
    EXPECT_EQ(dialog->focusWidget(), dialog->ComboClassNameList);
}

TEST_F(AssignmentOpening, ReminderTimeThatIsNoneOpensAndCountsAsNine) {
    dialog->tempAssignmentReminderTime = "soon";
    OpenEdit();
    EXPECT_EQ(dialog->ComboReminderTime->currentText(), "soon");
    EXPECT_EQ(dialog->tempAssignmentReminderAlarm, "2009/11/01 09:00:00");
}

TEST_F(AssignmentOpening, ControlsHaveTheirHelpNumbers) {
    dialog->MakeControls();
    ExpectTopics(*dialog,
                 {{"ButtonCancel", 201},       {"ButtonDelete", 202},     {"ButtonOK", 203},
                  {"CheckBoxDone", 204},       {"CheckBoxPriority", 205}, {"CheckboxReminder", 206},
                  {"ComboClassNameList", 207}, {"ComboEstTime", 208},     {"ComboPercentComplete", 209},
                  {"ComboReminderTime", 210},  {"ComboTypeList", 211},    {"PicButtonReminderDate", 212},
                  {"TextBoxDescription", 213}, {"TextBoxGrade", 214},     {"TextBoxNotes", 215},
                  {"TextBoxPercentage", 216},  {"TextBoxScore", 217},     {"TextBoxTimeLeft", 218},
                  {"TextBoxTotal", 219},       {"TextboxDateDue", 220},   {"TextboxReminderDate", 221},
                  {"picButtonDateDue", 222},   {"picHelp", 223}});
}

TEST_F(AssignmentOpening, HelpButtonEntersTheWhatsThisMode) {
    OpenEdit();
    Click(dialog->picHelp);
    EXPECT_TRUE(QWhatsThis::inWhatsThisMode());
    QWhatsThis::leaveWhatsThisMode();
}

TEST_F(AssignmentOpening, EveryInputHasANameForWhoCannotSeeIt) {
    for (const QDialog* editor : {static_cast<QDialog*>(dialog), static_cast<QDialog*>(TaskDialog)}) {
        const QList<QLabel*> labels = editor->findChildren<QLabel*>();
        for (const QWidget* input : editor->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (qobject_cast<const QLineEdit*>(input) == nullptr &&
                qobject_cast<const QComboBox*>(input) == nullptr) {
                continue;
            }
            const bool isNamed =
                !input->accessibleName().isEmpty() ||
                std::ranges::any_of(labels, [input](const QLabel* label) { return label->buddy() == input; });
            EXPECT_TRUE(isNamed || input == dialog->ComboClassNameList) << input->objectName().toStdString();
        }
    }
    OpenEdit();
    EXPECT_EQ(dialog->ComboClassNameList->accessibleName(), "Fall 2009 Classes");
}
