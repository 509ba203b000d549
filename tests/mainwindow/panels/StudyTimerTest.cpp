// The study timer: its buttons, its ticks and its clock.
#include "mainwindow/flows/ReadDialogs.h"
#include "mainwindow/frame/Unload.h"
#include "mainwindow/modes/Modes.h"
#include "support/WindowTest.h"

using namespace std::chrono_literals;

namespace {

class StudyTimer : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        LoadWindow();
        start = Script.now;
    }

    QString Clock() const { return DrawnTexts(*window->picTime).join("|"); }

    int ClockColor() const { return window->picTime->Drawn().back().color; }

    // So many seconds after the load, with the tick that falls there.
    void TickAt(std::chrono::seconds time) {
        Script.now = start + time;
        FireTimer(window->Timer1);
    }

    void ClickAt(QPushButton* button, std::chrono::seconds time) {
        Script.now = start + time;
        QTest::mouseClick(button, Qt::LeftButton);
    }

    Moment start{};
};

constexpr int Black = 0x000000;
constexpr int Grey = 0xA0A0A0;

} // namespace

TEST_F(StudyTimer, StandsAtNothingAfterTheLoad) {
    EXPECT_EQ(Clock(), "00:00:00");
    EXPECT_EQ(ClockColor(), Grey);
    EXPECT_FALSE(window->Timer1->isActive());
    EXPECT_EQ(window->Timer1->interval(), 1000);
    EXPECT_EQ(window->ButtonStart->text(), "Start");
    EXPECT_TRUE(window->ButtonReset->isEnabled());
}

TEST_F(StudyTimer, ClockIsCentredInCourierBelowTheTop) {
    const DrawnItem& text = window->picTime->Drawn().back();
    EXPECT_EQ(text.font, (SurfaceFont{Face::Clock, 10, false}));
    EXPECT_EQ(text.top, 15);
    EXPECT_EQ(text.left, (window->picTime->WidthInUnits() - TextWidth(text.text, text.font)) / 2);
}

TEST_F(StudyTimer, StartRunsIt) {
    ClickAt(window->ButtonStart, 0s);
    EXPECT_EQ(window->ButtonStart->text(), "Pause");
    EXPECT_FALSE(window->ButtonReset->isEnabled());
    EXPECT_TRUE(window->Timer1->isActive());
    EXPECT_EQ(ClockColor(), Black);
    TickAt(1s);
    EXPECT_EQ(Clock(), "00:00:01");
    TickAt(3725s);
    EXPECT_EQ(Clock(), "01:02:05");
}

TEST_F(StudyTimer, PauseStopsIt) {
    ClickAt(window->ButtonStart, 0s);
    TickAt(10s);
    ClickAt(window->ButtonStart, 11s);
    EXPECT_EQ(window->ButtonStart->text(), "Start");
    EXPECT_TRUE(window->ButtonReset->isEnabled());
    EXPECT_FALSE(window->Timer1->isActive());
    EXPECT_EQ(Clock(), "00:00:10");
    EXPECT_EQ(ClockColor(), Grey);
}

TEST_F(StudyTimer, StartAfterAPauseContinuesFromTheBankedTime) {
    ClickAt(window->ButtonStart, 0s);
    TickAt(10s);
    ClickAt(window->ButtonStart, 11s);
    ClickAt(window->ButtonStart, 100s);
    EXPECT_EQ(Clock(), "00:00:10");
    TickAt(104s);
    EXPECT_EQ(Clock(), "00:00:15");
}

TEST_F(StudyTimer, ResetTakesItBackToNothing) {
    ClickAt(window->ButtonStart, 0s);
    TickAt(10s);
    ClickAt(window->ButtonStart, 10s);
    ClickAt(window->ButtonReset, 20s);
    EXPECT_EQ(Clock(), "00:00:00");
    ClickAt(window->ButtonStart, 30s);
    TickAt(32s);
    EXPECT_EQ(Clock(), "00:00:02");
}

TEST_F(StudyTimer, SecondsTurnsThemOffAndOn) {
    ClickAt(window->ButtonStart, 0s);
    ClickAt(window->ButtonSeconds, 0s);
    EXPECT_EQ(Clock(), "00:00");
    TickAt(61s);
    EXPECT_EQ(Clock(), "00 01");
    TickAt(62s);
    EXPECT_EQ(Clock(), "00:01");
    ClickAt(window->ButtonSeconds, 62s);
    EXPECT_EQ(Clock(), "00:01:02");
}

TEST_F(StudyTimer, GoesOnWhileADialogIsOpen) {
    ClickAt(window->ButtonStart, 0s);
    QString shown;
    WhenDialogOpens([this, &shown](QWidget* dialog) {
        EXPECT_TRUE(window->Timer1->isActive());
        TickAt(5s);
        shown = Clock();
        dialog->close();
    });
    ShowAlertMessage(*window, 3);
    EXPECT_EQ(shown, "00:00:05");
}

TEST_F(StudyTimer, ButtonsStandInOneLineOfOneHeight) {
    QCoreApplication::sendPostedEvents();
    for (const QPushButton* button : {window->ButtonReset, window->ButtonSeconds}) {
        EXPECT_EQ(button->y(), window->ButtonStart->y());
        EXPECT_EQ(button->height(), window->ButtonStart->height());
    }
    EXPECT_NEAR(window->picTime->geometry().center().y(), window->ButtonStart->geometry().center().y(), 1);
}

TEST_F(StudyTimer, EachButtonHandsTheFocusToTheGrid) {
    for (QPushButton* button : {window->ButtonStart, window->ButtonReset, window->ButtonSeconds}) {
        window->ButtonSelectTerm->setFocus();
        if (button == window->ButtonReset) {
            ClickAt(window->ButtonStart, 0s); // it can be reset while it rests
        }
        button->setFocus();
        QTest::mouseClick(button, Qt::LeftButton);
        EXPECT_TRUE(window->picGrid->hasFocus()) << button->text().toStdString();
    }
}

TEST_F(StudyTimer, ShowsInEveryMode) {
    for (const auto& enter : {&ShowHomeworkMode, &ShowStudySessionsMode, &ShowTaskMode, &ShowEventMode,
                              &ShowReminderMode, &ShowCalendarMode}) {
        enter(*window);
        EXPECT_FALSE(window->PictureBoxTimer->isHidden());
    }
}

TEST_F(StudyTimer, StopsWithTheShutdown) {
    ClickAt(window->ButtonStart, 0s);
    Unload(*window);
    EXPECT_FALSE(window->Timer1->isActive());
    EXPECT_FALSE(window->TimerStatusBar->isActive());
    EXPECT_FALSE(window->TimerButton->isActive());
}
