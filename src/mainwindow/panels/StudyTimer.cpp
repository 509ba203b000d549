// The study timer: a clock that the student starts, pauses and resets.
#include "mainwindow/panels/StudyTimer.h"

#include "mainwindow/frmMain.h"
#include "toolkit/Pressable.h"
#include "toolkit/Text.h"
#include "toolkit/WindowColors.h"

namespace {

constexpr int TickMilliseconds = 1000;
constexpr int TimeTop = 15; // units
constexpr SurfaceFont TimeFont{Face::Clock, 10, false};

} // namespace

void frmMain::PaintStudyTimer() {
    const QString text = FromStore(TimerText(StudyTimer));
    DescribeValue(picTime, text);
    picTime->Clear();
    picTime->DrawText((picTime->WidthInUnits() - TextWidth(text, TimeFont)) / 2, TimeTop, text, TimeFont,
                      Timer1->isActive() ? InkColor : RestingTimeColor);
}

void BindStudyTimer(frmMain& window) {
    window.Timer1 = new QTimer(&window);
    window.Timer1->setInterval(TickMilliseconds);
    QObject::connect(window.Timer1, &QTimer::timeout, &window, [&window] {
        TickTimer(window.StudyTimer, Now());
        window.PaintStudyTimer();
    });
    const std::array<std::pair<QPushButton*, ViewActionKind>, 3> buttons{{
        {window.ButtonStart, ViewActionKind::StartOrPauseTimer},
        {window.ButtonReset, ViewActionKind::ResetTimer},
        {window.ButtonSeconds, ViewActionKind::TurnTimerSeconds},
    }};
    for (const auto& [button, kind] : buttons) {
        QObject::connect(button, &QPushButton::clicked, &window,
                         [&window, kind = kind] { emit window.Asked({.kind = kind}); });
    }
    QObject::connect(window.picTime, &PictureBox::Resized, &window, &frmMain::PaintStudyTimer);
}
