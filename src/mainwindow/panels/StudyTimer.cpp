// The study timer: a clock that the student starts, pauses and resets.
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

void frmMain::ClearStudyTimer() {
    StudyTimer = {};
    PaintStudyTimer();
}

void frmMain::BindStudyTimer() {
    Timer1 = new QTimer(this);
    Timer1->setInterval(TickMilliseconds);
    connect(Timer1, &QTimer::timeout, this, [this] {
        TickTimer(StudyTimer, Now());
        PaintStudyTimer();
    });
    connect(ButtonStart, &QPushButton::clicked, this, [this] {
        const bool starts = !Timer1->isActive();
        ButtonStart->setText(starts ? QStringLiteral("Pause") : QStringLiteral("Start"));
        ButtonReset->setEnabled(!starts);
        if (starts) {
            StudyTimer.TimerStart = Now();
            Timer1->start();
        } else {
            BankTimer(StudyTimer, Now());
            Timer1->stop();
        }
    });
    connect(ButtonReset, &QPushButton::clicked, this, [this] { ResetTimer(StudyTimer); });
    connect(ButtonSeconds, &QPushButton::clicked, this,
            [this] { StudyTimer.ShowSeconds = !StudyTimer.ShowSeconds; });
    for (QPushButton* button : {ButtonStart, ButtonReset, ButtonSeconds}) { // behind what each does itself
        connect(button, &QPushButton::clicked, this, [this] {
            PaintStudyTimer();
            picGrid->setFocus();
        });
    }
    connect(picTime, &PictureBox::Resized, this, &frmMain::PaintStudyTimer);
}
