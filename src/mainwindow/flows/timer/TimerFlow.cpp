// What the buttons of the study timer do.
#include "mainwindow/flows/timer/TimerFlow.h"

#include "mainwindow/frmMain.h"

namespace {

void ShowTimer(frmMain& window) {
    window.PaintStudyTimer();
    window.picGrid->setFocus();
}

} // namespace

void ClearStudyTimer(frmMain& window) {
    window.StudyTimer = {};
    window.PaintStudyTimer();
}

void StartOrPauseStudyTimer(frmMain& window) {
    const bool starts = !window.Timer1->isActive();
    window.ButtonStart->setText(starts ? QStringLiteral("Pause") : QStringLiteral("Start"));
    window.ButtonReset->setEnabled(!starts);
    if (starts) {
        window.StudyTimer.TimerStart = Now();
        window.Timer1->start();
    } else {
        BankTimer(window.StudyTimer, Now());
        window.Timer1->stop();
    }
    ShowTimer(window);
}

void ResetStudyTimer(frmMain& window) {
    ResetTimer(window.StudyTimer);
    ShowTimer(window);
}

void TurnTimerSeconds(frmMain& window) {
    window.StudyTimer.ShowSeconds = !window.StudyTimer.ShowSeconds;
    ShowTimer(window);
}
