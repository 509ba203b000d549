// FrmTask, the dialog in which a task is created, changed or deleted. It never touches the store: NewTask and
// EditTask of the main window fill its fields, show it, read its controls and write the record.
#pragma once

#include "editors/DatePicker.h"
#include "editors/EditorParts.h"

#include "ui_FrmTask.h"

class FrmTask : public QDialog, public Ui::FrmTask, public EditorState {
    Q_OBJECT

public:
    explicit FrmTask(QWidget* parent);

    // Fills all controls, for "New" from tempClickedDate, for "Edit" from the fields; to be
    // called before each opening. Raises the run-time error where a field holds no date or neither "True" nor
    // "False".
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

    DatePicker* Picker = nullptr;

    // OK, and Cancel, which Escape counts as.
    void accept() override;
    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void SetupControls();
    void BindControls();
    void SetTopics();
    void FillNew();
    void FillEdit();
    void FillDates(Date date, Date reminderDate);
    void PaintDeadline();
    void TakePercent();
    void DoneClicked();
    void ReminderClicked();
    void SetAlarm();
    void TakeDate(Date date);
    void ValidateField(const QObject* field);

    bool UpdateEstimateFlag = false; // the program sets the done box, which is no click
};

// The one dialog, from the load of the main window on, which owns it.
extern FrmTask* TaskDialog;
