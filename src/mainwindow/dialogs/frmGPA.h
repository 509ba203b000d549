// frmGPA: the percent and letter of each class of the active term, and the term's grade point average.
#pragma once

#include "planner/grades/Grades.h"

#include "ui_frmGPA.h"

#include <QPointer>

class frmGPA : public QDialog, public Ui::frmGPA {
    Q_OBJECT

public:
    explicit frmGPA(QWidget* parent);

    // Computes the table of the active term anew and shows its totals; to be called before each opening.
    // Raises the run-time error where a score, a total or credits are no number.
    void Fill();

    // Computes the table and fills the combo with its names. No row is selected then.
    void BuildGPATable();

    // Shows the row whose name the combo has.
    void ShowGPARow();

signals:
    // The student asks for the help book.
    void HelpAsked();

protected:
    // Hides the window instead, so that it keeps its place.
    void closeEvent(QCloseEvent* event) override;

private:
    GPATable table;
};

// The one dialog, made as it is first asked for; the main window owns it.
extern QPointer<frmGPA> GPADialog;
