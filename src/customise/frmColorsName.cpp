// frmColorsName, the small dialog that asks for the student's own name of a type.
#include "customise/frmColorsName.h"

#include "core/Values.h"
#include "toolkit/ProgramStyle.h"

frmColorsName* ColorsNameDialog = nullptr;

frmColorsName::frmColorsName(QWidget* parent) : EditorDialog(parent) {
    setupUi(this);
    ShowAsReadOnly(TextBoxDefaultName);
    LimitToSet(TextBoxCustomName);
    BindAnswers(ButtonOK, ButtonCancel);
    SetHelpTopics(
        {{TextBoxDefaultName, 811}, {TextBoxCustomName, 812}, {ButtonOK, 813}, {ButtonCancel, 814}});
    connect(TextBoxCustomName, &QLineEdit::textEdited, this, [this] { ChangeFlag = true; });
}

void frmColorsName::Fill(std::string_view defaultName, std::string_view customName) {
    ShowText(TextBoxDefaultName, defaultName);
    ShowText(TextBoxCustomName, customName);
    ClearFlags(*this);
    TextBoxCustomName->setFocus();
    TextBoxCustomName->selectAll();
}

std::string frmColorsName::CustomName() const {
    return std::string(Trim(TextOf(TextBoxCustomName)));
}

void frmColorsName::accept() {
    AcceptEditor(*this, *this);
}

bool frmColorsName::ValidateField(const QObject* /*field*/, bool /*quiet*/) {
    return true;
}

std::string frmColorsName::CancelQuestion() const {
    return "Cancel this change?";
}
