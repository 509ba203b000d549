// frmAssignment, the dialog in which an assignment is created, changed or deleted.
#include "editors/frmAssignment.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/Values.h"
#include "editors/DialogLook.h"
#include "editors/FieldLines.h"
#include "planner/entries/AssignmentEntry.h"
#include "planner/entries/ComboRows.h"
#include "planner/grades/Grades.h"
#include "planner/rows/Colors.h"
#include "platform/MessageBoxes.h"
#include "toolkit/ProgramStyle.h"
#include "toolkit/WindowColors.h"

namespace {

constexpr std::string_view ItemName = "assignment";
constexpr std::string_view NewEstimate = "00 : 30";
constexpr std::string_view ScoreWanted = "Enter the number score that you received on this ";
constexpr std::string_view TotalWanted = "Enter the total number of points possible for this ";

} // namespace

frmAssignment* AssignmentDialog = nullptr;

frmAssignment::frmAssignment(QWidget* parent) : ItemEditor(parent), Ui::frmAssignment() {
}

void frmAssignment::MakeControls() {
    if (ButtonOK != nullptr) {
        return;
    }
    setupUi(this);
    SetupControls();
    SetTopics();
    BindControls();
}

void frmAssignment::SetupControls() {
    for (QLineEdit* box : {TextBoxDescription, TextBoxScore, TextBoxTotal}) {
        LimitToSet(box);
    }
    LimitToSet(TextBoxNotes);
    KeepLinesOfField(TextBoxNotes, "notes");
    SetupTypedCombo(ComboTypeList, AssignmentTypeRows);
    SetupTypedCombo(ComboPercentComplete, PercentRows);
    SetupTypedCombo(ComboEstTime, EstimateRows());
    SetupItem({DoneOf(*this), ReminderOf(*this), TextboxDateDue, picButtonDateDue, &tempAssignmentDate,
               &tempAssignmentReminderDate, &tempAssignmentReminderAlarm, &tempAssignmentReminderList});
    SetupNames(ComboClassNameList);
    LabelClass->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    LabelClass->Elision = Qt::ElideMiddle; // the name may be long, the word behind it stays
    for (QLineEdit* box : {TextBoxTimeLeft, TextBoxPercentage, TextBoxGrade}) {
        ShowAsReadOnly(box);
    }
    SetupHelpButton(picHelp);
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
    BindItem();
    BindAnswers(ButtonOK, ButtonCancel);
    BindDelete(ButtonDelete, ItemName);
    WatchEntries(ButtonCancel, {ComboTypeList, ComboPercentComplete, ComboEstTime, ComboReminderTime,
                                TextBoxScore, TextBoxTotal});
    const auto changed = [this] { ChangeFlag = true; };
    for (QLineEdit* box : {TextBoxDescription, TextBoxScore, TextBoxTotal}) {
        connect(box, &QLineEdit::textChanged, this, changed);
    }
    connect(TextBoxNotes, &QPlainTextEdit::textChanged, this, changed);
    connect(ComboTypeList, &QComboBox::activated, this, changed);
    connect(ComboClassNameList, &QComboBox::activated, this, changed);
    connect(ComboEstTime, &QComboBox::activated, this, [this] {
        UpdateTimeLeft();
        ChangeFlag = true;
    });
}

// --- Opening -----------------------------------------------------------------------------------------------

void frmAssignment::Fill() {
    MakeControls();
    UpdateEstimateFlag = true;
    FillClasses();
    if (EditMode == "New") {
        FillNew();
    } else {
        FillEdit();
    }
    UpdateEstimateFlag = false;
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

// --- What follows an entry ---------------------------------------------------------------------------------

// Work is finished by the done box or the percent, also where the time left says otherwise.
void frmAssignment::ShowTimeLeft(std::string_view text) {
    const bool finished = CheckBoxDone->isChecked() || IsComplete(DoneOf(*this));
    SetColor(TextBoxTimeLeft, QPalette::Base, finished ? FinishedColor : WorkLeftColor);
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
    const int color = grade.letter.empty() ? UnusedTextColor : ColorBlack;
    SetColor(LabelPercent, QPalette::WindowText, color);
    SetColor(LabelGrade, QPalette::WindowText, color);
}

void frmAssignment::WorkChanged() {
    UpdateTimeLeft();
}

// --- The end of an entry -----------------------------------------------------------------------------------

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

// --- Closing -----------------------------------------------------------------------------------------------

// A field that still has the focus is validated first, as it would be in losing it.
void frmAssignment::accept() {
    if (!ValidateField(focusWidget(), false)) {
        return;
    }
    ArmReminder();
    if (ComboClassNameList->currentText().isEmpty()) {
        MsgBox("Select a Class for this assignment.", Buttons::Ok, Icon::Information);
        ComboClassNameList->setFocus();
        return;
    }
    AcceptEditor(*this, *this);
}

std::string frmAssignment::CancelQuestion() const {
    return ::CancelQuestion(*this, ItemName);
}
