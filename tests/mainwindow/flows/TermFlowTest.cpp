// The flow of a term: what choosing, entering and deleting leaves in the store and on the drive.
#include "mainwindow/flows/TermFlowFixture.h"
#include "mainwindow/frame/Unload.h"

TEST_F(TermFlow, ChooserListsTheNewestTermFirst) {
    MakeTerm("Spring 2010");
    QStringList rows;
    WhenDialogOpens([&rows](QWidget*) {
        for (int row = 0; row < TermChooser->ComboTermList->count(); ++row) {
            rows.append(TermChooser->ComboTermList->itemText(row));
        }
        EXPECT_EQ(TermChooser->windowTitle(), "Planovarium - Select a Term");
        EXPECT_EQ(TermChooser->ComboTermList->currentText(), "Spring 2010");
        EXPECT_EQ(TermChooser->tempTermIDArray.Count(), 2);
        Click(TermChooser->ButtonCancel);
    });
    ClassSchedule(*window);
    EXPECT_EQ(rows, (QStringList{"Spring 2010", "Fall 2009"}));
    EXPECT_TRUE(TermChooser->Cancelled);
}

TEST_F(TermFlow, WithoutTermsOnlyANewOneCanBeStarted) {
    Store.Term = {};
    SetActiveTerm(*window, "");
    WhenDialogOpens([](QWidget*) {
        EXPECT_FALSE(TermChooser->ButtonActive->isEnabled());
        EXPECT_FALSE(TermChooser->ButtonEdit->isEnabled());
        EXPECT_TRUE(TermChooser->ButtonNew->isEnabled());
        EXPECT_TRUE(TermChooser->ButtonCancel->isEnabled());
        EXPECT_EQ(TermChooser->ComboTermList->currentIndex(), -1);
        Click(TermChooser->ButtonCancel);
    });
    ClassSchedule(*window);
}

TEST_F(TermFlow, ChooserBeginsWithTheListOfTermsEachTime) {
    Choose(TermChooser->ButtonCancel);
    TermChooser->ButtonCancel->setFocus(); // where the mouse left it
    WhenDialogOpens([](QWidget*) {
        EXPECT_EQ(TermChooser->focusWidget(), TermChooser->ComboTermList);
        Click(TermChooser->ButtonCancel);
    });
    ClassSchedule(*window);
}

TEST_F(TermFlow, DeletedRecordsAreNoTermsToChoose) {
    Store.Term.id.Add("2");
    Store.Term.name.Add("DELETED RECORD");
    Store.Term.start.Add("2010/01/04");
    Store.Term.end.Add("2010/05/04");
    WhenDialogOpens([](QWidget*) {
        EXPECT_EQ(TermChooser->ComboTermList->count(), 1);
        EXPECT_EQ(TermChooser->tempTermIDArray.values, (std::vector<std::string>{"1"}));
        Click(TermChooser->ButtonCancel);
    });
    ClassSchedule(*window);
}

TEST_F(TermFlow, EscapeAndTheCloseBoxCancelTheChooser) {
    for (const bool byKey : {true, false}) {
        WhenDialogOpens([byKey](QWidget*) {
            if (byKey) {
                QTest::keyClick(TermChooser, Qt::Key_Escape);
            } else {
                PressCloseBox(*TermChooser);
            }
        });
        ClassSchedule(*window);
        EXPECT_TRUE(TermChooser->Cancelled);
        EXPECT_FALSE(TermChooser->isVisible());
    }
    EXPECT_FALSE(FileWrittenFlags.terms);
}

TEST_F(TermFlow, ChooserTellsTheChosenTerm) {
    MakeTerm("Spring 2010");
    WhenDialogOpens([](QWidget*) {
        TermChooser->ComboTermList->setCurrentText("Fall 2009");
        Click(TermChooser->ButtonActive);
    });
    ClassSchedule(*window);
    EXPECT_TRUE(TermChooser->MakeActive);
    EXPECT_EQ(TermChooser->SelectedCourse, "Fall 2009");
    EXPECT_EQ(TermChooser->SelectedTermID, "1");
    Choose(TermChooser->ButtonCancel);
    EXPECT_FALSE(TermChooser->MakeActive);
    EXPECT_EQ(TermChooser->SelectedTermID, "");
}

TEST_F(TermFlow, CancelledNewTermUsesItsIdUp) {
    ChooseAndAct(TermChooser->ButtonNew, [] { Click(TermDialog->ButtonCancel); });
    EXPECT_EQ(NextTermID, 3);
}

TEST_F(TermFlow, NewTermMayHaveTheNameOfNoOtherOne) {
    ChooseAndAct(TermChooser->ButtonNew, [] {
        EXPECT_EQ(TermDialog->tempPreviousTermNamesArray.values, (std::vector<std::string>{"Fall 2009"}));
        EXPECT_EQ(TermDialog->tempPreviousTermIDsArray.values, (std::vector<std::string>{"1"}));
        Click(TermDialog->ButtonOK); // the season's name is that of the term
        EXPECT_TRUE(TermDialog->isVisible());
        Click(TermDialog->ButtonCancel);
    });
    EXPECT_EQ(Script.boxes, std::vector{Message("There is already a Term with this name.")});
}

TEST_F(TermFlow, DeletedTermIsNoneOfThePreviousOnes) {
    Store.Term.id.Add("2");
    Store.Term.name.Add("DELETED RECORD");
    Store.Term.start.Add("2010/01/04");
    Store.Term.end.Add("2010/05/04");
    NextTermID = 3;
    ChooseAndAct(TermChooser->ButtonNew, [] {
        EXPECT_EQ(TermDialog->tempPreviousTermNamesArray.values, (std::vector<std::string>{"Fall 2009"}));
        EXPECT_EQ(TermDialog->tempPreviousTermIDsArray.values, (std::vector<std::string>{"1"}));
        EXPECT_EQ(TermDialog->tempPreviousTermStartArray.values, (std::vector<std::string>{"2009/09/01"}));
        EXPECT_EQ(TermDialog->tempPreviousTermEndArray.values, (std::vector<std::string>{"2009/12/20"}));
        Type(TermDialog->TextBoxTermName, "DELETED RECORD");
        Click(TermDialog->ButtonOK);
        EXPECT_FALSE(TermDialog->isVisible()) << "its name is free";
        TermDialog->hide();
    });
    EXPECT_TRUE(Script.boxes.empty());
}

TEST_F(TermFlow, EditKnowsTheTermAsItWas) {
    ChooseAndAct(TermChooser->ButtonEdit, [] {
        EXPECT_EQ(TermDialog->tempTermID, "1");
        EXPECT_EQ(TermDialog->ThisTermsPreviousID, "1");
        EXPECT_EQ(TermDialog->ThisTermsPreviousName, "Fall 2009");
        EXPECT_EQ(TermDialog->tempClassIDArray.values, (std::vector<std::string>{"4", "7"}));
        EXPECT_EQ(TermDialog->NextClassID, 8);
        Click(TermDialog->ButtonCancel);
    });
}

TEST_F(TermFlow, CloseBoxWithAClassOpenWritesNothing) {
    Script.answers = {Answer::Yes};
    ChooseAndAct(TermChooser->ButtonEdit, [] {
        Click(TermDialog->ButtonAddClass);
        Type(TermDialog->TextBoxClassName, "Latin");
        PressCloseBox(*TermDialog);
    });
    EXPECT_EQ(Store.ClassRecord.name.values, (std::vector<std::string>{"Algebra", "History"}));
    EXPECT_FALSE(FileWrittenFlags.terms);
}

TEST_F(TermFlow, CancelInTheChooserWritesNothing) {
    const std::string before = ReadData("terms.xml");
    Choose(TermChooser->ButtonCancel);
    EXPECT_EQ(ReadData("terms.xml"), before);
    EXPECT_FALSE(FileWrittenFlags.terms);
}

TEST_F(TermFlow, NewTermIsStoredWrittenAndActive) {
    MakeTerm("Spring 2010 ");
    EXPECT_EQ(Store.Term.id.Item(2), "2");
    EXPECT_EQ(Store.Term.name.Item(2), "Spring 2010");
    EXPECT_EQ(Store.Term.start.Item(2), "2009/10/14");
    EXPECT_EQ(Store.Term.end.Item(2), "2009/12/23");
    EXPECT_EQ(Store.ClassRecord.name.Item(3), "Latin");
    EXPECT_EQ(Store.ClassRecord.id.Item(3), "8");
    EXPECT_EQ(Store.ClassRecord.term.Item(3), "2");
    EXPECT_TRUE(FileWrittenFlags.terms && FileWrittenFlags.classes);
    EXPECT_NE(ReadData("terms.xml").find("<name>Spring 2010</name>\n  <start>2009/10/14</start>"),
              std::string::npos);
    EXPECT_NE(ReadData("classes.xml").find("<name>Latin</name>"), std::string::npos);
    EXPECT_EQ(NextTermID, 3);
}

TEST_F(TermFlow, FieldsOfAClassLoseTheirBlanksAtTheEnd) {
    ChooseAndAct(TermChooser->ButtonNew, [] {
        Type(TermDialog->TextBoxTermName, "Spring 2010");
        Click(TermDialog->ButtonAddClass);
        Type(TermDialog->TextBoxClassName, "  Latin  ");
        Type(TermDialog->TextBoxCredits, "2 ");
        TermDialog->TextBoxNotes->setPlainText("Room 12 ");
        Click(TermDialog->ButtonOKClass);
        Click(TermDialog->ButtonOK);
    });
    EXPECT_EQ(Store.ClassRecord.name.Item(3), "  Latin");
    EXPECT_EQ(Store.ClassRecord.credits.Item(3), "2");
    EXPECT_EQ(Store.ClassRecord.notes.Item(3), "Room 12");
}

TEST_F(TermFlow, CancelInTheTermDialogWritesNothing) {
    ChooseAndAct(TermChooser->ButtonNew, [] { Click(TermDialog->ButtonCancel); });
    EXPECT_EQ(Store.Term.id.Count(), 1);
    EXPECT_FALSE(FileWrittenFlags.terms);
}

TEST_F(TermFlow, ChangedTermIsReadWithItsAssignments) {
    MakeTerm("Spring 2010");
    EXPECT_EQ(ActiveTermName, "Spring 2010");
    EXPECT_TRUE(DataExists("assignments_2.xml"));
    WhenDialogOpens([](QWidget*) {
        TermChooser->ComboTermList->setCurrentText("Fall 2009");
        Click(TermChooser->ButtonActive);
    });
    ClassSchedule(*window);
    EXPECT_EQ(ActiveTermName, "Fall 2009");
    EXPECT_EQ(window->LabelTerm->text(), "Fall 2009");
}

TEST_F(TermFlow, EditedTermMovesToTheEndAndKeepsItsId) {
    MakeTerm("Spring 2010");
    SetActiveTerm(*window, "Fall 2009");
    ChooseAndAct(TermChooser->ButtonEdit, [] {
        Type(TermDialog->TextBoxTermName, "Fall");
        Click(TermDialog->ButtonOK);
    });
    EXPECT_EQ(Store.Term.name.values, (std::vector<std::string>{"Spring 2010", "Fall"}));
    EXPECT_EQ(Store.Term.id.values, (std::vector<std::string>{"2", "1"}));
    EXPECT_EQ(Store.ClassRecord.name.values, (std::vector<std::string>{"Latin", "Algebra", "History"}));
    EXPECT_EQ(ActiveTermName, "Fall");
}

TEST_F(TermFlow, EditIsOfTheActiveTermWhateverTheComboShows) {
    MakeTerm("Spring 2010");
    WhenDialogOpens([](QWidget*) {
        TermChooser->ComboTermList->setCurrentText("Fall 2009");
        WhenDialogOpens([](QWidget*) {
            EXPECT_EQ(TermDialog->TextBoxTermName->text(), "Spring 2010");
            Click(TermDialog->ButtonCancel);
        });
        Click(TermChooser->ButtonEdit);
    });
    ClassSchedule(*window);
}

TEST_F(TermFlow, AssignmentsOfADeletedClassGoWithTheTermsOk) {
    AddAssignment("4", "Sets");
    AddAssignment("7", "Rome");
    AddAssignment("4", "Rings");
    Script.answers = {Answer::Yes, Answer::Yes};
    ChooseAndAct(TermChooser->ButtonEdit, [] {
        Click(TermDialog->ButtonEditClass); // Algebra
        Click(TermDialog->ButtonDeleteClass);
        Click(TermDialog->ButtonOK);
    });
    EXPECT_EQ(Store.ClassRecord.name.values, (std::vector<std::string>{"History"}));
    EXPECT_EQ(Store.Assignment.desc.values, (std::vector<std::string>{"Rome"}));
    EXPECT_EQ(ReadData("assignments_1.xml").find("Sets"), std::string::npos);
    EXPECT_NE(ReadData("assignments_1.xml").find("Rome"), std::string::npos);
}

TEST_F(TermFlow, CancelledTermKeepsTheDeletedClassAndItsAssignments) {
    AddAssignment("4", "Sets");
    Script.answers = {Answer::Yes, Answer::Yes, Answer::Yes};
    ChooseAndAct(TermChooser->ButtonEdit, [] {
        Click(TermDialog->ButtonEditClass);
        Click(TermDialog->ButtonDeleteClass);
        Click(TermDialog->ButtonCancel);
    });
    EXPECT_EQ(Store.ClassRecord.name.values, (std::vector<std::string>{"Algebra", "History"}));
    EXPECT_EQ(Store.Assignment.desc.Count(), 1);
}

TEST_F(TermFlow, AssignmentOfAnotherTermsClassGoesWithTheTermsOk) {
    AddClassRecord({.id = "9", .term = "2", .name = "Latin"});
    AddAssignment("9", "Verbs");
    AddAssignment("7", "Rome");
    ChooseAndAct(TermChooser->ButtonEdit, [] { Click(TermDialog->ButtonOK); });
    EXPECT_EQ(Store.Assignment.desc.values, (std::vector<std::string>{"Rome"}));
    EXPECT_EQ(ReadData("assignments_1.xml").find("Verbs"), std::string::npos);
}

TEST_F(TermFlow, AssignmentFileIsWrittenOnlyWhenOneGoes) {
    ChooseAndAct(TermChooser->ButtonEdit, [] { Click(TermDialog->ButtonOK); });
    EXPECT_FALSE(FileWrittenFlags.assignments);
    EXPECT_TRUE(FileWrittenFlags.terms);
}

TEST_F(TermFlow, DeletedTermLeavesTheNewestOneActive) {
    MakeTerm("Spring 2010");
    Script.answers = {Answer::Yes, Answer::Yes, Answer::Yes, Answer::Yes};
    ChooseAndAct(TermChooser->ButtonEdit, [] { Click(TermDialog->ButtonDelete); });
    EXPECT_EQ(Store.Term.name.values, (std::vector<std::string>{"Fall 2009"}));
    EXPECT_EQ(Store.ClassRecord.name.values, (std::vector<std::string>{"Algebra", "History"}));
    EXPECT_EQ(ActiveTermName, "Fall 2009");
    EXPECT_TRUE(DataExists("assignments_2.xml")); // the file of a deleted term stays
    ChooseAndAct(TermChooser->ButtonEdit, [] { Click(TermDialog->ButtonDelete); });
    EXPECT_EQ(ActiveTermID, 0);
    EXPECT_EQ(window->LabelTerm->text(), "No Term Selected");
}

TEST_F(TermFlow, ShutdownWhileTheDialogIsOpenSavesNothing) {
    ChooseAndAct(TermChooser->ButtonEdit, [this] {
        Type(TermDialog->TextBoxTermName, "Fall");
        Unload(*window);
    });
    EXPECT_EQ(Store.Term.name.Item(1), "Fall 2009");
    EXPECT_FALSE(FileWrittenFlags.terms);
}

TEST_F(TermFlow, DialogsOpenBesideTheWindowTheFirstTime) {
    SelectCourseScheduleDBFirstOpen = true;
    Choose(TermChooser->ButtonCancel);
    EXPECT_EQ(TermChooser->pos(), window->pos() + QPoint(250, 50));
    EXPECT_FALSE(SelectCourseScheduleDBFirstOpen);
    TermChooser->move(10, 20);
    Choose(TermChooser->ButtonCancel);
    EXPECT_EQ(TermChooser->pos(), QPoint(10, 20));
}

TEST_F(TermFlow, TermDialogOpensBesideTheWindowOnceAndThenWhereItWasLeft) {
    window->move(100, 80);
    ChooseAndAct(TermChooser->ButtonEdit, [] {
        EXPECT_EQ(TermDialog->pos(), QPoint(350, 130));
        TermDialog->move(10, 20);
        Click(TermDialog->ButtonCancel);
    });
    EXPECT_FALSE(CourseScheduleDBFirstOpen);
    ChooseAndAct(TermChooser->ButtonEdit, [] {
        EXPECT_EQ(TermDialog->pos(), QPoint(10, 20));
        Click(TermDialog->ButtonCancel);
    });
}
