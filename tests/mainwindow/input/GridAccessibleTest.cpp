// The grid as a screen reader is told of it.
#include "mainwindow/input/GridTest.h"
#include "mainwindow/modes/Modes.h"
#include "toolkit/grid/ListInput.h"

#include "support/Listener.h"

namespace {

class GridAccessible : public GridTest {
protected:
    QAccessibleInterface* Grid() const { return QAccessible::queryAccessibleInterface(window->picGrid); }

    QAccessibleTableInterface* Table() const { return Grid()->tableInterface(); }

    QStringList Row(int row) const {
        QStringList texts;
        for (int column = 0; column < Table()->columnCount(); ++column) {
            texts.append(Table()->cellAt(row, column)->text(QAccessible::Name));
        }
        return texts;
    }

    bool ChangeIsTold() const { return ::ChangeIsTold(window->picGrid); }

    bool MoveIsTold() const { return ::MoveIsTold(Grid()); }

    QStringList Columns() const {
        QStringList titles;
        for (int column = 0; column < Table()->columnCount(); ++column) {
            titles.append(Table()->columnDescription(column));
        }
        return titles;
    }
};

} // namespace

TEST_F(GridAccessible, AListIsATableOfItsRows) {
    AddAssignmentRecord({.desc = "Page 12", .priority = "True", .done = "True", .grade = "95%"});
    AddAssignments(40);
    ShowHomeworkMode(*window);
    EXPECT_EQ(Grid()->role(), QAccessible::Table);
    EXPECT_EQ(Grid()->text(QAccessible::Name), "View");
    ASSERT_NE(Table(), nullptr);
    EXPECT_EQ(Table()->rowCount(), 41);
    EXPECT_EQ(Columns(), (QStringList{"Number", "Reminder", "Priority", "Class", "Type", "Description",
                                      "Time", "Due", "Done", "Score"}));
    ColumnClicked(*window, 5);
    EXPECT_EQ(Row(40), (QStringList{"41", "", "Priority", "Algebra", "Reading", "Page 12", "01:00",
                                    "14-Oct-09", "Done", "95%"}));
}

TEST_F(GridAccessible, MarksAreReadAsWhatTheyMean) {
    AddAssignmentRecord({.desc = "\xAE", .priority = "True", .reminder = "True"});
    AddTaskRecord({.desc = "!", .reminder = "True"});
    ShowHomeworkMode(*window);
    EXPECT_EQ(Row(0).mid(1, 2), (QStringList{"Reminder", "Priority"}));
    EXPECT_EQ(Row(0)[5], QString(QChar(0xAE))) << "the student's own word";
    ShowTaskMode(*window);
    EXPECT_EQ(Row(0).mid(1, 2), (QStringList{"Reminder", "!"}));
}

TEST_F(GridAccessible, CellsTellTheirPlaceAndTheirHeader) {
    AddAssignments(40);
    ShowHomeworkMode(*window);
    QAccessibleInterface* cell = Table()->cellAt(1, 5);
    EXPECT_EQ(cell->role(), QAccessible::Cell);
    EXPECT_EQ(cell->parent(), Grid());
    EXPECT_EQ(cell->tableCellInterface()->rowIndex(), 1);
    EXPECT_EQ(cell->tableCellInterface()->columnIndex(), 5);
    QAccessibleInterface* header = cell->tableCellInterface()->columnHeaderCells().first();
    EXPECT_EQ(header->text(QAccessible::Name), "Description");
    EXPECT_EQ(header->role(), QAccessible::ColumnHeader);
    EXPECT_EQ(Grid()->child(Grid()->indexOfChild(cell)), cell);
    EXPECT_EQ(Grid()->childCount(), 41 * 10);
    const QPoint middle = cell->rect().center();
    EXPECT_EQ(Grid()->childAt(middle.x(), middle.y()), cell);
    EXPECT_TRUE(Table()->cellAt(39, 5)->state().offscreen);
}

TEST_F(GridAccessible, ChecksAreTold) {
    AddTaskRecord({.done = "True"});
    AddTaskRecord({});
    ShowTaskMode(*window);
    EXPECT_TRUE(Table()->cellAt(0, 6)->state().checked);
    EXPECT_FALSE(Table()->cellAt(1, 6)->state().checked);
    EXPECT_TRUE(Table()->cellAt(1, 6)->state().checkable);
    EXPECT_EQ(Row(1).last(), "Not done");
}

TEST_F(GridAccessible, TheMonthIsATableOfItsDays) {
    AddAssignmentRecord({.done = "True"});
    AddAssignmentRecord({});
    AddEventRecord({});
    ShowCalendarMode(*window);
    EXPECT_EQ(Table()->rowCount(), 6);
    EXPECT_EQ(Columns(),
              (QStringList{"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"}));
    EXPECT_EQ(Table()->cellAt(2, 3)->text(QAccessible::Name),
              "Wednesday, October 14, homework 1 / 2, events 1");
    EXPECT_EQ(Table()->cellAt(2, 4)->text(QAccessible::Name), "Thursday, October 15");
    EXPECT_EQ(Table()->selectedCells(), QList<QAccessibleInterface*>{Table()->cellAt(2, 3)});
}

TEST_F(GridAccessible, TheDayIsATableOfItsEvents) {
    AddEventRecord({.time = "09:00 AM", .duration = "1 Hour", .desc = "Chess"});
    ShowEventMode(*window);
    EXPECT_EQ(Columns(), (QStringList{"Time", "Length", "Event"}));
    EXPECT_EQ(Table()->rowCount(), 1);
    EXPECT_EQ(Row(0), (QStringList{"09:00 AM", "1 Hour", "Chess"}));
}

TEST_F(GridAccessible, TheRowOfTheKeysIsTheSelectedOne) {
    AddAssignments(3);
    ShowHomeworkMode(*window);
    window->picGrid->setFocus();
    EXPECT_EQ(Table()->selectedRows(), QList<int>{});
    EXPECT_EQ(Grid()->focusChild(), nullptr);
    Press(Qt::Key_End);
    EXPECT_EQ(Table()->selectedRows(), QList<int>{2});
    EXPECT_EQ(Grid()->focusChild(), Table()->cellAt(2, 0));
    EXPECT_TRUE(Table()->cellAt(2, 0)->state().focused);
}

TEST_F(GridAccessible, PressingATitleSortsAndPressingACellOpens) {
    AddAssignments(3);
    ShowHomeworkMode(*window);
    QAccessibleInterface* title = Grid()->child(5);
    title->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    ASSERT_TRUE(WaitUntil([this] { return window->SortColumn == 5; }));
    Table()->cellAt(1, 5)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    ASSERT_TRUE(WaitUntil([this] { return HighlightedNumbers() == QStringList{"2"}; }));
    EXPECT_EQ(Table()->selectedRows(), QList<int>{1}); // the keys go on from it
}

TEST_F(GridAccessible, PressingACellThatIsScrolledAwayShowsItAndOpens) {
    AddAssignments(40);
    ShowHomeworkMode(*window);
    Table()->cellAt(39, 5)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    ASSERT_TRUE(WaitUntil([this] { return Opened == QStringList{"Planovarium - Edit Assignment: A40"}; }));
    EXPECT_EQ(Table()->selectedRows(), QList<int>{39});
    EXPECT_FALSE(Table()->cellAt(39, 5)->state().offscreen);
    EXPECT_EQ(HighlightedNumbers(), QStringList{"40"});
}

TEST_F(GridAccessible, PressingAnEventOfTheDayMovesTheKeysToIt) {
    AddEventRecord({.time = "01:00 AM", .desc = "Stars"});
    AddEventRecord({.time = "09:00 AM", .desc = "Chess"});
    ShowEventMode(*window);
    Table()->cellAt(0, 2)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    ASSERT_TRUE(WaitUntil([this] { return Table()->selectedRows() == QList<int>{0}; }));
    EXPECT_EQ(window->CurrentHalfHour, 2);
    EXPECT_FALSE(Table()->cellAt(0, 2)->state().offscreen);
}

TEST_F(GridAccessible, TheRowScrolledUnderTheTitlesIsOffTheScreen) {
    AddAssignments(40);
    ShowHomeworkMode(*window);
    window->VSGridScroll->setValue(3);
    EXPECT_TRUE(Table()->cellAt(1, 5)->state().offscreen);
    EXPECT_FALSE(Table()->cellAt(2, 5)->state().offscreen);
}

TEST_F(GridAccessible, CellsOfRowsThatHaveGoneAreInvalid) {
    AddAssignments(3);
    ShowHomeworkMode(*window);
    QAccessibleInterface* cell = Table()->cellAt(2, 5);
    EXPECT_TRUE(cell->isValid());
    RemoveRecord(Store.Assignment, AssignmentFields, 3);
    window->RepaintGrid();
    EXPECT_FALSE(cell->isValid());
    EXPECT_EQ(cell->text(QAccessible::Name), "");
}

TEST_F(GridAccessible, AChangeOfTheViewIsTold) {
    QAccessible::setActive(true);
    AddAssignments(3);
    ShowHomeworkMode(*window);
    EXPECT_EQ(Table()->rowCount(), 3);
    ShowTaskMode(*window);
    EXPECT_EQ(Table()->rowCount(), 0);
    EXPECT_EQ(Table()->columnCount(), 7);
    QAccessible::setActive(false);
}

TEST_F(GridAccessible, AScreenReaderIsToldOfAChangedView) {
    const Listener listener;
    ShowTaskMode(*window);
    EXPECT_TRUE(ChangeIsTold());
    Tellings.clear();
    AddTaskRecord({});
    Refresh();
    EXPECT_TRUE(ChangeIsTold());
}

TEST_F(GridAccessible, AScreenReaderIsToldOfARowThatTheKeysReach) {
    AddAssignments(3);
    ShowHomeworkMode(*window);
    const Listener listener;
    Press(Qt::Key_Down);
    EXPECT_TRUE(MoveIsTold());
}

TEST_F(GridAccessible, AScreenReaderIsToldOfARowThatIsClicked) {
    AddAssignments(3);
    ShowHomeworkMode(*window);
    const Listener listener;
    ClickRow(2);
    EXPECT_TRUE(MoveIsTold());
}

TEST_F(GridAccessible, AScreenReaderIsToldOfADayThatTheKeysReach) {
    ShowCalendarMode(*window);
    const Listener listener;
    Press(Qt::Key_Right);
    EXPECT_TRUE(MoveIsTold());
}

TEST_F(GridAccessible, AScreenReaderIsToldOfAnEventThatTheKeysReach) {
    AddEventRecord({.time = "05:00 AM"});
    ShowEventMode(*window);
    const Listener listener;
    Press(Qt::Key_Down);
    EXPECT_TRUE(MoveIsTold());
}

TEST_F(GridAccessible, AScreenReaderIsToldOfAnEventThatIsClicked) {
    AddEventRecord({.time = "05:00 AM", .duration = "1 Hour"});
    ShowEventMode(*window);
    const Listener listener;
    Click({300, SlotHeight / 2});
    EXPECT_TRUE(MoveIsTold());
}
