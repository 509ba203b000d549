// The scroll bar of the grid and the mouse wheel.
#include "mainwindow/input/GridTest.h"
#include "mainwindow/modes/Modes.h"

#include "core/RowLists.h"

#include <QApplication>
#include <QWheelEvent>

namespace {

class GridScrolls : public GridTest {
protected:
    void TurnWheel(QWidget* over, int angle) {
        const QPointF place = QPointF(over->rect().center());
        QWheelEvent event(place, over->mapToGlobal(place), {}, {0, angle}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&event); // only such an event goes on to what lies behind
        qApp->notify(over, &event);
    }
};

} // namespace

TEST_F(GridScrolls, TheScrollBarIsDisabledWhileAllRowsFit) {
    AddAssignments(3);
    ShowHomeworkMode(*window);
    EXPECT_FALSE(window->VSGridScroll->isEnabled());
    EXPECT_TRUE(window->VSGridScroll->isVisible());
    EXPECT_EQ(window->VSGridScroll->value(), 1);
}

TEST_F(GridScrolls, TheScrollBarRunsUntilTheLastRowIsTheLastVisible) {
    AddAssignments(60);
    ShowHomeworkMode(*window);
    EXPECT_TRUE(window->VSGridScroll->isEnabled());
    EXPECT_EQ(window->VSGridScroll->minimum(), 1);
    EXPECT_EQ(window->VSGridScroll->maximum(), 60 - window->RowsVisible + 1);
    EXPECT_EQ(window->VSGridScroll->singleStep(), 1);
    EXPECT_EQ(window->VSGridScroll->pageStep(), window->RowsVisible - 1);
    window->VSGridScroll->setValue(window->VSGridScroll->maximum());
    EXPECT_EQ(Cell(ListKind::Homework, window->RowsVisible, 0).text, "60");
}

TEST_F(GridScrolls, ScrollingShowsTheRowsFromItsValueOn) {
    AddAssignments(60);
    ShowHomeworkMode(*window);
    window->VSGridScroll->setValue(7);
    EXPECT_EQ(window->FirstRow, 7);
    EXPECT_EQ(RowTexts(ListKind::Homework, 1).mid(0, 6),
              (QStringList{"7", "", "", "Algebra ", "Reading", "A7 "}));
}

TEST_F(GridScrolls, TheFirstRowSurvivesARefresh) {
    AddAssignments(60);
    ShowHomeworkMode(*window);
    window->VSGridScroll->setValue(7);
    Refresh();
    EXPECT_EQ(window->FirstRow, 7);
}

TEST_F(GridScrolls, AListThatBecomesShorterKeepsItsLastRowsInView) {
    AddAssignments(60);
    ShowHomeworkMode(*window);
    window->VSGridScroll->setValue(window->VSGridScroll->maximum());
    while (Store.Assignment.id.Count() > 40) {
        RemoveRecord(Store.Assignment, AssignmentFields, 1);
    }
    Refresh();
    EXPECT_EQ(window->FirstRow, 40 - window->RowsVisible + 1);
    EXPECT_EQ(Cell(ListKind::Homework, window->RowsVisible, 0).text, "40");
    while (Store.Assignment.id.Count() > 3) {
        RemoveRecord(Store.Assignment, AssignmentFields, 1);
    }
    Refresh();
    EXPECT_EQ(window->FirstRow, 1);
    EXPECT_EQ(RowsPainted(), 3);
}

TEST_F(GridScrolls, TheScrollBarHandsItsFocusToTheGrid) {
    AddAssignments(60);
    ShowHomeworkMode(*window);
    window->VSGridScroll->setFocus();
    EXPECT_EQ(window->focusWidget(), window->picGrid);
    EXPECT_EQ(window->VSGridScroll->focusPolicy(), Qt::NoFocus);
}

TEST_F(GridScrolls, TheWheelMovesThreeRowsAndStopsAtBothEnds) {
    AddAssignments(60);
    ShowHomeworkMode(*window);
    TurnWheel(window->picGrid, -120);
    EXPECT_EQ(window->FirstRow, 4);
    TurnWheel(window->picGrid, 120);
    TurnWheel(window->picGrid, 120);
    EXPECT_EQ(window->FirstRow, 1);
    for (int i = 0; i < 40; ++i) {
        TurnWheel(window->picGrid, -120);
    }
    EXPECT_EQ(window->FirstRow, window->VSGridScroll->maximum());
}

TEST_F(GridScrolls, TheWheelCountsOverTitlesAndOverTheRestOfTheWindow) {
    AddAssignments(60);
    ShowHomeworkMode(*window);
    TurnWheel(window->picColHeader[3], -120);
    EXPECT_EQ(window->FirstRow, 4);
    TurnWheel(window->LabelTop, -120);
    EXPECT_EQ(window->FirstRow, 7);
}

TEST_F(GridScrolls, TheWheelCountsOverEveryPicture) {
    AddAssignments(60);
    ShowHomeworkMode(*window);
    for (PictureBox* picture : {window->picStatusBar, window->PictureBarTasks, window->picCalMonthUp,
                                window->picCalDayDown, window->picToday, window->picTime}) {
        window->VSGridScroll->setValue(1);
        TurnWheel(picture, -120);
        EXPECT_EQ(window->FirstRow, 4);
    }
}

TEST_F(GridScrolls, HalfNotchesOverTwoPicturesAreAWholeOne) {
    AddAssignments(60);
    ShowHomeworkMode(*window);
    TurnWheel(window->picGrid, -60);
    TurnWheel(window->picColHeader[3], -60);
    EXPECT_EQ(window->FirstRow, 4);
}

TEST_F(GridScrolls, TheWheelMovesThreeRowsOverTheScrollBarToo) {
    AddAssignments(60);
    ShowHomeworkMode(*window);
    TurnWheel(window->VSGridScroll, -120);
    EXPECT_EQ(window->FirstRow, 4);
    TurnWheel(window->VSGridScroll, 120);
    EXPECT_EQ(window->FirstRow, 1);
}

TEST_F(GridScrolls, TheWheelMovesTheDayByThreeHalfHours) {
    ShowEventMode(*window);
    TurnWheel(window->picGrid, -120);
    EXPECT_EQ(window->FirstRow, 14);
    TurnWheel(window->picGrid, 120);
    EXPECT_EQ(window->FirstRow, 11);
}

TEST_F(GridScrolls, TheWheelCountsWholeNotches) {
    AddAssignments(60);
    ShowHomeworkMode(*window);
    TurnWheel(window->picGrid, -60);
    EXPECT_EQ(window->FirstRow, 1);
    TurnWheel(window->picGrid, -60);
    EXPECT_EQ(window->FirstRow, 4);
}

TEST_F(GridScrolls, TheWheelDoesNothingWhileTheScrollBarIsDisabledOrHidden) {
    AddAssignments(60);
    ShowHomeworkMode(*window);
    ShowCalendarMode(*window);
    TurnWheel(window->picGrid, -120);
    EXPECT_EQ(window->VSGridScroll->value(), 1);
    Store.Assignment = {};
    ShowHomeworkMode(*window);
    TurnWheel(window->picGrid, -120);
    EXPECT_EQ(window->VSGridScroll->value(), 1);
}
