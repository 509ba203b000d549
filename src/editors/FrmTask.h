// FrmTask, the dialog in which a task is created, changed or deleted. It never touches the store: NewTask and
// EditTask of the main window fill its fields, show it, read its controls and write the record.
#pragma once

#include "editors/ItemEditor.h"

#include "ui_FrmTask.h"

class FrmTask : public ItemEditor, public Ui::FrmTask {
    Q_OBJECT

public:
    // Has no control yet.
    explicit FrmTask(QWidget* parent);

    // Makes the controls, once; the first filling does, so that the start does not wait for them.
    void MakeControls();

    // Fills all controls, for "New" from tempClickedDate, for "Edit" from the fields; to be
    // called before each opening. Raises the run-time error where a flag is neither "True" nor "False", and
    // where the date of a deadline or of a reminder that is on is none. Where there is no deadline, today
    // stands for a date that is none, and that of the task for one of a reminder that is off.
    void Fill();

    std::string tempTaskDescription;
    std::string tempTaskDateExists; // "True" or "False", like the other yes and no fields
    std::string tempTaskDate;       // in the short form while the dialog is open
    std::string tempTaskType;       // the key, not the shown text
    std::string tempTaskPriority;
    std::string tempTaskPercentComplete;
    std::string tempTaskDone;
    std::string tempTaskReminder;
    std::string tempTaskReminderDate; // in the short form while the dialog is open
    std::string tempTaskReminderTime;
    std::string tempTaskReminderAlarm; // the stored form of a moment
    std::string tempTaskReminderList;
    std::string tempTaskNotes;

    void accept() override;

protected:
    bool ValidateField(const QObject* field, bool quiet) override;
    std::string CancelQuestion() const override;

private:
    void SetupControls();
    void BindControls();
    void SetTopics();
    void FillNew();
    void FillEdit();
    void PaintDeadline();
};

// The one dialog, from the load of the main window on, which owns it.
extern FrmTask* TaskDialog;
