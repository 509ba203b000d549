// What the editors have alike: boxes and combos that hold what the files can hold, the end of an entry,
// dates, the done box, the reminder, and the ways in which an editor closes.
#pragma once

#include "platform/Clock.h"
#include "platform/MessageBoxes.h"
#include "toolkit/Text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QToolButton>

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

// --- Texts -------------------------------------------------------------------------------------------------

// Lets the box hold only what the files can hold: a character outside the store's set becomes "?" as it is
// typed or pasted, and in a box of one line a line break becomes a blank.
void LimitToSet(QLineEdit* box);
void LimitToSet(QPlainTextEdit* box);

// The text as the store holds it; lines end with CR LF.
std::string TextOf(const QLineEdit* box);
std::string TextOf(const QComboBox* combo);
std::string TextOf(const QPlainTextEdit* box);

// Shows the text from its beginning, where the box is too short for all of it. It cannot be undone.
void ShowText(QLineEdit* box, const QString& text);
void ShowText(QLineEdit* box, std::string_view text);

// --- Combos ------------------------------------------------------------------------------------------------

// Adds a row for each text.
template <class Rows>
void AddRows(QComboBox* combo, const Rows& rows) {
    for (const std::string_view row : rows) {
        combo->addItem(FromStore(row));
    }
}

// A combo that is typed into: nothing is completed, and what is typed becomes no row.
void SetupTypedCombo(QComboBox* combo);

// The same with these rows.
template <class Rows>
void SetupTypedCombo(QComboBox* combo, const Rows& rows) {
    SetupTypedCombo(combo);
    AddRows(combo, rows);
}

// Selects the row of that text. Where there is none no row is selected, and a combo that is typed into shows
// the text. The combo tells nobody.
void ShowComboText(QComboBox* combo, std::string_view text);

// --- The end of an entry -----------------------------------------------------------------------------------

// True for a field that loses the focus, unless to another window, a popup or a menu, and for Enter in it.
bool EntryEnds(const QEvent* event);

// Validates a field whose entry ends with the event, quietly where it ends with a press on the cancel button.
// The validation gives false when the field is to be entered again; then a press that took the focus from it
// does nothing more, as a message has come between. Gives whether the event is done with.
bool EndEntry(const QEvent* event, const QWidget* cancelButton,
              const std::function<bool(bool quiet)>& validate);

// Lets what was pressed to leave a field be pressed although a box has come in between, which took the
// release of the mouse. To be called behind the box.
void FinishPress(const QDialog& dialog);

// Gives the field the focus again and shows the message.
void AskForEntry(QWidget* field, std::string_view message);

// --- Dates and help ----------------------------------------------------------------------------------------

// The text of a date as a dialog's field holds it, which reads back as the same day.
std::string ShortDateText(Date date);

// Gives a dialog's field the date, and the field's box its long form.
void ShowDateField(std::string& field, QLineEdit* box, Date date);

// Lets the button, and F1 in its dialog, lead into the what's-this mode.
void SetupHelpButton(QToolButton* button);

struct HelpNumber {
    QWidget* control;
    int topic;
};

void SetHelpTopics(std::initializer_list<HelpNumber> numbers);

// Gives a label, a check box or a panel its ground, 0xBBGGRR.
void SetBackColor(QWidget* widget, int color);

// --- The done box and the percent --------------------------------------------------------------------------

struct DoneControls {
    QCheckBox* box;
    QWidget* ground; // the coloured strip behind the box
    QComboBox* percent;
};

// These controls have the same names in every dialog of an assignment or a task.
template <class Dialog>
DoneControls DoneOf(const Dialog& dialog) {
    return {dialog.CheckBoxDone, dialog.LabelDoneBG, dialog.ComboPercentComplete};
}

// True when the percent reads "100%", chosen or typed.
bool IsComplete(const DoneControls& controls);

// Ticks the box or not, with its colours.
void SetDone(const DoneControls& controls, bool done);

// Makes the percent "100%" or "0%" as the box is ticked or not, with its colours.
void PercentFollowsDone(const DoneControls& controls);

// Makes a whole percent of what was typed, and the box follow it.
void ValidatePercentEntry(const DoneControls& controls);

// --- The reminder ------------------------------------------------------------------------------------------

// What stands on the strip of a reminder: its box, and what is in use only while the box is ticked.
struct ReminderStrip {
    QCheckBox* box;
    QWidget* strip;  // dark, behind the box and the labels
    QWidget* ground; // behind the inputs
    std::vector<QLabel*> labels;
    std::vector<QWidget*> inputs;
};

// Gives the strip the colours that it always has.
void SetupReminder(const ReminderStrip& reminder);

// Enables or disables the inputs by the box, with the colours.
void PaintReminder(const ReminderStrip& reminder);

// --- The ways in which an editor closes --------------------------------------------------------------------

struct EditorState {
    bool ChangeFlag = false;    // the student has touched something
    bool CancelledFlag = false; // the answer is Cancel
    bool CloseOK = false;       // the dialog may hide
    bool DeleteFlag = false;    // the answer is Delete
    std::string EditMode;       // "New" or "Edit"
    Date tempClickedDate{};     // the day of a new item
    std::string tempStartDayOfWeek = "Sunday";
    std::function<void()> BeforeHide; // where there is one, called before an answer hides the dialog
};

// Asks the student; true for Yes. Enter alone presses No, unless told that Yes gives up nothing that is
// stored or typed.
bool IsYes(std::string_view question, Preset preset = Preset::No);

// Clears the four flags, as the last step of filling an editor.
void ClearFlags(EditorState& state);

// Hides the dialog with the answer that its flags hold.
void HideEditor(QDialog& dialog, EditorState& state);

// Hides the dialog with OK as the answer.
void AcceptEditor(QDialog& dialog, EditorState& state);

// The question before what was changed in an item is given up. The item is what the dialog edits, as the
// question has it.
std::string CancelQuestion(const EditorState& state, std::string_view item);

// Hides the dialog with Cancel as the answer, after the question if something has changed. Gives whether it
// did.
bool CancelEditor(QDialog& dialog, EditorState& state, std::string_view question);

// Hides the dialog with Delete as the answer, after a question that names the item. Gives whether it did.
bool DeleteInEditor(QDialog& dialog, EditorState& state, std::string_view item);

// The close box counts as Cancel; a close that is not the student's passes.
void CloseEditor(QDialog& dialog, EditorState& state, std::string_view question, QCloseEvent& event);
