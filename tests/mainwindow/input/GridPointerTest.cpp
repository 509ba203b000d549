// What the pointer is shown on the grid as it passes: what a click opens, and the tips.
#include "mainwindow/input/GridPointer.h"
#include "mainwindow/flows/ViewFlow.h"
#include "mainwindow/input/GridTest.h"
#include "mainwindow/modes/Modes.h"
#include "toolkit/Text.h"
#include "toolkit/grid/ListInput.h"

#include <QHelpEvent>
#include <QToolTip>

namespace {

constexpr std::size_t Description = 5;

const std::string LongName(200, 'W');

class GridPointer : public GridTest {
protected:
    void PointAt(QPoint point) const {
        QMouseEvent moved(QEvent::MouseMove, point, window->picGrid->mapToGlobal(point), Qt::NoButton,
                          Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window->picGrid, &moved);
    }

    UnitRect RowRect(int row) const {
        return {0, RowTop(row), RowsRight(window->picGrid->WidthInUnits()), RowUnits + UnitsPerPixel};
    }

    // The middle of a cell of the homework list.
    QPoint CellPoint(int row, std::size_t column) const {
        const ColumnPlace place =
            PlaceColumns(ColumnsOf(ListKind::Homework), window->picGrid->WidthInUnits())[column];
        return {(place.left + place.width / 2) / UnitsPerPixel, RowPoint(row).y()};
    }

    QString Tip(QPoint point) const { return GridTip(*window, point); }

    static QPoint Middle(const UnitRect& rect) {
        return {(rect.left + rect.width / 2) / UnitsPerPixel, (rect.top + rect.height / 2) / UnitsPerPixel};
    }

    const CalendarCell& SelectedDay() const {
        return window->CalendarGrid.cell[SelectedCellOf(window->Month)];
    }
};

} // namespace

// --- What a click opens ------------------------------------------------------------------------------------

TEST_F(GridPointer, ARowUnderThePointerShowsThatItCanBeOpened) {
    AddAssignments(3);
    ShowHomeworkMode(*window);
    const QImage before = window->picGrid->grab().toImage();
    PointAt(RowPoint(2));
    EXPECT_EQ(window->picGrid->Hover(), RowRect(2));
    EXPECT_EQ(window->picGrid->cursor().shape(), Qt::PointingHandCursor);
    EXPECT_NE(window->picGrid->grab().toImage(), before) << "the student sees it";
    PointAt(RowPoint(3));
    EXPECT_EQ(window->picGrid->Hover(), RowRect(3));
    PointAt(RowPoint(4)); // past the rows
    EXPECT_EQ(window->picGrid->Hover(), std::nullopt);
    EXPECT_EQ(window->picGrid->cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(window->picGrid->grab().toImage(), before);
}

TEST_F(GridPointer, NothingIsShownOnceThePointerHasLeftTheRows) {
    AddAssignments(3);
    ShowHomeworkMode(*window);
    for (QWidget* beyond :
         {static_cast<QWidget*>(window->picColHeader[5]), static_cast<QWidget*>(window->VSGridScroll)}) {
        PointAt(RowPoint(1));
        ASSERT_NE(window->picGrid->Hover(), std::nullopt);
        QEnterEvent entered({1, 1}, {1, 1}, {1, 1});
        QCoreApplication::sendEvent(beyond, &entered);
        EXPECT_EQ(window->picGrid->Hover(), std::nullopt);
    }
    PointAt(RowPoint(1));
    QEvent left(QEvent::Leave);
    QCoreApplication::sendEvent(window->picGrid, &left);
    EXPECT_EQ(window->picGrid->Hover(), std::nullopt);
}

TEST_F(GridPointer, ARowThatIsGoneIsNotShownAnyMore) {
    AddAssignments(2);
    ShowHomeworkMode(*window);
    PointAt(RowPoint(2));
    window->ComboDateRange->setCurrentText("Day");
    ASSERT_EQ(window->RowCount, 2);
    EXPECT_EQ(window->picGrid->Hover(), RowRect(2));
    GoToDate(*window, window->ClickedDate + std::chrono::days{1});
    ASSERT_EQ(window->RowCount, 0);
    EXPECT_EQ(window->picGrid->Hover(), std::nullopt);
}

TEST_F(GridPointer, AnEventAndADaysCountersShowThatTheyCanBeOpened) {
    AddEventRecord({.time = "06:00 AM", .duration = "1 Hour"});
    AddTaskRecord({});
    ShowEventMode(*window);
    const UnitRect box = EventBoxOf(1, window->FirstRow);
    PointAt(Middle(box));
    EXPECT_EQ(window->picGrid->Hover(), box);
    PointAt(Middle(box) + QPoint(0, 3 * SlotHeight));
    EXPECT_EQ(window->picGrid->Hover(), std::nullopt);

    ShowCalendarMode(*window);
    const UnitRect tasks = SelectedDay().icon[1];
    PointAt(Middle(tasks));
    EXPECT_EQ(window->picGrid->Hover(), tasks);
}

// --- Tips --------------------------------------------------------------------------------------------------

TEST_F(GridPointer, AShortenedCellTellsItsWholeTextAndOneThatFitsNothing) {
    AddAssignmentRecord({.desc = LongName});
    AddAssignmentRecord({.desc = "Page 12"});
    AddClassRecord({.id = "2", .name = LongName.substr(0, 40)});
    AddAssignmentRecord({.class_ = "2", .desc = "<b>"});
    SetupActiveClasses();
    ShowHomeworkMode(*window);
    ColumnClicked(*window, 5); // "<b>", "Page 12", the long one
    ASSERT_LT(Cell(ListKind::Homework, 3, Description).text.size(), 200);
    EXPECT_EQ(Tip(CellPoint(3, Description)), FromStore(LongName));
    EXPECT_EQ(Tip(CellPoint(2, Description)), "");
    EXPECT_EQ(Tip(CellPoint(1, Description)), "");
    EXPECT_EQ(Tip(CellPoint(1, 3)), FromStore(LongName.substr(0, 40)));
    EXPECT_EQ(Tip(CellPoint(1, 8)), "") << "a check is no text";
    EXPECT_EQ(Tip(CellPoint(4, Description)), "") << "past the rows";
}

TEST_F(GridPointer, AMarkTellsWhatItMeans) {
    AddAssignmentRecord({.priority = "True", .reminder = "True"});
    AddAssignmentRecord({});
    ShowHomeworkMode(*window);
    ColumnClicked(*window, 1);
    const bool first = !Cell(ListKind::Homework, 1, 1).text.isEmpty();
    EXPECT_EQ(Tip(CellPoint(first ? 1 : 2, 1)), "Reminder");
    EXPECT_EQ(Tip(CellPoint(first ? 1 : 2, 2)), "Priority");
    EXPECT_EQ(Tip(CellPoint(first ? 2 : 1, 1)), "");
}

TEST_F(GridPointer, TitlesTellWhatTheySortByAndTheKey) {
    ShowHomeworkMode(*window);
    EXPECT_EQ(window->picColHeader[1]->toolTip(), "Sort by Reminder (1)");
    EXPECT_EQ(window->picColHeader[2]->toolTip(), "Sort by Priority (2)");
    EXPECT_EQ(window->picColHeader[8]->toolTip(), "Sort by Done (8)");
    EXPECT_EQ(window->picColHeader[0]->toolTip(), "") << "it does not sort";
    ShowTaskMode(*window);
    EXPECT_EQ(window->picColHeader[2]->toolTip(), "Sort by Name (2)");
}

TEST_F(GridPointer, TheCountersOfADayTellWhatTheyCount) {
    AddAssignmentRecord({.done = "True"});
    AddAssignmentRecord({});
    AddTaskRecord({});
    AddEventRecord({});
    AddEventRecord({});
    AddTaskRecord({.date = "2009/10/15"});
    ShowCalendarMode(*window);
    EXPECT_EQ(Tip(Middle(SelectedDay().icon[0])), "Homework of the day: 1 / 2 done (H)");
    EXPECT_EQ(Tip(Middle(SelectedDay().icon[1])), "Tasks of the day: 0 / 1 done (T)");
    EXPECT_EQ(Tip(Middle(SelectedDay().icon[2])), "Events of the day: 2 (E)");
    EXPECT_EQ(Tip(Middle(SelectedDay().tab)), "");
    const CalendarCell& next = window->CalendarGrid.cell[SelectedCellOf(window->Month) + 1];
    EXPECT_EQ(Tip(Middle(next.icon[1])), "Tasks of the day: 0 / 1 done") << "the key is the selected day's";
}

TEST_F(GridPointer, AShortenedEventTellsItsWholeText) {
    AddEventRecord({.time = "06:00 AM", .duration = "1 Hour", .desc = LongName});
    AddEventRecord({.time = "08:00 AM", .duration = "1 Hour", .desc = "Chess"});
    ShowEventMode(*window);
    for (int row = 1; row <= 2; ++row) {
        const bool isLong = EventBoxText(row).size() > LongName.size();
        EXPECT_EQ(Tip(Middle(EventBoxOf(row, window->FirstRow))),
                  isLong ? FromStore(EventBoxText(row)).trimmed() : QString());
    }
}

TEST_F(GridPointer, ATipAppearsAsItIsAskedForAndShowsTheTextAsItStands) {
    AddAssignmentRecord({.desc = "<b>" + LongName});
    ShowHomeworkMode(*window);
    const QPoint point = CellPoint(1, Description);
    QHelpEvent asked(QEvent::ToolTip, point, window->picGrid->mapToGlobal(point));
    QCoreApplication::sendEvent(window->picGrid, &asked);
    EXPECT_EQ(QToolTip::text(), PlainTip(FromStore("<b>" + LongName)));
    QToolTip::hideText();
}
