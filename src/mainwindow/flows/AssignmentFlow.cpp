// The flows of an assignment: asked for, entered, written.
#include "mainwindow/flows/AssignmentFlow.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/Values.h"
#include "editors/frmAssignment.h"
#include "mainwindow/flows/RecordFlow.h"
#include "mainwindow/flows/TermFlow.h"
#include "mainwindow/frmMain.h"
#include "persistence/modIO.h"
#include "platform/MessageBoxes.h"

#include <QCoreApplication>

namespace {

constexpr std::string_view NoTermQuestion = "There is no Term selected. Do you want to start a new Term?";
constexpr std::string_view NoClassesQuestion =
    "This Term has no classes. Do you want to edit the Class Schedule?";

// What the closed dialog has for each field of the record but its id.
auto EnteredFields(const frmAssignment& dialog) {
    return std::tuple{
        EnteredField<&AssignmentLists::class_>{
            dialog.tempAssignmentClassLinkArray.Item(dialog.ComboClassNameList->currentIndex() + 1)},
        EnteredField<&AssignmentLists::date>{StoredDate(DateValue(dialog.tempAssignmentDate))},
        EnteredField<&AssignmentLists::type>{TextOf(dialog.ComboTypeList)},
        EnteredField<&AssignmentLists::priority>{BooleanText(dialog.CheckBoxPriority->isChecked())},
        EnteredField<&AssignmentLists::est_time>{TextOf(dialog.ComboEstTime)},
        EnteredField<&AssignmentLists::time_left>{TextOf(dialog.TextBoxTimeLeft)},
        EnteredField<&AssignmentLists::desc>{TextOf(dialog.TextBoxDescription)},
        EnteredField<&AssignmentLists::done>{BooleanText(dialog.CheckBoxDone->isChecked())},
        EnteredField<&AssignmentLists::percent_complete>{TextOf(dialog.ComboPercentComplete)},
        EnteredField<&AssignmentLists::score>{TextOf(dialog.TextBoxScore)},
        EnteredField<&AssignmentLists::total>{TextOf(dialog.TextBoxTotal)},
        EnteredField<&AssignmentLists::grade>{TextOf(dialog.TextBoxPercentage)},
        EnteredField<&AssignmentLists::reminder>{BooleanText(dialog.CheckboxReminder->isChecked())},
        EnteredField<&AssignmentLists::reminderdate>{
            StoredDate(DateValue(dialog.tempAssignmentReminderDate))},
        EnteredField<&AssignmentLists::remindertime>{TextOf(dialog.ComboReminderTime)},
        EnteredField<&AssignmentLists::reminderalarm>{dialog.tempAssignmentReminderAlarm},
        EnteredField<&AssignmentLists::reminderlist>{dialog.tempAssignmentReminderList},
        EnteredField<&AssignmentLists::notes>{TextOf(dialog.TextBoxNotes)}};
}

// The dialog's fields that an assignment's record gives.
constexpr auto FilledFields = std::to_array<FilledField<frmAssignment, AssignmentLists>>({
    {&frmAssignment::tempAssignmentDate, &AssignmentLists::date},
    {&frmAssignment::tempAssignmentType, &AssignmentLists::type},
    {&frmAssignment::tempAssignmentPriority, &AssignmentLists::priority},
    {&frmAssignment::tempAssignmentEstTime, &AssignmentLists::est_time},
    {&frmAssignment::tempAssignmentTimeLeft, &AssignmentLists::time_left},
    {&frmAssignment::tempAssignmentPercentComplete, &AssignmentLists::percent_complete},
    {&frmAssignment::tempAssignmentDescription, &AssignmentLists::desc},
    {&frmAssignment::tempAssignmentDone, &AssignmentLists::done},
    {&frmAssignment::tempAssignmentScore, &AssignmentLists::score},
    {&frmAssignment::tempAssignmentTotal, &AssignmentLists::total},
    {&frmAssignment::tempAssignmentGrade, &AssignmentLists::grade},
    {&frmAssignment::tempAssignmentReminder, &AssignmentLists::reminder},
    {&frmAssignment::tempAssignmentReminderDate, &AssignmentLists::reminderdate},
    {&frmAssignment::tempAssignmentReminderTime, &AssignmentLists::remindertime},
    {&frmAssignment::tempAssignmentReminderAlarm, &AssignmentLists::reminderalarm},
    {&frmAssignment::tempAssignmentReminderList, &AssignmentLists::reminderlist},
    {&frmAssignment::tempAssignmentNotes, &AssignmentLists::notes},
});

static_assert(NamesAllFieldsBut(FilledFields, &FilledField<frmAssignment, AssignmentLists>::list,
                                &AssignmentLists::id, &AssignmentLists::class_));

// The term's classes and limits. The class of a record is named only when it is one of these classes.
void GiveTerm(frmAssignment& dialog, std::string_view classId) {
    dialog.tempClassNameArray = ActiveClasses.name;
    dialog.tempAssignmentClassLinkArray = ActiveClasses.id;
    dialog.tempAssignmentClassName.clear();
    for (int position = 1; position <= ActiveClasses.id.Count(); ++position) {
        if (ActiveClasses.id.Item(position) == classId) {
            dialog.tempAssignmentClassName = ActiveClasses.name.Item(position);
        }
    }
    dialog.tempTermStartDate = ActiveTermStart;
    dialog.tempTermEndDate = ActiveTermEnd;
}

} // namespace

void NewAssignment(frmMain& window) {
    const bool noTerm = ActiveTermName.empty();
    if (noTerm || ActiveClasses.id.Count() == 0) {
        const Answer answer =
            MsgBox(noTerm ? NoTermQuestion : NoClassesQuestion, Buttons::YesNo, Icon::Information);
        if (answer == Answer::Yes && !ShuttingDown) {
            ClassSchedule(window); // and nothing more, even if there are classes now
        }
        return;
    }
    frmAssignment& dialog = *AssignmentDialog;
    PrepareEditor(dialog, window, "New");
    GiveTerm(dialog, {});
    dialog.Fill();
    ShowDialog(dialog, AssignmentDBFirstOpen, window);
    if (dialog.CancelledFlag || ShuttingDown) {
        return;
    }
    DropUnfinishedRecord(AssignmentFile());
    AppendRecord(Store.Assignment, EnteredFields(dialog), NextAssignmentID);
    WriteAssignments();
    window.RefreshFor(ReasonNewRecord);
}

void EditAssignment(frmMain& window, int position) {
    frmAssignment& dialog = *AssignmentDialog;
    PrepareEditor(dialog, window, "Edit");
    GiveTerm(dialog, Store.Assignment.class_.Item(position));
    FillFromRecord(dialog, FilledFields, Store.Assignment, position);
    ShowDialog(dialog, AssignmentDBFirstOpen, window);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    if (dialog.CancelledFlag || ShuttingDown) {
        return;
    }
    DropUnfinishedRecord(AssignmentFile());
    if (dialog.DeleteFlag) {
        RemoveRecord(Store.Assignment, AssignmentFields, position);
    } else {
        ReplaceRecord(Store.Assignment, EnteredFields(dialog), position);
    }
    WriteAssignments();
    window.RefreshFor(ReasonNewRecord);
}
