// Modal dialogs and boxes, counted as they open and close.
#include "toolkit/Modal.h"

#include "toolkit/InputRules.h"

#include <QApplication>
#include <QDialog>
#include <QMainWindow>
#include <QPointer>

namespace {

int modalDepth = 0;

QWidget* FirstMainWindow() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (qobject_cast<QMainWindow*>(window) != nullptr && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

int RunCounted(QDialog& dialog) {
    const ModalScope scope;
    dialog.setWindowModality(Qt::ApplicationModal);
    DropDoubleClick();
    return dialog.exec();
}

} // namespace

ModalScope::ModalScope() {
    ++modalDepth;
}

ModalScope::~ModalScope() {
    --modalDepth;
}

int RunModally(QDialog& dialog) {
    const QPointer<QWidget> behind = WindowOfNextDialog();
    const int result = RunCounted(dialog);
    if (behind != nullptr && behind->isVisible() && !behind->isMinimized()) {
        behind->activateWindow(); // a window manager may leave the focus with the dialog that has gone
    }
    return result;
}

QWidget* WindowOfNextDialog() {
    for (QWidget* window : {QApplication::activeWindow(), QApplication::activeModalWidget()}) {
        if (window != nullptr && window->isVisible()) {
            return window;
        }
    }
    return FirstMainWindow();
}

bool ModalDialogIsOpen() {
    return modalDepth > 0;
}
