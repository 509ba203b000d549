// The small calendar of the main window: what it shows, and its days and buttons.
#include "mainwindow/flows/ViewFlow.h"
#include "mainwindow/modes/Modes.h"
#include "support/EventRecords.h"
#include "support/Looks.h"
#include "support/StoreRecords.h"
#include "support/WindowTest.h"

using namespace std::chrono_literals;

namespace {

constexpr std::size_t Cell1 = 4; // 1 October 2009 in weeks from Sunday
constexpr std::size_t Cell2 = 5;
constexpr std::size_t Cell14 = 17;
constexpr std::size_t Cell20 = 23;

constexpr int Red = 0x0000C0; // blue first

class SmallCalendar : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp(); // 14 October 2009
        LoadWindow();
    }

    ClickLabel* Day(std::size_t cell) const { return window->LabelCalDate[cell]; }

    void ClickDay(std::size_t cell) { QTest::mouseClick(Day(cell), Qt::LeftButton); }
};

} // namespace

// --- What it shows ---

TEST_F(SmallCalendar, ShowsTheMonthOfTodayAfterTheLoad) {
    EXPECT_EQ(window->LabelMonth->text(), "October 2009");
    EXPECT_EQ(Day(0)->text(), "27");
    EXPECT_EQ(Day(Cell1)->text(), "1");
    EXPECT_EQ(Day(41)->text(), "7");
    EXPECT_EQ(window->SelectedDate, Date{2009y / 10 / 14});
}

TEST_F(SmallCalendar, DaysHaveTheColorsOfTheirCells) {
    EXPECT_TRUE(HasForeColor(Day(0), ColorOutMonth));
    EXPECT_TRUE(HasForeColor(Day(Cell1), ColorInMonth));
    EXPECT_TRUE(HasBackColor(Day(Cell1), ColorCell));
    EXPECT_FALSE(Day(Cell1)->font().bold());
}

TEST_F(SmallCalendar, TheSelectedDayIsBoldWhiteOnBlack) {
    EXPECT_TRUE(HasForeColor(Day(Cell14), ColorSelectedText));
    EXPECT_TRUE(HasBackColor(Day(Cell14), ColorSelectedCell));
    EXPECT_TRUE(Day(Cell14)->font().bold());
}

TEST_F(SmallCalendar, TheFrameOfTodayIsOnePixelOutsideItsCell) {
    ASSERT_TRUE(window->LabelCalTileBorder->isVisible());
    EXPECT_EQ(window->LabelCalTileBorder->geometry(), Day(Cell14)->geometry().adjusted(-1, -1, 1, 1));
}

TEST_F(SmallCalendar, TheFrameFollowsItsCellWhenTheWindowIsResized) {
    window->resize(1200, 900);
    EXPECT_TRUE(WaitUntil([this] {
        return window->width() == 1200 &&
               window->LabelCalTileBorder->geometry() == Day(Cell14)->geometry().adjusted(-1, -1, 1, 1);
    }));
}

TEST_F(SmallCalendar, DaysStandApartFromTheButtonsBelow) {
    QCoreApplication::sendPostedEvents();
    EXPECT_GT(window->picToday->y(), Day(41)->geometry().bottom() + 2);
    EXPECT_EQ(window->picToday->y(), window->picTomorrow->y());
    EXPECT_LE(window->picToday->geometry().bottom(), window->PictureBoxCalendar->rect().bottom());
}

TEST_F(SmallCalendar, TodayAsAGreyCellHasNoFrame) {
    SetClock(2009, 10, 31);
    GoToDate(*window, Date{2009y / 11 / 2});
    EXPECT_EQ(Day(6)->text(), "31");
    EXPECT_FALSE(window->LabelCalTileBorder->isVisible());
    GoToDate(*window, Date{2009y / 10 / 2});
    EXPECT_TRUE(window->LabelCalTileBorder->isVisible());
}

TEST_F(SmallCalendar, InCalendarModeADayWithOpenHomeworkIsColoredAsNotDone) {
    AddAssignmentRecord({.date = "2009/10/01", .done = "False"});
    AddAssignmentRecord({.date = "2009/10/02", .done = "True"});
    window->RefreshFor(ReasonNewRecord);
    EXPECT_TRUE(HasBackColor(Day(Cell1), ColorNotDone));
    EXPECT_TRUE(HasBackColor(Day(Cell2), ColorAll));
}

TEST_F(SmallCalendar, AClickWithinTheMonthDoesNotMakeTheMarksAnew) {
    AddEventRecord({.date = "2009/10/01"});
    ClickDay(Cell20);
    EXPECT_TRUE(HasBackColor(Day(Cell1), ColorCell));
    window->RefreshFor(ReasonNewRecord);
    EXPECT_TRUE(HasBackColor(Day(Cell1), ColorAll));
}

TEST_F(SmallCalendar, AnotherMonthHasItsOwnMarks) {
    AddEventRecord({.date = "2009/11/10"});
    GoToDate(*window, Date{2009y / 11 / 1});
    EXPECT_EQ(Day(16)->text(), "10");
    EXPECT_TRUE(HasBackColor(Day(16), ColorAll));
}

TEST_F(SmallCalendar, TheSameMonthOfAnotherYearHasItsOwnMarks) {
    AddEventRecord({.date = "2010/10/01"});
    GoToDate(*window, Date{2010y / 10 / 20});
    EXPECT_EQ(Day(5)->text(), "1");
    EXPECT_TRUE(HasBackColor(Day(5), ColorAll));
}

TEST_F(SmallCalendar, MarksAreThoseOfTheMode) {
    AddAssignmentRecord({.date = "2009/10/01"});
    AddTaskRecord({.date = "2009/10/02"});
    ShowTaskMode(*window);
    EXPECT_TRUE(HasBackColor(Day(Cell1), ColorCell));
    EXPECT_TRUE(HasBackColor(Day(Cell2), ColorAll));
    ShowHomeworkMode(*window);
    EXPECT_TRUE(HasBackColor(Day(Cell1), ColorAll));
    EXPECT_TRUE(HasBackColor(Day(Cell2), ColorCell));
}

TEST_F(SmallCalendar, MarksFollowTheFilter) {
    AddAssignmentRecord({.date = "2009/10/01", .done = "False"});
    AddAssignmentRecord({.date = "2009/10/02", .done = "True"});
    ShowHomeworkMode(*window);
    window->ComboList->setCurrentText("Done");
    EXPECT_TRUE(HasBackColor(Day(Cell1), ColorCell));
    EXPECT_TRUE(HasBackColor(Day(Cell2), ColorDone));
    window->ComboList->setCurrentText("Not Done");
    EXPECT_TRUE(HasBackColor(Day(Cell1), ColorNotDone));
}

TEST_F(SmallCalendar, StudySessionsEnteredFromCalendarMarkTheirLog) {
    StudySessionLists& log = Store.StudySessionRecord;
    log.id.Add("1");
    log.assignment.Add("-1");
    log.time.Add("00:30");
    log.date.Add("2009/10/02");
    AddEventRecord({.date = "2009/10/01"});
    ShowStudySessionsMode(*window);
    EXPECT_TRUE(window->MenuCalendar->isChecked());
    EXPECT_TRUE(HasBackColor(Day(Cell1), ColorCell)); // the calendar's marks are gone
    EXPECT_TRUE(HasBackColor(Day(Cell2), ColorCell)); // the entry belongs to no assignment
}

TEST_F(SmallCalendar, RemindersEnteredFromCalendarKeepTheCalendarsMarks) {
    AddEventRecord({.date = "2009/10/01"}); // no reminder of today's
    AddTaskRecord({.date = "2009/10/02", .done = "True"});
    ShowReminderMode(*window);
    ASSERT_TRUE(window->MenuCalendar->isChecked());
    EXPECT_TRUE(HasBackColor(Day(Cell1), ColorAll));
    EXPECT_TRUE(HasBackColor(Day(Cell2), ColorAll));
}

TEST_F(SmallCalendar, RemindersMarkTheirTasksInTheColorOfTasks) {
    AddTaskRecord({.date = "2009/10/02", .reminder = "True"});
    window->MenuCalendar->setChecked(false);
    ShowReminderMode(*window);
    window->ComboList->setCurrentText("Tasks");
    EXPECT_TRUE(HasBackColor(Day(Cell2), 0xD7EBFA));
}

TEST_F(SmallCalendar, ASelectedDayHasTheSelectedFormOfItsColor) {
    AddEventRecord({.date = "2009/10/01"});
    AddTaskRecord({.date = "2009/10/02"});
    window->RefreshFor(ReasonNewRecord);
    ClickDay(Cell1);
    EXPECT_TRUE(HasBackColor(Day(Cell1), 0xA88A76));
    ClickDay(Cell2); // with an open task
    EXPECT_TRUE(HasBackColor(Day(Cell1), 0xF0E8E2));
    EXPECT_TRUE(HasBackColor(Day(Cell2), 0x374EC1));
    ClickDay(Cell20);
    EXPECT_TRUE(HasBackColor(Day(Cell2), 0xE5E5FF));
    EXPECT_TRUE(HasBackColor(Day(Cell20), 0x000000));
}

// --- Days, today and tomorrow ---

TEST_F(SmallCalendar, AClickOnADayShowsIt) {
    ClickDay(Cell20);
    EXPECT_EQ(window->ClickedDate, Date{2009y / 10 / 20});
    EXPECT_EQ(window->SelectedDate, Date{2009y / 10 / 20});
    EXPECT_TRUE(Day(Cell20)->font().bold());
    EXPECT_FALSE(Day(Cell14)->font().bold());
}

TEST_F(SmallCalendar, AClickOnAGreyDayMovesToItsMonth) {
    ClickDay(0);
    EXPECT_EQ(window->ClickedDate, Date{2009y / 9 / 27});
    EXPECT_EQ(window->LabelMonth->text(), "September 2009");
}

TEST_F(SmallCalendar, TodayAndTomorrowAreShownByTheirButtons) {
    ClickDay(Cell20);
    QTest::mouseClick(window->LabelToday, Qt::LeftButton);
    EXPECT_EQ(window->ClickedDate, Date{2009y / 10 / 14});
    QTest::mouseClick(window->LabelTomorrow, Qt::LeftButton);
    EXPECT_EQ(window->ClickedDate, Date{2009y / 10 / 15});
}

TEST_F(SmallCalendar, TheButtonOfTodayIsMarkedOnToday) {
    EXPECT_TRUE(HasForeColor(window->LabelToday, Red));
    EXPECT_TRUE(window->LabelToday->font().bold());
    EXPECT_EQ(PictureOf(window->picToday), "picStashTodayDown.svg");
    EXPECT_TRUE(HasForeColor(window->LabelTomorrow, ColorBlack));
    EXPECT_FALSE(window->LabelTomorrow->font().bold());
    EXPECT_EQ(PictureOf(window->picTomorrow), "picStashTomorrowUp.svg");
}

TEST_F(SmallCalendar, TheButtonOfTomorrowIsMarkedOnTomorrow) {
    GoToDate(*window, Date{2009y / 10 / 15});
    EXPECT_TRUE(HasForeColor(window->LabelTomorrow, Red));
    EXPECT_TRUE(window->LabelTomorrow->font().bold());
    EXPECT_EQ(PictureOf(window->picTomorrow), "picStashTomorrowDown.svg");
    EXPECT_TRUE(HasForeColor(window->LabelToday, ColorBlack));
    EXPECT_FALSE(window->LabelToday->font().bold());
    EXPECT_EQ(PictureOf(window->picToday), "picStashTodayUp.svg");
}

TEST_F(SmallCalendar, OnAnyOtherDayNeitherButtonIsMarked) {
    GoToDate(*window, Date{2009y / 10 / 20});
    for (const ClickLabel* label : {window->LabelToday, window->LabelTomorrow}) {
        EXPECT_TRUE(HasForeColor(label, ColorBlack));
        EXPECT_FALSE(label->font().bold());
    }
    EXPECT_EQ(PictureOf(window->picToday), "picStashTodayUp.svg");
    EXPECT_EQ(PictureOf(window->picTomorrow), "picStashTomorrowUp.svg");
}

TEST_F(SmallCalendar, InRemindersModeTomorrowIsGrey) {
    ShowReminderMode(*window);
    EXPECT_TRUE(HasForeColor(window->LabelToday, Red));
    EXPECT_TRUE(HasForeColor(window->LabelTomorrow, 0xA9A9A9));
}
