// frmGPA: the percent and letter of each class of the active term, and the term's grade point average.
#include "mainwindow/dialogs/frmGPA.h"

#include "editors/DialogLook.h"
#include "editors/EditorParts.h"
#include "toolkit/ProgramStyle.h"
#include "toolkit/WindowStyle.h"

#include <QCloseEvent>
#include <QSignalBlocker>

QPointer<frmGPA> GPADialog;

frmGPA::frmGPA(QWidget* parent) : QDialog(parent) {
    setupUi(this);
    SetupNames(ComboClassNameList);
    picHelp->setIcon(ProgramIcon(QStringLiteral("picHelp.svg")));
    for (QLineEdit* box :
         {TextBoxCredits, TextboxPercent, TextboxGPA, TextboxAssignments, TextboxStudyTime}) {
        ShowAsReadOnly(box);
    }
    connect(ComboClassNameList, &QComboBox::currentIndexChanged, this, &frmGPA::ShowGPARow);
    connect(CheckBoxChroma, &QCheckBox::toggled, this, [this] {
        const int row = ComboClassNameList->currentIndex();
        BuildGPATable();
        ComboClassNameList->setCurrentIndex(row);
    });
    connect(ButtonOK, &QPushButton::clicked, this, &QDialog::hide);
    connect(picHelp, &QToolButton::clicked, this, &frmGPA::HelpAsked);
    SetHelpTopics({{ComboClassNameList, 821},
                   {TextBoxCredits, 822},
                   {TextboxPercent, 823},
                   {TextboxGPA, 824},
                   {TextboxAssignments, 825},
                   {TextboxStudyTime, 826},
                   {CheckBoxChroma, 827},
                   {picHelp, 828},
                   {ButtonOK, 829}});
}

void frmGPA::Fill() {
    BuildGPATable();
    ComboClassNameList->setCurrentIndex(0);
    ComboClassNameList->setFocus();
}

void frmGPA::BuildGPATable() {
    const QSignalBlocker quiet(ComboClassNameList);
    table = ::BuildGPATable(CheckBoxChroma->isChecked());
    ComboClassNameList->clear();
    for (int row = 1; row <= table.GPANames.Count(); ++row) {
        ComboClassNameList->addItem(FromStore(table.GPANames.Item(row)));
    }
    ComboClassNameList->setCurrentIndex(-1);
}

void frmGPA::ShowGPARow() {
    const GPARow row = ::ShowGPARow(table, TextOf(ComboClassNameList));
    LabelCredits->setText(FromStore(row.labels.LabelCredits));
    LabelScore->setText(FromStore(row.labels.LabelScore));
    LabelGPA->setText(FromStore(row.labels.LabelGPA));
    LabelAssignments->setText(FromStore(row.labels.LabelAssignments));
    LabelStudyTime->setText(FromStore(row.labels.LabelStudyTime));
    ShowText(TextBoxCredits, row.TextBoxCredits);
    ShowText(TextboxPercent, row.TextboxPercent);
    ShowText(TextboxGPA, row.TextboxGPA);
    ShowText(TextboxAssignments, row.TextboxAssignments);
    ShowText(TextboxStudyTime, row.TextboxStudyTime);
}

void frmGPA::closeEvent(QCloseEvent* event) {
    event->ignore();
    hide();
}
