// The tests of the editors of assignments, tasks and events: a loaded window with a term of two classes, and
// the keys and presses that a student makes in a dialog.
#pragma once

#include "core/Module1.h"
#include "editors/EditorParts.h"
#include "editors/FrmTask.h"
#include "editors/frmAssignment.h"
#include "editors/frmEvent.h"
#include "editors/frmRecurrence.h"
#include "mainwindow/flows/RecordFlow.h"
#include "support/StoreRecords.h"
#include "support/WindowTest.h"
#include "toolkit/PictureBox.h"

#include <initializer_list>
#include <utility>

class EditorTest : public WindowTest {
protected:
    // The window's ClickedDate is 2009-10-20, six days after today.
    void SetUp() override;

    // The same behind a platform that the test has prepared.
    void SetUpLoaded();

    // The dialogs open without their flow, so that the test goes on while they are open.
    void Open(frmAssignment& dialog, const std::string& mode);
    void Open(FrmTask& dialog, const std::string& mode);
    void Open(frmEvent& dialog, const std::string& mode);

    // Gives the focus to the widget as the tab key does.
    static void GoTo(QWidget* widget);

    // Replaces the field's text by typing; the field keeps the focus.
    static void Type(QComboBox* combo, const QString& text);
    static void Type(QLineEdit* box, const QString& text);

    // The same, leaving the field by tab or ending the entry with Enter.
    template <class Input>
    void TypeAndLeave(Input* input, const QString& text) {
        Type(input, text);
        GoTo(Elsewhere(input));
    }

    template <class Input>
    void TypeAndEnter(Input* input, const QString& text) {
        Type(input, text);
        QTest::keyClick(input, Qt::Key_Return);
    }

    // Chooses the row as the student does.
    static void Choose(QComboBox* combo, int row);

    static void Click(QWidget* widget);

    // Ticks the box or not, as a screen reader does.
    static void ToggleByScreenReader(QCheckBox* box);

    // What the window system sends for the close box.
    static void PressCloseBox(QDialog& dialog);

    // Expects the numbers to be the topics of the dialog's controls of these names.
    static void ExpectTopics(const QDialog& dialog,
                             std::initializer_list<std::pair<const char*, int>> numbers);

    // The box that the dialogs of these tests show.
    static ShownBox Message(const std::string& text);
    static ShownBox Question(const std::string& text, Preset preset = Preset::No);

    // Shows a dialog without its flow.
    static void ShowAlone(QDialog& dialog);

private:
    static QWidget* Elsewhere(const QWidget* input);
};

// Colours as the screen has them, 0xRRGGBB.
int BackColorOf(const QWidget* widget);
int TextColorOf(const QWidget* widget);
int BoxColorOf(const QLineEdit* box);

// Expects the fields of the reminder to be those of one that is on, or off: enabled, and in its colours.
template <class Dialog>
void ExpectReminder(const Dialog& dialog, bool on) {
    const int color = on ? 0xFFFFFF : 0xC0C0C0;
    EXPECT_EQ(dialog.TextboxReminderDate->isEnabled(), on);
    EXPECT_EQ(dialog.PicButtonReminderDate->isEnabled(), on);
    EXPECT_EQ(dialog.ComboReminderTime->isEnabled(), on);
    EXPECT_EQ(TextColorOf(dialog.LabelRemDate), color);
    EXPECT_EQ(TextColorOf(dialog.LabelRemTime), color);
    EXPECT_EQ(BackColorOf(dialog.LabelRemBG2), color);
}
