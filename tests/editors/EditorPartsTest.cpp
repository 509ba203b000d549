// What the editors' boxes take in, and what they give to the store.
#include "editors/EditorParts.h"
#include "support/ScriptedPlatform.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// Within the set as windows-1252 has it, outside of it, and outside of the first plane.
const QString Typed = QStringLiteral("a\u20AC\u00E9\u0436\U0001F600z");
const QString Kept = QStringLiteral("a\u20AC\u00E9??z");

template <class Box>
void Paste(Box& box, const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    box.paste();
}

} // namespace

TEST(EditorParts, CharacterOutsideTheSetBecomesAQuestionMarkAsItIsTyped) {
    QLineEdit box;
    LimitToSet(&box);
    QTest::keyClicks(&box, QStringLiteral("x"));
    box.insert(Typed);
    EXPECT_EQ(box.text(), "x" + Kept);
    EXPECT_EQ(box.cursorPosition(), box.text().size());
}

TEST(EditorParts, CharacterOutsideTheSetBecomesAQuestionMarkAsItIsPasted) {
    QLineEdit box;
    LimitToSet(&box);
    Paste(box, Typed);
    EXPECT_EQ(box.text(), Kept);
    EXPECT_EQ(TextOf(&box), "a\x80\xE9??z");
}

TEST(EditorParts, PasteInTheMiddleKeepsTheCursorBehindIt) {
    QLineEdit box;
    LimitToSet(&box);
    box.setText(QStringLiteral("12"));
    box.setCursorPosition(1);
    Paste(box, QStringLiteral("\U0001F600"));
    EXPECT_EQ(box.text(), "1?2");
    EXPECT_EQ(box.cursorPosition(), 2);
}

TEST(EditorParts, BoxOfOneLineTakesLineBreaksAsBlanks) {
    QLineEdit box;
    LimitToSet(&box);
    Paste(box, QStringLiteral("one\r\ntwo\nthree"));
    EXPECT_EQ(box.text(), "one two three");
}

TEST(EditorParts, TypedComboHoldsTheSetAndMakesNoRows) {
    QComboBox combo;
    SetupTypedCombo(&combo);
    combo.addItem(QStringLiteral("Quiz"));
    combo.lineEdit()->setText(Typed);
    QTest::keyClick(&combo, Qt::Key_Return);
    EXPECT_EQ(combo.currentText(), Kept);
    EXPECT_EQ(combo.count(), 1);
    EXPECT_EQ(combo.completer(), nullptr);
}

TEST(EditorParts, TextThatIsNoRowIsShownWithNoneSelected) {
    QComboBox combo;
    SetupTypedCombo(&combo);
    AddRows(&combo, std::vector<std::string>{"One", "Two"});
    ShowComboText(&combo, "Two");
    EXPECT_EQ(combo.currentIndex(), 1);
    ShowComboText(&combo, "Three");
    EXPECT_EQ(combo.currentIndex(), -1);
    EXPECT_EQ(TextOf(&combo), "Three");
    ShowComboText(&combo, "two");
    EXPECT_EQ(combo.currentIndex(), -1) << "letter case counts";
}

TEST(EditorParts, NotesHoldTheSetAsTheyAreTypedAndPasted) {
    QPlainTextEdit notes;
    LimitToSet(&notes);
    QTest::keyClicks(&notes, QStringLiteral("x"));
    Paste(notes, Typed + "\n" + Typed);
    EXPECT_EQ(notes.toPlainText(), "x" + Kept + "\n" + Kept);
}

TEST(EditorParts, UndoTakesAPasteBackInOneStep) {
    QPlainTextEdit notes;
    LimitToSet(&notes);
    QTest::keyClicks(&notes, QStringLiteral("x"));
    Paste(notes, Typed);
    notes.undo();
    EXPECT_EQ(notes.toPlainText(), "x");
}

TEST(EditorParts, NotesGoIntoTheStoreWithWindowsLineEnds) {
    QPlainTextEdit notes;
    notes.setPlainText(FromStore("one\r\n\r\ntwo\n"));
    EXPECT_EQ(TextOf(&notes), "one\r\n\r\ntwo\r\n");
}

TEST(EditorParts, BlankThatDoesNotBreakStaysInTheNotes) {
    QPlainTextEdit notes;
    LimitToSet(&notes);
    notes.setPlainText(FromStore("a\xA0z"));
    EXPECT_EQ(TextOf(&notes), "a\xA0z");
}

TEST(EditorParts, LongTextIsShownFromItsBeginning) {
    QLineEdit box;
    ShowText(&box, std::string(200, 'x'));
    EXPECT_EQ(box.cursorPosition(), 0);
}

TEST(EditorParts, EachAnswerHidesTheEditorBehindTheHookAndTellsThatItDid) {
    ResetScript();
    QDialog dialog;
    EditorState state;
    std::vector<bool> visibleAtHook;
    state.BeforeHide = [&] { visibleAtHook.push_back(dialog.isVisible()); };
    const auto show = [&] {
        ClearFlags(state);
        state.ChangeFlag = true;
        dialog.show();
    };
    show();
    EXPECT_FALSE(CancelEditor(dialog, state, "Cancel this?"));
    EXPECT_FALSE(DeleteInEditor(dialog, state, "task"));
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_FALSE(state.CloseOK);
    EXPECT_TRUE(visibleAtHook.empty());

    Script.answers = {Answer::Yes, Answer::Yes};
    EXPECT_TRUE(CancelEditor(dialog, state, "Cancel this?"));
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(state.CloseOK && state.CancelledFlag);
    show();
    EXPECT_TRUE(DeleteInEditor(dialog, state, "task"));
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(state.CloseOK && state.DeleteFlag);
    show();
    AcceptEditor(dialog, state);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(visibleAtHook, (std::vector<bool>{true, true, true}));
}
