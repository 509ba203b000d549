// The status bar and its clock.
#include "mainwindow/panels/StatusBar.h"

#include "core/DateText.h"
#include "mainwindow/frmMain.h"
#include "platform/Formats.h"
#include "toolkit/Pressable.h"
#include "toolkit/Text.h"

namespace {

constexpr int TickMilliseconds = 10000;
constexpr int TextInset = 150; // units from either edge
constexpr int TextTop = 90;
constexpr int DarkEdge = 0xA0A0A0;
constexpr int LightEdge = 0xFFFFFF;
constexpr int TextColor = 0x000000;
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
    picStatusBar->DrawLine(0, 0, right, 0, DarkEdge);
    picStatusBar->DrawLine(0, 0, 0, bottom, DarkEdge);
    picStatusBar->DrawLine(0, bottom, right, bottom, LightEdge);
    picStatusBar->DrawLine(right, 0, right, bottom, LightEdge);
    picStatusBar->DrawText(TextInset, TextTop, FromStore(ModeCaption), TextFont, TextColor);
    picStatusBar->DrawText(picStatusBar->WidthInUnits() - TextInset - TextWidth(clock, TextFont), TextTop,
                           clock, TextFont, TextColor);
}

void BindStatusBar(frmMain& window) {
    window.TimerStatusBar = new QTimer(&window);
    window.TimerStatusBar->setInterval(TickMilliseconds);
    QObject::connect(window.TimerStatusBar, &QTimer::timeout, &window, &frmMain::PaintStatusBar);
    QObject::connect(window.picStatusBar, &PictureBox::Resized, &window, &frmMain::PaintStatusBar);
}
