// The status bar and its clock.
#include "mainwindow/panels/StatusBar.h"

#include "core/DateText.h"
#include "mainwindow/frmMain.h"
#include "platform/Formats.h"
#include "toolkit/Pressable.h"
#include "toolkit/Text.h"
#include "toolkit/WindowColors.h"

namespace {

constexpr int TickMilliseconds = 10000;
constexpr int TextInset = 150; // units from either edge
constexpr int TextTop = 90;
constexpr SurfaceFont TextFont{Face::Status, 8, false};

QString ClockText() {
    const Moment now = Now();
    const Date today = std::chrono::floor<std::chrono::days>(now);
    return FromScreen(FormatDate(today, "Long Date")) + QStringLiteral("      ") +
           FromStore(StoredTime(now - today));
}

} // namespace

void frmMain::PaintStatusBar() {
    const int right = picStatusBar->WidthInUnits() - UnitsPerPixel;
    const int bottom = picStatusBar->HeightInUnits() - UnitsPerPixel;
    const QString clock = ClockText();
    DescribeName(picStatusBar, FromStore(ModeCaption) + QStringLiteral(", ") + clock.simplified());
    picStatusBar->Clear(NoColor);
    picStatusBar->DrawLine(0, 0, right, 0, DarkEdgeColor);
    picStatusBar->DrawLine(0, 0, 0, bottom, DarkEdgeColor);
    picStatusBar->DrawLine(0, bottom, right, bottom, LightEdgeColor);
    picStatusBar->DrawLine(right, 0, right, bottom, LightEdgeColor);
    picStatusBar->DrawText(TextInset, TextTop, FromStore(ModeCaption), TextFont, InkColor);
    picStatusBar->DrawText(picStatusBar->WidthInUnits() - TextInset - TextWidth(clock, TextFont), TextTop,
                           clock, TextFont, InkColor);
}

void BindStatusBar(frmMain& window) {
    window.TimerStatusBar = new QTimer(&window);
    window.TimerStatusBar->setInterval(TickMilliseconds);
    QObject::connect(window.TimerStatusBar, &QTimer::timeout, &window, &frmMain::PaintStatusBar);
    QObject::connect(window.picStatusBar, &PictureBox::Resized, &window, &frmMain::PaintStatusBar);
}
