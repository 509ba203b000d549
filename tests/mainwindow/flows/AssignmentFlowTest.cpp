// The flows of an assignment: what each way of closing the editor leaves in the store and on the drive.
#include "mainwindow/flows/AssignmentFlow.h"
#include "core/DateText.h"
#include "editors/EditorTest.h"
#include "mainwindow/flows/TermFlow.h"

#include "core/RunTimeError.h"
#include "editors/frmSelectCourseSchedule.h"
#include "persistence/modIO.h"

namespace {

const std::string FileName = "assignments_1.xml";

class AssignmentFlow : public EditorTest {
protected:
    // Runs the flow while the student acts in the dialog.
    void NewAssignment(const std::function<void()>& act) {
        WhenDialogOpens([act](QWidget*) { act(); });
        ::NewAssignment(*window);
    }

    void EditAssignment(int index, const std::function<void()>& act) {
        WhenDialogOpens([act](QWidget*) { act(); });
        ::EditAssignment(*window, index);
    }

    static void Ok() { Click(AssignmentDialog->ButtonOK); }

    static void Cancel() { Click(AssignmentDialog->ButtonCancel); }

    static void ExpectFlags(bool cancelled, bool closeOk, bool deleted) {
        EXPECT_EQ(AssignmentDialog->CancelledFlag, cancelled);
        EXPECT_EQ(AssignmentDialog->CloseOK, closeOk);
        EXPECT_EQ(AssignmentDialog->DeleteFlag, deleted);
    }

    AssignmentLists& Assignments = Store.Assignment;
};

} // namespace

// --- New ---------------------------------------------------------------------------------------------------

TEST_F(AssignmentFlow, NewAssignmentIsStoredAndWritten) {
    window->RefreshReason = "Calendar";
    NewAssignment([] {
        Choose(AssignmentDialog->ComboClassNameList, 1);
        Choose(AssignmentDialog->ComboTypeList, 1);
        Click(AssignmentDialog->CheckBoxPriority);
        Type(AssignmentDialog->TextBoxDescription, "Chapter 7");
        Choose(AssignmentDialog->ComboPercentComplete, 2);
        Type(AssignmentDialog->TextBoxScore, "41");
        QTest::keyClick(AssignmentDialog->TextBoxScore, Qt::Key_Return);
        Type(AssignmentDialog->TextBoxTotal, "50");
        QTest::keyClick(AssignmentDialog->TextBoxTotal, Qt::Key_Return);
        Click(AssignmentDialog->CheckboxReminder);
        QTest::keyClicks(AssignmentDialog->TextBoxNotes, "One");
        QTest::keyClick(AssignmentDialog->TextBoxNotes, Qt::Key_Return);
        QTest::keyClicks(AssignmentDialog->TextBoxNotes, "Two");
        Ok();
    });
    ExpectFlags(false, true, false);
    EXPECT_EQ(
        ReadData(FileName),
        "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n<assignment_data>\n<assignment>\n  <id>1</id>\n"
        "  <class>7</class>\n  <date>2009/10/20</date>\n  <desc>Chapter 7</desc>\n  <type>Test</type>\n"
        "  <priority>True</priority>\n  <est_time>00 : 30</est_time>\n  <time_left>00 : 15</time_left>\n"
        "  <percent_complete>50%</percent_complete>\n  <done>False</done>\n  <score>41</score>\n"
        "  <total>50</total>\n  <grade>82%</grade>\n  <reminder>True</reminder>\n"
        "  <reminderdate>2009/10/20</reminderdate>\n  <remindertime>9:00 AM</remindertime>\n"
        "  <reminderalarm>2009/10/20 09:00:00</reminderalarm>\n  <reminderlist>False</reminderlist>\n"
        "  <notes>One\nTwo</notes>\n</assignment>\n</assignment_data>\n");
    for (const Field<AssignmentLists>& field : AssignmentFields) {
        EXPECT_EQ((Assignments.*field.list).Count(), 1) << field.tag;
    }
    EXPECT_EQ(Assignments.notes.Item(1), "One\r\nTwo");
    EXPECT_EQ(NextAssignmentID, 2);
    EXPECT_EQ(window->RefreshReason, "None");
    EXPECT_TRUE(Script.boxes.empty());
}

TEST_F(AssignmentFlow, DialogCarriesTheTermsLimits) {
    NewAssignment(Cancel);
    EXPECT_EQ(AssignmentDialog->tempTermStartDate, DateValue("2009/09/01"));
    EXPECT_EQ(AssignmentDialog->tempTermEndDate, DateValue("2009/12/20"));
    EXPECT_EQ(AssignmentDialog->tempAssignmentClassLinkArray, ActiveClasses.id);
}

TEST_F(AssignmentFlow, WithoutATermANewOneIsOffered) {
    ActiveTermName.clear();
    Script.answers = {Answer::No};
    ::NewAssignment(*window);
    EXPECT_EQ(
        Script.boxes,
        std::vector{Question("There is no Term selected. Do you want to start a new Term?", Preset::First)});
    EXPECT_FALSE(AssignmentDialog->isVisible());
    EXPECT_EQ(Assignments.id.Count(), 0);
}

TEST_F(AssignmentFlow, WithoutClassesTheClassScheduleIsOffered) {
    ActiveClasses = {};
    Script.answers = {Answer::No};
    ::NewAssignment(*window);
    EXPECT_EQ(Script.boxes,
              std::vector{Question("This Term has no classes. Do you want to edit the Class Schedule?",
                                   Preset::First)});
    EXPECT_FALSE(AssignmentDialog->isVisible());
}

TEST_F(AssignmentFlow, YesToANewTermOpensTheTermsAndNothingMore) {
    Store.Term = {};
    SetActiveTerm(*window, "");
    Script.answers = {Answer::Yes};
    NewAssignment([this] {
        EXPECT_TRUE(TermChooser->isVisible());
        SetActiveTerm(*window, "Fall 2009");
        Click(TermChooser->ButtonCancel);
    });
    EXPECT_EQ(Script.boxes.size(), 1U);
    EXPECT_FALSE(AssignmentDialog->isVisible());
    EXPECT_EQ(Assignments.id.Count(), 0);
}

TEST_F(AssignmentFlow, YesToTheClassScheduleOpensTheTermsAndNothingMore) {
    const auto classes = ActiveClasses;
    ActiveClasses = {};
    Script.answers = {Answer::Yes};
    NewAssignment([&classes] {
        EXPECT_TRUE(TermChooser->isVisible());
        ActiveClasses = classes; // as if they had been added meanwhile
        Click(TermChooser->ButtonCancel);
    });
    EXPECT_EQ(Script.boxes.size(), 1U);
    EXPECT_FALSE(AssignmentDialog->isVisible());
    EXPECT_EQ(Assignments.id.Count(), 0);
}

TEST_F(AssignmentFlow, QuestionThatTheShutdownAnswersOpensNothing) {
    ActiveClasses = {};
    Script.answers = {Answer::Yes};
    Script.whileBoxIsOpen = [](const ShownBox&) { ShuttingDown = true; };
    ::NewAssignment(*window);
    EXPECT_FALSE(TermChooser->isVisible());
}

TEST_F(AssignmentFlow, WithoutAClassOkAsksForOneAndStaysOpen) {
    NewAssignment([] {
        Click(AssignmentDialog->CheckboxReminder);
        AssignmentDialog->tempAssignmentReminderList = "True";
        Ok();
        EXPECT_TRUE(AssignmentDialog->isVisible());
        EXPECT_EQ(AssignmentDialog->focusWidget(), AssignmentDialog->ComboClassNameList);
        EXPECT_EQ(AssignmentDialog->tempAssignmentReminderList, "False") << "armed before the class is asked";
        ExpectFlags(false, false, false);
        Choose(AssignmentDialog->ComboClassNameList, 0);
        Ok();
    });
    EXPECT_EQ(Script.boxes, std::vector{Message("Select a Class for this assignment.")});
    EXPECT_EQ(Assignments.class_.Item(1), "4");
    EXPECT_EQ(Assignments.desc.Item(1), "") << "an empty description is accepted";
}

TEST_F(AssignmentFlow, OkByKeyFirstValidatesTheFieldInHand) {
    NewAssignment([] {
        Choose(AssignmentDialog->ComboClassNameList, 0);
        Type(AssignmentDialog->ComboEstTime, "1:5");
        AssignmentDialog->ButtonOK->click();
    });
    EXPECT_EQ(Assignments.est_time.Item(1), "01 : 05");
    EXPECT_EQ(Assignments.time_left.Item(1), "01 : 05");
}

TEST_F(AssignmentFlow, OkByKeyIsRefusedForAScoreThatIsNone) {
    Script.answers = {Answer::Ok, Answer::Yes};
    NewAssignment([] {
        Choose(AssignmentDialog->ComboClassNameList, 0);
        Type(AssignmentDialog->TextBoxScore, "abc");
        AssignmentDialog->ButtonOK->click();
        EXPECT_TRUE(AssignmentDialog->isVisible());
        Cancel();
    });
    EXPECT_EQ(Script.boxes.front(), Message("Enter the number score that you received on this Assignment."));
    EXPECT_EQ(Assignments.id.Count(), 0);
}

TEST_F(AssignmentFlow, EnterInTheDescriptionIsOk) {
    NewAssignment([] {
        Choose(AssignmentDialog->ComboClassNameList, 0);
        Type(AssignmentDialog->TextBoxDescription, "x");
        QTest::keyClick(AssignmentDialog->TextBoxDescription, Qt::Key_Return);
    });
    EXPECT_EQ(Assignments.desc.Item(1), "x");
}

TEST_F(AssignmentFlow, EnterOnCancelCancels) {
    NewAssignment([] {
        Choose(AssignmentDialog->ComboClassNameList, 0);
        AssignmentDialog->ChangeFlag = false;
        GoTo(AssignmentDialog->ButtonCancel);
        QTest::keyClick(AssignmentDialog->ButtonCancel, Qt::Key_Return);
    });
    ExpectFlags(true, true, false);
    EXPECT_EQ(Assignments.id.Count(), 0);
}

TEST_F(AssignmentFlow, DialogOpensBesideTheWindowOnceAndThenWhereItWasLeft) {
    window->move(100, 80);
    NewAssignment([] {
        EXPECT_EQ(AssignmentDialog->pos(), QPoint(350, 130));
        AssignmentDialog->move(10, 20);
        Cancel();
    });
    EXPECT_FALSE(AssignmentDBFirstOpen);
    NewAssignment([] {
        EXPECT_EQ(AssignmentDialog->pos(), QPoint(10, 20));
        Cancel();
    });
}

// --- Edit --------------------------------------------------------------------------------------------------

TEST_F(AssignmentFlow, EditReplacesEveryFieldButTheIdAndWrites) {
    AddAssignmentRecord({.class_ = "4", .desc = "First"});
    AddAssignmentRecord({.class_ = "7", .desc = "Second"});
    EditAssignment(2, [] {
        EXPECT_EQ(AssignmentDialog->ComboClassNameList->currentText(), "History");
        EXPECT_EQ(AssignmentDialog->TextBoxDescription->text(), "Second");
        Choose(AssignmentDialog->ComboClassNameList, 0);
        Click(AssignmentDialog->CheckBoxDone);
        Ok();
    });
    EXPECT_EQ(Assignments.id.Item(2), "2");
    EXPECT_EQ(Assignments.class_.Item(2), "4");
    EXPECT_EQ(Assignments.done.Item(2), "True");
    EXPECT_EQ(Assignments.percent_complete.Item(2), "100%");
    EXPECT_EQ(Assignments.time_left.Item(2), "00 : 00");
    EXPECT_EQ(Assignments.done.Item(1), "False");
    EXPECT_NE(ReadData(FileName).find("<time_left>00 : 00</time_left>"), std::string::npos);
}

TEST_F(AssignmentFlow, UntouchedEditKeepsTheRecordAndStillWrites) {
    AddAssignmentRecord(
        {.class_ = "4", .score = "85", .total = "100", .grade = "85%", .notes = "a\r\n\xA0z\x80"});
    const AssignmentLists before = Store.Assignment;
    EditAssignment(1, Ok);
    for (const Field<AssignmentLists>& field : AssignmentFields) {
        EXPECT_EQ(Assignments.*field.list, before.*field.list) << field.tag;
    }
    EXPECT_NE(ReadData(FileName).find("<score>85</score>"), std::string::npos);
}

TEST_F(AssignmentFlow, SavedReminderIsArmedAgain) {
    AddAssignmentRecord({.class_ = "4", .reminder = "True", .reminderlist = "True"});
    EditAssignment(1, Ok);
    EXPECT_EQ(Assignments.reminderlist.Item(1), "False");
}

TEST_F(AssignmentFlow, ReminderThatIsOffStaysOnTheListAsItWas) {
    AddAssignmentRecord({.class_ = "4", .reminder = "False", .reminderlist = "True"});
    EditAssignment(1, Ok);
    EXPECT_EQ(Assignments.reminderlist.Item(1), "True");
}

TEST_F(AssignmentFlow, RecordOfAnotherClassOpensWithNothingSelected) {
    AddAssignmentRecord({.class_ = "7"});
    AddAssignmentRecord({.class_ = "99"});
    EditAssignment(1, Cancel);
    EditAssignment(2, [] {
        EXPECT_EQ(AssignmentDialog->ComboClassNameList->currentText(), "");
        Ok();
        EXPECT_TRUE(AssignmentDialog->isVisible());
        Cancel();
    });
    EXPECT_EQ(Script.boxes, std::vector{Message("Select a Class for this assignment.")});
    EXPECT_EQ(Assignments.class_.Item(2), "99");
}

TEST_F(AssignmentFlow, EditOpensInATermWithoutClassesAndOkRefuses) {
    AddAssignmentRecord({.class_ = "4"});
    ActiveClasses = {};
    EditAssignment(1, [] {
        EXPECT_EQ(AssignmentDialog->ComboClassNameList->count(), 0);
        Ok();
        Cancel();
    });
    EXPECT_EQ(Script.boxes, std::vector{Message("Select a Class for this assignment.")});
}

// --- Cancel, the close box, Delete -------------------------------------------------------------------------

TEST_F(AssignmentFlow, CancelWithoutChangesAsksNothingAndWritesNothing) {
    AddAssignmentRecord({.class_ = "4"});
    const std::string before = ReadData(FileName);
    NewAssignment(Cancel);
    ExpectFlags(true, true, false);
    EditAssignment(1, Cancel);
    EXPECT_TRUE(Script.boxes.empty());
    EXPECT_EQ(ReadData(FileName), before);
    EXPECT_EQ(Assignments.id.Count(), 1);
    EXPECT_EQ(NextAssignmentID, 2);
}

TEST_F(AssignmentFlow, CancelAfterAChangeAsksAndAnythingButYesKeepsTheDialogOpen) {
    Script.answers = {Answer::No, Answer::Yes};
    NewAssignment([] {
        Type(AssignmentDialog->TextBoxDescription, "x");
        Cancel();
        EXPECT_TRUE(AssignmentDialog->isVisible());
        ExpectFlags(false, false, false);
        QTest::keyClick(AssignmentDialog, Qt::Key_Escape);
    });
    ExpectFlags(true, true, false);
    const ShownBox question = Question("Cancel this assignment?");
    EXPECT_EQ(Script.boxes, (std::vector{question, question}));
    EXPECT_EQ(Assignments.id.Count(), 0);
}

TEST_F(AssignmentFlow, CancelOfAnEditAsksForAllChanges) {
    AddAssignmentRecord({.class_ = "4", .desc = "First"});
    Script.answers = {Answer::Yes};
    EditAssignment(1, [] {
        Type(AssignmentDialog->TextBoxDescription, "x");
        Cancel();
    });
    EXPECT_EQ(Script.boxes, std::vector{Question("Cancel all changes to this assignment?")});
    EXPECT_EQ(Assignments.desc.Item(1), "First");
}

TEST_F(AssignmentFlow, CloseBoxCountsAsCancel) {
    Script.answers = {Answer::No, Answer::Yes};
    NewAssignment([] {
        Type(AssignmentDialog->TextBoxDescription, "x");
        PressCloseBox(*AssignmentDialog);
        EXPECT_TRUE(AssignmentDialog->isVisible());
        PressCloseBox(*AssignmentDialog);
        EXPECT_FALSE(AssignmentDialog->isVisible());
    });
    ExpectFlags(true, true, false);
    EXPECT_EQ(Script.boxes.size(), 2U);
    EXPECT_EQ(Assignments.id.Count(), 0);
}

TEST_F(AssignmentFlow, CloseThatIsNotTheStudentsPassesAndSavesNothing) {
    NewAssignment([] {
        Choose(AssignmentDialog->ComboClassNameList, 0);
        Type(AssignmentDialog->TextBoxDescription, "x");
        AssignmentDialog->close();
    });
    EXPECT_TRUE(Script.boxes.empty());
    EXPECT_EQ(Assignments.id.Count(), 0);
}

TEST_F(AssignmentFlow, ShutdownWhileTheDialogIsOpenWritesNothing) {
    const std::string before = ReadData(FileName);
    NewAssignment([] {
        Choose(AssignmentDialog->ComboClassNameList, 0);
        Type(AssignmentDialog->TextBoxScore, "abc");
        ShuttingDown = true;
        AssignmentDialog->hide();
    });
    EXPECT_TRUE(Script.boxes.empty());
    EXPECT_EQ(Assignments.id.Count(), 0);
    EXPECT_EQ(ReadData(FileName), before);
}

TEST_F(AssignmentFlow, DeleteAsksAndTakesTheRecordOutOfEveryList) {
    AddAssignmentRecord({.class_ = "4", .desc = "First"});
    AddAssignmentRecord({.class_ = "4", .desc = "Second"});
    Script.answers = {Answer::No, Answer::Yes};
    EditAssignment(1, [] {
        Click(AssignmentDialog->ButtonDelete);
        EXPECT_TRUE(AssignmentDialog->isVisible());
        ExpectFlags(false, false, false);
        Click(AssignmentDialog->ButtonDelete);
    });
    ExpectFlags(false, true, true);
    const ShownBox question = Question("Are you sure you want to Delete this assignment?");
    EXPECT_EQ(Script.boxes, (std::vector{question, question}));
    for (const Field<AssignmentLists>& field : AssignmentFields) {
        EXPECT_EQ((Assignments.*field.list).Count(), 1) << field.tag;
    }
    EXPECT_EQ(Assignments.desc.Item(1), "Second");
    EXPECT_EQ(ReadData(FileName).find("First"), std::string::npos);
    EXPECT_NE(ReadData(FileName).find("Second"), std::string::npos);
}

TEST_F(AssignmentFlow, AValueThatTheDialogCannotUseIsToldByItsPlaceInTheFile) {
    AddAssignmentRecord({.desc = "Read", .reminderdate = "some other day"});
    std::string text;
    try {
        ::EditAssignment(*window, 1);
    } catch (const RunTimeError& error) {
        text = FaultText(error);
    }
    EXPECT_EQ(text, "Not a date: \"some other day\"\n\nFile: assignments_1.xml\nRecord: 1, \"Read\"\nField: "
                    "reminderdate\n"
                    "Value: \"some other day\"\n\nCopies of the last good files, where there are any, lie in "
                    "the Backup folder. The program plancheck beside the planner tells more of the fault and "
                    "gets a copy back.");
}

TEST_F(AssignmentFlow, EditBesideAnAssignmentThatWasCutDropsIt) {
    for (const bool deletes : {false, true}) {
        Assignments = {};
        for (const char* desc : {"one", "two", "three"}) {
            AddAssignmentRecord({.class_ = "4", .desc = desc});
        }
        WriteAssignments();
        WriteData(FileName, ReadData(FileName).substr(0, ReadData(FileName).rfind("</desc>")));
        Assignments = {};
        FileWrittenFlags = {};
        ReadAssignments();
        Script.answers = {Answer::Yes};
        EditAssignment(1, [deletes] { deletes ? Click(AssignmentDialog->ButtonDelete) : Ok(); });
        EXPECT_TRUE(FileWrittenFlags.assignments);
        for (const Field<AssignmentLists>& field : AssignmentFields) {
            EXPECT_EQ((Assignments.*field.list).Count(), deletes ? 1 : 2) << field.tag;
        }
        EXPECT_EQ(ReadData(FileName).find("<id>3"), std::string::npos);
    }
}

TEST_F(AssignmentFlow, AssignmentBehindOneThatWasCutDoesNotMergeWithIt) {
    AddAssignmentRecord({.class_ = "4", .desc = "one"});
    AddAssignmentRecord({.class_ = "4", .desc = "two"});
    WriteAssignments();
    const std::string cut =
        ReadData("assignments_1.xml").substr(0, ReadData("assignments_1.xml").rfind("</desc>"));
    WriteData("assignments_1.xml", cut);
    Store.Assignment = {};
    ReadAssignments();
    NewAssignment([] {
        Choose(AssignmentDialog->ComboClassNameList, 1);
        Type(AssignmentDialog->TextBoxDescription, "three");
        Ok();
    });
    EditAssignment(1, [] {
        Type(AssignmentDialog->TextBoxDescription, "changed");
        Ok();
    });
    EXPECT_EQ(Store.Assignment.desc.values, (std::vector<std::string>{"changed", "three"}));
    EXPECT_EQ(Store.Assignment.id.values, (std::vector<std::string>{"1", "3"}));
    EXPECT_NE(ReadData("assignments_1.xml").find("three"), std::string::npos);
    EXPECT_EQ(ReadData("Backup/assignments_1_damaged.xml"), cut);
}
