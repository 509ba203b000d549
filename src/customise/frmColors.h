// frmColors, the dialog in which the student chooses the colours of types and classes and names the types.
#pragma once

#include "customise/ColorRows.h"
#include "editors/EditorDialog.h"
#include "platform/ColorDialog.h"
#include "toolkit/grid/PaintedList.h"

#include "ui_frmColors.h"

class frmColors : public EditorDialog, public PaintedList, public ColorRows, public Ui::frmColors {
    Q_OBJECT

public:
    explicit frmColors(QWidget* parent);

    // Shows the rows in the order of the table, unsorted and from the first one on, which is selected; to be
    // called before each opening, with the rows given.
    void Fill();

    // The colours put together in the desktop's dialog, for as long as the process lives.
    CustomColors tempCustomColors = NoCustomColors;

    void accept() override;

signals:
    // The student asks for the help book.
    void HelpAsked();

protected:
    bool ValidateField(const QObject* field, bool quiet) override;
    std::string CancelQuestion() const override;

private:
    void BuildList();
    bool ActOn(const ListAction& action);
    GridRow RowShown(int number) const;

    // The row on which the buttons act, by its position in the lists.
    int SelectedRow() const;

    void ChangeColor(NumberList ColorRows::*colors);
    void ChangeName();
    void AskForName();
    void Restore();
    void TakeChange();
    void Sort();
};

// The one dialog, from the load of the main window on, which owns it.
extern frmColors* ColorsDialog;
