// Undo in an editor's boxes goes no further back than the opening of the item.
#include "editors/TermEditorFixture.h"

namespace {

class Undo : public TermEditor {
protected:
    // The window is active in between, as a dialog that opens twice in a row would not become active again.
    void Close(QDialog& opened) {
        opened.hide();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    // Undoes as often as it goes and gives what the box says then.
    static QString UndoneIn(QWidget* box) {
        GoTo(box);
        for (int i = 0; i < 5; ++i) {
            QTest::keyClick(box, Qt::Key_Z, Qt::ControlModifier);
        }
        const auto* notes = qobject_cast<QPlainTextEdit*>(box);
        return notes != nullptr ? notes->toPlainText() : static_cast<QLineEdit*>(box)->text();
    }
};

} // namespace

TEST_F(Undo, OfANewTaskDoesNotBringBackTheTaskBefore) {
    FrmTask& task = *TaskDialog;
    Open(task, "New");
    Type(task.TextBoxDescription, "Call the dean");
    QTest::keyClicks(task.TextBoxNotes, "Private");
    Close(task);
    Open(task, "New");
    EXPECT_EQ(UndoneIn(task.TextBoxDescription), "");
    EXPECT_EQ(UndoneIn(task.TextBoxNotes), "");
    EXPECT_FALSE(task.ChangeFlag);
}

TEST_F(Undo, OfANewAssignmentDoesNotBringBackTheAssignmentBefore) {
    frmAssignment& assignment = *AssignmentDialog;
    Open(assignment, "New");
    for (QLineEdit* box : {assignment.TextBoxDescription, assignment.TextBoxScore, assignment.TextBoxTotal}) {
        Type(box, "12");
    }
    QTest::keyClicks(assignment.TextBoxNotes, "Private");
    Close(assignment);
    Open(assignment, "New");
    for (QWidget* box :
         std::initializer_list<QWidget*>{assignment.TextBoxDescription, assignment.TextBoxScore,
                                         assignment.TextBoxTotal, assignment.TextBoxNotes}) {
        EXPECT_EQ(UndoneIn(box), "") << box->objectName().toStdString();
    }
    EXPECT_FALSE(assignment.ChangeFlag);
}

TEST_F(Undo, OfANewTermOrClassDoesNotBringBackTheOneBefore) {
    OpenEdit();
    OpenClass(1);
    Type(dialog->TextBoxCredits, "4");
    QTest::keyClicks(dialog->TextBoxNotes, "Private");
    Click(dialog->ButtonOKClass);
    Click(dialog->ButtonAddClass);
    for (QWidget* box : std::initializer_list<QWidget*>{dialog->TextBoxClassName, dialog->TextBoxCredits,
                                                        dialog->TextBoxNotes}) {
        EXPECT_EQ(UndoneIn(box), "") << box->objectName().toStdString();
    }
    Click(dialog->ButtonCancelClass);
    Type(dialog->TextBoxTermName, "Another");
    Close(*dialog);
    OpenNew();
    EXPECT_EQ(UndoneIn(dialog->TextBoxTermName), "Fall 2009"); // the name that a new term is offered
}
