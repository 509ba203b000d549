// The base of the editors of assignments and tasks: the done box and the percent, the date, the reminder.
#include "editors/ItemEditor.h"

#include "core/Values.h"
#include "editors/DialogLook.h"
#include "planner/entries/ReminderEntry.h"

void ItemEditor::SetupItem(const ItemControls& controls) {
    item = controls;
    SetupReminder(item.reminder);
    SetupDateBoxes({{item.dateBox, item.dateButton}, {item.reminder.date, item.reminder.button}});
}

void ItemEditor::BindItem() {
    Picker = new DatePicker(this);
    Picker->AddField(true, item.dateBox, item.dateButton, *item.date);
    Picker->AddField(false, item.reminder.date, item.reminder.button, *item.reminderDate);
    connect(Picker, &DatePicker::DatePicked, this, &ItemEditor::TakeDate);
    connect(item.done.box, &QCheckBox::toggled, this, &ItemEditor::DoneClicked);
    connect(item.done.percent, &QComboBox::activated, this, &ItemEditor::TakePercent);
    connect(item.reminder.box, &QCheckBox::toggled, this, &ItemEditor::ReminderClicked);
}

void ItemEditor::FillDates(Date date, Date reminderDate) {
    ShowDateField(*item.date, item.dateBox, date);
    ShowDateField(*item.reminderDate, item.reminder.date, reminderDate);
    SetAlarm();
}

void ItemEditor::TakePercent() {
    UpdateEstimateFlag = true;
    ValidatePercentEntry(item.done);
    UpdateEstimateFlag = false;
    WorkChanged();
    ChangeFlag = true;
}

void ItemEditor::DoneClicked() {
    if (UpdateEstimateFlag) {
        return;
    }
    PercentFollowsDone(item.done);
    WorkChanged();
    ChangeFlag = true;
}

void ItemEditor::ReminderClicked() {
    PaintReminder(item.reminder);
    if (item.reminder.box->isChecked()) {
        SetAlarm();
    }
    ChangeFlag = true;
}

void ItemEditor::SetAlarm() {
    *item.reminderAlarm = AlarmOf(*item.reminderDate, item.reminder.time);
}

void ItemEditor::TakeDate(Date date) {
    if (Picker->DateTarget) {
        ShowDateField(*item.date, item.dateBox, date);
    } else {
        ShowDateField(*item.reminderDate, item.reminder.date, date);
        SetAlarm();
    }
    ChangeFlag = true;
}

void ItemEditor::ValidateReminderTime() {
    ShowComboText(item.reminder.time, ValidateTime(TextOf(item.reminder.time)));
    SetAlarm();
    ChangeFlag = true;
}

void ItemEditor::ArmReminder() {
    if (item.reminder.box->isChecked()) {
        *item.reminderList = BooleanText(false);
    }
}
