// The base of the editors of assignments and tasks: the done box and the percent, the date, the reminder.
#pragma once

#include "editors/EditorDialog.h"
#include "editors/picker/DatePicker.h"

// The reminder of an assignment or a task: the strip with a date and a time.
struct ReminderControls {
    ReminderStrip strip;
    QLineEdit* date;
    QToolButton* button;
    QComboBox* time;
};

// These controls have the same names in every dialog of an assignment or a task.
template <class Dialog>
ReminderControls ReminderOf(const Dialog& dialog) {
    return {{dialog.CheckboxReminder,
             dialog.LabelRemBG,
             dialog.LabelRemBG2,
             {dialog.LabelRemDate, dialog.LabelRemTime},
             {dialog.TextboxReminderDate, dialog.PicButtonReminderDate, dialog.ComboReminderTime}},
            dialog.TextboxReminderDate,
            dialog.PicButtonReminderDate,
            dialog.ComboReminderTime};
}

inline constexpr std::string_view NewReminderTime = "9:00 AM";

// Controls of an item's editor, and its fields that they fill.
struct ItemControls {
    DoneControls done;
    ReminderControls reminder;
    QLineEdit* dateBox;
    QToolButton* dateButton;
    std::string *date, *reminderDate; // in the short form
    std::string* reminderAlarm;
    std::string* reminderList;
};

class ItemEditor : public EditorDialog {
    Q_OBJECT

public:
    using EditorDialog::EditorDialog;

    DatePicker* Picker = nullptr;

protected:
    // Takes the controls, with their looks.
    void SetupItem(const ItemControls& controls);

    // Lets the fields follow the controls and each other. To be called when all is set up.
    void BindItem();

    // Fills both dates and the alarm, and paints the reminder. The alarm of a time that is none is that of
    // 9:00 AM, which it becomes as soon as the combo is left.
    void FillDates(Date date, Date reminderDate);

    // Makes a whole percent of what was chosen or typed.
    void TakePercent();

    // Makes a time of what was typed as that of the reminder.
    void ValidateReminderTime();

    // A reminder that is on is armed again as the editor closes with OK.
    void ArmReminder();

    // The done box or the percent has changed by the student.
    virtual void WorkChanged() {}

    bool UpdateEstimateFlag = false; // the program sets the done box, which is no click

private:
    void DoneClicked();
    void ReminderClicked();
    void SetAlarm();
    void TakeDate(Date date);

    ItemControls item{};
};
