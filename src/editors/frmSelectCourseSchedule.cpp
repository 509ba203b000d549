// frmSelectCourseSchedule, the small dialog in which the student chooses what to do with terms.
#include "editors/frmSelectCourseSchedule.h"

#include "editors/DialogLook.h"
#include "editors/EditorParts.h"

#include <QCloseEvent>

frmSelectCourseSchedule* TermChooser = nullptr;

frmSelectCourseSchedule::frmSelectCourseSchedule(QWidget* parent) : QDialog(parent) {
    setupUi(this);
    SetupNames(ComboTermList);
    KeepLines(this);
    SetupHelpButton(picHelp);
    SetHelpTopics({{ButtonActive, 401},
                   {ButtonCancel, 402},
                   {ButtonEdit, 403},
                   {ButtonNew, 404},
                   {ComboTermList, 405},
                   {picHelp, 406}});
    connect(ButtonActive, &QPushButton::clicked, this, [this] {
        MakeActive = true;
        TakeAnswer();
    });
    connect(ButtonNew, &QPushButton::clicked, this, [this] {
        NewCourse = true;
        TakeAnswer();
    });
    connect(ButtonEdit, &QPushButton::clicked, this, [this] {
        NewCourse = false;
        TakeAnswer();
    });
    connect(ButtonCancel, &QPushButton::clicked, this, &frmSelectCourseSchedule::reject);
}

void frmSelectCourseSchedule::ClearAnswer() {
    Cancelled = false;
    NewCourse = false;
    MakeActive = false;
    SelectedCourse.clear();
    SelectedTermID.clear();
}

void frmSelectCourseSchedule::TakeAnswer() {
    const int row = ComboTermList->currentIndex();
    if (row >= 0) {
        SelectedCourse = TextOf(ComboTermList);
        SelectedTermID = tempTermIDArray.Item(row + 1);
    }
    hide();
}

void frmSelectCourseSchedule::reject() {
    Cancelled = true;
    hide();
}

void frmSelectCourseSchedule::closeEvent(QCloseEvent* event) {
    Cancelled = true;
    event->accept();
}
