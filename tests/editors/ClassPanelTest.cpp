// The panel of one class in the dialog of a term.
#include "editors/TermEditorFixture.h"

TEST_F(TermEditor, OpenClassPanelLocksTheTermsButtons) {
    OpenEdit();
    Click(dialog->ButtonAddClass);
    EXPECT_TRUE(PanelIsOpen());
    for (const QWidget* control : std::initializer_list<QWidget*>{
             dialog->ButtonAddClass, dialog->ButtonEditClass, dialog->ComboBoxClassList, dialog->ButtonOK,
             dialog->ButtonCancel, dialog->ButtonDelete, dialog->ButtonDeleteClass}) {
        EXPECT_FALSE(control->isEnabled()) << control->objectName().toStdString();
    }
    EXPECT_TRUE(dialog->ButtonOKClass->isEnabled());
    EXPECT_TRUE(dialog->TextBoxClassName->hasFocus());
}

TEST_F(TermEditor, AddedClassTakesTheNextIdAndTheDefaults) {
    OpenEdit();
    Click(dialog->ButtonAddClass);
    EXPECT_EQ(dialog->SelectedClassID, 8);
    EXPECT_EQ(dialog->SelectedClassIndex, 3);
    EXPECT_EQ(dialog->ClassEditMode, "Add");
    Type(dialog->TextBoxClassName, "Latin");
    Type(dialog->TextBoxCredits, "1.5");
    Click(dialog->ButtonOKClass);
    EXPECT_EQ(dialog->tempClassIDArray.Item(4), "8");
    EXPECT_EQ(dialog->tempClassNameArray.Item(4), "Latin");
    EXPECT_EQ(dialog->tempClassCreditsArray.Item(4), "1.5");
    EXPECT_EQ(dialog->tempClassBackColorArray.Item(4), "16777215");
    EXPECT_EQ(dialog->tempClassForeColorArray.Item(4), "0");
    EXPECT_EQ(dialog->NextClassID, 9);
    EXPECT_EQ(dialog->ComboBoxClassList->currentText(), "Latin");
    EXPECT_TRUE(dialog->ChangeFlag);
    EXPECT_FALSE(PanelIsOpen());
}

TEST_F(TermEditor, EditedClassIsLoadedWithItsColoursAndKeepsThem) {
    OpenEdit();
    OpenClass(1);
    EXPECT_EQ(dialog->SelectedClassIndex, 3);
    EXPECT_EQ(dialog->SelectedClassID, 7);
    EXPECT_EQ(dialog->TextBoxClassName->text(), "History");
    EXPECT_EQ(dialog->TextBoxCredits->text(), "2");
    EXPECT_EQ(dialog->TextBoxNotes->toPlainText(), "Room 12\nMondays");
    EXPECT_EQ(BoxColorOf(dialog->TextBoxClassName), 0x00FF00);
    EXPECT_TRUE(dialog->ButtonDeleteClass->isEnabled());
    EXPECT_FALSE(dialog->ChangeFlag);
    Type(dialog->TextBoxCredits, "4");
    Click(dialog->ButtonOKClass);
    EXPECT_EQ(dialog->tempClassCreditsArray.Item(3), "4");
    EXPECT_EQ(dialog->tempClassIDArray.Item(3), "7");
    EXPECT_EQ(dialog->tempClassBackColorArray.Item(3), "65280");
    EXPECT_EQ(dialog->tempClassNotesArray.Item(3), "Room 12\r\nMondays");
    EXPECT_EQ(dialog->ComboBoxClassList->currentText(), "History");
    EXPECT_EQ(BoxColorOf(dialog->TextBoxClassName), 0xFFFFFF);
}

TEST_F(TermEditor, EditedNotesAreSavedAndTheTextColourIsKept) {
    OpenEdit();
    OpenClass(1);
    dialog->TextBoxNotes->setPlainText("Room 14\nFridays");
    Click(dialog->ButtonOKClass);
    EXPECT_EQ(dialog->tempClassNotesArray.values, (std::vector<std::string>{"", "", "Room 14\r\nFridays"}));
    EXPECT_EQ(dialog->tempClassForeColorArray.values, (std::vector<std::string>{"0", "0", "255"}));
}

TEST_F(TermEditor, ListStaysOnTheClassThatWasEdited) {
    OpenEdit();
    AddClass("Latin");
    ASSERT_EQ(ClassRows(), (QStringList{"Algebra", "History", "Latin"}));
    OpenClass(1);
    Type(dialog->TextBoxCredits, "4");
    Click(dialog->ButtonOKClass);
    EXPECT_EQ(dialog->ComboBoxClassList->currentIndex(), 1);
}

TEST_F(TermEditor, ListStandsOnTheLastClassOnceTheLastOneIsDeleted) {
    OpenEdit();
    AddClass("Latin");
    OpenClass(2);
    Script.answers = {Answer::Yes, Answer::Yes};
    Click(dialog->ButtonDeleteClass);
    EXPECT_EQ(ClassRows(), (QStringList{"Algebra", "History"}));
    EXPECT_EQ(dialog->ComboBoxClassList->currentIndex(), 1);
}

TEST_F(TermEditor, ClassOkIsAChangeEvenOfNothing) {
    OpenEdit();
    OpenClass(0);
    ASSERT_FALSE(dialog->ChangeFlag);
    Click(dialog->ButtonOKClass);
    EXPECT_TRUE(dialog->ChangeFlag);
}

TEST_F(TermEditor, ClassCancelLeavesTheLists) {
    OpenEdit();
    OpenClass(0);
    Type(dialog->TextBoxClassName, "Geometry");
    Click(dialog->ButtonCancelClass);
    EXPECT_EQ(dialog->tempClassNameArray.Item(1), "Algebra");
    EXPECT_EQ(dialog->TextBoxClassName->text(), "");
    EXPECT_FALSE(PanelIsOpen());
    EXPECT_TRUE(Script.boxes.empty());
}

TEST_F(TermEditor, ClassNeedsAName) {
    OpenEdit();
    AddClass("  ");
    EXPECT_EQ(Script.boxes, (std::vector{Message("Enter a name for this class.")}));
    EXPECT_TRUE(dialog->ClassError);
    EXPECT_TRUE(PanelIsOpen());
    EXPECT_EQ(dialog->tempClassNameArray.Count(), 3);
}

TEST_F(TermEditor, ClassOfTheSameNameIsRefusedWhateverItsCase) {
    OpenEdit();
    AddClass(" hISTORY ");
    EXPECT_EQ(Script.boxes, (std::vector{Message("There is already a class with this name.")}));
    EXPECT_EQ(dialog->TextBoxClassName->text(), "");
    EXPECT_TRUE(PanelIsOpen());
}

TEST_F(TermEditor, NameOfADeletedClassIsFree) {
    OpenEdit();
    dialog->tempClassNameArray.Replace(2, "DELETED RECORD");
    AddClass("deleted record");
    EXPECT_TRUE(Script.boxes.empty());
    EXPECT_EQ(dialog->tempClassNameArray.Count(), 4);
}

TEST_F(TermEditor, RenameInASavedTermIsAsked) {
    const ShownBox question = Question("You have changed the name of this class. If you have created "
                                       "assignments for 'Algebra', they will now be "
                                       "for 'Geometry'.\r\n\r\nClick 'Yes' to rename this class.",
                                       Preset::First);
    OpenEdit();
    Script.answers = {Answer::No, Answer::Yes};
    OpenClass(0);
    Type(dialog->TextBoxClassName, "Geometry");
    Click(dialog->ButtonOKClass);
    EXPECT_EQ(Script.boxes, (std::vector{question}));
    EXPECT_EQ(dialog->TextBoxClassName->text(), "Algebra");
    EXPECT_TRUE(PanelIsOpen());
    Type(dialog->TextBoxClassName, "Geometry");
    Click(dialog->ButtonOKClass);
    EXPECT_EQ(dialog->tempClassNameArray.Item(1), "Geometry");
    EXPECT_FALSE(PanelIsOpen());
}

TEST_F(TermEditor, RenameInANewTermAsksNothing) {
    OpenNew();
    AddClass("Algebra");
    OpenClass(0);
    Type(dialog->TextBoxClassName, "Geometry");
    Click(dialog->ButtonOKClass);
    EXPECT_EQ(ClassRows(), QStringList{"Geometry"});
    EXPECT_TRUE(Script.boxes.empty());
}

TEST_F(TermEditor, ClassOfASavedTermIsDeletedAfterTwoQuestions) {
    OpenEdit();
    Script.answers = {Answer::Yes, Answer::No, Answer::Yes, Answer::Yes};
    OpenClass(1);
    Click(dialog->ButtonDeleteClass);
    EXPECT_EQ(Script.boxes,
              (std::vector{Question("Delete this class?"),
                           Question("Are you sure you want to Delete 'History'? If you have assignments for "
                                    "'History', they will also be Deleted.")}));
    EXPECT_TRUE(PanelIsOpen());
    Click(dialog->ButtonDeleteClass);
    EXPECT_EQ(ClassRows(), QStringList{"Algebra"});
    EXPECT_EQ(dialog->tempClassIDArray.values, (std::vector<std::string>{"4", "5"}));
    EXPECT_EQ(dialog->ComboBoxClassList->currentIndex(), 0);
    EXPECT_TRUE(dialog->ChangeFlag);
}

TEST_F(TermEditor, ClassOfANewTermIsDeletedAfterOneQuestion) {
    OpenNew();
    AddClass("Algebra");
    OpenClass(0);
    Script.answers = {Answer::Yes};
    Click(dialog->ButtonDeleteClass);
    EXPECT_EQ(Script.boxes, (std::vector{Question("Delete this class?")}));
    EXPECT_EQ(ClassRows(), QStringList{});
    EXPECT_FALSE(dialog->ButtonEditClass->isEnabled());
}

TEST_F(TermEditor, CreditsAreRefusedUnlessANumberOrNothing) {
    const ShownBox message =
        Message("Enter the number of credits you will receive for this class. The number is used "
                "in calculating your total GPA.");
    OpenEdit();
    OpenClass(0);
    for (const char* good : {"", "  ", "3", "1.5", "0", " 2 "}) {
        TypeAndLeave(dialog->TextBoxCredits, good);
        EXPECT_TRUE(Script.boxes.empty()) << good;
    }
    for (const char* bad : {"three", "-1", "1,5"}) {
        Script.boxes.clear();
        TypeAndLeave(dialog->TextBoxCredits, bad);
        EXPECT_EQ(Script.boxes, (std::vector{message})) << bad;
        EXPECT_EQ(dialog->TextBoxCredits->text(), "") << bad;
        EXPECT_TRUE(dialog->TextBoxCredits->hasFocus()) << bad;
    }
    Script.boxes.clear();
    TypeAndEnter(dialog->TextBoxCredits, "x");
    EXPECT_EQ(Script.boxes, (std::vector{message}));
    EXPECT_TRUE(PanelIsOpen());
}

TEST_F(TermEditor, ChangedCreditsAreAChange) {
    OpenEdit();
    OpenClass(0);
    QTest::keyClick(dialog->TextBoxCredits, Qt::Key_5);
    EXPECT_TRUE(dialog->ChangeFlag);
}

TEST_F(TermEditor, ClassCancelSkipsTheMessageOfTheCredits) {
    OpenEdit();
    OpenClass(0);
    Type(dialog->TextBoxCredits, "three");
    Click(dialog->ButtonCancelClass);
    EXPECT_TRUE(Script.boxes.empty());
    EXPECT_FALSE(PanelIsOpen());
}

TEST_F(TermEditor, ClassOkByKeyIsRefusedForCreditsThatAreNone) {
    OpenEdit();
    OpenClass(0);
    Type(dialog->TextBoxCredits, "three");
    dialog->ButtonOKClass->click();
    EXPECT_EQ(Script.boxes.size(), 1U);
    EXPECT_TRUE(PanelIsOpen());
    EXPECT_TRUE(dialog->TextBoxCredits->hasFocus());
}

TEST_F(TermEditor, PressThatBringsTheMessageDoesNothingMore) {
    OpenEdit();
    OpenClass(0);
    Type(dialog->TextBoxCredits, "three");
    Click(dialog->ButtonOKClass);
    EXPECT_EQ(Script.boxes.size(), 1U);
    EXPECT_TRUE(PanelIsOpen());
    EXPECT_FALSE(dialog->ButtonOKClass->isDown());
    Click(dialog->ButtonOKClass);
    EXPECT_FALSE(PanelIsOpen()) << "the next press counts again";
}

TEST_F(TermEditor, CreditsAreNotAskedForWhileTheProgramShutsDown) {
    OpenEdit();
    OpenClass(0);
    Type(dialog->TextBoxCredits, "three");
    ShuttingDown = true;
    dialog->hide();
    EXPECT_TRUE(Script.boxes.empty());
}

TEST_F(TermEditor, EscapeClosesAnOpenClassAndNotTheTerm) {
    OpenEdit();
    Script.answers = {Answer::Yes};
    OpenClass(0);
    Type(dialog->TextBoxClassName, "Geometry");
    QTest::keyClick(dialog, Qt::Key_Escape);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_FALSE(PanelIsOpen());
    EXPECT_EQ(dialog->tempClassNameArray.Item(1), "Algebra");
    EXPECT_TRUE(Script.boxes.empty());
}

TEST_F(TermEditor, EnterPressesTheButtonThatHasTheFocus) {
    OpenEdit();
    QTest::keyClick(dialog->ButtonAddClass, Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_TRUE(PanelIsOpen());
    GoTo(dialog->ButtonCancelClass);
    QTest::keyClick(dialog->ButtonCancelClass, Qt::Key_Return);
    EXPECT_FALSE(PanelIsOpen());
    EXPECT_EQ(dialog->tempClassNameArray.Count(), 3);
    GoTo(dialog->ButtonCancel);
    QTest::keyClick(dialog->ButtonCancel, Qt::Key_Return);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_TRUE(dialog->CancelledFlag);
}

TEST_F(TermEditor, EnterInTheClassNameAcceptsTheClass) {
    OpenEdit();
    Click(dialog->ButtonAddClass);
    TypeAndEnter(dialog->TextBoxClassName, "Latin");
    EXPECT_EQ(ClassRows(), (QStringList{"Algebra", "History", "Latin"}));
    EXPECT_TRUE(dialog->isVisible());
}
