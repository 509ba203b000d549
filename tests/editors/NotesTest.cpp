// Notes of several lines: whatever is typed, pasted and deleted in them reads back from their file as it was.
#include "editors/EditorParts.h"
#include "editors/EditorTest.h"
#include "editors/FieldLines.h"
#include "editors/frmCourseSchedule.h"
#include "editors/frmSelectCourseSchedule.h"
#include "mainwindow/flows/AssignmentFlow.h"
#include "mainwindow/flows/EventFlow.h"
#include "mainwindow/flows/TaskFlow.h"
#include "mainwindow/flows/TermFlow.h"
#include "persistence/modIO.h"

#include <QClipboard>

#include <algorithm>
#include <array>
#include <random>

namespace {

class Notes : public testing::Test {
protected:
    void SetUp() override {
        LimitToSet(&box);
        KeepLinesOfField(&box, "notes");
    }

    void Paste(const QString& text) {
        QGuiApplication::clipboard()->setText(text);
        box.paste();
    }

    void Press(Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) { QTest::keyClick(&box, key, with); }

    void Type(const QString& text) { QTest::keyClicks(&box, text); }

    QString Text() const { return box.toPlainText(); }

    QPlainTextEdit box;
};

class NotesInFiles : public EditorTest {};

// Texts of what a file is made of.
QString RandomPiece(std::mt19937& random) {
    static const std::vector<QString> pieces{
        "</notes>", "</notes>",     "<notes>", "</", "notes",  ">", "<",  "/",
        "\n",       "\n",           "\r\n",    "\r", "\u2028", " ", "  ", "</task>",
        "<task>",   "</task_data>", "</desc>", "x",  "\u0436", "\t"};
    return pieces[random() % pieces.size()];
}

// One thing that a student does in the box.
void DoSomething(QPlainTextEdit& box, std::mt19937& random) {
    static constexpr std::array<Qt::Key, 8> Keys{Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Left,
                                                 Qt::Key_Up,        Qt::Key_Home,   Qt::Key_End,
                                                 Qt::Key_Return,    Qt::Key_Right};
    switch (random() % 8) {
    case 0:
        box.undo();
        break;
    case 1:
        box.redo();
        break;
    case 2:
    case 3: {
        const Qt::Key key = Keys[random() % Keys.size()];
        QTest::keyClick(&box, key, random() % 3 == 0 ? Qt::ShiftModifier : Qt::NoModifier);
        break;
    }
    case 4: {
        QTextCursor cursor = box.textCursor();
        cursor.setPosition(
            static_cast<int>(random() % static_cast<unsigned>(box.document()->characterCount())));
        box.setTextCursor(cursor);
        break;
    }
    default: {
        QString text;
        for (auto count = random() % 6; count > 0; --count) {
            text += RandomPiece(random);
        }
        box.insertPlainText(text);
    }
    }
}

} // namespace

TEST_F(Notes, LineThatEndsWithTheirClosingTagGetsABlankAsTheNextOneBegins) {
    Type("close with </notes>");
    EXPECT_EQ(Text(), "close with </notes>");
    Press(Qt::Key_Return);
    Type("go on");
    EXPECT_EQ(Text(), "close with </notes> \ngo on");
}

TEST_F(Notes, BlankAndLineBreakAreOneStepToUndo) {
    Type("close with </notes>");
    Press(Qt::Key_Return);
    box.undo();
    EXPECT_EQ(Text(), "close with </notes>");
    box.redo();
    EXPECT_EQ(Text(), "close with </notes> \n");
}

TEST_F(Notes, BlanksComeWithAPasteAndGoWithItInOneStep) {
    Type("x");
    Paste("a</notes>\n</notes>\nb</notes>");
    EXPECT_EQ(Text(), "xa</notes> \n</notes> \nb</notes>");
    box.undo();
    EXPECT_EQ(Text(), "x");
}

TEST_F(Notes, BlankComesBeforeABreakWithinAParagraphToo) {
    Type("</notes>");
    Press(Qt::Key_Return, Qt::ShiftModifier);
    Type("x");
    EXPECT_EQ(TextOf(&box), "</notes> \r\nx");
}

TEST_F(Notes, OtherLinesStayAsTheyAre) {
    const QString text = "</desc>\n</notes> \n</Notes>\n</notes>x\n<notes>\n/notes>\n\n</notes>";
    Paste(text);
    EXPECT_EQ(Text(), text);
}

TEST_F(Notes, TagIsDeletedKeyByKeyAsAnyOtherText) {
    Paste("a</notes>\nb");
    Press(Qt::Key_Up);
    Press(Qt::Key_End);
    for (int i = 0; i < 3; ++i) {
        Press(Qt::Key_Backspace);
    }
    EXPECT_EQ(Text(), "a</note \nb") << "while the tag is whole the blank comes back, behind the cursor";
}

TEST_F(Notes, DeleteBehindATagJoinsTheLines) {
    Paste("a</notes>\nb");
    Press(Qt::Key_Up);
    Press(Qt::Key_End);
    Press(Qt::Key_Left);
    Press(Qt::Key_Delete);
    EXPECT_EQ(Text(), "a</notes>b");
    EXPECT_EQ(box.textCursor().position(), 9);
    box.undo();
    EXPECT_EQ(Text(), "a</notes> \nb") << "blank and break are one step";
    box.redo();
    Press(Qt::Key_Delete);
    EXPECT_EQ(Text(), "a</notes>");
}

TEST_F(Notes, DeleteBehindATagGoesLineByLine) {
    Paste("</notes>\n\nb");
    box.moveCursor(QTextCursor::Start);
    Press(Qt::Key_End);
    Press(Qt::Key_Left);
    Press(Qt::Key_Delete);
    EXPECT_EQ(Text(), "</notes> \nb");
    Press(Qt::Key_Delete);
    EXPECT_EQ(Text(), "</notes>b");
}

TEST_F(Notes, DeleteElsewhereTakesOneLetterOrWhatIsSelected) {
    Paste("a</notes>  \n b");
    box.moveCursor(QTextCursor::Start);
    Press(Qt::Key_Delete);
    EXPECT_EQ(Text(), "</notes>  \n b");
    Press(Qt::Key_End);
    Press(Qt::Key_Left);
    Press(Qt::Key_Left);
    Press(Qt::Key_Delete);
    EXPECT_EQ(Text(), "</notes> \n b") << "one of two blanks";
    Press(Qt::Key_Left, Qt::ShiftModifier);
    Press(Qt::Key_Delete);
    EXPECT_EQ(Text(), "</notes \n b") << "the selection alone";
    Press(Qt::Key_Delete);
    EXPECT_EQ(Text(), "</notes\n b") << "behind no tag a blank is a blank";
}

TEST_F(Notes, TagThatIsCompletedInALineBeforeAnotherGetsItsBlank) {
    Paste("</notes\nb");
    Press(Qt::Key_Up);
    Press(Qt::Key_End);
    Type(">");
    EXPECT_EQ(Text(), "</notes> \nb");
}

TEST_F(NotesInFiles, OfAnyTagsBracketsBreaksAndBlanksReadBackByteForByte) {
    std::mt19937 random{20091014};
    int withBlank = 0;
    for (int round = 0; round < 300; ++round) {
        QPlainTextEdit box;
        LimitToSet(&box);
        KeepLinesOfField(&box, "notes");
        for (int step = 0; step < 12; ++step) {
            DoSomething(box, random);
            const std::string notes = TextOf(&box);
            AddTaskRecord({.notes = notes});
            withBlank += notes.find("</notes> \r\n") != std::string::npos ? 1 : 0;
        }
    }
    EXPECT_GT(withBlank, 100);
    const std::vector<std::string> written = Store.TaskRecord.notes.values;
    WriteTasks();
    ResetStore();
    ReadTasks();
    EXPECT_EQ(Script.boxes.size(), 0U);
    const std::vector<std::string>& read = Store.TaskRecord.notes.values;
    const auto [kept, other] = std::ranges::mismatch(written, read);
    EXPECT_EQ(read.size(), written.size());
    EXPECT_EQ(kept, written.end()) << "record " << kept - written.begin() << ": " << *kept;
}

TEST_F(NotesInFiles, OfEveryKindGoThroughTheirDialogs) {
    const std::string kept = "close with </notes> \r\ngo on";
    const auto typeInto = [](QPlainTextEdit* box) {
        QTest::keyClicks(box, "close with </notes>");
        QTest::keyClick(box, Qt::Key_Return);
        QTest::keyClicks(box, "go on");
    };
    WhenDialogOpens([&](QWidget*) {
        typeInto(TaskDialog->TextBoxNotes);
        Click(TaskDialog->ButtonOK);
    });
    NewTask(*window);
    WhenDialogOpens([&](QWidget*) {
        Choose(AssignmentDialog->ComboClassNameList, 1);
        typeInto(AssignmentDialog->TextBoxNotes);
        Click(AssignmentDialog->ButtonOK);
    });
    NewAssignment(*window);
    WhenDialogOpens([&](QWidget*) {
        typeInto(EventDialog->TextBoxNotes);
        Click(EventDialog->ButtonOK);
    });
    NewMorningEvent(*window);
    WhenDialogOpens([&](QWidget*) {
        WhenDialogOpens([&](QWidget*) {
            Click(TermDialog->ButtonAddClass);
            Type(TermDialog->TextBoxClassName, "Physics");
            typeInto(TermDialog->TextBoxNotes);
            Click(TermDialog->ButtonOKClass);
            Click(TermDialog->ButtonOK);
        });
        Click(TermChooser->ButtonEdit);
    });
    ClassSchedule(*window);
    ResetStore();
    ActiveTermID = 1;
    ReadTermsAndClasses();
    ReadTasks();
    ReadAssignments();
    ReadEvents();
    EXPECT_TRUE(Script.boxes.empty());
    EXPECT_EQ(Store.TaskRecord.notes.Item(1), kept);
    EXPECT_EQ(Store.EventRecord.notes.Item(1), kept);
    EXPECT_EQ(Store.Assignment.notes.Item(1), kept);
    EXPECT_EQ(Store.ClassRecord.notes.Item(Store.ClassRecord.notes.Count()), kept);
}
