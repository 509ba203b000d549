// The alert buttons and the message that each explains itself with.
#include "core/Module1.h"
#include "mainwindow/dialogs/frmAlert.h"
#include "mainwindow/frmMain.h"
#include "planner/study/AlertMessage.h"
#include "toolkit/FirstOpen.h"
#include "toolkit/Modal.h"
#include "toolkit/Text.h"

namespace {

constexpr QPoint AlertOffset{250, 150}; // pixels from the main window's corner at the first opening

static_assert(std::tuple_size_v<decltype(frmMain::ButtonAlert)> == AlertCount);

} // namespace

void frmMain::StudyTimeAlerts() {
    const AlertsShown shown = StudyTimeAlertCheck();
    for (std::size_t i = 0; i < shown.size(); ++i) {
        ButtonAlert[i]->setVisible(shown[i]);
    }
}

void frmMain::ShowAlertMessage(int index) {
    const auto message = AlertMessage(static_cast<Alert>(index));
    AlertDialog->setWindowTitle(FromStore(message.title));
    AlertDialog->TextBoxAlert->setPlainText(FromScreen(message.text));
    PlaceAtFirstOpen(*AlertDialog, AlertDBFirstOpen, *this, AlertOffset);
    RunModally(*AlertDialog);
    picGrid->setFocus();
}

void frmMain::BindAlerts() {
    AlertDialog = new frmAlert(this);
    for (std::size_t i = 0; i < ButtonAlert.size(); ++i) {
        ButtonAlert[i]->setText(FromStore(AlertTitles[i].caption));
        connect(ButtonAlert[i], &QPushButton::clicked, this,
                [this, i] { ShowAlertMessage(static_cast<int>(i)); });
    }
}
