// The alert buttons: which of them show.
#include "mainwindow/panels/AlertButtons.h"

#include "mainwindow/frmMain.h"
#include "planner/study/AlertMessage.h"
#include "toolkit/Text.h"

static_assert(std::tuple_size_v<decltype(frmMain::ButtonAlert)> == AlertCount);

void BindAlerts(frmMain& window) {
    for (std::size_t i = 0; i < window.ButtonAlert.size(); ++i) {
        window.ButtonAlert[i]->setText(FromStore(AlertTitles[i].caption));
        QObject::connect(window.ButtonAlert[i], &QPushButton::clicked, &window, [&window, i] {
            emit window.Asked({.kind = ViewActionKind::ExplainAlert, .index = i});
        });
    }
}

void StudyTimeAlerts(frmMain& window) {
    const AlertsShown shown = StudyTimeAlertCheck();
    for (std::size_t i = 0; i < shown.size(); ++i) {
        window.ButtonAlert[i]->setVisible(shown[i]);
    }
}
