// The status bar with its clock, the term panel, and the boxes that take what the rules have worked out.
#include "mainwindow/ShowBox.h"
#include "planner/Colors.h"
#include "support/WindowTest.h"

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
    window->ShowTaskMode();
    EXPECT_EQ(DrawnTexts(*window->picStatusBar),
              (QStringList{"Task Mode", "Wednesday, October 14, 2009      03:30 PM"}));
}

TEST_F(StatusBar, FollowsTheWidthOfTheWindow) {
    LoadWindow();
    window->resize(1000, 700);
    ASSERT_TRUE(WaitUntil([this] { return window->picStatusBar->width() == 1000; }));
    const DrawnItem clock = Drawn(DrawnKind::Text).back();
    EXPECT_EQ(clock.left + TextWidth(clock.text, clock.font), 1000 * 15 - 150);
}

TEST(ShownBox, TakesTheTextAndTheBackColor) {
    QLineEdit box;
    ShowBox(&box, {"01:30", ColorNotDone});
    EXPECT_EQ(box.text(), "01:30");
    EXPECT_EQ(box.palette().color(QPalette::Base), QColor(0xFF, 0xE5, 0xE5));
    ShowBox(&box, {"00:00", ColorWhite});
    EXPECT_EQ(box.text(), "00:00");
    EXPECT_EQ(box.palette().color(QPalette::Base), QColor(Qt::white));
}
