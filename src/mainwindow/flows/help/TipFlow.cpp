// The tip of the day.
#include "mainwindow/flows/help/TipFlow.h"

#include "core/Module1.h"
#include "mainwindow/dialogs/frmTip.h"
#include "mainwindow/frmMain.h"
#include "toolkit/FirstOpen.h"
#include "toolkit/Modal.h"

namespace {

constexpr int TipMilliseconds = 500; // behind the load

} // namespace

void BindTips(frmMain& window) {
    window.TimerTip = new QTimer(&window);
    window.TimerTip->setSingleShot(true);
    window.TimerTip->setInterval(TipMilliseconds);
    QObject::connect(window.TimerTip, &QTimer::timeout, &window, [&window] {
        if (window.isVisible()) {
            ShowTipOfTheDay(window);
        }
    });
}

void ShowTipOfTheDay(frmMain& window) {
    if (window.tempShowTipsAtStartup != "Yes") {
        return;
    }
    if (TipDialog == nullptr) {
        TipDialog = new frmTip(&window);
        TipDialog->move(window.pos() + FirstOpenOffset);
    }
    frmTip& dialog = *TipDialog;
    if (dialog.isVisible()) {
        return; // the menu was quicker than the timer
    }
    dialog.ShowTips = window.tempShowTipsAtStartup;
    dialog.CurrentTip = window.tempCurrentTip;
    RunModally(dialog);
    if (ShuttingDown) {
        return;
    }
    window.tempShowTipsAtStartup = dialog.ShowTips;
    window.tempCurrentTip = dialog.CurrentTip;
    window.picGrid->setFocus();
}

void ShowTips(frmMain& window) {
    window.tempShowTipsAtStartup = "Yes";
    ShowTipOfTheDay(window);
}
