// frmAssignment, the dialog in which an assignment is created, changed or deleted. It never touches the
// store: NewAssignment and EditAssignment of the main window fill its fields, show it, read its controls and
// write the record.
#pragma once

#include "core/TextList.h"
#include "editors/ItemEditor.h"

#include "ui_frmAssignment.h"

class frmAssignment : public ItemEditor, public Ui::frmAssignment {
    Q_OBJECT

public:
    // Has no control yet.
    explicit frmAssignment(QWidget* parent);

    // Makes the controls, once; the first filling does, so that the start does not wait for them.
    void MakeControls();

    // Fills all controls, for "New" from tempClickedDate, for "Edit" from the fields; to be
    // called before each opening. Raises the run-time error where a field holds no date or neither "True" nor
    // "False".
    void Fill();

    TextList tempClassNameArray;           // of the active term
    TextList tempAssignmentClassLinkArray; // the ids of these classes
    Date tempTermStartDate{}, tempTermEndDate{};
    std::string tempAssignmentClassName;
    std::string tempAssignmentDate; // in the short form while the dialog is open
    std::string tempAssignmentType;
    std::string tempAssignmentPriority; // "True" or "False", like the other yes and no fields
    std::string tempAssignmentEstTime;  // "HH : MM"
    std::string tempAssignmentTimeLeft;
    std::string tempAssignmentPercentComplete;
    std::string tempAssignmentDescription;
    std::string tempAssignmentDone;
    std::string tempAssignmentScore, tempAssignmentTotal;
    std::string tempAssignmentGrade; // the percentage, as "85%"
    std::string tempAssignmentReminder;
    std::string tempAssignmentReminderDate; // in the short form while the dialog is open
    std::string tempAssignmentReminderTime;
    std::string tempAssignmentReminderAlarm; // the stored form of a moment
    std::string tempAssignmentReminderList;
    std::string tempAssignmentNotes;

    void accept() override;

protected:
    bool ValidateField(const QObject* field, bool quiet) override;
    std::string CancelQuestion() const override;
    void WorkChanged() override;

private:
    void SetupControls();
    void SetTopics();
    void BindControls();
    void FillClasses();
    void FillNew();
    void FillEdit();
    void ShowTimeLeft(std::string_view text);
    void UpdateTimeLeft();
    void UpdateGrade();
    void ValidateEstimate();
    bool ValidateNumber(QLineEdit* box, std::string_view wanted, bool quiet);
};

// The one dialog, from the load of the main window on, which owns it.
extern frmAssignment* AssignmentDialog;
