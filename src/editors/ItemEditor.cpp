// The base of the editors of assignments and tasks: the done box and the percent, the date, the reminder.
#include "editors/ItemEditor.h"

#include "core/DateText.h"
#include "core/Values.h"
#include "editors/DialogLook.h"
#include "planner/entries/ComboRows.h"
#include "planner/entries/ReminderEntry.h"

void ItemEditor::SetupItem(const ItemControls& controls) {
    item = controls;
    SetupReminder(item.reminder.strip);
    SetupTypedCombo(item.reminder.time, TimeOfDayRows());
    SetupDateBoxes({{item.dateBox, item.dateButton}, {item.reminder.date, item.reminder.button}});
}

void ItemEditor::BindItem() {
    Picker = new DatePicker(this);
    Picker->AddField(true, item.dateBox, item.dateButton, [this] { return DateValue(*item.date); });
    Picker->AddField(false, item.reminder.date, item.reminder.button,
                     [this] { return DateValue(*item.reminderDate); });
    connect(Picker, &DatePicker::DatePicked, this, &ItemEditor::TakeDate);
    connect(item.done.box, &QCheckBox::toggled, this, &ItemEditor::DoneClicked);
    connect(item.done.percent, &QComboBox::activated, this, &ItemEditor::TakePercent);
    connect(item.reminder.strip.box, &QCheckBox::toggled, this, &ItemEditor::ReminderClicked);
}

void ItemEditor::FillDates(Date date, Date reminderDate) {
    ShowDateField(*item.date, item.dateBox, date);
    ShowDateField(*item.reminderDate, item.reminder.date, reminderDate);
    SetAlarm();
    PaintReminder(item.reminder.strip);
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
    PaintReminder(item.reminder.strip);
    if (item.reminder.strip.box->isChecked()) {
        SetAlarm();
    }
    ChangeFlag = true;
}

void ItemEditor::SetAlarm() {
    const std::string time = ValidateTime(TextOf(item.reminder.time));
    *item.reminderAlarm = ItemReminderAlarm(DateValue(*item.reminderDate), time);
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
    if (item.reminder.strip.box->isChecked()) {
        *item.reminderList = BooleanText(false);
    }
}
