// Modal dialogs and boxes, counted as they open and close. While one is open the main window counts as
// disabled, whatever the toolkit's own flag says.
#pragma once

class QDialog;

// Shows the dialog modally over the application's windows and gives the toolkit's result when it has closed.
int RunModally(QDialog& dialog);

// Counts a modal box that is not run by the procedure above, for as long as it lives.
struct ModalScope {
    ModalScope();
    ~ModalScope();
    ModalScope(const ModalScope&) = delete;
    ModalScope& operator=(const ModalScope&) = delete;
};

// True while a modal dialog or box is open.
bool ModalDialogIsOpen();
