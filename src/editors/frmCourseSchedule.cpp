// frmCourseSchedule, the dialog in which one term is created, changed or deleted with its classes.
#include "editors/frmCourseSchedule.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "mainwindow/frmMain.h"
#include "planner/TermEntry.h"
#include "platform/MessageBoxes.h"

#include <QCloseEvent>

namespace {

constexpr std::chrono::days NewTermLength{70};

bool IsYes(std::string_view question) {
    return MsgBox(question, Buttons::YesNo, Icon::Information) == Answer::Yes;
}

} // namespace

frmCourseSchedule* TermDialog = nullptr;

frmCourseSchedule::frmCourseSchedule(QWidget* parent) : QDialog(parent) {
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
    SetupDateButton(picButtonStart);
    SetupDateButton(picButtonEnd);
    SetupHelpButton(picHelp);
    Picker = new DatePicker(this);
    Picker->AddField(true, TextboxTermStart, picButtonStart, tempTermStart);
    Picker->AddField(false, TextboxTermEnd, picButtonEnd, tempTermEnd);
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
    TextBoxCredits->installEventFilter(this);
    connect(ButtonAddClass, &QPushButton::clicked, this, &frmCourseSchedule::AddClass);
    connect(ButtonEditClass, &QPushButton::clicked, this, &frmCourseSchedule::EditClass);
    connect(ButtonOKClass, &QPushButton::clicked, this, &frmCourseSchedule::AcceptClass);
    connect(ButtonCancelClass, &QPushButton::clicked, this, &frmCourseSchedule::ResetClassPanel);
    connect(ButtonDeleteClass, &QPushButton::clicked, this, &frmCourseSchedule::DeleteClass);
    connect(ButtonOK, &QPushButton::clicked, this, &frmCourseSchedule::Accept);
    connect(ButtonCancel, &QPushButton::clicked, this, &frmCourseSchedule::Cancel);
    connect(ButtonDelete, &QPushButton::clicked, this, &frmCourseSchedule::Delete);
}

// --- Opening -----------------------------------------------------------------------------------------------

void frmCourseSchedule::Fill() {
    const bool edited = EditMode == "Edit";
    setWindowTitle(edited ? QStringLiteral("Planovarium - Edit Term")
                          : QStringLiteral("Planovarium - New Term"));
    if (EditMode == "New") {
        tempTermName = DefaultTermName(Today());
        tempTermStart = ShortDateText(Today());
        tempTermEnd = ShortDateText(Today() + NewTermLength);
    }
    ShowText(TextBoxTermName, tempTermName);
    ShowDates();
    TextBoxTermName->setFocus();
    ClassEditMode.clear();
    ResetClassPanel();
    Picker->SetCalendarHeads(MainWindow->StartDayOfWeek);
    ChangeFlag = EditMode == "NewBasedOn";
    DeleteFlag = false;
    CancelledFlag = true;
    CloseOK = false;
}

void frmCourseSchedule::ShowDates() {
    ShowDate(TextboxTermStart, DateValue(tempTermStart));
    ShowDate(TextboxTermEnd, DateValue(tempTermEnd));
}

void frmCourseSchedule::TakeDate(Date date) {
    (Picker->DateTarget ? tempTermStart : tempTermEnd) = ShortDateText(date);
    ShowDates();
    ChangeFlag = true;
}

// --- Closing -----------------------------------------------------------------------------------------------

void frmCourseSchedule::Accept() {
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

// The answer has been Cancel since the opening.
void frmCourseSchedule::Cancel() {
    if (ChangeFlag && !IsYes("Cancel changes to this Term's Class Schedule?")) {
        return;
    }
    CloseOK = true;
    hide();
}

void frmCourseSchedule::Delete() {
    if (!IsYes(
            "Delete this Term? All assignments for classes in this Class Schedule will also be deleted.") ||
        !IsYes("Are you sure? This action cannot be undone!")) {
        return;
    }
    DeleteFlag = true;
    CancelledFlag = false;
    CloseOK = true;
    hide();
}

void frmCourseSchedule::reject() {
    if (ClassEditMode.empty()) {
        Cancel();
    } else {
        ResetClassPanel();
    }
}

// The close box counts as Cancel; a close that is not the student's passes.
void frmCourseSchedule::closeEvent(QCloseEvent* event) {
    if (event->spontaneous()) {
        event->ignore();
        Cancel();
    } else {
        event->accept();
    }
}
