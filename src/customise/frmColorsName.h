// frmColorsName, the small dialog that asks for the student's own name of a type.
#pragma once

#include "editors/EditorDialog.h"

#include "ui_frmColorsName.h"

#include <string>
#include <string_view>

class frmColorsName : public EditorDialog, public Ui::frmColorsName {
    Q_OBJECT

public:
    explicit frmColorsName(QWidget* parent);

    // Shows the names and forgets the last opening; to be called before each opening.
    void Fill(std::string_view defaultName, std::string_view customName);

    // What was typed, without the blanks at its ends; empty where the default name is to be used.
    std::string CustomName() const;

    void accept() override;

protected:
    bool ValidateField(const QObject* field, bool quiet) override;
    std::string CancelQuestion() const override;
};

// The one dialog, from the load of the main window on, which owns it.
extern frmColorsName* ColorsNameDialog;
