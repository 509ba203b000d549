// The message that an alert button explains itself with.
#include "mainwindow/flows/Alerts.h"

#include "core/Module1.h"
#include "mainwindow/dialogs/frmAlert.h"
#include "mainwindow/frmMain.h"
#include "planner/study/AlertMessage.h"
#include "toolkit/FirstOpen.h"
#include "toolkit/Modal.h"
#include "toolkit/Text.h"

namespace {

constexpr QPoint AlertOffset{250, 150}; // pixels from the main window's corner at the first opening

} // namespace

void ShowAlertMessage(frmMain& window, std::size_t index) {
    const auto message = AlertMessage(static_cast<Alert>(index));
    frmAlert& dialog = *window.AlertDialog;
    dialog.setWindowTitle(FromStore(message.title));
    dialog.TextBoxAlert->setPlainText(FromScreen(message.text));
    PlaceAtFirstOpen(dialog, AlertDBFirstOpen, window, AlertOffset);
    RunModally(dialog);
    window.picGrid->setFocus();
}
