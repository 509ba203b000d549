// The small calendar of the main window: its steppers and the first day of the week.
#include "mainwindow/flows/ReadDialogs.h"
#include "mainwindow/flows/ViewFlow.h"
#include "mainwindow/modes/Modes.h"
#include "support/EventRecords.h"
#include "support/Looks.h"
#include "support/WindowTest.h"

using namespace std::chrono_literals;

namespace {

constexpr std::size_t Cell20 = 23; // 20 October 2009 in weeks from Sunday

class CalendarSteps : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp(); // 14 October 2009
        LoadWindow();
    }

    ClickLabel* Day(std::size_t cell) const { return window->LabelCalDate[cell]; }

    QString Heads() const {
        QString text;
        for (const ClickLabel* head : window->LabelCalDay) {
            text += head->text();
        }
        return text;
    }
};

// A head that reacts to a click looks like a link.
bool LooksClickable(const ClickLabel* head) {
    return head->font().underline() && head->cursor().shape() == Qt::PointingHandCursor;
}

} // namespace

// --- Steppers ---

TEST_F(CalendarSteps, EachStepperStepsAtThePressWithItsPictureDown) {
    struct Case {
        PictureBox* stepper;
        Date date;
        QString picture;
    };

    const std::vector<Case> cases{
        {window->picCalMonthUp, Date{2009y / 11 / 14}, "picStashCalMonthRight"},
        {window->picCalMonthDown, Date{2009y / 9 / 14}, "picStashCalMonthLeft"},
        {window->picCalDayUp, Date{2009y / 10 / 15}, "picStashCalDayRight"},
        {window->picCalDayDown, Date{2009y / 10 / 13}, "picStashCalDayLeft"},
    };
    for (const Case& row : cases) {
        GoToDate(*window, Date{2009y / 10 / 14});
        QTest::mousePress(row.stepper, Qt::LeftButton);
        EXPECT_EQ(window->ClickedDate, row.date);
        EXPECT_EQ(PictureOf(row.stepper), row.picture + "Down.svg");
        EXPECT_TRUE(window->TimerButton->isActive());
        EXPECT_EQ(window->TimerButton->interval(), 300);
        QTest::mouseRelease(row.stepper, Qt::LeftButton);
        EXPECT_FALSE(window->TimerButton->isActive());
        EXPECT_EQ(PictureOf(row.stepper), row.picture + "Up.svg");
        EXPECT_EQ(window->ClickedDate, row.date);
    }
}

TEST_F(CalendarSteps, AHeldStepperStepsOnAtEachTick) {
    QTest::mousePress(window->picCalDayUp, Qt::LeftButton);
    FireTimer(window->TimerButton);
    FireTimer(window->TimerButton);
    EXPECT_EQ(window->ClickedDate, Date{2009y / 10 / 17});
    EXPECT_EQ(Day(Cell20 - 3)->font().bold(), true);
}

TEST_F(CalendarSteps, AHeldStepperAdvancesByItself) {
    QTest::mousePress(window->picCalMonthDown, Qt::LeftButton);
    EXPECT_TRUE(WaitUntil([this] { return window->ClickedDate <= Date{2009y / 7 / 14}; }));
}

TEST_F(CalendarSteps, TheTickBehindTheReleaseDoesNothing) {
    QTest::mousePress(window->picCalDayUp, Qt::LeftButton);
    QTest::mouseRelease(window->picCalDayUp, Qt::LeftButton);
    FireTimer(window->TimerButton);
    EXPECT_EQ(window->ClickedDate, Date{2009y / 10 / 15});
}

TEST_F(CalendarSteps, AStepperWhoseReleaseCannotComeLetsGo) {
    QTest::mousePress(window->picCalDayUp, Qt::LeftButton);
    window->hide();
    FireTimer(window->TimerButton);
    EXPECT_FALSE(window->StepperHeld);
    EXPECT_FALSE(window->TimerButton->isActive());
    EXPECT_EQ(window->ClickedDate, Date{2009y / 10 / 15});
}

TEST_F(CalendarSteps, AStepperLetsGoWhenADialogOpens) {
    QTest::mousePress(window->picCalDayUp, Qt::LeftButton);
    WhenDialogOpens([this](QWidget* dialog) {
        FireTimer(window->TimerButton);
        dialog->close();
    });
    ShowAlertMessage(*window, 3);
    EXPECT_FALSE(window->TimerButton->isActive());
    EXPECT_EQ(PictureOf(window->picCalDayUp), "picStashCalDayRightUp.svg");
    EXPECT_EQ(window->ClickedDate, Date{2009y / 10 / 15});
}

TEST_F(CalendarSteps, TheRightButtonDoesNotStep) {
    QTest::mousePress(window->picCalDayUp, Qt::RightButton);
    EXPECT_FALSE(window->TimerButton->isActive());
    QTest::mouseRelease(window->picCalDayUp, Qt::RightButton);
    EXPECT_EQ(window->ClickedDate, Date{2009y / 10 / 14});
}

TEST_F(CalendarSteps, OneMonthOnFrom31JanuaryIsTheLastOfFebruary) {
    GoToDate(*window, Date{2009y / 1 / 31});
    QTest::mouseClick(window->picCalMonthUp, Qt::LeftButton);
    EXPECT_EQ(window->ClickedDate, Date{2009y / 2 / 28});
    GoToDate(*window, Date{2012y / 1 / 31});
    QTest::mouseClick(window->picCalMonthUp, Qt::LeftButton);
    EXPECT_EQ(window->ClickedDate, Date{2012y / 2 / 29});
}

TEST_F(CalendarSteps, SteppingPastTheLastDateStaysThere) {
    GoToDate(*window, Date{3100y / 12 / 31});
    for (PictureBox* stepper : {window->picCalDayUp, window->picCalMonthUp}) {
        QTest::mouseClick(stepper, Qt::LeftButton);
        EXPECT_EQ(window->ClickedDate, Date{3100y / 12 / 31});
    }
    EXPECT_EQ(window->LabelMonth->text(), "December 3100");
}

TEST_F(CalendarSteps, SteppingBeforeTheFirstDateStaysThere) {
    GoToDate(*window, Date{1600y / 1 / 1});
    for (PictureBox* stepper : {window->picCalDayDown, window->picCalMonthDown}) {
        QTest::mouseClick(stepper, Qt::LeftButton);
        EXPECT_EQ(window->ClickedDate, Date{1600y / 1 / 1});
    }
    EXPECT_EQ(window->LabelMonth->text(), "January 1600");
}

// --- The first day of the week ---

TEST_F(CalendarSteps, HeadsRunFromTheFirstDayOfTheWeek) {
    EXPECT_EQ(Heads(), "SMTWTFS");
    ChooseStartDayOfWeek(*window, "Monday");
    EXPECT_EQ(Heads(), "MTWTFSS");
    EXPECT_EQ(Day(0)->text(), "28");
    ChooseStartDayOfWeek(*window, "Saturday");
    EXPECT_EQ(Heads(), "SSMTWTF");
    EXPECT_EQ(Day(0)->text(), "26");
}

TEST_F(CalendarSteps, AHeadKeepsTheFullNameOfItsDay) {
    ChooseStartDayOfWeek(*window, "Monday");
    EXPECT_EQ(window->LabelCalDay[0]->property("tag").toString(), "Monday");
    EXPECT_EQ(window->LabelCalDay[6]->property("tag").toString(), "Sunday");
}

TEST_F(CalendarSteps, TheTwoOtherStartDaysLookClickable) {
    for (std::size_t column = 0; column < 7; ++column) { // from Sunday
        EXPECT_EQ(LooksClickable(window->LabelCalDay[column]), column == 1 || column == 6) << column;
    }
    ChooseStartDayOfWeek(*window, "Saturday");
    for (std::size_t column = 0; column < 7; ++column) {
        EXPECT_EQ(LooksClickable(window->LabelCalDay[column]), column == 1 || column == 2) << column;
    }
}

TEST_F(CalendarSteps, AClickOnTheHeadOfAStartDayBeginsTheWeekWithIt) {
    QTest::mouseClick(window->LabelCalDay[1], Qt::LeftButton); // Monday
    EXPECT_EQ(window->StartDayOfWeek, "Monday");
    EXPECT_EQ(Heads(), "MTWTFSS");
    EXPECT_TRUE(window->MenuStartMon->isChecked());
    QTest::mouseClick(window->LabelCalDay[5], Qt::LeftButton); // Saturday
    EXPECT_EQ(window->StartDayOfWeek, "Saturday");
    QTest::mouseClick(window->LabelCalDay[1], Qt::LeftButton); // Sunday
    EXPECT_EQ(window->StartDayOfWeek, "Sunday");
}

TEST_F(CalendarSteps, TheHeadsOfTheOtherFourDaysDoNothing) {
    for (const std::size_t column : {2U, 3U, 4U, 5U}) {
        QTest::mouseClick(window->LabelCalDay[column], Qt::LeftButton);
        EXPECT_EQ(window->StartDayOfWeek, "Sunday");
    }
}

TEST_F(CalendarSteps, TheMenuItemsBeginTheWeekWithTheirDay) {
    const std::vector<std::pair<QAction*, std::string>> items{{window->MenuStartMon, "Monday"},
                                                              {window->MenuStartSat, "Saturday"},
                                                              {window->MenuStartSun, "Sunday"}};
    for (const auto& [item, day] : items) {
        item->trigger();
        EXPECT_EQ(window->StartDayOfWeek, day);
        for (const auto& [other, otherDay] : items) {
            EXPECT_EQ(other->isChecked(), otherDay == day);
        }
    }
}

TEST_F(CalendarSteps, TheMenuItemOfThePresentDayStaysChecked) {
    window->MenuStartSun->trigger();
    EXPECT_EQ(window->StartDayOfWeek, "Sunday");
    EXPECT_TRUE(window->MenuStartSun->isChecked());
}

TEST_F(CalendarSteps, ANewFirstDayMakesTheMarksAnew) {
    AddEventRecord({.date = "2009/10/01"});
    ChooseStartDayOfWeek(*window, "Monday");
    EXPECT_EQ(Day(3)->text(), "1");
    EXPECT_TRUE(HasBackColor(Day(3), ColorAll));
}

// --- Reminders mode ---

TEST_F(CalendarSteps, InRemindersModeNoControlReacts) {
    ShowReminderMode(*window);
    const QString month = window->LabelMonth->text();
    for (QWidget* control : std::initializer_list<QWidget*>{
             Day(Cell20), Day(0), window->LabelToday, window->LabelTomorrow, window->picCalMonthUp,
             window->picCalMonthDown, window->picCalDayUp, window->picCalDayDown, window->LabelCalDay[1]}) {
        QTest::mousePress(control, Qt::LeftButton);
        EXPECT_FALSE(window->TimerButton->isActive());
        QTest::mouseRelease(control, Qt::LeftButton);
        EXPECT_EQ(window->ClickedDate, Date{2009y / 10 / 14});
        EXPECT_EQ(window->LabelMonth->text(), month);
        EXPECT_EQ(window->StartDayOfWeek, "Sunday");
    }
}

TEST_F(CalendarSteps, TheLockLiesOverTheWholeCalendarInRemindersMode) {
    ShowReminderMode(*window);
    ASSERT_TRUE(window->picLock->isVisible());
    EXPECT_TRUE(WaitUntil([this] {
        return window->picLock->geometry().contains(Day(0)->geometry()) &&
               window->picLock->geometry().contains(Day(41)->geometry()) &&
               window->picLock->geometry().contains(window->picToday->geometry());
    }));
    EXPECT_EQ(window->PictureBoxCalendar->childAt(Day(Cell20)->geometry().center()), window->picLock);
}
