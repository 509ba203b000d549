// The pop-up month of the editors: picks, steps and keys.
#include "editors/picker/DatePickerFixture.h"

using namespace std::chrono_literals;

// --- The pick ---

TEST_F(Picker, AClickOnADayPicksItAndCloses) {
    OpenOn("2009/10/14");
    ClickCell(5);
    EXPECT_EQ(picked, std::vector<Date>{Date{2009y / 10 / 2}});
    EXPECT_EQ(picker->CalendarDate, Date{2009y / 10 / 2});
    EXPECT_FALSE(picker->isVisible());
    EXPECT_TRUE(due->hasFocus());
}

TEST_F(Picker, AClickOnADayOfANeighbourMonthPicksThatDay) {
    OpenOn("2009/10/14");
    ClickCell(0);
    EXPECT_EQ(picked, std::vector<Date>{Date{2009y / 9 / 27}});
}

TEST_F(Picker, TodayAndTomorrowPickTheirDays) {
    OpenOn("2011/01/01");
    QTest::mouseClick(picker->LabelToday, Qt::LeftButton);
    EXPECT_FALSE(picker->isVisible());
    ASSERT_TRUE(GuardEnds());
    OpenOn("2011/01/01");
    QTest::mouseClick(picker->LabelTomorrow, Qt::LeftButton);
    EXPECT_FALSE(picker->isVisible());
    EXPECT_EQ(picked, (std::vector<Date>{Date{2009y / 10 / 14}, Date{2009y / 10 / 15}}));
}

// --- Month stepping ---

TEST_F(Picker, APressOnAMonthButtonStepsAtOnce) {
    EXPECT_EQ(picker->TimerButton->interval(), 300);
    OpenOn("2009/10/14");
    QTest::mousePress(picker->LabelCalMonthUp, Qt::LeftButton);
    EXPECT_EQ(picker->CalendarDate, Date{2009y / 11 / 14});
    EXPECT_EQ(picker->LabelMonth->text(), "November 2009");
    EXPECT_FALSE(picker->MouseUpFlag);
    EXPECT_TRUE(picker->MonthUp);
    EXPECT_TRUE(picker->TimerButton->isActive());
    EXPECT_EQ(PictureOf(picker->picCalMonthUp), "picStashCalMonthRightDown.svg");
}

TEST_F(Picker, EachTickWhileTheButtonIsHeldStepsOneMonthMore) {
    OpenOn("2009/10/14");
    QTest::mousePress(picker->LabelCalMonthDown, Qt::LeftButton);
    EXPECT_EQ(picker->CalendarDate, Date{2009y / 9 / 14});
    EXPECT_FALSE(picker->MonthUp);
    EXPECT_EQ(PictureOf(picker->picCalMonthDown), "picStashCalMonthLeftDown.svg");
    FireTimer(picker->TimerButton);
    FireTimer(picker->TimerButton);
    EXPECT_EQ(picker->CalendarDate, Date{2009y / 7 / 14});
}

TEST_F(Picker, TheTimerRepeatsByItself) {
    OpenOn("2009/10/14");
    QTest::mousePress(picker->LabelCalMonthUp, Qt::LeftButton);
    EXPECT_TRUE(WaitUntil([this] { return picker->CalendarDate >= Date{2010y / 1 / 14}; }));
}

TEST_F(Picker, LettingGoStopsTheSteps) {
    OpenOn("2009/10/14");
    QTest::mousePress(picker->LabelCalMonthUp, Qt::LeftButton);
    QTest::mouseRelease(picker->LabelCalMonthUp, Qt::LeftButton);
    EXPECT_TRUE(picker->MouseUpFlag);
    EXPECT_FALSE(picker->TimerButton->isActive());
    EXPECT_EQ(PictureOf(picker->picCalMonthUp), "picStashCalMonthRightUp.svg");
    FireTimer(picker->TimerButton); // one that fell behind the release
    EXPECT_EQ(picker->CalendarDate, Date{2009y / 11 / 14});
}

TEST_F(Picker, AStepIsNoPickAndDoesNotClose) {
    OpenOn("2009/10/14");
    QTest::mouseClick(picker->LabelCalMonthUp, Qt::LeftButton);
    QTest::mouseClick(picker->LabelCalMonthDown, Qt::LeftButton);
    EXPECT_TRUE(picker->isVisible());
    EXPECT_TRUE(picked.empty());
    EXPECT_EQ(dueDate, "2009/10/14");
}

TEST_F(Picker, ClosingStopsAHeldButton) {
    OpenOn("2009/10/14");
    QTest::mousePress(picker->LabelCalMonthUp, Qt::LeftButton);
    ok->setFocus();
    EXPECT_TRUE(picker->MouseUpFlag);
    EXPECT_FALSE(picker->TimerButton->isActive());
}

TEST_F(Picker, SteppingFrom31JanuaryLandsOnTheLastOfFebruaryAndGoesOnFromThere) {
    OpenOn("2009/01/31");
    QTest::mouseClick(picker->LabelCalMonthUp, Qt::LeftButton);
    EXPECT_EQ(picker->CalendarDate, Date{2009y / 2 / 28});
    QTest::mouseClick(picker->LabelCalMonthUp, Qt::LeftButton);
    EXPECT_EQ(picker->CalendarDate, Date{2009y / 3 / 28});
}

TEST_F(Picker, DatesOutside1600To3100AreClampedAtEachRedraw) {
    OpenOn("3100/12/31");
    QTest::mouseClick(picker->LabelCalMonthUp, Qt::LeftButton);
    EXPECT_EQ(picker->CalendarDate, Date{3100y / 12 / 31});
    EXPECT_EQ(picker->LabelMonth->text(), "December 3100");
    picker->CalendarDate = Date{1599y / 12 / 31};
    picker->UpdateCalendar();
    EXPECT_EQ(picker->CalendarDate, Date{1600y / 1 / 1});
    QTest::mouseClick(picker->LabelCalMonthDown, Qt::LeftButton);
    EXPECT_EQ(picker->LabelMonth->text(), "January 1600");
}

// --- Keys ---

TEST_F(Picker, ArrowsStepTheMarkedDay) {
    OpenOn("2009/10/14");
    Key(Qt::Key_Right);
    EXPECT_EQ(picker->CalendarDate, Date{2009y / 10 / 15});
    Key(Qt::Key_Down);
    EXPECT_EQ(picker->CalendarDate, Date{2009y / 10 / 22});
    Key(Qt::Key_Left);
    EXPECT_EQ(picker->CalendarDate, Date{2009y / 10 / 21});
    Key(Qt::Key_Up);
    EXPECT_EQ(picker->CalendarDate, Date{2009y / 10 / 14});
    EXPECT_TRUE(picker->isVisible());
    EXPECT_TRUE(picked.empty());
}

TEST_F(Picker, PageKeysStepTheMonth) {
    OpenOn("2009/10/31");
    Key(Qt::Key_PageDown);
    EXPECT_EQ(picker->CalendarDate, Date{2009y / 11 / 30});
    Key(Qt::Key_PageUp);
    EXPECT_EQ(picker->CalendarDate, Date{2009y / 10 / 30});
    EXPECT_TRUE(picked.empty());
}

TEST_F(Picker, EnterPicksTheMarkedDayAndNotTheDefaultButton) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        picked.clear();
        OpenOn("2009/10/14");
        Key(Qt::Key_Right);
        Key(key);
        EXPECT_EQ(picked, std::vector<Date>{Date{2009y / 10 / 15}});
        EXPECT_FALSE(picker->isVisible());
        EXPECT_TRUE(dialog.isVisible());
        ASSERT_TRUE(GuardEnds());
    }
}

TEST_F(Picker, EscapeClosesItAndNotTheDialog) {
    OpenOn("2009/10/14");
    Key(Qt::Key_Escape);
    EXPECT_FALSE(picker->isVisible());
    EXPECT_TRUE(picked.empty());
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(due->hasFocus());
}

TEST_F(Picker, AnyOtherKeyClosesIt) {
    for (const Qt::Key key : {Qt::Key_A, Qt::Key_Space, Qt::Key_Home, Qt::Key_F1}) {
        OpenOn("2009/10/14");
        Key(key);
        EXPECT_FALSE(picker->isVisible()) << key;
        ASSERT_TRUE(GuardEnds());
    }
    EXPECT_TRUE(picked.empty());
}
