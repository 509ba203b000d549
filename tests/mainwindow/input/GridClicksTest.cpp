// Sorting and clicking on the grid.
#include "mainwindow/input/GridTest.h"
#include "mainwindow/modes/Modes.h"
#include "toolkit/grid/ListInput.h"

#include "core/RowLists.h"

namespace {

class GridClicks : public GridTest {
protected:
    void ClickTitle(std::size_t column) { QTest::mouseClick(window->picColHeader[column], Qt::LeftButton); }

    QPoint HalfHourPoint(int halfHour) const {
        return {300, ((halfHour - window->FirstRow + 1) * SlotUnits + SlotUnits / 2) / UnitsPerPixel};
    }

    QPoint CellPoint(std::size_t cell) const {
        const UnitRect& area = window->CalendarGrid.cell[cell].area;
        return {(area.left + 60) / UnitsPerPixel, (area.top + area.height - 60) / UnitsPerPixel};
    }
};

class PaintCounter : public QObject {
public:
    int count = 0;

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

} // namespace

TEST_F(GridClicks, ATitleSortsByItsColumnAndTurnsAtTheSecondClick) {
    AddAssignmentRecord({.desc = "b"});
    AddAssignmentRecord({.desc = "a"});
    ShowHomeworkMode(*window);
    ClickTitle(5);
    EXPECT_EQ(window->SortColumn, 5);
    EXPECT_EQ(window->SortDirection, Ascending);
    EXPECT_EQ(Cell(ListKind::Homework, 1, 5).text, "a ");
    ClickTitle(5);
    EXPECT_EQ(window->SortDirection, Descending);
    EXPECT_EQ(Cell(ListKind::Homework, 1, 5).text, "b ");
    EXPECT_EQ(SortPicture(5), "picStashGridTitleDown.svg");
    ClickTitle(3); // the direction stays when the column changes
    EXPECT_EQ(window->SortColumn, 3);
    EXPECT_EQ(window->SortDirection, Descending);
    EXPECT_EQ(SortPicture(3), "picStashGridTitleDown.svg");
    EXPECT_EQ(SortPicture(5), "");
}

TEST_F(GridClicks, TheTitleOfTheNumbersOnlyGivesTheFocus) {
    ShowHomeworkMode(*window);
    window->ComboList->setFocus();
    ClickTitle(0);
    EXPECT_EQ(window->SortColumn, 8);
    EXPECT_EQ(window->focusWidget(), window->picGrid);
}

TEST_F(GridClicks, SortingAScrolledListShowsItsTop) {
    AddAssignments(60);
    ShowHomeworkMode(*window);
    window->VSGridScroll->setValue(9);
    window->ComboList->setFocus();
    ClickTitle(5);
    EXPECT_EQ(window->VSGridScroll->value(), 1);
    EXPECT_EQ(Cell(ListKind::Homework, 2, 5).text, "A10 ");
    EXPECT_EQ(window->focusWidget(), window->picGrid);
}

TEST_F(GridClicks, AClickOpensTheRowAndShowsWhich) {
    AddAssignments(60);
    ShowHomeworkMode(*window);
    window->VSGridScroll->setValue(7);
    ClickRow(3);
    EXPECT_EQ(window->ClickedRow, 3);
    EXPECT_EQ(HighlightedNumbers(), QStringList{"9"});
    EXPECT_EQ(Opened, QStringList{"Planovarium - Edit Assignment: A9"});
    EXPECT_EQ(Cell(ListKind::Homework, 3, 0).forecolor, 0); // off again
    EXPECT_EQ(Cell(ListKind::Homework, 3, 0).backcolor, 0xFFFFFF);
}

TEST_F(GridClicks, AHighlightedNumberIsWhiteOnBlack) {
    AddAssignments(2);
    ShowHomeworkMode(*window);
    HighlightRow(*window, 2, true);
    EXPECT_EQ(Cell(ListKind::Homework, 2, 0).text, "2");
    EXPECT_EQ(Cell(ListKind::Homework, 2, 0).forecolor, 0xFFFFFF);
    EXPECT_EQ(Cell(ListKind::Homework, 2, 0).backcolor, 0);
}

TEST_F(GridClicks, AHighlightedNumberIsSeenBeforeTheEditorLoads) {
    AddAssignments(1);
    ShowHomeworkMode(*window);
    PaintCounter paints;
    window->picGrid->installEventFilter(&paints);
    HighlightRow(*window, 1, true);
    EXPECT_EQ(paints.count, 1); // without a loop of events
}

TEST_F(GridClicks, NothingIsHighlightedWhereNoListIsShown) {
    AddAssignments(2);
    ShowHomeworkMode(*window);
    ShowCalendarMode(*window);
    ASSERT_EQ(window->RowCount, 2); // of the list that was left
    const std::size_t drawn = window->picGrid->Drawn().size();
    HighlightRow(*window, 1, false);
    EXPECT_EQ(window->picGrid->Drawn().size(), drawn);
}

TEST_F(GridClicks, ARowThatHasGoneIsNotHighlighted) {
    AddAssignments(1);
    ShowHomeworkMode(*window);
    const std::size_t drawn = window->picGrid->Drawn().size();
    HighlightRow(*window, 2, false);
    EXPECT_EQ(window->picGrid->Drawn().size(), drawn);
}

TEST_F(GridClicks, DraggingFromOneRowToAnotherDoesNothing) {
    AddAssignments(5);
    ShowHomeworkMode(*window);
    QTest::mousePress(window->picGrid, Qt::LeftButton, {}, RowPoint(2));
    QTest::mouseRelease(window->picGrid, Qt::LeftButton, {}, RowPoint(3));
    EXPECT_EQ(window->ClickedRow, 2);
    EXPECT_EQ(HighlightedNumbers(), QStringList{});
    EXPECT_EQ(Opened, QStringList{});
}

TEST_F(GridClicks, AReleaseOutsideTheGridDoesNothing) {
    AddAssignments(5);
    ShowHomeworkMode(*window);
    QTest::mousePress(window->picGrid, Qt::LeftButton, {}, RowPoint(1));
    QTest::mouseRelease(window->picGrid, Qt::LeftButton, {}, QPoint(200, -40));
    EXPECT_EQ(Opened, QStringList{});
}

TEST_F(GridClicks, AClickPastTheRowsAsksForANewItem) {
    AddAssignments(2);
    ShowHomeworkMode(*window);
    ClickRow(3);
    EXPECT_EQ(window->ClickedRow, 3);
    EXPECT_EQ(HighlightedNumbers(), QStringList{});
    ShowTaskMode(*window);
    ClickRow(1); // of an empty list
    EXPECT_EQ(Opened, (QStringList{"Planovarium - New Assignment: ", "Planovarium - New Task: "}));
}

TEST_F(GridClicks, AClickPastTheRemindersOrTheStudySessionsDoesNothing) {
    window->MenuCalendar->setChecked(false);
    ShowReminderMode(*window);
    ClickRow(1);
    window->MenuReminders->setChecked(false);
    ShowStudySessionsMode(*window);
    ClickRow(1);
    ClickRow(1, Qt::RightButton);
    EXPECT_EQ(Opened, QStringList{});
}

TEST_F(GridClicks, AClickOnTheStripOfADisabledScrollBarHitsNoRow) {
    AddAssignments(2);
    ShowHomeworkMode(*window);
    Click({window->picGrid->width() - 5, 40});
    EXPECT_EQ(window->ClickedRow, 999);
    EXPECT_EQ(Opened, QStringList{});
}

TEST_F(GridClicks, TasksOpenByAClick) {
    AddTaskRecord({.desc = "Call"});
    ShowTaskMode(*window);
    ClickRow(1);
    EXPECT_EQ(HighlightedNumbers(), QStringList{"1"});
    EXPECT_EQ(Opened, QStringList{"Planovarium - Edit Task: Call"});
}

TEST_F(GridClicks, StudySessionsOpenTheirAssignmentWithEitherButton) {
    AddAssignments(1);
    StudySessionLists& log = Store.StudySessionRecord;
    log.id.Add("1");
    log.assignment.Add("1");
    log.time.Add("00 : 45");
    log.date.Add("2009/10/14");
    window->MenuCalendar->setChecked(false);
    ShowStudySessionsMode(*window);
    ClickRow(1);
    ClickRow(1, Qt::RightButton);
    EXPECT_EQ(Opened,
              (QStringList{"Planovarium - Edit Assignment: A1", "Planovarium - Edit Assignment: A1"}));
}

TEST_F(GridClicks, RemindersOpenTheirRecordWithEitherButton) {
    AddAssignmentRecord({.desc = "Page 12", .reminder = "True"});
    AddTaskRecord({.desc = "Call", .reminder = "True"});
    window->MenuCalendar->setChecked(false);
    ShowReminderMode(*window);
    ColumnClicked(*window, 1); // by kind: Homework, then Task
    ClickRow(1);
    EXPECT_EQ(HighlightedNumbers(), QStringList{"1"});
    ClickRow(2, Qt::RightButton);
    EXPECT_EQ(HighlightedNumbers(), QStringList{"2"});
    EXPECT_EQ(Opened,
              (QStringList{"Planovarium - Edit Assignment: Page 12", "Planovarium - Edit Task: Call"}));
}

TEST_F(GridClicks, TheMiddleButtonIsALeftOne) {
    AddAssignments(1);
    ShowHomeworkMode(*window);
    ClickRow(1, Qt::MiddleButton);
    EXPECT_EQ(Opened, QStringList{"Planovarium - Edit Assignment: A1"});
}

TEST_F(GridClicks, AnEventOfTheRemindersLeavesTheSelectedDay) {
    AddEventRecord({.date = "2009/10/16", .reminder = "2"}); // two days ahead
    window->MenuCalendar->setChecked(false);
    ShowReminderMode(*window);
    ASSERT_EQ(ReminderRowDate.Count(), 1);
    ASSERT_NE(ReminderRowDate.Item(1), Today());
    ClickRow(1);
    EXPECT_EQ(window->SelectedDate, Today());
    EXPECT_EQ(window->ClickedDate, window->SelectedDate);
}

TEST_F(GridClicks, TheDayGivesTheHalfHourThatIsClicked) {
    ShowEventMode(*window);
    Click(HalfHourPoint(18));
    EXPECT_EQ(window->ClickedRow, 0);
    EXPECT_EQ(window->EventClickedStartTime, "9:00 AM");
    window->VSGridScroll->setValue(1);
    Click(HalfHourPoint(1));
    EXPECT_EQ(window->EventClickedStartTime, "12:30 AM");
}

TEST_F(GridClicks, TheLastHalfHourIsSpeltWithoutABlank) {
    ShowEventMode(*window);
    window->resize(1000, 1900);
    ASSERT_TRUE(WaitUntil([this] { return window->RowsVisible > 62; }));
    Click(HalfHourPoint(47));
    EXPECT_EQ(window->EventClickedStartTime, "11:30PM");
    window->EventClickedStartTime.clear();
    Click(HalfHourPoint(60)); // beyond the day
    EXPECT_EQ(window->EventClickedStartTime, "11:30PM");
}

TEST_F(GridClicks, AClickOnABoxTakesNoTime) {
    AddEventRecord({.time = "09:00 AM"});
    ShowEventMode(*window);
    Click(HalfHourPoint(18));
    EXPECT_EQ(window->ClickedRow, 1);
    EXPECT_EQ(window->EventClickedStartTime, "");
}

TEST_F(GridClicks, TheKeysGoOnFromTheHalfHourThatIsClicked) {
    AddEventRecord({.time = "09:00 AM", .duration = "1 Hour"});
    ShowEventMode(*window);
    Click(HalfHourPoint(24));
    EXPECT_EQ(window->CurrentHalfHour, 24);
    EXPECT_EQ(window->CurrentEvent, 0);
    Click(HalfHourPoint(19)); // on the box
    EXPECT_EQ(window->CurrentHalfHour, 19);
    EXPECT_EQ(window->CurrentEvent, 1);
    Press(Qt::Key_Down);
    EXPECT_EQ(window->CurrentHalfHour, 20);
}

TEST_F(GridClicks, AClickCloseAboveABoxIsOnItsFirstHalfHour) {
    AddEventRecord({.time = "09:00 AM", .duration = "1 Hour"});
    ShowEventMode(*window);
    Click({300, (18 - window->FirstRow + 1) * SlotHeight - 1});
    EXPECT_EQ(window->ClickedRow, 1);
    EXPECT_EQ(window->CurrentHalfHour, 18);
    EXPECT_EQ(window->CurrentEvent, 1);
}

TEST_F(GridClicks, AClickBeyondTheDayIsOnItsLastHalfHour) {
    ShowEventMode(*window);
    window->resize(1000, 1900);
    ASSERT_TRUE(WaitUntil([this] { return window->RowsVisible > 62; }));
    Click(HalfHourPoint(60));
    EXPECT_EQ(window->CurrentHalfHour, 47);
}

TEST_F(GridClicks, TheRightButtonTakesTheHalfHourToo) {
    ShowEventMode(*window);
    WhenPopupOpens([](QMenu*) {});
    Click(HalfHourPoint(20), Qt::RightButton);
    EXPECT_EQ(window->EventClickedStartTime, "10:00 AM");
}

TEST_F(GridClicks, DraggingFromOneBoxToAnotherOrOffItDoesNothing) {
    AddEventRecord({.time = "09:00 AM"});
    AddEventRecord({.time = "11:00 AM"});
    ShowEventMode(*window);
    for (const int halfHour : {22, 25}) {
        QTest::mousePress(window->picGrid, Qt::LeftButton, {}, HalfHourPoint(18));
        QTest::mouseRelease(window->picGrid, Qt::LeftButton, {}, HalfHourPoint(halfHour));
        EXPECT_EQ(window->EventClickedStartTime, "");
    }
}

TEST_F(GridClicks, AReleaseOffAllBoxesTakesTheHalfHourThere) {
    ShowEventMode(*window);
    QTest::mousePress(window->picGrid, Qt::LeftButton, {}, HalfHourPoint(18));
    QTest::mouseRelease(window->picGrid, Qt::LeftButton, {}, HalfHourPoint(20)); // no box, no box
    EXPECT_EQ(window->EventClickedStartTime, "10:00 AM");
}

TEST_F(GridClicks, TheMonthGoesToTheClickedDay) {
    ShowCalendarMode(*window);
    Click(CellPoint(20));
    EXPECT_EQ(window->ClickedRow, 20);
    EXPECT_EQ(window->SelectedDate, window->Month.CellDate[20]);
    EXPECT_EQ(window->LabelTop->text(), "October 2009");
}

TEST_F(GridClicks, TheMonthMovesToTheMonthOfAGreyDay) {
    ShowCalendarMode(*window);
    const Date last = window->Month.CellDate[41];
    Click(CellPoint(41));
    EXPECT_EQ(window->SelectedDate, last);
    EXPECT_EQ(window->LabelTop->text(), "November 2009");
}

TEST_F(GridClicks, DraggingFromOneDayToAnotherStaysAtTheDay) {
    ShowCalendarMode(*window);
    const Date before = window->SelectedDate;
    QTest::mousePress(window->picGrid, Qt::LeftButton, {}, CellPoint(20));
    QTest::mouseRelease(window->picGrid, Qt::LeftButton, {}, CellPoint(21));
    EXPECT_EQ(window->SelectedDate, before);
}

TEST_F(GridClicks, AResizeIsFollowedOnlyInAModeAndWhileIdle) {
    AddAssignments(1);
    ShowHomeworkMode(*window);
    window->RefreshReason = ReasonCalendar;
    const int rows = window->RowsVisible;
    window->resize(900, 800);
    QTest::qWait(1);
    EXPECT_EQ(window->RowsVisible, rows);
    EXPECT_EQ(window->RefreshReason, ReasonCalendar);
}
