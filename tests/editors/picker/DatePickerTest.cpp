// The pop-up month of the editors: how it opens, closes and looks.
#include "core/RunTimeError.h"
#include "editors/picker/DatePickerFixture.h"

using namespace std::chrono_literals;

namespace {

constexpr int Black = 0x000000;
constexpr int White = 0xFFFFFF;
constexpr int Grey = 0xA9A9A9;
constexpr int Red = 0x0000C0; // blue first

} // namespace

// --- Opening ---

TEST_F(Picker, IsClosedAtFirst) {
    EXPECT_FALSE(picker->isVisible());
    EXPECT_FALSE(picker->isEnabled());
    EXPECT_FALSE(picker->CalendarOpen);
}

TEST_F(Picker, APressOnADateBoxOpensItOnTheDateOfTheBox) {
    QTest::mousePress(due, Qt::LeftButton);
    EXPECT_TRUE(picker->isVisible());
    EXPECT_TRUE(picker->isEnabled());
    EXPECT_TRUE(picker->CalendarOpen);
    EXPECT_TRUE(picker->hasFocus());
    EXPECT_TRUE(picker->DateTarget);
    EXPECT_EQ(picker->CalendarDate, Date{2009y / 10 / 14});
}

TEST_F(Picker, APressOnTheOtherBoxServesTheOtherTarget) {
    QTest::mousePress(reminder, Qt::LeftButton);
    EXPECT_FALSE(picker->DateTarget);
    EXPECT_EQ(picker->CalendarDate, Date{2010y / 2 / 1});
}

TEST_F(Picker, APressOnTheSmallButtonOpensIt) {
    QTest::mouseClick(reminderButton, Qt::LeftButton);
    EXPECT_TRUE(picker->isVisible());
    EXPECT_FALSE(picker->DateTarget);
    EXPECT_FALSE(reminderButton->isDown());
}

TEST_F(Picker, ThePressOfAnotherMouseButtonDoesNotOpenIt) {
    QTest::mouseClick(due, Qt::RightButton);
    EXPECT_FALSE(picker->isVisible());
}

TEST_F(Picker, KeysOpenItFromTheBox) {
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Down, Qt::Key_F4}) {
        due->setFocus();
        QTest::keyClick(due, key);
        EXPECT_TRUE(picker->isVisible()) << key;
        picker->HideCalendar();
        ASSERT_TRUE(GuardEnds());
    }
    QTest::keyClick(due, Qt::Key_A);
    EXPECT_FALSE(picker->isVisible());
}

TEST_F(Picker, TheSpaceKeyOpensItFromTheSmallButton) {
    dueButton->setFocus();
    QTest::keyClick(dueButton, Qt::Key_Space);
    EXPECT_TRUE(picker->isVisible());
}

TEST_F(Picker, OpensBelowItsBox) {
    OpenOn("2009/10/14");
    EXPECT_EQ(picker->x(), due->x());
    EXPECT_GE(picker->y(), due->geometry().bottom());
    EXPECT_LE(picker->y(), due->geometry().bottom() + 3);
}

TEST_F(Picker, StaysWithinTheDialog) {
    for (const QPoint corner : {QPoint(330, 20), QPoint(330, 380), QPoint(0, 380), QPoint(200, 210)}) {
        due->move(corner);
        OpenOn("2009/10/14");
        EXPECT_TRUE(dialog.rect().contains(picker->geometry())) << corner.x() << " " << corner.y();
        picker->HideCalendar();
        ASSERT_TRUE(GuardEnds());
    }
}

TEST_F(Picker, OpensAboveABoxAtTheBottom) {
    due->move(20, 390);
    OpenOn("2009/10/14");
    EXPECT_LT(picker->geometry().bottom(), due->y());
}

TEST_F(Picker, ATextThatIsNoDateRaisesTheError) {
    dueDate = "";
    EXPECT_THROW(picker->ShowCalendar(true), RunTimeError);
}

// --- Closing ---

TEST_F(Picker, APressOnTheBoxWhileItIsOpenClosesItAndLeavesItClosed) {
    OpenOn("2009/10/14");
    QTest::mouseClick(due, Qt::LeftButton);
    EXPECT_FALSE(picker->isVisible());
    EXPECT_FALSE(picker->isEnabled());
    ASSERT_TRUE(GuardEnds());
    EXPECT_FALSE(picker->isVisible());
    QTest::mouseClick(due, Qt::LeftButton);
    EXPECT_TRUE(picker->isVisible());
}

TEST_F(Picker, APressOnTheSmallButtonWhileItIsOpenClosesItAndLeavesItClosed) {
    OpenOn("2009/10/14");
    QTest::mouseClick(dueButton, Qt::LeftButton);
    EXPECT_FALSE(picker->isVisible());
}

TEST_F(Picker, IsGuardedFor100MillisecondsAfterTheClosing) {
    EXPECT_EQ(picker->TimerCalendar->interval(), 100);
    OpenOn("2009/10/14");
    picker->HideCalendar();
    EXPECT_TRUE(picker->CalendarOpen);
    EXPECT_TRUE(picker->TimerCalendar->isActive());
    QTest::mousePress(reminder, Qt::LeftButton);
    EXPECT_FALSE(picker->isVisible());
    ASSERT_TRUE(GuardEnds());
    EXPECT_FALSE(picker->TimerCalendar->isActive());
}

TEST_F(Picker, ClosesWhenItLosesTheFocus) {
    OpenOn("2009/10/14");
    ok->setFocus();
    EXPECT_FALSE(picker->isVisible());
    EXPECT_TRUE(ok->hasFocus());
}

TEST_F(Picker, ClosesWithTheTabKey) {
    OpenOn("2009/10/14");
    Key(Qt::Key_Tab);
    EXPECT_FALSE(picker->isVisible());
}

TEST_F(Picker, TabGoesOnFromTheDateThatWasBeingChosen) {
    picker->setParent(nullptr);
    picker->setParent(&dialog); // behind all other controls
    for (QToolButton* button : {dueButton, reminderButton}) {
        button->setFocusPolicy(Qt::NoFocus);
    }
    OpenOn("2009/10/14");
    Key(Qt::Key_Tab);
    EXPECT_FALSE(picker->isVisible());
    EXPECT_EQ(dialog.focusWidget(), reminder);
    ASSERT_TRUE(GuardEnds());
    QTest::mouseClick(reminder, Qt::LeftButton);
    ASSERT_TRUE(picker->isVisible());
    Key(Qt::Key_Backtab);
    EXPECT_FALSE(picker->isVisible());
    EXPECT_EQ(dialog.focusWidget(), due);
}

TEST_F(Picker, ADisabledBoxOrButtonDoesNotOpenIt) {
    for (QWidget* control : std::initializer_list<QWidget*>{due, dueButton}) {
        control->setEnabled(false);
        QTest::mousePress(control, Qt::LeftButton);
        EXPECT_FALSE(picker->isVisible());
        EXPECT_FALSE(picker->CalendarOpen);
    }
}

TEST_F(Picker, AKeyHeldDownOpensItOnce) {
    due->setFocus();
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), true);
    QCoreApplication::sendEvent(due, &repeated);
    EXPECT_FALSE(picker->isVisible());
}

TEST_F(Picker, ClosesAtAPressOnTheDialogsBackground) {
    OpenOn("2009/10/14");
    QTest::mousePress(&dialog, Qt::LeftButton, {}, QPoint(440, 400));
    EXPECT_FALSE(picker->isVisible());
}

TEST_F(Picker, StaysOpenAtAPressBetweenItsDays) {
    OpenOn("2009/10/14");
    QTest::mouseClick(picker, Qt::LeftButton, {}, QPoint(1, 1));
    QTest::mouseClick(picker->LabelMonth, Qt::LeftButton);
    EXPECT_TRUE(picker->isVisible());
    EXPECT_TRUE(picked.empty());
}

TEST_F(Picker, IsClosedWhenTheDialogOpensAgain) {
    OpenOn("2009/10/14");
    dialog.hide();
    dialog.show();
    EXPECT_FALSE(picker->isVisible());
    ASSERT_TRUE(GuardEnds());
    OpenOn("2009/10/14");
    picker->SetCalendarHeads("Monday"); // as at each opening
    EXPECT_FALSE(picker->isVisible());
}

TEST_F(Picker, TellsThatItHasClosedOnceADayWasChosen) {
    std::vector<bool> visible;
    QObject::connect(picker, &DatePicker::PickClosed, &dialog, [&] {
        EXPECT_EQ(picked.size(), 1U);
        visible.push_back(picker->isVisible());
    });
    OpenOn("2009/10/14");
    Key(Qt::Key_Escape);
    EXPECT_TRUE(visible.empty()) << "no day was chosen";
    ASSERT_TRUE(GuardEnds());
    OpenOn("2009/10/14");
    ClickCell(10);
    EXPECT_EQ(visible, std::vector{false});
}

// --- The redraw ---

TEST_F(Picker, NamesTheMonthWithItsYear) {
    OpenOn("2009/10/14");
    EXPECT_EQ(picker->LabelMonth->text(), "October 2009");
}

TEST_F(Picker, ShowsOctoberOf2009From27September) {
    OpenOn("2009/10/14");
    EXPECT_EQ(Text(0), "27");
    EXPECT_EQ(Text(4), "1");
    EXPECT_EQ(Text(34), "31");
    EXPECT_EQ(Text(41), "7");
}

TEST_F(Picker, AMonthThatBeginsOnTheFirstColumnHasAWeekOfTheMonthBefore) {
    OpenOn("2009/02/14");
    EXPECT_EQ(Text(0), "25");
    EXPECT_EQ(Text(6), "31");
    EXPECT_EQ(Text(7), "1");
}

TEST_F(Picker, DaysOfTheMonthAreBlackAndTheOthersGreyOnWhite) {
    OpenOn("2009/10/14");
    EXPECT_TRUE(HasForeColor(picker->LabelCalDate[3], Grey));
    EXPECT_TRUE(HasForeColor(picker->LabelCalDate[4], Black));
    EXPECT_TRUE(HasForeColor(picker->LabelCalDate[35], Grey));
    EXPECT_TRUE(HasBackColor(picker->LabelCalDate[3], White));
    EXPECT_TRUE(HasBackColor(picker->LabelCalDate[4], White));
    EXPECT_FALSE(picker->LabelCalDate[4]->font().bold());
}

TEST_F(Picker, TheMarkedDayIsBoldWhiteOnBlack) {
    OpenOn("2009/10/20");
    const ClickLabel* day = picker->LabelCalDate[23];
    EXPECT_EQ(day->text(), "20");
    EXPECT_TRUE(HasForeColor(day, White));
    EXPECT_TRUE(HasBackColor(day, Black));
    EXPECT_TRUE(day->font().bold());
}

TEST_F(Picker, DaysHaveTheFontOfTitlesAt8AndAQuarterPoints) {
    EXPECT_EQ(picker->LabelCalDate[0]->font().family(), ToQFont({Face::Title, 8, false}).family());
    EXPECT_EQ(picker->LabelCalDate[0]->font().pointSizeF(), 8.25);
}

TEST_F(Picker, TheFrameOfTodayIsOnePixelLargerOnEachSide) {
    OpenOn("2009/10/20");
    ASSERT_TRUE(picker->LabelCalTileBorder->isVisible());
    EXPECT_EQ(picker->LabelCalTileBorder->geometry(),
              picker->LabelCalDate[17]->geometry().adjusted(-1, -1, 1, 1));
    EXPECT_EQ(Text(17), "14");
}

TEST_F(Picker, TodayAsAGreyCellHasNoFrame) {
    SetClock(2009, 10, 31);
    OpenOn("2009/11/02");
    EXPECT_EQ(Text(6), "31"); // it is seen
    EXPECT_FALSE(picker->LabelCalTileBorder->isVisible());
}

TEST_F(Picker, KeepsTheDatesOfItsButtonsAndOfTheLastRedraw) {
    OpenOn("2009/10/31");
    EXPECT_EQ(picker->PreviousMonthDate, Date{2009y / 9 / 30});
    EXPECT_EQ(picker->NextMonthDate, Date{2009y / 11 / 30});
    EXPECT_EQ(picker->TodayDate, Date{2009y / 10 / 14});
    EXPECT_EQ(picker->TomorrowDate, Date{2009y / 10 / 15});
    EXPECT_EQ(picker->PreviousDate, Date{2009y / 10 / 31});
}

TEST_F(Picker, MarksTheWordTodayWhileItStandsOnToday) {
    OpenOn("2009/10/14");
    EXPECT_TRUE(HasForeColor(picker->LabelToday, Red));
    EXPECT_TRUE(picker->LabelToday->font().bold());
    EXPECT_TRUE(HasForeColor(picker->LabelTomorrow, Black));
    EXPECT_FALSE(picker->LabelTomorrow->font().bold());
}

TEST_F(Picker, MarksTheWordTomorrowWhileItStandsOnTomorrow) {
    OpenOn("2009/10/15");
    EXPECT_TRUE(HasForeColor(picker->LabelTomorrow, Red));
    EXPECT_TRUE(picker->LabelTomorrow->font().bold());
    EXPECT_TRUE(HasForeColor(picker->LabelToday, Black));
    EXPECT_FALSE(picker->LabelToday->font().bold());
}

TEST_F(Picker, HeadsRunFromTheFirstDayOfTheWeek) {
    const auto heads = [this](const char* start) {
        picker->SetCalendarHeads(start);
        QString text;
        for (const ClickLabel* head : picker->LabelCalDay) {
            text += head->text();
        }
        return text;
    };
    EXPECT_EQ(heads("Sunday"), "SMTWTFS");
    EXPECT_EQ(heads("Monday"), "MTWTFSS");
    EXPECT_EQ(heads("Saturday"), "SSMTWTF");
}

TEST_F(Picker, DaysRunFromTheFirstDayOfTheWeek) {
    picker->SetCalendarHeads("Monday");
    OpenOn("2009/10/14");
    EXPECT_EQ(Text(0), "28");
}
