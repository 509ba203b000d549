// What the pointer is shown on a list as it passes.
#include "toolkit/grid/ListPointer.h"
#include "toolkit/Text.h"
#include "toolkit/grid/SampleList.h"
#include "toolkit/grid/SurfaceEvents.h"

#include <QHelpEvent>
#include <QToolTip>

namespace {

class ListPointer : public SampleList {
protected:
    void AskForTip(QPoint point) const {
        QHelpEvent asked(QEvent::ToolTip, point, window->picGrid->mapToGlobal(point));
        QCoreApplication::sendEvent(window->picGrid, &asked);
    }

    QString Tip(QPoint point) const { return ListTipAt(*window, point); }
};

} // namespace

TEST_F(ListPointer, TheRowUnderThePointerIsShown) {
    EXPECT_EQ(HoveredRow(*window), 0);
    PointAt(PlacePoint(2));
    EXPECT_EQ(window->picGrid->Hover(), RowRect(2, window->picGrid->WidthInUnits()));
    EXPECT_EQ(HoveredRow(*window), 2);
    EXPECT_EQ(window->picGrid->cursor().shape(), Qt::PointingHandCursor);
    PointAt(PlacePoint(6)); // past the rows
    EXPECT_EQ(HoveredRow(*window), 0);
    EXPECT_EQ(window->picGrid->cursor().shape(), Qt::ArrowCursor);
    PointAt({200, 5}); // the titles
    EXPECT_EQ(window->picGrid->Hover(), std::nullopt);
}

TEST_F(ListPointer, NoRowLiesUnderTheStripOfTheScrollBarHoweverLongTheList) {
    ShowNames(NoRow + 1);
    PointAt({window->picGrid->width() - 5, PlacePoint(2).y()});
    EXPECT_EQ(window->picGrid->Hover(), std::nullopt);
    EXPECT_EQ(HoveredRow(*window), 0);
}

TEST_F(ListPointer, ARowThatTheSurfaceCutsOffHasItsTip) {
    window->resize(window->width(), window->height() + RowHeight - 2);
    ShowNames(40);
    ASSERT_EQ(window->RowsVisible, 12);
    window->rows[12].marked = true;
    window->RepaintGrid();
    EXPECT_EQ(Tip(CellPoint(13, MarkColumn)), "Reminder");
}

TEST_F(ListPointer, ScrollingPutsAnotherRowUnderThePointer) {
    ShowNames(40);
    PointAt(PlacePoint(2));
    window->VSGridScroll->setValue(11);
    EXPECT_EQ(HoveredRow(*window), 12);
}

TEST_F(ListPointer, ARowThatIsGoneIsNotShownAnyMore) {
    PointAt(PlacePoint(5));
    ShowNames(5);
    EXPECT_EQ(HoveredRow(*window), 5);
    ShowNames(4);
    EXPECT_EQ(window->picGrid->Hover(), std::nullopt);
}

TEST_F(ListPointer, NothingIsShownOnceThePointerHasLeftTheRows) {
    for (QWidget* beyond : OnSurface(*window)) {
        PointAt(PlacePoint(1));
        ASSERT_EQ(HoveredRow(*window), 1);
        QEnterEvent entered({1, 1}, {1, 1}, {1, 1});
        QCoreApplication::sendEvent(beyond, &entered);
        EXPECT_EQ(HoveredRow(*window), 0);
    }
    PointAt(PlacePoint(1));
    QEvent left(QEvent::Leave);
    QCoreApplication::sendEvent(window->picGrid, &left);
    EXPECT_EQ(HoveredRow(*window), 0);
}

TEST_F(ListPointer, AShortenedTextIsToldInWholeAndOneThatFitsNot) {
    window->rows[0].name = QString(200, 'W');
    window->RepaintGrid();
    EXPECT_EQ(Tip(CellPoint(1, NameColumn)), QString(200, 'W'));
    EXPECT_EQ(Tip(CellPoint(2, NameColumn)), "");
    EXPECT_EQ(Tip(CellPoint(1, NumberColumn)), "");
    EXPECT_EQ(Tip(CellPoint(6, NameColumn)), "") << "past the rows";
}

TEST_F(ListPointer, MarksAndPicturesAreToldAndChecksNot) {
    window->rows[0].marked = true;
    window->RepaintGrid();
    EXPECT_EQ(Tip(CellPoint(1, MarkColumn)), "Reminder");
    EXPECT_EQ(Tip(CellPoint(2, MarkColumn)), "");
    EXPECT_EQ(Tip(CellPoint(1, KindColumn)), "Task");
    EXPECT_EQ(Tip(CellPoint(1, DoneColumn)), "");
}

TEST_F(ListPointer, TheTipShowsTheTextAsItStands) {
    window->rows[0].name = "<b>" + QString(200, 'W');
    window->RepaintGrid();
    AskForTip(CellPoint(1, NameColumn));
    EXPECT_EQ(QToolTip::text(), PlainTip(window->rows[0].name));
    QToolTip::hideText();
}

TEST_F(ListPointer, TitlesTellWhatTheySortByAndTheKey) {
    EXPECT_EQ(window->picColHeader[MarkColumn]->toolTip(), "Sort by Reminder (1)");
    EXPECT_EQ(window->picColHeader[NameColumn]->toolTip(), "Sort by Name (2)");
    EXPECT_EQ(window->picColHeader[NumberColumn]->toolTip(), "");
}

TEST_F(ListPointer, EventsThatComeAsTheOwnerEndsReachNothing) {
    PictureBox surface;
    auto owner = std::make_unique<QWidget>();
    int asked = 0;
    FollowPointer(&surface, {}, owner.get(),
                  {[&asked](int /*x*/, int /*y*/) -> std::optional<UnitRect> {
                       ++asked;
                       return std::nullopt;
                   },
                   [](QPoint /*point*/) { return QString(); }});
    TakeKeys(&surface, owner.get(), [&asked](int /*key*/, Qt::KeyboardModifiers /*held*/) {
        ++asked;
        return true;
    });
    QMouseEvent moved(QEvent::MouseMove, QPointF(3, 3), QPointF(3, 3), Qt::NoButton, Qt::NoButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&surface, &moved);
    QTest::keyClick(&surface, Qt::Key_A);
    const int before = asked;
    EXPECT_EQ(before, 2);
    owner.reset();
    QCoreApplication::sendEvent(&surface, &moved);
    QTest::keyClick(&surface, Qt::Key_A);
    EXPECT_EQ(asked, before);
}
