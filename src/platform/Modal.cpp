// Modal dialogs and boxes, counted as they open and close.
#include "platform/Modal.h"

#include <QDialog>

namespace {

int modalDepth = 0;

} // namespace

ModalScope::ModalScope() {
    ++modalDepth;
}

ModalScope::~ModalScope() {
    --modalDepth;
}

int RunModally(QDialog& dialog) {
    const ModalScope scope;
    dialog.setWindowModality(Qt::ApplicationModal);
    return dialog.exec();
}

bool ModalDialogIsOpen() {
    return modalDepth > 0;
}
