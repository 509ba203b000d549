// frmSelectCourseSchedule, the small dialog in which the student chooses what to do with terms: make another
// one the active one, edit the active one's classes, or start a new one.
#pragma once

#include "core/TextList.h"

#include "ui_frmSelectCourseSchedule.h"

#include <QDialog>

#include <string>

class frmSelectCourseSchedule : public QDialog, public Ui::frmSelectCourseSchedule {
    Q_OBJECT

public:
    explicit frmSelectCourseSchedule(QWidget* parent);

    // Clears the answer; to be called before each opening.
    void ClearAnswer();

    bool Cancelled = false;
    bool NewCourse = false;                     // the answer is a new term
    bool MakeActive = false;                    // the answer is to change to the selected term
    std::string SelectedCourse, SelectedTermID; // the name and the id in the combo as the answer was given
    TextList tempTermIDArray;                   // the ids of the combo's rows

    // Escape counts as Cancel.
    void reject() override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void TakeAnswer();
};

// The one dialog, from the load of the main window on, which owns it.
extern frmSelectCourseSchedule* TermChooser;
