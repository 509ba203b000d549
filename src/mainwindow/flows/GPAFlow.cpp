// The grades of the active term, shown.
#include "mainwindow/flows/GPAFlow.h"

#include "core/Module1.h"
#include "mainwindow/dialogs/frmGPA.h"
#include "mainwindow/frmMain.h"
#include "toolkit/FirstOpen.h"
#include "toolkit/Modal.h"

namespace {

constexpr QPoint GPAOffset{250, 150}; // pixels from the main window's corner at the first opening

} // namespace

void ShowGPA(frmMain& window) {
    GPADialog->Fill();
    PlaceAtFirstOpen(*GPADialog, GPADBFirstOpen, window, GPAOffset);
    RunModally(*GPADialog);
}
