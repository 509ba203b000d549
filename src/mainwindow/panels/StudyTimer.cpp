// The study timer: a clock that the student starts, pauses and resets.
#include "mainwindow/panels/StudyTimer.h"

#include "mainwindow/frmMain.h"
#include "toolkit/Pressable.h"
#include "toolkit/Text.h"

namespace {

constexpr int TickMilliseconds = 1000;
constexpr int TimeTop = 15; // units
constexpr int RunningColor = 0x000000;
constexpr int RestingColor = 0xA0A0A0;
constexpr SurfaceFont TimeFont{Face::Clock, 10, false};

} // namespace

void frmMain::PaintStudyTimer() {
    const QString text = FromStore(TimerText(StudyTimer));
    DescribeValue(picTime, text);
    picTime->Clear();
    picTime->DrawText((picTime->WidthInUnits() - TextWidth(text, TimeFont)) / 2, TimeTop, text, TimeFont,
                      Timer1->isActive() ? RunningColor : RestingColor);
}

void ClearStudyTimer(frmMain& window) {
    window.StudyTimer = {};
    window.PaintStudyTimer();
}

void BindStudyTimer(frmMain& window) {
    window.Timer1 = new QTimer(&window);
    window.Timer1->setInterval(TickMilliseconds);
    QObject::connect(window.Timer1, &QTimer::timeout, &window, [&window] {
        TickTimer(window.StudyTimer, Now());
        window.PaintStudyTimer();
    });
    QObject::connect(window.ButtonStart, &QPushButton::clicked, &window, [&window] {
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
    });
    QObject::connect(window.ButtonReset, &QPushButton::clicked, &window,
                     [&window] { ResetTimer(window.StudyTimer); });
    QObject::connect(window.ButtonSeconds, &QPushButton::clicked, &window,
                     [&window] { window.StudyTimer.ShowSeconds = !window.StudyTimer.ShowSeconds; });
    for (QPushButton* button :
         {window.ButtonStart, window.ButtonReset, window.ButtonSeconds}) { // behind what each does itself
        QObject::connect(button, &QPushButton::clicked, &window, [&window] {
            window.PaintStudyTimer();
            window.picGrid->setFocus();
        });
    }
    QObject::connect(window.picTime, &PictureBox::Resized, &window, &frmMain::PaintStudyTimer);
}
