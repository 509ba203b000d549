// What the editors of assignments and tasks have alike: the done box and the percent, the reminder, the ways
// in which an editor closes.
#include "editors/EditorParts.h"

#include "planner/entries/AssignmentEntry.h"
#include "planner/entries/ComboRows.h"
#include "planner/rows/Colors.h"
#include "platform/MessageBoxes.h"
#include "toolkit/PictureBox.h"
#include "toolkit/WindowColors.h"

#include <QCloseEvent>

bool IsComplete(const DoneControls& controls) {
    return TextOf(controls.percent) == PercentRows.back();
}

void SetDone(const DoneControls& controls, bool done) {
    controls.box->setChecked(done);
    for (QWidget* colored : {static_cast<QWidget*>(controls.box), controls.ground}) {
        SetBackColor(colored, done ? DoneStripColor : NotDoneStripColor);
    }
    SetColor(controls.box, QPalette::WindowText, ColorWhite);
}

void PercentFollowsDone(const DoneControls& controls) {
    const bool done = controls.box->isChecked();
    SetDone(controls, done);
    ShowComboText(controls.percent, done ? PercentRows.back() : PercentRows.front());
}

void ValidatePercentEntry(const DoneControls& controls) {
    ShowComboText(controls.percent, ValidatePercent(TextOf(controls.percent)));
    SetDone(controls, IsComplete(controls));
}

void SetupReminder(const ReminderStrip& reminder) {
    SetBackColor(reminder.strip, BarColor);
    SetColor(reminder.box, QPalette::WindowText, ColorWhite);
}

void PaintReminder(const ReminderStrip& reminder) {
    const bool on = reminder.box->isChecked();
    const int color = on ? ColorWhite : StripOffColor;
    for (QLabel* label : reminder.labels) {
        SetColor(label, QPalette::WindowText, color);
    }
    SetBackColor(reminder.ground, color);
    for (QWidget* input : reminder.inputs) {
        input->setEnabled(on);
    }
}

bool IsYes(std::string_view question, Preset preset) {
    return MsgBox(question, Buttons::YesNo, Icon::Information, BoxTitle, preset) == Answer::Yes;
}

void ClearFlags(EditorState& state) {
    state.ChangeFlag = false;
    state.CancelledFlag = false;
    state.CloseOK = false;
    state.DeleteFlag = false;
}

void HideEditor(QDialog& dialog, EditorState& state) {
    if (state.BeforeHide) {
        state.BeforeHide();
    }
    state.CloseOK = true;
    dialog.hide();
}

void AcceptEditor(QDialog& dialog, EditorState& state) {
    state.CancelledFlag = false;
    state.DeleteFlag = false;
    HideEditor(dialog, state);
}

std::string CancelQuestion(const EditorState& state, std::string_view item) {
    const std::string what = state.EditMode == "New" ? "Cancel this " : "Cancel all changes to this ";
    return what + std::string(item) + "?";
}

bool CancelEditor(QDialog& dialog, EditorState& state, std::string_view question) {
    if (state.ChangeFlag && !IsYes(question)) {
        return false;
    }
    state.CancelledFlag = true;
    HideEditor(dialog, state);
    return true;
}

bool DeleteInEditor(QDialog& dialog, EditorState& state, std::string_view item) {
    if (!IsYes("Are you sure you want to Delete this " + std::string(item) + "?")) {
        return false;
    }
    state.DeleteFlag = true;
    HideEditor(dialog, state);
    return true;
}

void CloseEditor(QDialog& dialog, EditorState& state, std::string_view question, QCloseEvent& event) {
    if (event.spontaneous()) {
        event.ignore();
        CancelEditor(dialog, state, question);
    } else {
        state.CancelledFlag = true;
        event.accept();
    }
}
