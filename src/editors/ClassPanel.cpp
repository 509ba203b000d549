// The panel of one class in frmCourseSchedule: opened to add or to edit it, checked, saved into the dialog's
// lists. While it is open the term's own buttons are out of reach.
#include "core/Module1.h"
#include "core/RunTimeError.h"
#include "core/Values.h"
#include "editors/frmCourseSchedule.h"
#include "planner/entries/TermEntry.h"
#include "planner/grades/Grades.h"
#include "planner/rows/Colors.h"
#include "platform/MessageBoxes.h"

#include <QSignalBlocker>

namespace {

const std::string NewClassForeColor = std::to_string(ColorBlack);
const std::string NewClassBackColor = std::to_string(ColorWhite);

constexpr std::string_view CreditsMessage = "Enter the number of credits you will receive for this class. "
                                            "The number is used in calculating your total GPA.";

// Fills a box of the panel, which is no change of the student's.
void FillQuietly(QLineEdit* box, std::string_view text) {
    const QSignalBlocker quiet(box);
    ShowText(box, text);
}

void FillQuietly(QPlainTextEdit* box, std::string_view text) {
    const QSignalBlocker quiet(box);
    box->setPlainText(FromStore(text));
}

} // namespace

void frmCourseSchedule::ResetClassPanel() {
    FillQuietly(TextBoxClassName, "");
    FillQuietly(TextBoxCredits, "");
    FillQuietly(TextBoxNotes, "");
    classForeColor = NewClassForeColor;
    classBackColor = NewClassBackColor;
    ShowClassColors(classForeColor, classBackColor);
    OriginalClassName.clear();
    for (QWidget* box : std::initializer_list<QWidget*>{TextBoxClassName, TextBoxCredits, TextBoxNotes}) {
        box->setEnabled(false);
    }
    for (QPushButton* button : {ButtonOKClass, ButtonCancelClass, ButtonDeleteClass}) {
        button->setEnabled(false);
    }
    ButtonOK->setEnabled(true);
    ButtonCancel->setEnabled(true);
    ButtonDelete->setEnabled(EditMode == "Edit");
    ButtonAddClass->setEnabled(true);
    ComboBoxClassList->setEnabled(true);
    FillClassList();
    ClassEditMode.clear();
    ButtonEditClass->setEnabled(ComboBoxClassList->count() > 0);
    ButtonOK->setDefault(true);
    ButtonAddClass->setFocus();
}

// Selects the class that was added, or the one that was edited, or else the first one.
void frmCourseSchedule::FillClassList() {
    const int remembered = ComboBoxClassList->currentIndex();
    ComboBoxClassList->clear();
    IndexClassIDArray.Clear();
    for (int position = 1; position <= tempClassNameArray.Count(); ++position) {
        if (tempClassNameArray.Item(position) != DeletedRecord) {
            ComboBoxClassList->addItem(FromStore(tempClassNameArray.Item(position)));
            IndexClassIDArray.Add(position);
        }
    }
    const int last = ComboBoxClassList->count() - 1;
    if (ClassEditMode == "Add") {
        ComboBoxClassList->setCurrentIndex(last);
    } else if (ClassEditMode == "Edit") {
        ComboBoxClassList->setCurrentIndex(std::min(remembered, last));
    } else {
        ComboBoxClassList->setCurrentIndex(last < 0 ? -1 : 0);
    }
}

void frmCourseSchedule::OpenClassPanel() {
    for (QWidget* box : std::initializer_list<QWidget*>{TextBoxClassName, TextBoxCredits, TextBoxNotes}) {
        box->setEnabled(true);
    }
    for (QWidget* control : std::initializer_list<QWidget*>{
             ButtonAddClass, ButtonEditClass, ComboBoxClassList, ButtonOK, ButtonCancel, ButtonDelete}) {
        control->setEnabled(false);
    }
    ButtonOKClass->setEnabled(true);
    ButtonCancelClass->setEnabled(true);
    ButtonOKClass->setDefault(true);
    TextBoxClassName->setFocus();
}

void frmCourseSchedule::AddClass() {
    OpenClassPanel();
    SelectedClassID = NextClassID;
    SelectedClassIndex = tempClassIDArray.Count();
    OriginalClassName.clear();
    ClassEditMode = "Add";
}

void frmCourseSchedule::EditClass() {
    OpenClassPanel();
    ButtonDeleteClass->setEnabled(true);
    ClassEditMode = "Edit";
    SelectedClassIndex = IndexClassIDArray.Item(ComboBoxClassList->currentIndex() + 1);
    try {
        FillClassPanel();
    } catch (RunTimeError& error) {
        if (PlaceInRecord) {
            error.place = PlaceInRecord(error.place);
        }
        throw;
    }
}

void frmCourseSchedule::FillClassPanel() {
    SelectedClassID = ToInt16(tempClassIDArray.Item(SelectedClassIndex));
    OriginalClassName = tempClassNameArray.Item(SelectedClassIndex);
    FillQuietly(TextBoxClassName, OriginalClassName);
    FillQuietly(TextBoxCredits, tempClassCreditsArray.Item(SelectedClassIndex));
    FillQuietly(TextBoxNotes, tempClassNotesArray.Item(SelectedClassIndex));
    const std::string& foreColor = tempClassForeColorArray.Item(SelectedClassIndex);
    const std::string& backColor = tempClassBackColorArray.Item(SelectedClassIndex);
    ShowClassColors(foreColor, backColor);
    classForeColor = foreColor;
    classBackColor = backColor;
}

// While the class is open its name stands in the colours in which the class is shown everywhere.
void frmCourseSchedule::ShowClassColors(const std::string& foreColor, const std::string& backColor) {
    QPalette colors;
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        colors.setColor(group, QPalette::Base, ToQColor(ToColor(backColor)));
        colors.setColor(group, QPalette::Text, ToQColor(ToColor(foreColor)));
    }
    TextBoxClassName->setPalette(colors);
}

// A field that still has the focus is validated first, as it would be in losing it.
void frmCourseSchedule::AcceptClass() {
    if (!ValidateField(focusWidget(), false)) {
        return;
    }
    ValidateClassPanel();
    if (ClassError) {
        TextBoxClassName->setFocus();
        return;
    }
    SaveClass();
    ResetClassPanel();
    ChangeFlag = true;
}

void frmCourseSchedule::ValidateClassPanel() {
    ClassError = true;
    const std::string name = TextOf(TextBoxClassName);
    const ClassEntry entry{name, OriginalClassName, SelectedClassID, EditMode == "Edit"};
    const ClassCheck check = ValidateClass(entry, tempClassIDArray, tempClassNameArray);
    switch (check) {
    case ClassCheck::Accepted:
        ClassError = false;
        break;
    case ClassCheck::NameMissing:
        MsgBox(ClassMessage(check, entry), Buttons::Ok, Icon::Information);
        break;
    case ClassCheck::NameTaken:
        MsgBox(ClassMessage(check, entry), Buttons::Ok, Icon::Information);
        FillQuietly(TextBoxClassName, OriginalClassName);
        break;
    case ClassCheck::RenameAsked:
        ClassError = !IsYes(ClassMessage(check, entry), Preset::First);
        if (ClassError) {
            FillQuietly(TextBoxClassName, OriginalClassName);
        }
        break;
    }
}

// The term that the class belongs to is set as the whole term is saved.
void frmCourseSchedule::SaveClass() {
    struct Entry {
        TextList& list;
        std::string text;
    };

    const std::array<Entry, ClassDialogFields.size() - 1> entries{{
        {tempClassNameArray, TextOf(TextBoxClassName)},
        {tempClassCreditsArray, TextOf(TextBoxCredits)},
        {tempClassNotesArray, TextOf(TextBoxNotes)},
        {tempClassForeColorArray, classForeColor},
        {tempClassBackColorArray, classBackColor},
    }};
    const bool added = ClassEditMode == "Add";
    if (added) {
        tempClassIDArray.Add(std::to_string(NextId(NextClassID)));
    }
    for (const Entry& entry : entries) {
        if (added) {
            entry.list.Add(entry.text);
        } else {
            entry.list.Replace(SelectedClassIndex, entry.text);
        }
    }
}

bool frmCourseSchedule::DeleteConfirmed() const {
    if (!IsYes("Delete this class?")) {
        return false;
    }
    if (EditMode != "Edit") {
        return true;
    }
    return IsYes("Are you sure you want to Delete '" + OriginalClassName +
                 "'? If you have assignments for '" + OriginalClassName + "', they will also be Deleted.");
}

// The class's assignments go only when the whole term is saved.
void frmCourseSchedule::DeleteClass() {
    if (OriginalClassName.empty() || !DeleteConfirmed()) {
        return;
    }
    for (const ClassField& field : ClassDialogFields) {
        (this->*field.list).Remove(SelectedClassIndex);
    }
    ResetClassPanel();
    ChangeFlag = true;
}

// Gives false when the credits were refused; quietly where the student is about to cancel.
bool frmCourseSchedule::ValidateCredits(bool quiet) {
    const std::string credits(Trim(TextOf(TextBoxCredits)));
    if (credits.empty() || IsAcceptedNumber(credits)) {
        return true;
    }
    TextBoxCredits->clear();
    if (!quiet) {
        AskForEntry(TextBoxCredits, CreditsMessage);
    }
    return false;
}

bool frmCourseSchedule::ValidateField(const QObject* field, bool quiet) {
    return field != TextBoxCredits || ValidateCredits(quiet);
}
