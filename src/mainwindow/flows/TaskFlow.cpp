// The flows of a task: asked for, entered, written.
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
std::array<EnteredField<TaskLists>, TaskFields.size() - 1> EnteredFields(const FrmTask& dialog) {
    const bool deadline = dialog.CheckBoxDeadline->isChecked();
    return {{
        {&TaskLists::date, StoredDate(deadline ? DateValue(dialog.tempTaskDate) : Today())},
        {&TaskLists::desc, TextOf(dialog.TextBoxDescription)},
        {&TaskLists::date_exists, BooleanText(deadline)},
        {&TaskLists::type, dialog.tempTaskType},
        {&TaskLists::priority, TextOf(dialog.ComboPriority)},
        {&TaskLists::percent_complete, TextOf(dialog.ComboPercentComplete)},
        {&TaskLists::done, BooleanText(dialog.CheckBoxDone->isChecked())},
        {&TaskLists::reminder, BooleanText(dialog.CheckboxReminder->isChecked())},
        {&TaskLists::reminder_date, StoredDate(DateValue(dialog.tempTaskReminderDate))},
        {&TaskLists::reminder_time, TextOf(dialog.ComboReminderTime)},
        {&TaskLists::reminder_alarm, dialog.tempTaskReminderAlarm},
        {&TaskLists::reminder_list, dialog.tempTaskReminderList},
        {&TaskLists::notes, TextOf(dialog.TextBoxNotes)},
    }};
}

// The dialog's fields that a task's record gives.
constexpr std::array<FilledField<FrmTask, TaskLists>, TaskFields.size() - 1> FilledFields{{
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
}};

} // namespace

void frmMain::NewTask() {
    FrmTask& dialog = *TaskDialog;
    PrepareEditor(dialog, *this, "New");
    dialog.Fill();
    ShowDialog(dialog, TaskDBFirstOpen, *this);
    if (dialog.CancelledFlag || ShuttingDown) {
        return;
    }
    DropUnfinishedRecord(TaskFile());
    AppendRecord(Store.TaskRecord, EnteredFields(dialog), NextTaskID);
    WriteTasks();
    RefreshFor(ReasonNewRecord);
}

void frmMain::EditTask(int index) {
    FrmTask& dialog = *TaskDialog;
    PrepareEditor(dialog, *this, "Edit");
    FillFromRecord(dialog, FilledFields, Store.TaskRecord, index);
    ShowDialog(dialog, TaskDBFirstOpen, *this);
    if (dialog.CancelledFlag || ShuttingDown) {
        return;
    }
    DropUnfinishedRecord(TaskFile());
    if (dialog.DeleteFlag) {
        RemoveRecord(Store.TaskRecord, TaskFields, index);
    } else {
        ReplaceRecord(Store.TaskRecord, EnteredFields(dialog), index);
    }
    WriteTasks();
    RefreshFor(ReasonNewRecord);
}
