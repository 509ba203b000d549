// The dialog of a term: how it opens, its checks, and the ways in which it closes.
#include "editors/TermEditorFixture.h"
#include "editors/frmSelectCourseSchedule.h"

#include <algorithm>

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
    dialog->MakeControls();
    ExpectTopics(*dialog, {{"ButtonAddClass", 301},
                           {"ButtonCancel", 302},
                           {"ButtonCancelClass", 303},
                           {"ButtonDelete", 304},
                           {"ButtonDeleteClass", 305},
                           {"ButtonEditClass", 306},
                           {"ButtonOK", 307},
                           {"ButtonOKClass", 308},
                           {"ComboBoxClassList", 309},
                           {"TextBoxClassName", 310},
                           {"TextBoxCredits", 311},
                           {"TextBoxNotes", 312},
                           {"TextBoxTermName", 313},
                           {"TextboxTermEnd", 314},
                           {"TextboxTermStart", 315},
                           {"picHelp", 316},
                           {"picButtonEnd", 317},
                           {"picButtonStart", 318}});
    ExpectTopics(*TermChooser, {{"ButtonActive", 401},
                                {"ButtonCancel", 402},
                                {"ButtonEdit", 403},
                                {"ButtonNew", 404},
                                {"ComboTermList", 405},
                                {"picHelp", 406}});
}

TEST_F(TermEditor, NewTermIsNamedByTheSeasonOfTheDay) {
    SetClock(2010, 1, 1);
    OpenNew();
    EXPECT_EQ(dialog->TextBoxTermName->text(), "Winter 2010");
    SetClock(2010, 2, 1);
    OpenNew();
    EXPECT_EQ(dialog->TextBoxTermName->text(), "Spring 2010");
}

TEST_F(TermEditor, OpeningWritesTheHeadsOfThePickerAndHidesIt) {
    window->StartDayOfWeek = "Saturday";
    OpenEdit();
    EXPECT_TRUE(dialog->Picker->isHidden());
    EXPECT_EQ(dialog->Picker->LabelCalDay[2]->text(), "M");
}

TEST_F(TermEditor, ExplanationsStandInTheWindows) {
    dialog->MakeControls();
    const auto textsOf = [](const QDialog& shown) {
        QStringList texts;
        for (const QLabel* label : shown.findChildren<QLabel*>()) {
            texts.append(label->text());
        }
        return texts;
    };
    for (const char* text : {"The Credits value is used in calculating your GPA. You can leave it blank if "
                             "all your classes have "
                             "the same number of credits.",
                             "Click the 'Add Class' button to enter a new class, or select a class from the "
                             "Class List to edit or "
                             "delete it."}) {
        EXPECT_TRUE(textsOf(*dialog).contains(text)) << text;
    }
    for (const char* text :
         {"Use this feature to see the assignments and class schedule from a previous term.",
          "Note: You can always change it back.",
          "Click this button to make changes to your current class schedule.",
          "When a new term starts, click this button to start again with a new class schedule."}) {
        EXPECT_TRUE(textsOf(*TermChooser).contains(text)) << text;
    }
}

TEST_F(TermEditor, EveryInputHasANameForWhoCannotSeeIt) {
    const QList<QLabel*> labels = dialog->findChildren<QLabel*>() + TermChooser->findChildren<QLabel*>();
    for (const QWidget* input : std::initializer_list<QWidget*>{
             dialog->TextBoxTermName, dialog->TextboxTermStart, dialog->TextboxTermEnd,
             dialog->ComboBoxClassList, dialog->TextBoxClassName, dialog->TextBoxCredits,
             dialog->TextBoxNotes, TermChooser->ComboTermList}) {
        EXPECT_TRUE(std::ranges::any_of(labels, [input](const QLabel* label) {
            return label->buddy() == input;
        })) << input->objectName().toStdString();
    }
}

// --- Dates and closing -------------------------------------------------------------------------------------

TEST_F(TermEditor, PickedDatesAreShownLongAndHeldShort) {
    OpenEdit();
    Click(dialog->picButtonEnd);
    Click(dialog->Picker->LabelTomorrow);
    EXPECT_EQ(dialog->TextboxTermEnd->text(), "Thursday, October 15, 2009");
    EXPECT_EQ(dialog->tempTermEnd, "10/15/2009");
    EXPECT_EQ(dialog->TextboxTermStart->text(), "Tuesday, September 1, 2009");
    EXPECT_TRUE(dialog->ChangeFlag);
    FireTimer(dialog->Picker->TimerCalendar);
    Click(dialog->TextboxTermStart);
    Click(dialog->Picker->LabelToday);
    EXPECT_EQ(dialog->TextboxTermStart->text(), "Wednesday, October 14, 2009");
    EXPECT_EQ(dialog->tempTermStart, "10/14/2009");
    EXPECT_EQ(dialog->tempTermEnd, "10/15/2009");
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

TEST_F(TermEditor, CloseBoxCountsAsCancelAlsoWhileAClassIsOpen) {
    OpenEdit();
    Script.answers = {Answer::No, Answer::Yes};
    OpenClass(0);
    Type(dialog->TextBoxClassName, "Geometry");
    PressCloseBox(*dialog);
    EXPECT_EQ(Script.boxes, (std::vector{Question("Cancel changes to this Term's Class Schedule?")}));
    EXPECT_TRUE(PanelIsOpen());
    PressCloseBox(*dialog);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_TRUE(dialog->CancelledFlag);
}

TEST_F(TermEditor, CloseThatIsNotTheStudentsPasses) {
    OpenEdit();
    Type(dialog->TextBoxTermName, "Fall");
    dialog->close();
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_TRUE(Script.boxes.empty());
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
