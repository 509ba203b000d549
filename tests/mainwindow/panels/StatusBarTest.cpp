// The status bar with its clock.
#include "mainwindow/flows/ReadDialogs.h"
#include "mainwindow/modes/Modes.h"
#include "support/WindowTest.h"

#include <QSizeGrip>

namespace {

class StatusBar : public WindowTest {
protected:
    std::vector<DrawnItem> Drawn(DrawnKind kind) const {
        std::vector<DrawnItem> items;
        for (const DrawnItem& item : window->picStatusBar->Drawn()) {
            if (item.kind == kind) {
                items.push_back(item);
            }
        }
        return items;
    }

    QString ClockText() const { return Drawn(DrawnKind::Text).back().text; }
};

} // namespace

TEST_F(StatusBar, ShowsTheModeAtTheLeftAndTheClockAtTheRight) {
    LoadWindow();
    const std::vector<DrawnItem> texts = Drawn(DrawnKind::Text);
    ASSERT_EQ(texts.size(), 2U);
    EXPECT_EQ(texts[0].text, "Calendar Mode");
    EXPECT_EQ(texts[0].left, 150);
    EXPECT_EQ(texts[1].text, "Wednesday, October 14, 2009      12:00 PM");
    EXPECT_EQ(texts[1].left + TextWidth(texts[1].text, texts[1].font),
              window->picStatusBar->WidthInUnits() - 150);
    for (const DrawnItem& text : texts) {
        EXPECT_EQ(text.top, 90);
        EXPECT_EQ(text.color, 0x000000);
        EXPECT_EQ(text.font, (SurfaceFont{Face::Status, 8, false}));
    }
}

TEST_F(StatusBar, IsFramedByTwoGreyAndTwoWhiteLines) {
    LoadWindow();
    const std::vector<DrawnItem> lines = Drawn(DrawnKind::Line);
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[0].color, 0xA0A0A0);
    EXPECT_EQ(lines[1].color, 0xA0A0A0);
    EXPECT_EQ(lines[2].color, 0xFFFFFF);
    EXPECT_EQ(lines[3].color, 0xFFFFFF);
}

TEST_F(StatusBar, IsPaintedByItsTimerEveryTenSeconds) {
    LoadWindow();
    EXPECT_TRUE(window->TimerStatusBar->isActive());
    EXPECT_EQ(window->TimerStatusBar->interval(), 10000);
    SetClock(2009, 10, 15, 9, 5);
    EXPECT_EQ(ClockText(), "Wednesday, October 14, 2009      12:00 PM") << "it stands still until then";
    FireTimer(window->TimerStatusBar);
    EXPECT_EQ(ClockText(), "Thursday, October 15, 2009      09:05 AM");
}

TEST_F(StatusBar, IsPaintedByAModeEntry) {
    LoadWindow();
    SetClock(2009, 10, 14, 15, 30);
    ShowTaskMode(*window);
    EXPECT_EQ(DrawnTexts(*window->picStatusBar),
              (QStringList{"Task Mode", "Wednesday, October 14, 2009      03:30 PM"}));
}

TEST_F(StatusBar, IsPaintedByTheLayoutOfEveryMode) {
    LoadWindow();
    int minute = 0;
    for (const auto& enter : {&ShowHomeworkMode, &ShowTaskMode, &ShowEventMode, &ShowCalendarMode,
                              &ShowStudySessionsMode, &ShowReminderMode}) {
        enter(*window);
        SetClock(2009, 10, 14, 15, ++minute);
        window->LayoutGrid();
        EXPECT_EQ(ClockText(), QStringLiteral("Wednesday, October 14, 2009      03:0%1 PM").arg(minute));
    }
}

TEST_F(StatusBar, GoesOnWhileADialogIsOpen) {
    LoadWindow();
    bool painted = false;
    WhenDialogOpens([this, &painted](QWidget* dialog) {
        SetClock(2009, 10, 14, 15, 30);
        FireTimer(window->TimerStatusBar);
        painted = window->TimerStatusBar->isActive() && ClockText().endsWith("03:30 PM");
        dialog->close();
    });
    ShowAlertMessage(*window, 3);
    EXPECT_TRUE(painted);
}

TEST_F(StatusBar, SizeGripStandsBesideTheClock) {
    LoadWindow();
    QCoreApplication::sendPostedEvents();
    const auto* grip = window->picStatusBar->findChild<QSizeGrip*>();
    ASSERT_NE(grip, nullptr);
    const DrawnItem clock = Drawn(DrawnKind::Text).back();
    EXPECT_GE(grip->x() * UnitsPerPixel, clock.left + TextWidth(clock.text, clock.font));
    EXPECT_EQ(grip->geometry().right(), window->picStatusBar->rect().right());
}

TEST_F(StatusBar, FollowsTheWidthOfTheWindow) {
    LoadWindow();
    window->resize(1000, 700);
    ASSERT_TRUE(WaitUntil([this] { return window->picStatusBar->width() == 1000; }));
    const DrawnItem clock = Drawn(DrawnKind::Text).back();
    EXPECT_EQ(clock.left + TextWidth(clock.text, clock.font), 1000 * 15 - 150);
}
