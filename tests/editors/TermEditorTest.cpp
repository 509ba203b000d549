// The dialog of a term: its classes in their panel, its checks, and the ways in which it closes.
#include "editors/EditorTest.h"
#include "editors/frmCourseSchedule.h"

namespace {

class TermEditor : public EditorTest {
protected:
    void SetUp() override {
        EditorTest::SetUp();
        dialog = TermDialog;
    }

    void Show(const std::string& mode) {
        dialog->EditMode = mode;
        dialog->Fill();
        ShowAlone(*dialog);
    }

    void OpenNew() {
        for (TextList* list :
             {&dialog->tempClassIDArray, &dialog->tempClassTermLinkArray, &dialog->tempClassNameArray,
              &dialog->tempClassCreditsArray, &dialog->tempClassForeColorArray,
              &dialog->tempClassBackColorArray, &dialog->tempClassNotesArray}) {
            list->Clear();
        }
        dialog->tempPreviousTermNamesArray.values = {"Fall 2009"};
        dialog->NextClassID = 8;
        Show("New");
    }

    // A saved term of two classes and a deleted one between them.
    void OpenEdit() {
        dialog->tempTermName = "Fall 2009";
        dialog->tempTermStart = "2009/09/01";
        dialog->tempTermEnd = "2009/12/20";
        dialog->tempClassIDArray.values = {"4", "5", "7"};
        dialog->tempClassTermLinkArray.values = {"1", "1", "1"};
        dialog->tempClassNameArray.values = {"Algebra", "DELETED RECORD", "History"};
        dialog->tempClassCreditsArray.values = {"3", "1", "2"};
        dialog->tempClassForeColorArray.values = {"0", "0", "255"};
        dialog->tempClassBackColorArray.values = {"16777215", "16777215", "65280"};
        dialog->tempClassNotesArray.values = {"", "", "Room 12\r\nMondays"};
        dialog->tempPreviousTermNamesArray.values = {"Fall 2009", "Spring 2010"};
        dialog->ThisTermsPreviousName = "Fall 2009";
        dialog->NextClassID = 8;
        Show("Edit");
    }

    void AddClass(const QString& name) {
        Click(dialog->ButtonAddClass);
        Type(dialog->TextBoxClassName, name);
        Click(dialog->ButtonOKClass);
    }

    void OpenClass(int row) {
        dialog->ComboBoxClassList->setCurrentIndex(row);
        Click(dialog->ButtonEditClass);
    }

    QStringList ClassRows() const {
        QStringList rows;
        for (int row = 0; row < dialog->ComboBoxClassList->count(); ++row) {
            rows.append(dialog->ComboBoxClassList->itemText(row));
        }
        return rows;
    }

    bool PanelIsOpen() const { return dialog->TextBoxClassName->isEnabled(); }

    frmCourseSchedule* dialog = nullptr;
};

} // namespace

// --- Opening -----------------------------------------------------------------------------------------------

TEST_F(TermEditor, NewTermBeginsTodayAndLastsSeventyDays) {
    OpenNew();
    EXPECT_EQ(dialog->windowTitle(), "Planovarium - New Term");
    EXPECT_EQ(dialog->TextBoxTermName->text(), "Fall 2009");
    EXPECT_EQ(dialog->TextboxTermStart->text(), "Wednesday, October 14, 2009");
    EXPECT_EQ(dialog->TextboxTermEnd->text(), "Wednesday, December 23, 2009");
    EXPECT_EQ(dialog->tempTermStart, "10/14/2009");
    EXPECT_EQ(dialog->tempTermEnd, "12/23/2009");
    EXPECT_FALSE(dialog->ChangeFlag);
    EXPECT_TRUE(dialog->CancelledFlag);
    EXPECT_FALSE(dialog->CloseOK);
    EXPECT_FALSE(dialog->ButtonDelete->isEnabled());
    EXPECT_EQ(dialog->ComboBoxClassList->currentIndex(), -1);
    EXPECT_FALSE(dialog->ButtonEditClass->isEnabled());
}

TEST_F(TermEditor, NewTermBasedOnAnotherCountsAsChanged) {
    dialog->tempTermName = "Fall 2010";
    dialog->tempTermStart = "2010/09/01";
    dialog->tempTermEnd = "2010/12/20";
    Show("NewBasedOn");
    EXPECT_EQ(dialog->windowTitle(), "Planovarium - New Term");
    EXPECT_EQ(dialog->TextBoxTermName->text(), "Fall 2010");
    EXPECT_EQ(dialog->TextboxTermStart->text(), "Wednesday, September 1, 2010");
    EXPECT_TRUE(dialog->ChangeFlag);
    EXPECT_TRUE(dialog->CancelledFlag);
}

TEST_F(TermEditor, EditShowsTheTermAndItsLivingClasses) {
    OpenEdit();
    EXPECT_EQ(dialog->windowTitle(), "Planovarium - Edit Term");
    EXPECT_EQ(dialog->TextBoxTermName->text(), "Fall 2009");
    EXPECT_EQ(dialog->TextboxTermEnd->text(), "Sunday, December 20, 2009");
    EXPECT_EQ(ClassRows(), (QStringList{"Algebra", "History"}));
    EXPECT_EQ(dialog->ComboBoxClassList->currentIndex(), 0);
    EXPECT_EQ(dialog->IndexClassIDArray.values, (std::vector<int>{1, 3}));
    EXPECT_TRUE(dialog->ButtonDelete->isEnabled());
    EXPECT_FALSE(dialog->ChangeFlag);
}

TEST_F(TermEditor, ClassPanelIsClosedAtFirst) {
    OpenEdit();
    for (const QWidget* box : std::initializer_list<QWidget*>{
             dialog->TextBoxClassName, dialog->TextBoxCredits, dialog->TextBoxNotes, dialog->ButtonOKClass,
             dialog->ButtonCancelClass, dialog->ButtonDeleteClass}) {
        EXPECT_FALSE(box->isEnabled()) << box->objectName().toStdString();
    }
    EXPECT_TRUE(dialog->ButtonAddClass->isEnabled());
    EXPECT_TRUE(dialog->ButtonEditClass->isEnabled());
    EXPECT_TRUE(dialog->ButtonAddClass->hasFocus());
}

TEST_F(TermEditor, EveryControlHasItsHelpTopic) {
    EXPECT_EQ(dialog->ButtonAddClass->property("helpTopic"), 301);
    EXPECT_EQ(dialog->ComboBoxClassList->property("helpTopic"), 309);
    EXPECT_EQ(dialog->picButtonStart->property("helpTopic"), 318);
}

// --- Classes -----------------------------------------------------------------------------------------------

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
                                       "for 'Geometry'.\r\n\r\nClick 'Yes' to rename this class.");
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
    for (const char* good : {"", "3", "1.5", "0", " 2 "}) {
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

TEST_F(TermEditor, EnterInTheClassNameAcceptsTheClass) {
    OpenEdit();
    Click(dialog->ButtonAddClass);
    TypeAndEnter(dialog->TextBoxClassName, "Latin");
    EXPECT_EQ(ClassRows(), (QStringList{"Algebra", "History", "Latin"}));
    EXPECT_TRUE(dialog->isVisible());
}

// --- Dates and closing -------------------------------------------------------------------------------------

TEST_F(TermEditor, PickedDatesAreShownLongAndHeldShort) {
    OpenEdit();
    dialog->Picker->ShowCalendar(false);
    emit dialog->Picker->DatePicked(Date{std::chrono::year{2010} / 1 / 15});
    EXPECT_EQ(dialog->TextboxTermEnd->text(), "Friday, January 15, 2010");
    EXPECT_EQ(dialog->tempTermEnd, "1/15/2010");
    EXPECT_EQ(dialog->TextboxTermStart->text(), "Tuesday, September 1, 2009");
    EXPECT_TRUE(dialog->ChangeFlag);
}

TEST_F(TermEditor, TermMustEndAfterItsStart) {
    OpenEdit();
    dialog->tempTermEnd = dialog->tempTermStart;
    Click(dialog->ButtonOK);
    EXPECT_EQ(Script.boxes,
              (std::vector{Message("The Term End Date must be later then the Term Start Date.")}));
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_TRUE(dialog->CancelledFlag);
}

TEST_F(TermEditor, TermNeedsANameOfItsOwn) {
    OpenEdit();
    Type(dialog->TextBoxTermName, "  ");
    Click(dialog->ButtonOK);
    Type(dialog->TextBoxTermName, "Spring 2010");
    Click(dialog->ButtonOK);
    EXPECT_EQ(Script.boxes, (std::vector{Message("Enter a name for the Term."),
                                         Message("There is already a Term with this name.")}));
    EXPECT_TRUE(dialog->TextBoxTermName->hasFocus());
    Type(dialog->TextBoxTermName, "spring 2010"); // in another case it is another term
    Click(dialog->ButtonOK);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_FALSE(dialog->CancelledFlag);
    EXPECT_TRUE(dialog->CloseOK);
}

TEST_F(TermEditor, UnchangedNameOfASavedTermIsAccepted) {
    OpenEdit();
    Click(dialog->ButtonOK);
    EXPECT_TRUE(Script.boxes.empty());
    EXPECT_FALSE(dialog->CancelledFlag);
}

TEST_F(TermEditor, CancelWithoutAChangeAsksNothing) {
    OpenEdit();
    Click(dialog->ButtonCancel);
    EXPECT_TRUE(Script.boxes.empty());
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_TRUE(dialog->CancelledFlag);
}

TEST_F(TermEditor, CancelAsksAfterAChange) {
    OpenEdit();
    Script.answers = {Answer::No, Answer::Yes};
    Type(dialog->TextBoxTermName, "Fall");
    Click(dialog->ButtonCancel);
    EXPECT_EQ(Script.boxes, (std::vector{Question("Cancel changes to this Term's Class Schedule?")}));
    EXPECT_TRUE(dialog->isVisible());
    dialog->reject(); // Escape
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_TRUE(dialog->CancelledFlag);
}

TEST_F(TermEditor, DeleteAsksTwice) {
    OpenEdit();
    Script.answers = {Answer::Yes, Answer::No, Answer::Yes, Answer::Yes};
    Click(dialog->ButtonDelete);
    EXPECT_EQ(Script.boxes,
              (std::vector{Question("Delete this Term? All assignments for classes in this Class "
                                    "Schedule will also be deleted."),
                           Question("Are you sure? This action cannot be undone!")}));
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_FALSE(dialog->DeleteFlag);
    Click(dialog->ButtonDelete);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_TRUE(dialog->DeleteFlag);
    EXPECT_FALSE(dialog->CancelledFlag);
}
