// The flows of a task: asked for, entered, written.
#include "mainwindow/flows/TaskFlow.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/Values.h"
#include "editors/FrmTask.h"
#include "mainwindow/flows/RecordFlow.h"
#include "mainwindow/frmMain.h"
#include "persistence/modIO.h"

namespace {

// What the closed dialog has for each field of the record but its id. A task without a deadline has the date
// of the day on which it was last saved, as is meant.
auto EnteredFields(const FrmTask& dialog) {
    const bool deadline = dialog.CheckBoxDeadline->isChecked();
    return std::tuple{
        EnteredField<&TaskLists::date>{StoredDate(deadline ? DateValue(dialog.tempTaskDate) : Today())},
        EnteredField<&TaskLists::desc>{TextOf(dialog.TextBoxDescription)},
        EnteredField<&TaskLists::date_exists>{BooleanText(deadline)},
        EnteredField<&TaskLists::type>{dialog.tempTaskType},
        EnteredField<&TaskLists::priority>{TextOf(dialog.ComboPriority)},
        EnteredField<&TaskLists::percent_complete>{TextOf(dialog.ComboPercentComplete)},
        EnteredField<&TaskLists::done>{BooleanText(dialog.CheckBoxDone->isChecked())},
        EnteredField<&TaskLists::reminder>{BooleanText(dialog.CheckboxReminder->isChecked())},
        EnteredField<&TaskLists::reminder_date>{StoredDate(DateValue(dialog.tempTaskReminderDate))},
        EnteredField<&TaskLists::reminder_time>{TextOf(dialog.ComboReminderTime)},
        EnteredField<&TaskLists::reminder_alarm>{dialog.tempTaskReminderAlarm},
        EnteredField<&TaskLists::reminder_list>{dialog.tempTaskReminderList},
        EnteredField<&TaskLists::notes>{TextOf(dialog.TextBoxNotes)}};
}

// The dialog's fields that a task's record gives.
constexpr auto FilledFields = std::to_array<FilledField<FrmTask, TaskLists>>({
    {&FrmTask::tempTaskDescription, &TaskLists::desc},
    {&FrmTask::tempTaskDateExists, &TaskLists::date_exists},
    {&FrmTask::tempTaskDate, &TaskLists::date},
    {&FrmTask::tempTaskType, &TaskLists::type},
    {&FrmTask::tempTaskPriority, &TaskLists::priority},
    {&FrmTask::tempTaskPercentComplete, &TaskLists::percent_complete},
    {&FrmTask::tempTaskDone, &TaskLists::done},
    {&FrmTask::tempTaskNotes, &TaskLists::notes},
    {&FrmTask::tempTaskReminder, &TaskLists::reminder},
    {&FrmTask::tempTaskReminderDate, &TaskLists::reminder_date},
    {&FrmTask::tempTaskReminderTime, &TaskLists::reminder_time},
    {&FrmTask::tempTaskReminderAlarm, &TaskLists::reminder_alarm},
    {&FrmTask::tempTaskReminderList, &TaskLists::reminder_list},
});

static_assert(NamesAllFieldsBut(FilledFields, &FilledField<FrmTask, TaskLists>::list, &TaskLists::id));

} // namespace

void NewTask(frmMain& window) {
    FrmTask& dialog = *TaskDialog;
    PrepareEditor(dialog, window, "New");
    dialog.Fill();
    ShowDialog(dialog, TaskDBFirstOpen, window);
    if (dialog.CancelledFlag || ShuttingDown) {
        return;
    }
    DropUnfinishedRecord(TaskFile());
    AppendRecord(Store.TaskRecord, EnteredFields(dialog), NextTaskID);
    WriteTasks();
    window.RefreshFor(ReasonNewRecord);
}

void EditTask(frmMain& window, int position) {
    FrmTask& dialog = *TaskDialog;
    PrepareEditor(dialog, window, "Edit");
    FillFromRecord(dialog, FilledFields, Store.TaskRecord, position);
    ShowDialog(dialog, TaskDBFirstOpen, window);
    if (dialog.CancelledFlag || ShuttingDown) {
        return;
    }
    DropUnfinishedRecord(TaskFile());
    if (dialog.DeleteFlag) {
        RemoveRecord(Store.TaskRecord, TaskFields, position);
    } else {
        ReplaceRecord(Store.TaskRecord, EnteredFields(dialog), position);
    }
    WriteTasks();
    window.RefreshFor(ReasonNewRecord);
}
