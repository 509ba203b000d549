// Modal dialogs and boxes, counted as they open and close. While one is open the main window counts as
// disabled, whatever the toolkit's own flag says.
#pragma once

class QDialog;
class QWidget;

// Shows the dialog modally over the application's windows and gives the toolkit's result when it has closed.
// The window that it was opened over has the focus again then.
int RunModally(QDialog& dialog);

// The window that the next dialog or box opens over: the active one; else, as between two boxes no window is
// active, the dialog that is open; else the main window. None where no window is on the screen.
QWidget* WindowOfNextDialog();

// Counts a modal box that is not run by the procedure above, for as long as it lives.
struct ModalScope {
    ModalScope();
    ~ModalScope();
    ModalScope(const ModalScope&) = delete;
    ModalScope& operator=(const ModalScope&) = delete;
};

// True while a modal dialog or box is open.
bool ModalDialogIsOpen();
