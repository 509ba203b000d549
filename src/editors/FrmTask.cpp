// FrmTask, the dialog in which a task is created, changed or deleted.
#include "editors/FrmTask.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/Values.h"
#include "editors/DialogLook.h"
#include "editors/FieldLines.h"
#include "planner/entries/AssignmentEntry.h"
#include "planner/entries/ComboRows.h"
#include "planner/entries/ReminderEntry.h"
#include "planner/entries/TypeEntry.h"
#include "planner/rows/Colors.h"

namespace {

constexpr std::string_view ItemName = "Task";
constexpr int ColorNoDeadline = 0x808080;     // 0xBBGGRR
constexpr int ColorNoDeadlineText = 0xC0C0C0; // 0xBBGGRR

} // namespace

FrmTask* TaskDialog = nullptr;

FrmTask::FrmTask(QWidget* parent) : QDialog(parent) {
    setupUi(this);
    SetupControls();
    SetTopics();
    BindControls();
}

void FrmTask::SetupControls() {
    LimitToSet(TextBoxDescription);
    LimitToSet(TextBoxNotes);
    KeepLinesOfField(TextBoxNotes, "notes");
    SetupTypedCombo(ComboPriority);
    AddRows(ComboPriority, PriorityRows);
    SetupTypedCombo(ComboPercentComplete);
    AddRows(ComboPercentComplete, PercentRows);
    SetupReminder(ReminderOf(*this));
    SetupDateBoxes({{TextboxTaskDate, picButtonTaskDate}, {TextboxReminderDate, PicButtonReminderDate}});
    SetupNames(ComboType);
    SetupHelpButton(picHelp);
    Picker = new DatePicker(this);
    Picker->AddField(true, TextboxTaskDate, picButtonTaskDate, tempTaskDate);
    Picker->AddField(false, TextboxReminderDate, PicButtonReminderDate, tempTaskReminderDate);
}

void FrmTask::SetTopics() {
    SetHelpTopics({{ButtonCancel, 601},
                   {ButtonDelete, 602},
                   {ButtonOK, 603},
                   {CheckBoxDeadline, 604},
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
    const auto changed = [this] { ChangeFlag = true; };
    connect(TextBoxDescription, &QLineEdit::textChanged, this, changed);
    connect(TextBoxNotes, &QPlainTextEdit::textChanged, this, changed);
    connect(ComboType, &QComboBox::activated, this, changed);
    connect(ComboPriority, &QComboBox::activated, this, changed);
    connect(ComboPercentComplete, &QComboBox::activated, this, &FrmTask::TakePercent);
    connect(CheckBoxDone, &QCheckBox::toggled, this, &FrmTask::DoneClicked);
    connect(CheckboxReminder, &QCheckBox::toggled, this, &FrmTask::ReminderClicked);
    connect(CheckBoxDeadline, &QCheckBox::toggled, this, [this] {
        PaintDeadline();
        ChangeFlag = true;
    });
    connect(LabelDeadline, &ClickLabel::Clicked, CheckBoxDeadline, &QCheckBox::click);
    connect(Picker, &DatePicker::DatePicked, this, &FrmTask::TakeDate);
    for (QComboBox* combo : {ComboPriority, ComboPercentComplete, ComboReminderTime}) {
        combo->installEventFilter(this);
    }
    connect(ButtonOK, &QPushButton::clicked, this, &FrmTask::accept);
    connect(ButtonCancel, &QPushButton::clicked, this, &FrmTask::reject);
    connect(ButtonDelete, &QPushButton::clicked, this, [this] { DeleteInEditor(*this, *this, ItemName); });
}

// --- Opening -----------------------------------------------------------------------------------------------

void FrmTask::Fill() {
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
    PaintReminder(ReminderOf(*this));
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
    FillDates(DateValue(tempTaskDate), DateValue(tempTaskReminderDate));
}

void FrmTask::FillDates(Date date, Date reminderDate) {
    ShowDateField(tempTaskDate, TextboxTaskDate, date);
    ShowDateField(tempTaskReminderDate, TextboxReminderDate, reminderDate);
    SetAlarm();
}

// --- What follows an entry ---------------------------------------------------------------------------------

void FrmTask::PaintDeadline() {
    const bool on = CheckBoxDeadline->isChecked();
    SetLabelColors(LabelDeadline, on ? ColorWhite : ColorNoDeadlineText, on ? ColorBlack : ColorNoDeadline);
}

// A percent was chosen or typed.
void FrmTask::TakePercent() {
    UpdateEstimateFlag = true;
    ValidatePercentEntry(DoneOf(*this));
    UpdateEstimateFlag = false;
    ChangeFlag = true;
}

void FrmTask::DoneClicked() {
    if (UpdateEstimateFlag) {
        return;
    }
    PercentFollowsDone(DoneOf(*this));
    ChangeFlag = true;
}

void FrmTask::ReminderClicked() {
    PaintReminder(ReminderOf(*this));
    if (CheckboxReminder->isChecked()) {
        SetAlarm();
    }
    ChangeFlag = true;
}

void FrmTask::SetAlarm() {
    tempTaskReminderAlarm = AlarmOf(tempTaskReminderDate, ComboReminderTime);
}

void FrmTask::TakeDate(Date date) {
    if (Picker->DateTarget) {
        ShowDateField(tempTaskDate, TextboxTaskDate, date);
        CheckBoxDeadline->setChecked(true);
    } else {
        ShowDateField(tempTaskReminderDate, TextboxReminderDate, date);
        SetAlarm();
    }
    ChangeFlag = true;
}

void FrmTask::ValidateField(const QObject* field) {
    if (field == ComboPercentComplete) {
        TakePercent();
    } else if (field == ComboPriority) {
        ShowComboText(ComboPriority, CutToLimit(TextOf(ComboPriority)));
    } else if (field == ComboReminderTime) {
        ShowComboText(ComboReminderTime, ValidateTime(TextOf(ComboReminderTime)));
        SetAlarm();
        ChangeFlag = true;
    }
}

bool FrmTask::eventFilter(QObject* watched, QEvent* event) {
    if (CloseOK || ShuttingDown || !EntryEnds(event)) {
        return QDialog::eventFilter(watched, event);
    }
    ValidateField(watched);
    return event->type() == QEvent::KeyPress; // Enter does not press OK as well
}

// --- Closing -----------------------------------------------------------------------------------------------

// Nothing is required of a task. A field that still has the focus is validated first, as it would be in
// losing it.
void FrmTask::accept() {
    ValidateField(focusWidget());
    tempTaskType = ResolveTaskType(TextOf(ComboType), tempTaskType);
    if (CheckboxReminder->isChecked()) {
        tempTaskReminderList = BooleanText(false); // armed again
    }
    AcceptEditor(*this, *this);
}

void FrmTask::reject() {
    CancelEditor(*this, *this, CancelQuestion(*this, ItemName));
}

void FrmTask::closeEvent(QCloseEvent* event) {
    CloseEditor(*this, *this, CancelQuestion(*this, ItemName), *event);
}
