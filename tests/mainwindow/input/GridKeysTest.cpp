// The keys of the grid.
#include "mainwindow/input/GridKeys.h"
#include "mainwindow/flows/TermFlow.h"
#include "mainwindow/input/GridTest.h"
#include "mainwindow/modes/Modes.h"

#include "core/RowLists.h"
#include "toolkit/WindowColors.h"
#include "toolkit/grid/ListPainting.h"

using namespace std::chrono_literals;

namespace {

constexpr Date Wednesday{2009y / 10 / 14};

class GridKeys : public GridTest {
protected:
    bool CurrentRowIsFramed(int row) const {
        return std::ranges::any_of(window->picGrid->Drawn(), [row](const DrawnItem& item) {
            return item.kind == DrawnKind::Frame && item.color == CurrentColor && item.top == RowTop(row);
        });
    }

    bool HalfHourIsFramed(int place) const {
        return std::ranges::any_of(window->picGrid->Drawn(), [place](const DrawnItem& item) {
            return item.kind == DrawnKind::Frame && item.color == CurrentColor &&
                   item.top == (place - 1) * SlotUnits && item.left == 0;
        });
    }

    // The texts of the event boxes that have the frame of the keys.
    QStringList FramedEvents() const {
        QStringList framed;
        bool isFramed = false;
        for (const DrawnItem& item : window->picGrid->Drawn()) {
            const bool ofABox = item.left > TimeColumnWidth;
            if (ofABox && item.kind == DrawnKind::Frame) {
                isFramed = item.color == CurrentColor;
            } else if (ofABox && item.kind == DrawnKind::Text && isFramed) {
                framed.append(item.text);
                isFramed = false;
            }
        }
        return framed;
    }

    // Sends the keys once a menu is open that the first of them opens.
    QStringList MenuAfter(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QStringList captions;
        WhenPopupOpens([&](QMenu* menu) { captions = Captions(menu); });
        Press(key, modifiers);
        return captions;
    }
};

} // namespace

TEST_F(GridKeys, ArrowsMoveTheRowAndScrollItIntoView) {
    AddAssignments(60);
    ShowHomeworkMode(*window);
    EXPECT_EQ(window->CurrentRow, 0);
    Press(Qt::Key_Down);
    EXPECT_EQ(window->CurrentRow, 1);
    EXPECT_TRUE(CurrentRowIsFramed(1));
    Press(Qt::Key_Down);
    EXPECT_EQ(window->CurrentRow, 2);
    EXPECT_FALSE(CurrentRowIsFramed(1));
    for (int i = 0; i < window->RowsVisible; ++i) {
        Press(Qt::Key_Down);
    }
    EXPECT_EQ(window->CurrentRow, window->RowsVisible + 2);
    EXPECT_EQ(window->FirstRow, 3);
    EXPECT_TRUE(CurrentRowIsFramed(window->RowsVisible));
    Press(Qt::Key_Up);
    EXPECT_EQ(window->FirstRow, 3);
}

TEST_F(GridKeys, PagesAndEndsOfAList) {
    AddAssignments(60);
    ShowHomeworkMode(*window);
    Press(Qt::Key_End);
    EXPECT_EQ(window->CurrentRow, 60);
    EXPECT_EQ(window->FirstRow, window->VSGridScroll->maximum());
    Press(Qt::Key_PageUp);
    EXPECT_EQ(window->CurrentRow, 60 - window->RowsVisible);
    Press(Qt::Key_Home);
    EXPECT_EQ(window->CurrentRow, 1);
    EXPECT_EQ(window->FirstRow, 1);
    Press(Qt::Key_PageDown);
    EXPECT_EQ(window->CurrentRow, 1 + window->RowsVisible);
}

TEST_F(GridKeys, EnterOpensTheRow) {
    AddAssignments(5);
    ShowHomeworkMode(*window);
    Press(Qt::Key_Return);
    EXPECT_EQ(Opened, QStringList{});
    Press(Qt::Key_End);
    Press(Qt::Key_Return);
    EXPECT_EQ(HighlightedNumbers(), QStringList{"5"});
    EXPECT_EQ(Opened, QStringList{"Planovarium - Edit Assignment: A5"});
    EXPECT_EQ(window->ClickedRow, 0); // the keys are no click
}

TEST_F(GridKeys, AnEmptyListHasNoRow) {
    ShowTaskMode(*window);
    for (const int key : {Qt::Key_Down, Qt::Key_End, Qt::Key_Return}) {
        Press(key);
        EXPECT_EQ(window->CurrentRow, 0);
    }
}

TEST_F(GridKeys, TheRowFollowsAListThatBecomesShorter) {
    AddAssignments(5);
    ShowHomeworkMode(*window);
    Press(Qt::Key_End);
    RemoveRecord(Store.Assignment, AssignmentFields, 5);
    Refresh();
    EXPECT_EQ(window->CurrentRow, 4);
}

TEST_F(GridKeys, AnotherModeBeginsWithoutARow) {
    AddAssignments(5);
    AddTaskRecord({});
    ShowHomeworkMode(*window);
    Press(Qt::Key_End);
    ShowTaskMode(*window);
    EXPECT_EQ(window->CurrentRow, 0);
}

TEST_F(GridKeys, ADigitSortsByItsColumn) {
    AddAssignments(2);
    ShowTaskMode(*window);
    Press(Qt::Key_3);
    EXPECT_EQ(window->SortColumn, 3);
    Press(Qt::Key_3);
    EXPECT_EQ(window->SortDirection, Descending);
    Press(Qt::Key_8); // there is no such column
    EXPECT_EQ(window->SortColumn, 3);
}

TEST_F(GridKeys, TheMenuKeyOpensTheMenuOfTheList) {
    AddAssignments(5);
    ShowHomeworkMode(*window);
    EXPECT_EQ(MenuAfter(Qt::Key_Menu).first(), "Add new assignment...");
    EXPECT_EQ(MenuAfter(Qt::Key_F10, Qt::ShiftModifier).first(), "Add new assignment...");
    ShowTaskMode(*window);
    EXPECT_EQ(MenuAfter(Qt::Key_Menu).first(), "Add new task...");
    ShowEventMode(*window);
    EXPECT_EQ(MenuAfter(Qt::Key_Menu).first(), "Add new event...");
    ShowCalendarMode(*window);
    EXPECT_EQ(MenuAfter(Qt::Key_Menu).mid(0, 2), (QStringList{"Add new assignment...", "Add new event..."}));
}

TEST_F(GridKeys, MenusOfKeysOpenBesideTheRow) {
    AddAssignments(5);
    ShowHomeworkMode(*window);
    Press(Qt::Key_End);
    MenuAfter(Qt::Key_Menu);
    EXPECT_EQ(window->picGrid->mapFromGlobal(window->PopupPoint).y(), RowTop(6) / UnitsPerPixel);
}

TEST_F(GridKeys, TheMonthMovesByDaysWeeksMonthsAndToItsEnds) {
    ShowCalendarMode(*window);
    ASSERT_EQ(window->SelectedDate, Wednesday);
    const std::vector<std::pair<int, Date>> steps{
        {Qt::Key_Right, Date{2009y / 10 / 15}},   {Qt::Key_Down, Date{2009y / 10 / 22}},
        {Qt::Key_Left, Date{2009y / 10 / 21}},    {Qt::Key_Up, Date{2009y / 10 / 14}},
        {Qt::Key_End, Date{2009y / 10 / 31}},     {Qt::Key_Home, Date{2009y / 10 / 1}},
        {Qt::Key_PageDown, Date{2009y / 11 / 1}}, {Qt::Key_PageUp, Date{2009y / 10 / 1}}};
    for (const auto& [key, date] : steps) {
        Press(key);
        EXPECT_EQ(window->SelectedDate, date);
    }
}

TEST_F(GridKeys, EnterOpensTheMenuOfADayThatHasItems) {
    AddTaskRecord({.desc = "Call"});
    AddEventRecord({.desc = "Chess"});
    ShowCalendarMode(*window);
    EXPECT_EQ(MenuAfter(Qt::Key_Return).first(), "(Not Done)  Call ...");
    EXPECT_EQ(MenuAfter(Qt::Key_E).first(), "(09:00 AM)  Chess ...");
    EXPECT_EQ(MenuAfter(Qt::Key_T).first(), "(Not Done)  Call ...");
    EXPECT_EQ(MenuAfter(Qt::Key_H).first(), "-");
    Press(Qt::Key_Right);
    EXPECT_EQ(MenuAfter(Qt::Key_Return).first(), "Add new assignment...");
}

TEST_F(GridKeys, TheDayMovesByHalfHours) {
    ShowEventMode(*window);
    Press(Qt::Key_Down);
    EXPECT_EQ(window->CurrentHalfHour, 10);
    EXPECT_TRUE(HalfHourIsFramed(1));
    Press(Qt::Key_Up);
    EXPECT_EQ(window->CurrentHalfHour, 9);
    EXPECT_EQ(window->FirstRow, 10);
    Press(Qt::Key_Home);
    EXPECT_EQ(window->CurrentHalfHour, 0);
    EXPECT_EQ(window->FirstRow, 1);
    Press(Qt::Key_PageDown);
    EXPECT_EQ(window->CurrentHalfHour, window->RowsVisible);
    Press(Qt::Key_End);
    EXPECT_EQ(window->CurrentHalfHour, 47);
    Press(Qt::Key_Return);
    EXPECT_EQ(window->EventClickedStartTime, "11:30PM");
}

TEST_F(GridKeys, TheDayChoosesAmongTheEventsOfAHalfHour) {
    AddEventRecord({.time = "05:00 AM", .duration = "1 Hour"});
    AddEventRecord({.time = "05:00 AM", .duration = "30 Minutes"});
    ShowEventMode(*window);
    Press(Qt::Key_Down);
    EXPECT_EQ(window->CurrentEvent, 1);
    Press(Qt::Key_Right);
    EXPECT_EQ(window->CurrentEvent, 2);
    Press(Qt::Key_Right);
    EXPECT_EQ(window->CurrentEvent, 2);
    Press(Qt::Key_Left);
    EXPECT_EQ(window->CurrentEvent, 1);
    Press(Qt::Key_Return);
    EXPECT_EQ(window->EventClickedStartTime, ""); // the event was opened, no new one asked for
    Press(Qt::Key_End);
    EXPECT_EQ(window->CurrentEvent, 0);
}

TEST_F(GridKeys, TheFrameIsOnTheEventThatWasChosenInTheHalfHour) {
    AddEventRecord({.time = "05:00 AM", .duration = "30 Minutes", .desc = "A"});
    AddEventRecord({.time = "05:00 AM", .duration = "1 Hour", .desc = "B"});
    ShowEventMode(*window);
    EXPECT_EQ(FramedEvents(), QStringList{});
    Press(Qt::Key_Down);
    EXPECT_EQ(FramedEvents(), QStringList{" A"});
    Press(Qt::Key_Right);
    EXPECT_EQ(FramedEvents(), QStringList{" B"});
    Press(Qt::Key_Left);
    EXPECT_EQ(FramedEvents(), QStringList{" A"});
}

TEST_F(GridKeys, AnotherModeBeginsWithoutAHalfHour) {
    AddEventRecord({.time = "05:00 AM", .desc = "A"});
    ShowEventMode(*window);
    Press(Qt::Key_Down);
    ASSERT_EQ(FramedEvents(), QStringList{" A"});
    ShowTaskMode(*window);
    ShowEventMode(*window);
    EXPECT_EQ(window->CurrentHalfHour, -1);
    EXPECT_EQ(window->CurrentEvent, 0);
    EXPECT_EQ(FramedEvents(), QStringList{});
    EXPECT_FALSE(HalfHourIsFramed(1));
}

TEST_F(GridKeys, ControlMovesTheSelectedDayFromEveryView) {
    ShowTaskMode(*window);
    Press(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(window->SelectedDate, Date{2009y / 10 / 15});
    Press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(window->SelectedDate, Date{2009y / 11 / 15});
    Press(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(window->SelectedDate, Wednesday);
    Press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(window->SelectedDate, Date{2009y / 10 / 15});
}

TEST_F(GridKeys, RemindersModeKeepsToToday) {
    ShowTaskMode(*window);
    window->MenuTasks->setChecked(false);
    ShowReminderMode(*window);
    Press(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(window->SelectedDate, Wednesday);
}

TEST_F(GridKeys, TheFocusIsSeenAroundTheGrid) {
    ShowHomeworkMode(*window);
    window->picGrid->setFocus();
    const auto* frame = window->picGrid->findChild<QWidget*>("focusFrame");
    ASSERT_NE(frame, nullptr);
    EXPECT_TRUE(frame->isVisible());
    EXPECT_EQ(frame->geometry(), window->picGrid->rect());
    EXPECT_EQ(window->picGrid->children().last(), frame); // over the titles and the scroll bar
    window->ComboList->setFocus();
    EXPECT_FALSE(frame->isVisible());
}

TEST_F(GridKeys, OtherKeysAreLeftToTheWindow) {
    ShowHomeworkMode(*window);
    EXPECT_FALSE(PressGridKey(*window, Qt::Key_Tab, Qt::NoModifier));
    EXPECT_FALSE(PressGridKey(*window, Qt::Key_A, Qt::NoModifier));
    EXPECT_FALSE(PressGridKey(*window, Qt::Key_Down, Qt::AltModifier));
}

TEST_F(GridKeys, AClickTakesTheFrameWithIt) {
    AddAssignments(5);
    ShowHomeworkMode(*window);
    Press(Qt::Key_End);
    ClickRow(2);
    EXPECT_TRUE(CurrentRowIsFramed(2));
    EXPECT_FALSE(CurrentRowIsFramed(5));
    ClickRow(3);
    EXPECT_TRUE(CurrentRowIsFramed(3));
    EXPECT_FALSE(CurrentRowIsFramed(2));
}

TEST_F(GridKeys, TheMouseDoesWhatItDidBefore) {
    AddAssignments(5);
    ShowHomeworkMode(*window);
    Press(Qt::Key_End);
    ClickRow(2);
    EXPECT_EQ(Opened, QStringList{"Planovarium - Edit Assignment: A2"});
    EXPECT_EQ(window->CurrentRow, 2); // and the keys go on from there
}

TEST_F(GridKeys, AKeyToTheSideLeavesTheViewWhereItIs) {
    AddAssignments(60);
    ShowHomeworkMode(*window);
    window->VSGridScroll->setValue(20);
    Press(Qt::Key_Left);
    EXPECT_EQ(window->FirstRow, 20);
    EXPECT_EQ(window->CurrentRow, 0);
}

TEST_F(GridKeys, AKeyToTheSideLeavesTheDayAtTheMorning) {
    ShowEventMode(*window);
    Press(Qt::Key_Right);
    EXPECT_EQ(window->FirstRow, 11);
    EXPECT_EQ(window->CurrentHalfHour, -1);
}

TEST_F(GridKeys, TheLastHalfHourIsSeenWhole) {
    ShowEventMode(*window);
    window->resize(window->width(), window->height() + SlotHeight - window->picGrid->height() % SlotHeight);
    ASSERT_TRUE(WaitUntil([this] { return window->picGrid->height() % SlotHeight == 0; }));
    Press(Qt::Key_End);
    EXPECT_EQ(window->CurrentHalfHour, 47);
    EXPECT_TRUE(HalfHourIsFramed(window->RowsVisible));
    EXPECT_EQ(window->VSGridScroll->value(), 47 - window->RowsVisible + 1); // the bar ends where it did
    EXPECT_EQ(window->VSGridScroll->maximum(), window->VSGridScroll->value());
    Press(Qt::Key_Up);
    EXPECT_EQ(window->CurrentHalfHour, 46);
    EXPECT_EQ(window->FirstRow, window->VSGridScroll->value());
    EXPECT_TRUE(HalfHourIsFramed(window->RowsVisible));
}

TEST_F(GridKeys, TheLastHalfHourIsSeenWhereAllOthersFit) {
    ShowEventMode(*window);
    window->resize(1000, window->height() + 47 * SlotHeight - window->picGrid->height());
    ASSERT_TRUE(WaitUntil([this] { return window->RowsVisible == 47; }));
    Press(Qt::Key_End);
    EXPECT_TRUE(HalfHourIsFramed(47));
    EXPECT_FALSE(window->VSGridScroll->isEnabled());
    Press(Qt::Key_Home);
    EXPECT_TRUE(HalfHourIsFramed(1));
    EXPECT_EQ(window->FirstRow, 1);
}

TEST_F(GridKeys, TheMenuKeyShowsTheRowOfTheKeys) {
    AddAssignments(60);
    ShowHomeworkMode(*window);
    Press(Qt::Key_End);
    window->VSGridScroll->setValue(1);
    MenuAfter(Qt::Key_Menu);
    EXPECT_TRUE(CurrentRowIsFramed(window->RowsVisible));
    EXPECT_EQ(window->picGrid->mapFromGlobal(window->PopupPoint).y(),
              RowTop(window->RowsVisible + 1) / UnitsPerPixel);
}

TEST_F(GridKeys, TheMenuKeyShowsTheHalfHourOfTheKeys) {
    ShowEventMode(*window);
    Press(Qt::Key_Home);
    window->VSGridScroll->setValue(20);
    MenuAfter(Qt::Key_Menu);
    EXPECT_TRUE(HalfHourIsFramed(1));
    EXPECT_EQ(window->picGrid->mapFromGlobal(window->PopupPoint).y(), SlotHeight);
}

TEST_F(GridKeys, TheMenuKeyOpensTheMenuOfTheModeWhateverTheListHolds) {
    const std::array<std::pair<void (*)(frmMain&), QString>, ModeCount> modes{{
        {&ShowHomeworkMode, "Add new assignment..."},
        {&ShowStudySessionsMode, ""},
        {&ShowTaskMode, "Add new task..."},
        {&ShowReminderMode, ""},
        {&ShowEventMode, "Add new event..."},
        {&ShowCalendarMode, "Add new assignment..."},
    }};
    const auto expectMenus = [&](const char* state) {
        for (const auto& [enter, first] : modes) {
            enter(*window);
            if (first.isEmpty()) {
                Press(Qt::Key_Menu);
                EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << state;
                continue;
            }
            EXPECT_EQ(MenuAfter(Qt::Key_Menu).first(), first) << state;
            Press(Qt::Key_Down);
            EXPECT_EQ(MenuAfter(Qt::Key_Menu).first(), first) << state;
        }
    };
    expectMenus("no rows");
    AddAssignments(3);
    AddTaskRecord({});
    AddEventRecord({});
    expectMenus("rows");
    ResetStore();
    SetActiveTerm(*window, "");
    expectMenus("no term");
}
