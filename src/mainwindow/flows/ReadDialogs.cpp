// The dialogs that are only read: what an alert button says, and the grades.
#include "mainwindow/flows/ReadDialogs.h"

#include "core/Module1.h"
#include "mainwindow/dialogs/frmAlert.h"
#include "mainwindow/dialogs/frmGPA.h"
#include "mainwindow/flows/help/HelpFlow.h"
#include "mainwindow/frmMain.h"
#include "planner/study/AlertMessage.h"
#include "toolkit/FirstOpen.h"
#include "toolkit/Modal.h"
#include "toolkit/Text.h"

namespace {

constexpr QPoint ReadOffset{250, 150}; // pixels from the main window's corner at the first opening

} // namespace

void ShowAlertMessage(frmMain& window, std::size_t index) {
    const auto message = AlertMessage(static_cast<Alert>(index));
    frmAlert& dialog = *window.AlertDialog;
    dialog.setWindowTitle(FromStore(message.title));
    dialog.TextBoxAlert->setPlainText(FromScreen(message.text));
    PlaceAtFirstOpen(dialog, AlertDBFirstOpen, window, ReadOffset);
    RunModally(dialog);
    window.picGrid->setFocus();
}

void ShowGPA(frmMain& window) {
    if (GPADialog == nullptr) {
        GPADialog = new frmGPA(&window);
        QObject::connect(GPADialog, &frmGPA::HelpAsked, &window, [&window] { OpenHelp(window); });
    }
    GPADialog->Fill();
    PlaceAtFirstOpen(*GPADialog, GPADBFirstOpen, window, ReadOffset);
    RunModally(*GPADialog);
}
