// frmCourseSchedule, the dialog in which one term is created, changed or deleted with its classes.
#include "editors/frmCourseSchedule.h"

#include "core/DateText.h"
#include "editors/DialogLook.h"
#include "editors/FieldLines.h"
#include "planner/entries/TermEntry.h"
#include "platform/MessageBoxes.h"

namespace {

constexpr std::chrono::days NewTermLength{70};
constexpr std::string_view CancelTermQuestion = "Cancel changes to this Term's Class Schedule?";

} // namespace

frmCourseSchedule* TermDialog = nullptr;

frmCourseSchedule::frmCourseSchedule(QWidget* parent) : EditorDialog(parent), Ui::frmCourseSchedule() {
}

void frmCourseSchedule::MakeControls() {
    if (ButtonOK != nullptr) {
        return;
    }
    setupUi(this);
    SetupControls();
    SetTopics();
    BindControls();
}

void frmCourseSchedule::SetupControls() {
    for (QLineEdit* box : {TextBoxTermName, TextBoxClassName, TextBoxCredits}) {
        LimitToSet(box);
    }
    LimitToSet(TextBoxNotes);
    SetupDateBoxes({{TextboxTermStart, picButtonStart}, {TextboxTermEnd, picButtonEnd}});
    SetupNames(ComboBoxClassList);
    KeepLines(this);
    KeepLinesOfField(TextBoxNotes, "notes");
    SetupHelpButton(picHelp);
    Picker = new DatePicker(this);
    Picker->AddField(true, TextboxTermStart, picButtonStart, [this] { return DateValue(tempTermStart); });
    Picker->AddField(false, TextboxTermEnd, picButtonEnd, [this] { return DateValue(tempTermEnd); });
}

void frmCourseSchedule::SetTopics() {
    SetHelpTopics({{ButtonAddClass, 301},
                   {ButtonCancel, 302},
                   {ButtonCancelClass, 303},
                   {ButtonDelete, 304},
                   {ButtonDeleteClass, 305},
                   {ButtonEditClass, 306},
                   {ButtonOK, 307},
                   {ButtonOKClass, 308},
                   {ComboBoxClassList, 309},
                   {TextBoxClassName, 310},
                   {TextBoxCredits, 311},
                   {TextBoxNotes, 312},
                   {TextBoxTermName, 313},
                   {TextboxTermEnd, 314},
                   {TextboxTermStart, 315},
                   {picHelp, 316},
                   {picButtonEnd, 317},
                   {picButtonStart, 318}});
}

void frmCourseSchedule::BindControls() {
    const auto changed = [this] { ChangeFlag = true; };
    for (QLineEdit* box : {TextBoxTermName, TextBoxClassName, TextBoxCredits}) {
        connect(box, &QLineEdit::textChanged, this, changed);
    }
    connect(TextBoxNotes, &QPlainTextEdit::textChanged, this, changed);
    connect(Picker, &DatePicker::DatePicked, this, &frmCourseSchedule::TakeDate);
    WatchEntries(ButtonCancelClass, {TextBoxCredits});
    connect(ButtonAddClass, &QPushButton::clicked, this, &frmCourseSchedule::AddClass);
    connect(ButtonEditClass, &QPushButton::clicked, this, &frmCourseSchedule::EditClass);
    connect(ButtonOKClass, &QPushButton::clicked, this, &frmCourseSchedule::AcceptClass);
    connect(ButtonCancelClass, &QPushButton::clicked, this, &frmCourseSchedule::ResetClassPanel);
    connect(ButtonDeleteClass, &QPushButton::clicked, this, &frmCourseSchedule::DeleteClass);
    connect(ButtonOK, &QPushButton::clicked, this, &frmCourseSchedule::AcceptTerm);
    connect(ButtonCancel, &QPushButton::clicked, this, &frmCourseSchedule::CancelTerm);
    connect(ButtonDelete, &QPushButton::clicked, this, &frmCourseSchedule::DeleteTerm);
}

// --- Opening -----------------------------------------------------------------------------------------------

void frmCourseSchedule::Fill() {
    MakeControls();
    const bool edited = EditMode == "Edit";
    setWindowTitle(edited ? QStringLiteral("Planovarium - Edit Term")
                          : QStringLiteral("Planovarium - New Term"));
    if (EditMode == "New") {
        tempTermName = DefaultTermName(Today());
        tempTermStart = ShortDateText(Today());
        tempTermEnd = ShortDateText(Today() + NewTermLength);
    }
    ShowText(TextBoxTermName, tempTermName);
    ShowDateField(tempTermStart, TextboxTermStart, DateValue(tempTermStart));
    ShowDateField(tempTermEnd, TextboxTermEnd, DateValue(tempTermEnd));
    TextBoxTermName->setFocus();
    ClassEditMode.clear();
    ResetClassPanel();
    Picker->SetCalendarHeads(tempStartDayOfWeek);
    ChangeFlag = EditMode == "NewBasedOn";
    DeleteFlag = false;
    CancelledFlag = true;
    CloseOK = false;
}

void frmCourseSchedule::TakeDate(Date date) {
    if (Picker->DateTarget) {
        ShowDateField(tempTermStart, TextboxTermStart, date);
    } else {
        ShowDateField(tempTermEnd, TextboxTermEnd, date);
    }
    ChangeFlag = true;
}

// --- Closing -----------------------------------------------------------------------------------------------

void frmCourseSchedule::AcceptTerm() {
    const std::string name = TextOf(TextBoxTermName);
    const TermEntry entry{DateValue(tempTermStart), DateValue(tempTermEnd), name,
                          EditMode == "Edit" ? std::string_view(ThisTermsPreviousName) : std::string_view()};
    const TermCheck check = ValidateTerm(entry, tempPreviousTermNamesArray);
    if (check != TermCheck::Accepted) {
        MsgBox(TermMessage(check), Buttons::Ok, Icon::Information);
        (check == TermCheck::EndNotLater ? TextboxTermEnd : TextBoxTermName)->setFocus();
        return;
    }
    AcceptEditor(*this, *this);
}

void frmCourseSchedule::CancelTerm() {
    EditorDialog::reject();
}

void frmCourseSchedule::DeleteTerm() {
    if (!IsYes(
            "Delete this Term? All assignments for classes in this Class Schedule will also be deleted.") ||
        !IsYes("Are you sure? This action cannot be undone!")) {
        return;
    }
    DeleteFlag = true;
    CancelledFlag = false;
    HideEditor(*this, *this);
}

void frmCourseSchedule::reject() {
    if (ClassEditMode.empty()) {
        CancelTerm();
    } else {
        ResetClassPanel();
    }
}

std::string frmCourseSchedule::CancelQuestion() const {
    return std::string(CancelTermQuestion);
}
