// frmCourseSchedule, the dialog in which one term is created, changed or deleted with its classes. It never
// touches the store: ClassSchedule of the main window fills its fields, shows it, reads it and writes the
// records.
#pragma once

#include "core/FieldTables.h"
#include "core/Records.h"
#include "editors/EditorDialog.h"
#include "editors/picker/DatePicker.h"

#include "ui_frmCourseSchedule.h"

#include <functional>

class frmCourseSchedule : public EditorDialog, public Ui::frmCourseSchedule {
    Q_OBJECT

public:
    // Has no control yet.
    explicit frmCourseSchedule(QWidget* parent);

    // Makes the controls, once; the first filling does, so that the start does not wait for them.
    void MakeControls();

    // Fills all controls, for "New" with a term that begins today, for "NewBasedOn" and "Edit" from the
    // fields; to be called before each opening. Raises the run-time error where a field holds no date.
    void Fill();

    std::string tempTermID;
    std::string tempTermName;
    std::string tempTermStart, tempTermEnd; // in the short form while the dialog is open
    TextList tempClassIDArray, tempClassTermLinkArray, tempClassNameArray, tempClassCreditsArray,
        tempClassForeColorArray, tempClassBackColorArray, tempClassNotesArray;
    NumberList IndexClassIDArray; // for each row of the class list its position in these
    TextList tempPreviousTermIDsArray, tempPreviousTermNamesArray, tempPreviousTermStartArray,
        tempPreviousTermEndArray;    // all terms that exist
    std::string ThisTermsPreviousID; // as the term had them at opening
    std::string ThisTermsPreviousName;
    int SelectedClassIndex = 0; // position of the class being edited; for an added one the list's length
    int SelectedClassID = 0;
    std::string ClassEditMode; // "Add", "Edit", or empty while no class is open
    std::string OriginalClassName;
    int NextClassID = 1;
    bool ClassError = false; // the last check of a class refused it

    // Gives for a place in the texts of the classes above that in their records, and any other place
    // unchanged; the flow sets it. The dialog asks it for a text that does not convert while the student
    // works in it.
    std::function<const char*(const char*)> PlaceInRecord;

    DatePicker* Picker = nullptr;

    // Escape counts as Cancel, while a class is open as that of the class.
    void reject() override;

protected:
    bool ValidateField(const QObject* field, bool quiet) override;
    std::string CancelQuestion() const override;

private:
    void SetupControls();
    void SetTopics();
    void BindControls();
    void TakeDate(Date date);

    // ClassPanel.cpp: the panel of one class.
    void ResetClassPanel();
    void FillClassList();
    void OpenClassPanel();
    void AddClass();
    void EditClass();
    void FillClassPanel();
    void AcceptClass();
    void ValidateClassPanel();
    void SaveClass();
    void DeleteClass();
    void ShowClassColors(const std::string& foreColor, const std::string& backColor);
    bool DeleteConfirmed() const;
    bool ValidateCredits(bool quiet);

    void AcceptTerm();
    void CancelTerm();
    void DeleteTerm();

    // The colours of the class being edited, as the store has them.
    std::string classForeColor, classBackColor;
};

// A list of the dialog's classes and that of the records' field in it.
struct ClassField {
    TextList frmCourseSchedule::*list;
    TextList ClassLists::*record;
};

// All fields but the class's term, which is known only as the whole term is saved.
inline constexpr auto ClassDialogFields = std::to_array<ClassField>({
    {&frmCourseSchedule::tempClassIDArray, &ClassLists::id},
    {&frmCourseSchedule::tempClassNameArray, &ClassLists::name},
    {&frmCourseSchedule::tempClassCreditsArray, &ClassLists::credits},
    {&frmCourseSchedule::tempClassForeColorArray, &ClassLists::forecolor},
    {&frmCourseSchedule::tempClassBackColorArray, &ClassLists::backcolor},
    {&frmCourseSchedule::tempClassNotesArray, &ClassLists::notes},
});

static_assert(NamesAllFieldsBut(ClassDialogFields, &ClassField::record, &ClassLists::term));

// The one dialog, from the load of the main window on, which owns it.
extern frmCourseSchedule* TermDialog;
