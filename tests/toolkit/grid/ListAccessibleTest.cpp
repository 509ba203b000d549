// A list as a screen reader is told of it.
#include "support/Listener.h"
#include "toolkit/grid/PaintedTable.h"
#include "toolkit/grid/SampleList.h"

#include <QDialog>

namespace {

class ListAccessible : public SampleList {
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

    static void PressCell(QAccessibleInterface* cell) {
        cell->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCoreApplication::processEvents();
    }
};

} // namespace

TEST_F(ListAccessible, IsATableWithTitlesAndCells) {
    ShowNames(40);
    EXPECT_EQ(Grid()->role(), QAccessible::Table);
    EXPECT_EQ(Table()->rowCount(), 40);
    EXPECT_EQ(Table()->columnCount(), 5);
    EXPECT_EQ(Grid()->childCount(), 41 * 5);
    EXPECT_EQ(Grid()->child(NameColumn)->role(), QAccessible::ColumnHeader);
    EXPECT_EQ(Grid()->child(NameColumn)->text(QAccessible::Name), "Name");
    EXPECT_EQ(Table()->columnDescription(NumberColumn), "Number");
    EXPECT_EQ(Table()->cellAt(0, NameColumn)->role(), QAccessible::Cell);
    EXPECT_EQ(Grid()->child(41 * 5), nullptr);
    EXPECT_EQ(Grid()->child(-1), nullptr);
}

TEST_F(ListAccessible, CellsSayTheirTextsAndWhatMarksAndPicturesMean) {
    window->rows[1] = {"Chess", true, true};
    window->RepaintGrid();
    EXPECT_EQ(Row(0), (QStringList{"1", "", "Name1", "Not done", "Task"}));
    EXPECT_EQ(Row(1), (QStringList{"2", "Reminder", "Chess", "Done", "Task"}));
}

TEST_F(ListAccessible, ChecksAreTold) {
    window->rows[1].done = true;
    window->RepaintGrid();
    EXPECT_TRUE(Table()->cellAt(1, DoneColumn)->state().checked);
    EXPECT_FALSE(Table()->cellAt(0, DoneColumn)->state().checked);
    EXPECT_TRUE(Table()->cellAt(0, DoneColumn)->state().checkable);
    EXPECT_FALSE(Table()->cellAt(0, NameColumn)->state().checkable);
}

TEST_F(ListAccessible, CellsTellTheirPlaceAndTheirTitle) {
    ShowNames(40);
    window->VSGridScroll->setValue(3);
    QAccessibleInterface* cell = Table()->cellAt(4, NameColumn);
    EXPECT_EQ(cell->parent(), Grid());
    EXPECT_EQ(cell->tableCellInterface()->rowIndex(), 4);
    EXPECT_EQ(cell->tableCellInterface()->columnIndex(), NameColumn);
    EXPECT_EQ(cell->tableCellInterface()->columnHeaderCells().first()->text(QAccessible::Name), "Name");
    EXPECT_EQ(Grid()->child(Grid()->indexOfChild(cell)), cell);
    const QPoint onSurface = window->picGrid->mapFromGlobal(cell->rect().center());
    EXPECT_LE((onSurface - CellPoint(3, NameColumn)).manhattanLength(), 2);
    const QPoint middle = cell->rect().center();
    EXPECT_EQ(Grid()->childAt(middle.x(), middle.y()), cell);
    const QPoint title = Grid()->child(NameColumn)->rect().center();
    EXPECT_EQ(Grid()->childAt(title.x(), title.y()), Grid()->child(NameColumn));
}

TEST_F(ListAccessible, RowsThatAreScrolledAwayAreOffTheScreen) {
    ShowNames(40);
    window->VSGridScroll->setValue(3);
    EXPECT_TRUE(Table()->cellAt(1, NameColumn)->state().offscreen);
    EXPECT_FALSE(Table()->cellAt(2, NameColumn)->state().offscreen);
    EXPECT_FALSE(Table()->cellAt(13, NameColumn)->state().offscreen);
    EXPECT_TRUE(Table()->cellAt(14, NameColumn)->state().offscreen);
}

TEST_F(ListAccessible, TheCurrentRowIsTheSelectedOne) {
    EXPECT_EQ(Table()->selectedRows(), QList<int>{});
    EXPECT_EQ(Table()->selectedCellCount(), 0);
    window->picGrid->setFocus();
    Press(Qt::Key_End);
    EXPECT_EQ(Table()->selectedRows(), QList<int>{4});
    EXPECT_TRUE(Table()->isRowSelected(4));
    EXPECT_EQ(Grid()->focusChild(), Table()->cellAt(4, 0));
    EXPECT_TRUE(Table()->cellAt(4, 0)->state().selected);
    EXPECT_TRUE(Table()->cellAt(4, 0)->state().focused);
    EXPECT_FALSE(Table()->cellAt(3, 0)->state().selected);
}

TEST_F(ListAccessible, CellsOfRowsThatHaveGoneAreInvalid) {
    QAccessibleInterface* cell = Table()->cellAt(4, NameColumn);
    EXPECT_TRUE(cell->isValid());
    ShowNames(4);
    EXPECT_FALSE(cell->isValid());
    EXPECT_EQ(cell->text(QAccessible::Name), "");
    EXPECT_TRUE(cell->state().invalid);
}

TEST_F(ListAccessible, ASurfaceThatShowsSomethingElseIsNoTableOfRows) {
    LeaveList(*window);
    EXPECT_EQ(Table()->rowCount(), 0);
    EXPECT_EQ(Table()->columnCount(), 0);
    EXPECT_EQ(Grid()->childCount(), 0);
}

TEST_F(ListAccessible, PressingACellShowsItAndCountsAsAClick) {
    ShowNames(40);
    PressCell(Table()->cellAt(39, NameColumn));
    const ListAction action = TakeAsked();
    EXPECT_EQ(action.ask, ListAsk::Click);
    EXPECT_EQ(action.row, 40);
    EXPECT_EQ(window->CurrentRow, 40);
    EXPECT_FALSE(Table()->cellAt(39, NameColumn)->state().offscreen);
}

TEST_F(ListAccessible, PressingATitleSorts) {
    EXPECT_EQ(Grid()->child(NameColumn)->actionInterface()->actionNames(),
              QStringList{QAccessibleActionInterface::pressAction()});
    PressCell(Grid()->child(NameColumn));
    EXPECT_EQ(window->SortColumn, NameColumn);
}

TEST_F(ListAccessible, NothingIsPressedBehindAModalDialog) {
    QDialog dialog;
    QTimer::singleShot(0, &dialog, [&] {
        PressCell(Table()->cellAt(1, NameColumn));
        dialog.reject();
    });
    dialog.exec();
    EXPECT_TRUE(window->asked.empty());
    PressCell(Table()->cellAt(1, NameColumn));
    EXPECT_EQ(TakeAsked().row, 2);
}

TEST_F(ListAccessible, APressOnARowThatHasGoneMeanwhileDoesNothing) {
    Table()->cellAt(4, NameColumn)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    ShowNames(4);
    QCoreApplication::processEvents();
    EXPECT_TRUE(window->asked.empty());
}

TEST_F(ListAccessible, AScreenReaderIsToldOfChangesAndOfTheRowThatIsReached) {
    const Listener listener;
    ShowNames(3);
    EXPECT_TRUE(ChangeIsTold(window->picGrid));
    Press(Qt::Key_Down);
    EXPECT_TRUE(MoveIsTold(Grid()));
    ClickPlace(2);
    EXPECT_TRUE(MoveIsTold(Grid()));
}

TEST_F(ListAccessible, ATableThatTakesTheOthersPlaceIsTheOneTold) {
    DescribeAsTable(window->picGrid, window.get(), [] {
        return PaintedTable{.rows = 1, .columns = 2, .cellOf = [](int row, int column) {
                                return SpokenCell{QString::number(10 * row + column)};
                            }};
    });
    EXPECT_EQ(Table()->columnCount(), 2);
    EXPECT_EQ(Row(0), (QStringList{"0", "1"}));
}

TEST_F(ListAccessible, ASurfaceWithoutItsOwnerIsAnEmptyTable) {
    PictureBox surface;
    auto owner = std::make_unique<QWidget>();
    DescribeAsTable(&surface, owner.get(), [] { return PaintedTable{.rows = 3, .columns = 2}; });
    EXPECT_EQ(TableOf(surface).rows, 3);
    owner.reset();
    EXPECT_EQ(TableOf(surface).rows, 0);
}
