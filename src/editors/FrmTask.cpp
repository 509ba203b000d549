// FrmTask, the dialog in which a task is created, changed or deleted.
#include "editors/FrmTask.h"

#include "core/DateText.h"
#include "core/Values.h"
#include "editors/DialogLook.h"
#include "editors/FieldLines.h"
#include "planner/entries/AssignmentEntry.h"
#include "planner/entries/ComboRows.h"
#include "planner/entries/TypeEntry.h"
#include "planner/rows/Colors.h"
#include "toolkit/WindowColors.h"

namespace {

constexpr std::string_view ItemName = "Task";

// The date in the text; where the task does not use it, a text that is none gives the other date.
Date DateOrOther(bool used, const std::string& text, Date other) {
    return used ? DateValue(text) : DateIn(text).value_or(other);
}

} // namespace

FrmTask* TaskDialog = nullptr;

FrmTask::FrmTask(QWidget* parent) : ItemEditor(parent), Ui::FrmTask() {
}

void FrmTask::MakeControls() {
    if (ButtonOK != nullptr) {
        return;
    }
    setupUi(this);
    SetupControls();
    SetTopics();
    BindControls();
}

void FrmTask::SetupControls() {
    LimitToSet(TextBoxDescription);
    LimitToSet(TextBoxNotes);
    KeepLinesOfField(TextBoxNotes, "notes");
    SetupTypedCombo(ComboPriority, PriorityRows);
    SetupTypedCombo(ComboPercentComplete, PercentRows);
    SetupItem({DoneOf(*this), ReminderOf(*this), TextboxTaskDate, picButtonTaskDate, &tempTaskDate,
               &tempTaskReminderDate, &tempTaskReminderAlarm, &tempTaskReminderList});
    SetupNames(ComboType);
    SetupHelpButton(picHelp);
}

void FrmTask::SetTopics() {
    SetHelpTopics({{ButtonCancel, 601},
                   {ButtonDelete, 602},
                   {ButtonOK, 603},
                   {CheckBoxDeadline, 604},
                   {LabelDeadline, 604},
                   {CheckBoxDone, 605},
                   {CheckboxReminder, 606},
                   {ComboPercentComplete, 607},
                   {ComboPriority, 608},
                   {ComboReminderTime, 609},
                   {ComboType, 610},
                   {PicButtonReminderDate, 611},
                   {TextBoxDescription, 612},
                   {TextBoxNotes, 613},
                   {TextboxReminderDate, 614},
                   {TextboxTaskDate, 615},
                   {picButtonTaskDate, 616},
                   {picHelp, 617}});
}

void FrmTask::BindControls() {
    BindItem();
    BindAnswers(ButtonOK, ButtonCancel);
    BindDelete(ButtonDelete, ItemName);
    WatchEntries(ButtonCancel, {ComboPriority, ComboPercentComplete, ComboReminderTime});
    const auto changed = [this] { ChangeFlag = true; };
    connect(TextBoxDescription, &QLineEdit::textChanged, this, changed);
    connect(TextBoxNotes, &QPlainTextEdit::textChanged, this, changed);
    connect(ComboType, &QComboBox::activated, this, changed);
    connect(ComboPriority, &QComboBox::activated, this, changed);
    connect(CheckBoxDeadline, &QCheckBox::toggled, this, [this] {
        PaintDeadline();
        ChangeFlag = true;
    });
    connect(LabelDeadline, &ClickLabel::Clicked, CheckBoxDeadline, &QCheckBox::click);
    connect(Picker, &DatePicker::DatePicked, this, [this] {
        if (Picker->DateTarget) {
            CheckBoxDeadline->setChecked(true);
        }
    });
}

// --- Opening -----------------------------------------------------------------------------------------------

void FrmTask::Fill() {
    MakeControls();
    UpdateEstimateFlag = true;
    ComboType->clear();
    AddRows(ComboType, TaskTypeRows());
    if (EditMode == "New") {
        FillNew();
    } else {
        FillEdit();
    }
    UpdateEstimateFlag = false;
    PaintDeadline();
    Picker->SetCalendarHeads(tempStartDayOfWeek);
    TextBoxDescription->setFocus();
    ClearFlags(*this);
}

void FrmTask::FillNew() {
    setWindowTitle(QStringLiteral("Planovarium - New Task"));
    ShowText(TextBoxDescription, std::string_view());
    TextBoxNotes->clear();
    SetDone(DoneOf(*this), false);
    ButtonDelete->setEnabled(false);
    ShowComboText(ComboPriority, PriorityRows.front());
    ShowComboText(ComboType, NoType);
    ShowComboText(ComboReminderTime, NewReminderTime);
    ShowComboText(ComboPercentComplete, PercentRows.front());
    CheckBoxDeadline->setChecked(true);
    CheckboxReminder->setChecked(false);
    tempTaskReminderList = BooleanText(false);
    FillDates(tempClickedDate, tempClickedDate);
}

void FrmTask::FillEdit() {
    setWindowTitle(QStringLiteral("Planovarium - Edit Task"));
    ShowText(TextBoxDescription, tempTaskDescription);
    TextBoxNotes->setPlainText(FromStore(tempTaskNotes));
    SetDone(DoneOf(*this), IsTrue(tempTaskDone));
    ButtonDelete->setEnabled(true);
    ShowComboText(ComboPriority, tempTaskPriority);
    ShowComboText(ComboType, ShownTaskType(tempTaskType));
    ShowComboText(ComboReminderTime, tempTaskReminderTime);
    ShowComboText(ComboPercentComplete, tempTaskPercentComplete);
    CheckBoxDeadline->setChecked(IsTrue(tempTaskDateExists));
    CheckboxReminder->setChecked(IsTrue(tempTaskReminder));
    const Date date = DateOrOther(CheckBoxDeadline->isChecked(), tempTaskDate, Today());
    FillDates(date, DateOrOther(CheckboxReminder->isChecked(), tempTaskReminderDate, date));
}

// --- What follows an entry ---------------------------------------------------------------------------------

void FrmTask::PaintDeadline() {
    const bool on = CheckBoxDeadline->isChecked();
    SetLabelColors(LabelDeadline, on ? ColorWhite : StripOffColor, on ? ColorBlack : UnusedTextColor);
}

bool FrmTask::ValidateField(const QObject* field, bool /*quiet*/) {
    if (field == ComboPercentComplete) {
        TakePercent();
    } else if (field == ComboPriority) {
        ShowComboText(ComboPriority, CutToLimit(TextOf(ComboPriority)));
    } else if (field == ComboReminderTime) {
        ValidateReminderTime();
    }
    return true;
}

// --- Closing -----------------------------------------------------------------------------------------------

// Nothing is required of a task. A field that still has the focus is validated first, as it would be in
// losing it.
void FrmTask::accept() {
    ValidateField(focusWidget(), false);
    tempTaskType = ResolveTaskType(TextOf(ComboType), tempTaskType);
    ArmReminder();
    AcceptEditor(*this, *this);
}

std::string FrmTask::CancelQuestion() const {
    return ::CancelQuestion(*this, ItemName);
}
