// frmAssignment, the dialog in which an assignment is created, changed or deleted.
#include "editors/frmAssignment.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/Values.h"
#include "editors/DialogLook.h"
#include "editors/FieldLines.h"
#include "planner/entries/AssignmentEntry.h"
#include "planner/entries/ComboRows.h"
#include "planner/entries/ReminderEntry.h"
#include "planner/grades/Grades.h"
#include "planner/rows/Colors.h"
#include "platform/MessageBoxes.h"
#include "toolkit/ProgramStyle.h"

namespace {

constexpr std::string_view ItemName = "assignment";
constexpr std::string_view NewEstimate = "00 : 30";
constexpr std::string_view ScoreWanted = "Enter the number score that you received on this ";
constexpr std::string_view TotalWanted = "Enter the total number of points possible for this ";

// 0xBBGGRR
constexpr int ColorWorkLeft = 0xE1E4FF;
constexpr int ColorFinished = 0xF0FFF0;
constexpr int ColorNoGrade = 0x808080;

} // namespace

frmAssignment* AssignmentDialog = nullptr;

frmAssignment::frmAssignment(QWidget* parent) : QDialog(parent) {
    setupUi(this);
    SetupControls();
    SetTopics();
    BindControls();
    BindCombos();
}

void frmAssignment::SetupControls() {
    for (QLineEdit* box : {TextBoxDescription, TextBoxScore, TextBoxTotal}) {
        LimitToSet(box);
    }
    LimitToSet(TextBoxNotes);
    KeepLinesOfField(TextBoxNotes, "notes");
    for (QComboBox* combo : {ComboTypeList, ComboPercentComplete, ComboEstTime}) {
        SetupTypedCombo(combo);
    }
    AddRows(ComboTypeList, AssignmentTypeRows);
    AddRows(ComboPercentComplete, PercentRows);
    AddRows(ComboEstTime, EstimateRows());
    SetupReminder(ReminderOf(*this));
    SetupDateBoxes({{TextboxDateDue, picButtonDateDue}, {TextboxReminderDate, PicButtonReminderDate}});
    SetupNames(ComboClassNameList);
    LabelClass->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    LabelClass->Elision = Qt::ElideMiddle; // the name may be long, the word behind it stays
    for (QLineEdit* box : {TextBoxTimeLeft, TextBoxPercentage, TextBoxGrade}) {
        ShowAsReadOnly(box);
    }
    SetupHelpButton(picHelp);
    Picker = new DatePicker(this);
    Picker->AddField(true, TextboxDateDue, picButtonDateDue, tempAssignmentDate);
    Picker->AddField(false, TextboxReminderDate, PicButtonReminderDate, tempAssignmentReminderDate);
}

void frmAssignment::SetTopics() {
    SetHelpTopics({{ButtonCancel, 201},       {ButtonDelete, 202},     {ButtonOK, 203},
                   {CheckBoxDone, 204},       {CheckBoxPriority, 205}, {CheckboxReminder, 206},
                   {ComboClassNameList, 207}, {ComboEstTime, 208},     {ComboPercentComplete, 209},
                   {ComboReminderTime, 210},  {ComboTypeList, 211},    {PicButtonReminderDate, 212},
                   {TextBoxDescription, 213}, {TextBoxGrade, 214},     {TextBoxNotes, 215},
                   {TextBoxPercentage, 216},  {TextBoxScore, 217},     {TextBoxTimeLeft, 218},
                   {TextBoxTotal, 219},       {TextboxDateDue, 220},   {TextboxReminderDate, 221},
                   {picButtonDateDue, 222},   {picHelp, 223}});
}

void frmAssignment::BindControls() {
    const auto changed = [this] { ChangeFlag = true; };
    for (QLineEdit* box : {TextBoxDescription, TextBoxScore, TextBoxTotal}) {
        connect(box, &QLineEdit::textChanged, this, changed);
    }
    connect(TextBoxNotes, &QPlainTextEdit::textChanged, this, changed);
    connect(CheckBoxDone, &QCheckBox::toggled, this, &frmAssignment::DoneClicked);
    connect(CheckboxReminder, &QCheckBox::toggled, this, &frmAssignment::ReminderClicked);
    connect(Picker, &DatePicker::DatePicked, this, &frmAssignment::TakeDate);
    connect(ButtonOK, &QPushButton::clicked, this, &frmAssignment::accept);
    connect(ButtonCancel, &QPushButton::clicked, this, &frmAssignment::reject);
    connect(ButtonDelete, &QPushButton::clicked, this, [this] { DeleteInEditor(*this, *this, ItemName); });
}

void frmAssignment::BindCombos() {
    const auto changed = [this] { ChangeFlag = true; };
    connect(ComboTypeList, &QComboBox::activated, this, changed);
    connect(ComboClassNameList, &QComboBox::activated, this, changed);
    connect(ComboPercentComplete, &QComboBox::activated, this, &frmAssignment::TakePercent);
    connect(ComboEstTime, &QComboBox::activated, this, [this] {
        UpdateTimeLeft();
        ChangeFlag = true;
    });
    for (QWidget* field : std::initializer_list<QWidget*>{ComboTypeList, ComboPercentComplete, ComboEstTime,
                                                          ComboReminderTime, TextBoxScore, TextBoxTotal}) {
        field->installEventFilter(this);
    }
}

// --- Opening -----------------------------------------------------------------------------------------------

void frmAssignment::Fill() {
    UpdateEstimateFlag = true;
    FillClasses();
    if (EditMode == "New") {
        FillNew();
    } else {
        FillEdit();
    }
    UpdateEstimateFlag = false;
    PaintReminder(ReminderOf(*this));
    Picker->SetCalendarHeads(tempStartDayOfWeek);
    ComboClassNameList->setFocus();
    ClearFlags(*this);
}

void frmAssignment::FillClasses() {
    const std::string caption = ActiveTermName + " Classes ";
    LabelClass->setText(MenuText(ActiveTermName) + QStringLiteral(" &Classes "));
    ComboClassNameList->setAccessibleName(FromStore(Trim(caption)));
    ComboClassNameList->clear();
    AddRows(ComboClassNameList, tempClassNameArray);
    ComboClassNameList->setCurrentIndex(-1);
}

void frmAssignment::FillNew() {
    setWindowTitle(QStringLiteral("Planovarium - New Assignment"));
    for (QLineEdit* box : {TextBoxDescription, TextBoxScore, TextBoxTotal}) {
        ShowText(box, std::string_view());
    }
    TextBoxNotes->clear();
    UpdateGrade();
    SetDone(DoneOf(*this), false);
    ButtonDelete->setEnabled(false);
    ShowComboText(ComboTypeList, AssignmentTypeRows.front());
    CheckBoxPriority->setChecked(false);
    ShowComboText(ComboReminderTime, NewReminderTime);
    ShowComboText(ComboEstTime, NewEstimate);
    ShowComboText(ComboPercentComplete, PercentRows.front());
    ShowTimeLeft(NewEstimate);
    CheckboxReminder->setChecked(false);
    tempAssignmentReminderList = BooleanText(false);
    FillDates(tempClickedDate, tempClickedDate);
}

void frmAssignment::FillEdit() {
    setWindowTitle(QStringLiteral("Planovarium - Edit Assignment"));
    ShowText(TextBoxDescription, tempAssignmentDescription);
    TextBoxNotes->setPlainText(FromStore(tempAssignmentNotes));
    ShowText(TextBoxScore, tempAssignmentScore);
    ShowText(TextBoxTotal, tempAssignmentTotal);
    UpdateGrade();
    ButtonDelete->setEnabled(true);
    ShowComboText(ComboTypeList, tempAssignmentType);
    CheckBoxPriority->setChecked(IsTrue(tempAssignmentPriority));
    ShowComboText(ComboEstTime, tempAssignmentEstTime);
    SetDone(DoneOf(*this), IsTrue(tempAssignmentDone));
    ShowComboText(ComboPercentComplete, tempAssignmentPercentComplete);
    ShowTimeLeft(tempAssignmentTimeLeft);
    ShowComboText(ComboClassNameList, tempAssignmentClassName);
    CheckboxReminder->setChecked(IsTrue(tempAssignmentReminder));
    ShowComboText(ComboReminderTime, tempAssignmentReminderTime);
    FillDates(DateValue(tempAssignmentDate), DateValue(tempAssignmentReminderDate));
}

void frmAssignment::FillDates(Date date, Date reminderDate) {
    ShowDateField(tempAssignmentDate, TextboxDateDue, date);
    ShowDateField(tempAssignmentReminderDate, TextboxReminderDate, reminderDate);
    SetAlarm();
}

// --- What follows an entry ---------------------------------------------------------------------------------

// Work is finished by the done box or the percent, also where the time left says otherwise.
void frmAssignment::ShowTimeLeft(std::string_view text) {
    const bool finished = CheckBoxDone->isChecked() || IsComplete(DoneOf(*this));
    SetColor(TextBoxTimeLeft, QPalette::Base, finished ? ColorFinished : ColorWorkLeft);
    ShowText(TextBoxTimeLeft, text);
}

void frmAssignment::UpdateTimeLeft() {
    const bool finished = CheckBoxDone->isChecked() || IsComplete(DoneOf(*this));
    ShowTimeLeft(::UpdateTimeLeft(finished, TextOf(ComboEstTime), TextOf(ComboPercentComplete)));
}

void frmAssignment::UpdateGrade() {
    const AssignmentGrade grade = ::UpdateGrade(TextOf(TextBoxScore), TextOf(TextBoxTotal));
    ShowText(TextBoxPercentage, grade.percentage);
    ShowText(TextBoxGrade, grade.letter);
    const int color = grade.letter.empty() ? ColorNoGrade : ColorBlack;
    SetColor(LabelPercent, QPalette::WindowText, color);
    SetColor(LabelGrade, QPalette::WindowText, color);
}

// A percent was chosen or typed.
void frmAssignment::TakePercent() {
    UpdateEstimateFlag = true;
    ValidatePercentEntry(DoneOf(*this));
    UpdateEstimateFlag = false;
    UpdateTimeLeft();
    ChangeFlag = true;
}

void frmAssignment::DoneClicked() {
    if (UpdateEstimateFlag) {
        return;
    }
    PercentFollowsDone(DoneOf(*this));
    UpdateTimeLeft();
    ChangeFlag = true;
}

void frmAssignment::ReminderClicked() {
    PaintReminder(ReminderOf(*this));
    if (CheckboxReminder->isChecked()) {
        SetAlarm();
    }
    ChangeFlag = true;
}

void frmAssignment::SetAlarm() {
    tempAssignmentReminderAlarm = AlarmOf(tempAssignmentReminderDate, ComboReminderTime);
}

void frmAssignment::TakeDate(Date date) {
    if (Picker->DateTarget) {
        ShowDateField(tempAssignmentDate, TextboxDateDue, date);
    } else {
        ShowDateField(tempAssignmentReminderDate, TextboxReminderDate, date);
        SetAlarm();
    }
    ChangeFlag = true;
}

// --- The end of an entry -----------------------------------------------------------------------------------

// False when the field is to be entered again. Quietly, nothing is asked for.
bool frmAssignment::ValidateField(const QObject* field, bool quiet) {
    if (field == TextBoxScore) {
        return ValidateNumber(TextBoxScore, ScoreWanted, quiet);
    }
    if (field == TextBoxTotal) {
        return ValidateNumber(TextBoxTotal, TotalWanted, quiet);
    }
    if (field == ComboTypeList) {
        ShowComboText(ComboTypeList, CutToLimit(TextOf(ComboTypeList)));
    } else if (field == ComboReminderTime) {
        ValidateReminderTime();
    } else if (field == ComboPercentComplete) {
        TakePercent();
    } else if (field == ComboEstTime) {
        ValidateEstimate();
    }
    return true;
}

void frmAssignment::ValidateEstimate() {
    ShowComboText(ComboEstTime, ::ValidateEstimate(TextOf(ComboEstTime)));
    UpdateTimeLeft();
    ChangeFlag = true;
}

void frmAssignment::ValidateReminderTime() {
    ShowComboText(ComboReminderTime, ValidateTime(TextOf(ComboReminderTime)));
    SetAlarm();
    ChangeFlag = true;
}

bool frmAssignment::ValidateNumber(QLineEdit* box, std::string_view wanted, bool quiet) {
    const std::string text(Trim(TextOf(box)));
    const bool accepted = IsAcceptedNumber(text);
    ShowText(box, accepted ? text : std::string());
    if (!accepted && !quiet) {
        AskForEntry(box, std::string(wanted) + TextOf(ComboTypeList) + ".");
    }
    UpdateGrade();
    return accepted;
}

bool frmAssignment::eventFilter(QObject* watched, QEvent* event) {
    if (CloseOK || ShuttingDown || !EntryEnds(event)) {
        return QDialog::eventFilter(watched, event);
    }
    return EndEntry(event, ButtonCancel,
                    [this, watched](bool quiet) { return ValidateField(watched, quiet); });
}

// --- Closing -----------------------------------------------------------------------------------------------

// A field that still has the focus is validated first, as it would be in losing it.
void frmAssignment::accept() {
    if (!ValidateField(focusWidget(), false)) {
        return;
    }
    if (CheckboxReminder->isChecked()) {
        tempAssignmentReminderList = BooleanText(false); // armed again
    }
    if (ComboClassNameList->currentText().isEmpty()) {
        MsgBox("Select a Class for this assignment.", Buttons::Ok, Icon::Information);
        ComboClassNameList->setFocus();
        return;
    }
    AcceptEditor(*this, *this);
}

void frmAssignment::reject() {
    CancelEditor(*this, *this, CancelQuestion(*this, ItemName));
}

void frmAssignment::closeEvent(QCloseEvent* event) {
    CloseEditor(*this, *this, CancelQuestion(*this, ItemName), *event);
}
