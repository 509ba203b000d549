// Clicks, keys, the scroll bar and the wheel on a list.
#include "toolkit/grid/SampleList.h"

namespace {

class ListInput : public SampleList {};

} // namespace

// --- Clicks ---

TEST_F(ListInput, AClickIsToldWithItsRow) {
    ShowNames(40);
    window->VSGridScroll->setValue(11);
    window->asked.clear();
    ClickPlace(3);
    const ListAction action = TakeAsked();
    EXPECT_EQ(action.ask, ListAsk::Click);
    EXPECT_EQ(action.row, 13);
    EXPECT_EQ(window->CurrentRow, 13);
    EXPECT_EQ(FramesPainted(), std::vector<int>{RowTop(3)});
}

TEST_F(ListInput, AClickOnTheLastRowIsToldWithItsRow) {
    ClickPlace(5);
    EXPECT_EQ(TakeAsked().row, 5);
}

TEST_F(ListInput, AClickPastTheRowsHasNoRow) {
    ClickPlace(6);
    const ListAction action = TakeAsked();
    EXPECT_EQ(action.ask, ListAsk::Click);
    EXPECT_EQ(action.row, 0);
}

TEST_F(ListInput, PressAndReleaseMustFallOnOneRow) {
    QTest::mousePress(window->picGrid, Qt::LeftButton, {}, PlacePoint(2));
    QTest::mouseRelease(window->picGrid, Qt::LeftButton, {}, PlacePoint(3));
    EXPECT_TRUE(window->asked.empty());
}

TEST_F(ListInput, AReleaseBesideTheSurfaceIsNoClick) {
    QTest::mousePress(window->picGrid, Qt::LeftButton, {}, PlacePoint(2));
    QTest::mouseRelease(window->picGrid, Qt::LeftButton, {}, {-5, PlacePoint(2).y()});
    EXPECT_TRUE(window->asked.empty());
}

TEST_F(ListInput, AClickOnTheStripOfTheScrollBarMeansNothing) {
    PressList(*window, window->picGrid->WidthInUnits() - 10, RowTop(2));
    ReleaseList(*window, window->picGrid->WidthInUnits() - 10, RowTop(2), Qt::LeftButton);
    EXPECT_TRUE(window->asked.empty());
}

TEST_F(ListInput, TheRightButtonAsksForTheMenuWhereItIsPressed) {
    ClickPlace(2, Qt::RightButton);
    ASSERT_EQ(window->asked.size(), 1);
    const ListAction action = TakeAsked();
    EXPECT_EQ(action.ask, ListAsk::Menu);
    EXPECT_EQ(action.row, 2);
    EXPECT_EQ(QPoint(action.x, action.y) / UnitsPerPixel, PlacePoint(2));
}

TEST_F(ListInput, TheRightButtonCountsAsTheLeftOneWithoutAMenu) {
    window->hasMenu = false;
    ClickPlace(2, Qt::RightButton);
    ASSERT_EQ(window->asked.size(), 2);
    EXPECT_EQ(window->asked[1].ask, ListAsk::Click);
    EXPECT_EQ(window->asked[1].row, 2);
}

TEST_F(ListInput, SelectingTheCurrentRowPaintsNothing) {
    SelectRow(*window, 2);
    const int before = window->repaints;
    SelectRow(*window, 2);
    EXPECT_EQ(window->repaints, before);
    SelectRow(*window, 3);
    EXPECT_EQ(window->repaints, before + 1);
}

// --- Titles ---

TEST_F(ListInput, AClickOnATitleSortsByItAndASecondOneTurnsTheOrder) {
    QTest::mouseClick(window->picColHeader[NameColumn], Qt::LeftButton);
    EXPECT_EQ(TakeAsked().ask, ListAsk::Sort);
    EXPECT_EQ(window->SortColumn, NameColumn);
    EXPECT_EQ(window->SortDirection, Ascending);
    EXPECT_EQ(Arrow(NameColumn), "picStashGridTitleUp.svg");
    QTest::mouseClick(window->picColHeader[NameColumn], Qt::LeftButton);
    EXPECT_EQ(window->SortDirection, Descending);
    QTest::mouseClick(window->picColHeader[DoneColumn], Qt::LeftButton);
    EXPECT_EQ(window->SortColumn, DoneColumn);
    EXPECT_EQ(window->SortDirection, Descending) << "the direction stays with another column";
    QTest::mouseClick(window->picColHeader[DoneColumn], Qt::LeftButton);
    EXPECT_EQ(window->SortDirection, Ascending);
}

TEST_F(ListInput, AnOrderIsToldBeforeTheListIsPaintedInIt) {
    int rowThen = -1;
    window->CurrentRow = 4;
    window->ActOnList = [&](const ListAction& action) {
        rowThen = action.ask == ListAsk::Sort ? window->SortColumn : -1;
        window->CurrentRow = 0; // so no row stays framed
        return true;
    };
    window->RepaintGrid();
    ColumnClicked(*window, NameColumn);
    EXPECT_EQ(rowThen, NameColumn);
    EXPECT_EQ(FramesPainted(), std::vector<int>{});
}

TEST_F(ListInput, TheFirstTitleOnlyGivesTheSurfaceTheFocus) {
    window->SortColumn = NameColumn;
    QTest::mouseClick(window->picColHeader[NumberColumn], Qt::LeftButton);
    EXPECT_EQ(window->SortColumn, NameColumn);
    EXPECT_TRUE(window->asked.empty());
    EXPECT_EQ(window->focusWidget(), window->picGrid);
}

TEST_F(ListInput, AnotherOrderShowsTheListFromItsFirstRow) {
    ShowNames(40);
    window->VSGridScroll->setValue(9);
    window->picGrid->clearFocus();
    ColumnClicked(*window, NameColumn);
    EXPECT_EQ(window->FirstRow, 1);
    EXPECT_EQ(window->focusWidget(), window->picGrid);
}

TEST_F(ListInput, AnotherOrderKeepsTheCurrentRowInViewWhereTheListWantsThat) {
    ShowNames(40);
    window->SortKeepsRowInView = true;
    window->CurrentRow = 1;
    window->VSGridScroll->setValue(9);
    ColumnClicked(*window, NameColumn);
    EXPECT_EQ(window->FirstRow, 1);
    window->CurrentRow = 20;
    ColumnClicked(*window, NameColumn);
    EXPECT_EQ(window->FirstRow, 20 - window->RowsVisible + 1);
}

// --- Keys ---

TEST_F(ListInput, ArrowsPagesAndEndsMoveTheCurrentRow) {
    ShowNames(40);
    Press(Qt::Key_Down);
    EXPECT_EQ(window->CurrentRow, 1);
    Press(Qt::Key_Down);
    EXPECT_EQ(window->CurrentRow, 2);
    EXPECT_EQ(TakeAsked().ask, ListAsk::Move);
    Press(Qt::Key_PageDown);
    EXPECT_EQ(window->CurrentRow, 14);
    EXPECT_EQ(window->FirstRow, 3) << "just far enough";
    Press(Qt::Key_End);
    EXPECT_EQ(window->CurrentRow, 40);
    EXPECT_EQ(TakeAsked().row, 40);
    Press(Qt::Key_Down);
    EXPECT_EQ(window->CurrentRow, 40);
    Press(Qt::Key_Home);
    EXPECT_EQ(window->CurrentRow, 1);
    EXPECT_EQ(window->FirstRow, 1);
    Press(Qt::Key_Up);
    EXPECT_EQ(window->CurrentRow, 1);
    Press(Qt::Key_PageUp, Qt::KeypadModifier);
    EXPECT_EQ(window->CurrentRow, 1);
}

TEST_F(ListInput, KeysInAListWithoutRowsAskForNothing) {
    ShowNames(0);
    for (const int key : {Qt::Key_Down, Qt::Key_Home, Qt::Key_End, Qt::Key_Return, Qt::Key_Delete}) {
        Press(key);
    }
    EXPECT_EQ(window->CurrentRow, 0);
    EXPECT_TRUE(window->asked.empty());
}

TEST_F(ListInput, EnterAndDeleteAskAboutTheCurrentRow) {
    for (const auto& [key, ask] :
         {std::pair{Qt::Key_Return, ListAsk::Enter}, std::pair{Qt::Key_Enter, ListAsk::Enter},
          std::pair{Qt::Key_Delete, ListAsk::Delete}}) {
        window->CurrentRow = 0;
        Press(key);
        EXPECT_TRUE(window->asked.empty());
        window->CurrentRow = 4;
        Press(key);
        const ListAction action = TakeAsked();
        EXPECT_EQ(action.ask, ask);
        EXPECT_EQ(action.row, 4);
    }
}

TEST_F(ListInput, EnterShowsTheCurrentRowFirst) {
    ShowNames(40);
    window->CurrentRow = 30;
    Press(Qt::Key_Return);
    EXPECT_EQ(window->FirstRow, 19);
}

TEST_F(ListInput, TheMenuKeyAsksForTheMenuUnderTheCurrentRow) {
    window->CurrentRow = 2;
    Press(Qt::Key_Menu);
    const ListAction action = TakeAsked();
    EXPECT_EQ(action.ask, ListAsk::Menu);
    EXPECT_EQ(action.row, 2);
    EXPECT_EQ(action.x, RowNumberRight);
    EXPECT_EQ(action.y, RowTop(3));
    Press(Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(TakeAsked().ask, ListAsk::Menu);
}

TEST_F(ListInput, ADigitSortsByTheColumnOfThatNumber) {
    Press(Qt::Key_2);
    EXPECT_EQ(window->SortColumn, NameColumn);
    Press(Qt::Key_4);
    EXPECT_EQ(window->SortColumn, KindColumn);
    Press(Qt::Key_0);
    Press(Qt::Key_5); // no such column
    EXPECT_EQ(window->SortColumn, KindColumn);
    EXPECT_EQ(window->SortDirection, Ascending);
    Press(Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(window->SortColumn, KindColumn);
}

TEST_F(ListInput, TheKeysOfTheNumberPadMeanTheSame) {
    EXPECT_TRUE(PressListKey(*window, Qt::Key_Down, Qt::KeypadModifier));
    EXPECT_EQ(window->CurrentRow, 1);
    EXPECT_TRUE(PressListKey(*window, Qt::Key_Enter, Qt::KeypadModifier));
    EXPECT_EQ(TakeAsked().ask, ListAsk::Enter);
    EXPECT_FALSE(PressListKey(*window, Qt::Key_Down, Qt::KeypadModifier | Qt::ShiftModifier));
}

TEST_F(ListInput, KeysThatMeanNothingGoOn) {
    EXPECT_FALSE(PressListKey(*window, Qt::Key_Q, Qt::NoModifier));
    EXPECT_FALSE(PressListKey(*window, Qt::Key_Down, Qt::ControlModifier));
    EXPECT_TRUE(PressListKey(*window, Qt::Key_Down, Qt::NoModifier));
    window->hasMenu = false;
    EXPECT_FALSE(PressListKey(*window, Qt::Key_Menu, Qt::NoModifier));
}

// --- The scroll bar and the wheel ---

TEST_F(ListInput, TheScrollBarReachesUntilTheLastRowIsTheLastVisible) {
    EXPECT_FALSE(window->VSGridScroll->isEnabled());
    ShowNames(40);
    EXPECT_TRUE(window->VSGridScroll->isEnabled());
    EXPECT_EQ(window->VSGridScroll->minimum(), 1);
    EXPECT_EQ(window->VSGridScroll->maximum(), 29);
    EXPECT_EQ(window->VSGridScroll->pageStep(), 11);
    window->VSGridScroll->setValue(29);
    EXPECT_EQ(window->FirstRow, 29);
    EXPECT_EQ(NumbersPainted().first(), "29");
    EXPECT_EQ(NumbersPainted().last(), "40");
}

TEST_F(ListInput, SettingTheScrollBarPaintsNothing) {
    ShowNames(40);
    window->VSGridScroll->setValue(29);
    const int before = window->repaints;
    ShowNames(13);
    EXPECT_EQ(window->repaints, before + 1);
    EXPECT_EQ(window->FirstRow, 2);
}

TEST_F(ListInput, TheScrollBarHandsItsFocusToTheSurface) {
    window->VSGridScroll->setFocus();
    EXPECT_EQ(window->focusWidget(), window->picGrid);
    EXPECT_EQ(window->VSGridScroll->focusPolicy(), Qt::NoFocus);
}

TEST_F(ListInput, TheWheelMovesThreeRowsANotchAndKeepsTheRest) {
    ShowNames(40);
    TurnWheelOver(window->picGrid, -60);
    EXPECT_EQ(window->FirstRow, 1);
    TurnWheelOver(window->picColHeader[NameColumn], -90);
    EXPECT_EQ(window->FirstRow, 4);
    EXPECT_EQ(window->WheelRest, -30);
    TurnWheelOver(window->picGrid, -90);
    EXPECT_EQ(window->FirstRow, 7);
    TurnWheelOver(window.get(), 240);
    EXPECT_EQ(window->FirstRow, 4) << "two notches at once are one turn";
}

TEST_F(ListInput, TheWheelDoesNothingWhileAllRowsFitOrTheBarIsHidden) {
    TurnWheelOver(window->picGrid, -120);
    EXPECT_EQ(window->FirstRow, 1);
    ShowNames(40);
    window->VSGridScroll->hide();
    TurnWheelOver(window->picGrid, -120);
    EXPECT_EQ(window->FirstRow, 1);
}
