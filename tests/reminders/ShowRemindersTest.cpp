// The ways in which the reminder window comes up and goes.
#include "core/Module1.h"
#include "mainwindow/flows/WindowFlow.h"
#include "reminders/RemindersTest.h"

#include <QCloseEvent>
#include <QWindow>

namespace {

class ShownReminders : public RemindersTest {
protected:
    QPoint Corner() const {
        const WorkArea& area = Script.workArea;
        return {area.left + area.width - 10, area.top + area.height - 10};
    }

    QPoint BottomRight() const {
        const QRect frame = list->frameGeometry();
        return {frame.x() + frame.width(), frame.y() + frame.height()};
    }

    // As the window manager asks for it; gives whether the window has closed, and not only hidden itself.
    bool PressCloseBox() const {
        QCloseEvent event;
        QCoreApplication::sendEvent(list->windowHandle(), &event);
        return event.isAccepted();
    }

    void ExpectShownByHand() const {
        EXPECT_TRUE(list->isVisible());
        EXPECT_TRUE(QTest::qWaitForWindowActive(list));
        EXPECT_TRUE(Script.sounds.empty());
        list->hide();
    }
};

} // namespace

TEST_F(ShownReminders, StandTenPixelsFromTheCornerOfTheWorkAreaAtFirst) {
    Script.workArea = {30, 20, 1200, 900};
    AddDueTask();
    Tick();
    EXPECT_EQ(BottomRight(), Corner());
    EXPECT_FALSE(RemindersDBFirstOpen);
}

TEST_F(ShownReminders, StandInTheCornerWhenOpenedByHandFirst) {
    list->ShowByHand();
    EXPECT_EQ(BottomRight(), Corner());
}

TEST_F(ShownReminders, StayWhereTheyWereLeftLater) {
    AddDueTask();
    Tick();
    list->move(40, 50);
    list->hide();
    AddDueTask();
    Tick();
    EXPECT_TRUE(list->isVisible());
    EXPECT_EQ(list->pos(), QPoint(40, 50));
    list->hide();
    list->ShowByHand();
    EXPECT_EQ(list->pos(), QPoint(40, 50));
}

TEST_F(ShownReminders, ComeUpWithoutTheKeyboardByThemselves) {
    AddDueTask();
    Tick();
    EXPECT_TRUE(list->isVisible());
    EXPECT_TRUE(list->testAttribute(Qt::WA_ShowWithoutActivating));
}

TEST_F(ShownReminders, ComeUpWithoutTheKeyboardAlsoAfterTheyWereOpenedByHand) {
    list->ShowByHand();
    list->hide();
    AddDueTask();
    Tick();
    EXPECT_TRUE(list->testAttribute(Qt::WA_ShowWithoutActivating));
}

TEST_F(ShownReminders, SoundEachTimeSomethingFires) {
    AddDueTask();
    Tick();
    AddDueTask();
    Tick();
    EXPECT_EQ(Script.sounds.size(), 2U);
    EXPECT_FALSE(list->ReminderShowWindow);
}

TEST_F(ShownReminders, AreRestoredWhereTheyWereMinimized) {
    AddDueTask();
    QuietTick();
    list->showMinimized();
    AddDueTask();
    Tick();
    EXPECT_FALSE(list->isMinimized());
    list->showMinimized();
    list->ShowByHand();
    EXPECT_FALSE(list->isMinimized());
}

TEST_F(ShownReminders, LeaveTheMainWindowInTheTray) {
    HideWindows(*window);
    AddDueTask();
    Tick();
    EXPECT_TRUE(list->isVisible());
    EXPECT_FALSE(window->isVisible());
}

TEST_F(ShownReminders, GoWithTheFileMenusExit) {
    list->ShowByHand();
    window->MenuExit->trigger();
    EXPECT_FALSE(list->isVisible());
    EXPECT_FALSE(window->isVisible());
}

TEST_F(ShownReminders, AreOnlyHiddenWhenTheStudentClosesThem) {
    AddDueTask();
    Tick();
    list->close();
    EXPECT_FALSE(list->isVisible());
    EXPECT_TRUE(list->TimerReminders->isActive());
    AddDueTask();
    Tick();
    EXPECT_TRUE(list->isVisible());
    EXPECT_EQ(Standing().size(), 2U);
}

TEST_F(ShownReminders, AreOnlyHiddenByTheirCloseBoxAndCloseWithAShutdown) {
    list->ShowByHand();
    EXPECT_FALSE(PressCloseBox());
    EXPECT_FALSE(list->isVisible());
    list->ShowByHand();
    ShuttingDown = true;
    EXPECT_TRUE(PressCloseBox()) << "the end of the session must not be refused";
    EXPECT_FALSE(list->isVisible());
}

// --- By hand -----------------------------------------------------------------------------------------------

TEST_F(ShownReminders, TakeTheKeyboardByHandAlsoWhereTheyAreOnTheScreenAlready) {
    AddDueTask();
    Tick();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    list->ShowByHand();
    EXPECT_TRUE(QTest::qWaitForWindowActive(list));
}

TEST_F(ShownReminders, OpenFromTheFileMenu) {
    window->MenuPopupReminders->trigger();
    ExpectShownByHand();
}

TEST_F(ShownReminders, OpenFromThePictureAndTheWordOfTheModeBarInWhateverMode) {
    window->PictureBarReminders->Press();
    ExpectShownByHand();
    QTest::mouseClick(window->LabelBarReminders, Qt::LeftButton);
    ExpectShownByHand();
    EXPECT_EQ(window->CurrentMode(), Mode::Calendar);
}

TEST_F(ShownReminders, OpenFromTheTray) {
    ASSERT_EQ(Script.trayEvents.menuWanted().at(0), "Show Popup Reminders...");
    Script.trayEvents.itemChosen(0);
    ExpectShownByHand();
}

TEST_F(ShownReminders, ShowTheRowsOfTheLastTickWhenOpenedByHand) {
    AddDueTask();
    list->ShowByHand();
    EXPECT_EQ(Standing(), Texts{});
    EXPECT_TRUE(list->ReminderFirstTick);
    EXPECT_EQ(saved, Texts{});
}
