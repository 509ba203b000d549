// The context menus: what opens where, and what their commands do.
#include "mainwindow/menus/PopupMenus.h"
#include "mainwindow/flows/ViewFlow.h"
#include "mainwindow/flows/WindowFlow.h"
#include "mainwindow/input/GridTest.h"
#include "mainwindow/modes/Modes.h"
#include "toolkit/grid/ListInput.h"

#include "core/RowLists.h"
#include "toolkit/Text.h"

namespace {

class PopupMenus : public GridTest {
protected:
    // The captions of the menu that the click opens; then the item of that caption is chosen, if there is
    // one.
    QStringList MenuOfClick(QPoint point, Qt::MouseButton button, const QString& chosen = {}) {
        QStringList captions;
        WhenPopupOpens([&](QMenu* menu) {
            captions = Captions(menu);
            Choose(menu, chosen);
        });
        Click(point, button);
        return captions;
    }

    static void Choose(QMenu* menu, const QString& caption) {
        for (QAction* action : menu->actions()) {
            if (WithoutMnemonics(action->text()) == caption) {
                menu->setActiveAction(action);
                QTest::keyClick(menu, Qt::Key_Return);
                return;
            }
        }
    }

    QPoint IconPoint(CalendarIcon icon) const {
        const auto selected = std::ranges::find(window->Month.CellSelected, true);
        const auto cell = static_cast<std::size_t>(selected - window->Month.CellSelected.begin());
        const UnitRect& rect = window->CalendarGrid.cell[cell].icon[static_cast<std::size_t>(icon)];
        return {(rect.left + rect.width / 2) / UnitsPerPixel, (rect.top + rect.height / 2) / UnitsPerPixel};
    }

    static constexpr QPoint Somewhere{200, 200};
};

const QStringList HomeworkMenu{"Add new assignment...",    "Customize colors...", "See GPA...",         "-",
                               "See this day's events...", "See all tasks...",    "See the Calendar..."};

} // namespace

TEST_F(PopupMenus, TheRightButtonOpensTheMenuOfTheHomeworkList) {
    AddAssignments(3);
    ShowHomeworkMode(*window);
    EXPECT_EQ(MenuOfClick(RowPoint(2), Qt::RightButton), HomeworkMenu);
    EXPECT_EQ(Opened, QStringList{});
    EXPECT_EQ(MenuOfClick(RowPoint(9), Qt::RightButton), HomeworkMenu); // past the rows
    EXPECT_EQ(window->picGrid->mapFromGlobal(window->PopupPoint), RowPoint(9));
}

TEST_F(PopupMenus, TheRightButtonOpensTheMenuOfTheTaskList) {
    ShowTaskMode(*window);
    EXPECT_EQ(MenuOfClick(Somewhere, Qt::RightButton),
              (QStringList{"Add new task...", "Customize colors...", "-", "See all assignments...",
                           "See this day's events...", "See the Calendar..."}));
}

TEST_F(PopupMenus, TheRightButtonOpensTheMenuOfTheEvents) {
    AddEventRecord({});
    ShowEventMode(*window);
    EXPECT_EQ(MenuOfClick(Somewhere, Qt::RightButton),
              (QStringList{"Add new event...", "Customize colors...", "-", "See all assignments...",
                           "See all tasks...", "See the Calendar..."}));
    EXPECT_EQ(window->EventClickedStartTime, "");
}

TEST_F(PopupMenus, TheRightButtonOpensTheMenuOfTheMonthAtItsDay) {
    ShowCalendarMode(*window);
    const UnitRect& area = window->CalendarGrid.cell[20].area;
    const QPoint point{area.left / UnitsPerPixel + 4, area.top / UnitsPerPixel + 4};
    EXPECT_EQ(MenuOfClick(point, Qt::RightButton),
              (QStringList{"Add new assignment...", "Add new event...", "Add new task...", "-",
                           "See all assignments...", "See this day's events...", "See all tasks..."}));
    EXPECT_EQ(window->SelectedDate, window->Month.CellDate[20]);
}

TEST_F(PopupMenus, TheLinesOfADayOpenItsMenusWithEitherButton) {
    AddAssignmentRecord({.desc = "Page 12"});
    AddTaskRecord({.desc = "Call"});
    AddEventRecord({.desc = "Chess"});
    ShowCalendarMode(*window);
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
        EXPECT_EQ(MenuOfClick(IconPoint(CalendarIcon::Homework), button),
                  (QStringList{"(01:00 left)  Algebra - Page 12 ...", "-", "Add new assignment...",
                               "See all assignments...", "See GPA..."}));
        EXPECT_EQ(window->SortColumn, 8);
        EXPECT_EQ(MenuOfClick(IconPoint(CalendarIcon::Tasks), button),
                  (QStringList{"(Not Done)  Call ...", "-", "Add new task...", "See all tasks..."}));
        EXPECT_EQ(window->SortColumn, 6);
        EXPECT_EQ(
            MenuOfClick(IconPoint(CalendarIcon::Events), button),
            (QStringList{"(09:00 AM)  Chess ...", "-", "Add new event...", "See this day's events..."}));
        EXPECT_EQ(window->SortColumn, 4);
    }
}

// The cell lies in another place of the month that it moves to, with other lines.
TEST_F(PopupMenus, TheLinesOfAGreyDayOpenItsMenusAsTheyWerePainted) {
    AddTaskRecord({.date = "2009/10/27", .desc = "Call"});
    AddEventRecord({.date = "2009/09/29", .desc = "Chess"}); // the cell's place in October
    ShowCalendarMode(*window);
    GoToDate(*window, Date{std::chrono::year{2009} / 11 / 10});
    const auto day = std::ranges::find(window->Month.CellDate, Date{std::chrono::year{2009} / 10 / 27});
    const CalendarCell cell =
        window->CalendarGrid.cell.at(static_cast<std::size_t>(day - window->Month.CellDate.begin()));
    const UnitRect& line = cell.icon[static_cast<std::size_t>(CalendarIcon::Tasks)];
    ASSERT_GT(line.width, 0);
    const QPoint point = QPoint(line.left + line.width / 2, line.top + line.height / 2) / UnitsPerPixel;
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
        GoToDate(*window, Date{std::chrono::year{2009} / 11 / 10});
        EXPECT_EQ(MenuOfClick(point, button),
                  (QStringList{"(Not Done)  Call ...", "-", "Add new task...", "See all tasks..."}));
        EXPECT_EQ(window->LabelTop->text(), "October 2009");
    }
}

TEST_F(PopupMenus, ADayMenuSortsUpwards) {
    AddAssignmentRecord({.desc = "Ready", .done = "True"});
    AddAssignmentRecord({.desc = "Open"});
    AddTaskRecord({.desc = "Ready", .done = "True"});
    AddTaskRecord({.desc = "Open"});
    AddEventRecord({.time = "11:00 AM", .desc = "Later"});
    AddEventRecord({.time = "09:00 AM", .desc = "Sooner"});
    ShowCalendarMode(*window);
    const std::array<QStringList, CalendarIcons> rows{{
        {"(01:00 left)  Algebra - Open ...", "(Done)  Algebra - Ready ..."},
        {"(Not Done)  Open ...", "(Done)  Ready ..."},
        {"(09:00 AM)  Sooner ...", "(11:00 AM)  Later ..."},
    }};
    for (const CalendarIcon icon : {CalendarIcon::Homework, CalendarIcon::Tasks, CalendarIcon::Events}) {
        window->SortDirection = Descending;
        EXPECT_EQ(MenuOfClick(IconPoint(icon), Qt::LeftButton).mid(0, 2),
                  rows[static_cast<std::size_t>(icon)]);
        EXPECT_EQ(window->SortDirection, Ascending);
    }
}

TEST_F(PopupMenus, ADayMenuIsOfTheDayClicked) {
    for (const char* date : {"2009/10/14", "2009/10/20"}) { // today and another day
        const std::string day = date;
        AddAssignmentRecord({.date = day, .desc = day});
        AddTaskRecord({.date = day, .desc = day});
        AddEventRecord({.date = day, .desc = day});
    }
    ShowCalendarMode(*window);
    GoToDate(*window, Date{std::chrono::year{2009} / 10 / 20});
    for (const CalendarIcon icon : {CalendarIcon::Homework, CalendarIcon::Tasks, CalendarIcon::Events}) {
        const QStringList captions = MenuOfClick(IconPoint(icon), Qt::LeftButton);
        EXPECT_TRUE(captions.at(0).endsWith("2009/10/20 ...")) << captions.at(0).toStdString();
        EXPECT_EQ(captions.at(1), "-");
    }
}

// While the list is shown, since entering its mode sorts it anew.
TEST_F(PopupMenus, TheHomeworkListTakesTheSortOfTheDayMenu) {
    AddAssignmentRecord({.desc = "B", .done = "True"});
    AddAssignmentRecord({.desc = "A"});
    AddAssignmentRecord({.desc = "C"});
    ShowHomeworkMode(*window);
    ColumnClicked(*window, 5);
    ColumnClicked(*window, 5);
    ASSERT_EQ(SortPicture(5), "picStashGridTitleDown.svg");
    ASSERT_EQ(Cell(ListKind::Homework, 1, 5).text, "C ");
    WhenPopupOpens([](QMenu*) {});
    ShowHomeworkDayMenu(*window);
    Refresh();
    EXPECT_EQ(SortPicture(5), "");
    EXPECT_EQ(SortPicture(8), "picStashGridTitleUp.svg");
    EXPECT_NE(Cell(ListKind::Homework, 1, 5).text, "C ");
}

TEST_F(PopupMenus, AShutdownWhileAMenuIsOpenRunsNoCommand) {
    ShowHomeworkMode(*window);
    WhenPopupOpens([](QMenu* menu) {
        ShuttingDown = true;
        Choose(menu, "See all tasks...");
    });
    Click(Somewhere, Qt::RightButton);
    EXPECT_EQ(window->CurrentMode(), Mode::Homework);
}

TEST_F(PopupMenus, ADayMenuWithoutItemsShowsWhatStandsBehindThem) {
    ShowCalendarMode(*window);
    const std::array<QStringList, CalendarIcons> menus{{
        {"-", "Add new assignment...", "See all assignments...", "See GPA..."},
        {"-", "Add new task...", "See all tasks..."},
        {"-", "Add new event...", "See this day's events..."},
    }};
    for (const CalendarIcon icon : {CalendarIcon::Homework, CalendarIcon::Tasks, CalendarIcon::Events}) {
        QStringList captions;
        WhenPopupOpens([&](QMenu* menu) { captions = Captions(menu); });
        ShowDayMenu(*window, icon);
        EXPECT_EQ(captions, menus[static_cast<std::size_t>(icon)]);
    }
}

TEST_F(PopupMenus, AnAmpersandIsShownAsItIs) {
    AddAssignmentRecord({.desc = "Q&A"});
    ShowCalendarMode(*window);
    EXPECT_EQ(MenuOfClick(IconPoint(CalendarIcon::Homework), Qt::LeftButton).first(),
              "(01:00 left)  Algebra - Q&A ...");
}

// A menu would set what stands behind a tab apart, as it does with keys.
TEST_F(PopupMenus, ATabInADescriptionIsShownAsABlank) {
    AddAssignmentRecord({.desc = "Page\t12"});
    ShowCalendarMode(*window);
    EXPECT_EQ(MenuOfClick(IconPoint(CalendarIcon::Homework), Qt::LeftButton).first(),
              "(01:00 left)  Algebra - Page 12 ...");
}

TEST_F(PopupMenus, CommandsChangeTheMode) {
    ShowHomeworkMode(*window);
    MenuOfClick(Somewhere, Qt::RightButton, "See all tasks...");
    EXPECT_EQ(window->CurrentMode(), Mode::Tasks);
    MenuOfClick(Somewhere, Qt::RightButton, "See this day's events...");
    EXPECT_EQ(window->CurrentMode(), Mode::Events);
    MenuOfClick(Somewhere, Qt::RightButton, "See the Calendar...");
    EXPECT_EQ(window->CurrentMode(), Mode::Calendar);
    MenuOfClick(Somewhere, Qt::RightButton, "See all assignments...");
    EXPECT_EQ(window->CurrentMode(), Mode::Homework);
}

TEST_F(PopupMenus, CommandsAskForNewItems) {
    ShowCalendarMode(*window);
    MenuOfClick({30, 60}, Qt::RightButton, "Add new assignment...");
    MenuOfClick({30, 60}, Qt::RightButton, "Add new task...");
    EXPECT_EQ(Opened, (QStringList{"Planovarium - New Assignment: ", "Planovarium - New Task: "}));
}

TEST_F(PopupMenus, RowsOfADayMenuOpenTheirRecords) {
    AddAssignmentRecord({.date = "2009/10/13", .desc = "Another day's"});
    AddTaskRecord({.date = "2009/10/13", .desc = "Another day's"});
    AddEventRecord({.date = "2009/10/13", .desc = "Another day's"});
    AddAssignments(3);
    AddTaskRecord({.desc = "Call"});
    AddEventRecord({.desc = "Chess"});
    ShowCalendarMode(*window);
    MenuOfClick(IconPoint(CalendarIcon::Homework), Qt::LeftButton, "(01:00 left)  Algebra - A2 ...");
    MenuOfClick(IconPoint(CalendarIcon::Tasks), Qt::LeftButton, "(Not Done)  Call ...");
    MenuOfClick(IconPoint(CalendarIcon::Events), Qt::LeftButton, "(09:00 AM)  Chess ...");
    EXPECT_EQ(Opened, (QStringList{"Planovarium - Edit Assignment: A2", "Planovarium - Edit Task: Call",
                                   "Planovarium - Edit Event: Chess"}));
}

TEST_F(PopupMenus, ANewEventOfAMenuBeginsAtNine) {
    ShowEventMode(*window);
    MenuOfClick(Somewhere, Qt::RightButton, "Add new event...");
    EXPECT_EQ(window->EventClickedStartTime, "9:00 AM");
}

TEST_F(PopupMenus, AMenuThatIsClosedDoesNothing) {
    ShowHomeworkMode(*window);
    MenuOfClick(Somewhere, Qt::RightButton);
    EXPECT_EQ(window->CurrentMode(), Mode::Homework);
}

TEST_F(PopupMenus, TheTrayMayBuildItsMenuWhileAnotherIsOpen) {
    ShowHomeworkMode(*window);
    WhenPopupOpens([this](QMenu* menu) {
        Script.trayEvents.menuWanted();
        Choose(menu, "See all tasks...");
    });
    Click(Somewhere, Qt::RightButton);
    EXPECT_EQ(window->CurrentMode(), Mode::Tasks);
}

// A tray may show a menu that it was given long ago.
TEST_F(PopupMenus, TheTraysItemsKeepTheirCommandsWhateverMenuCameLater) {
    ShowHomeworkMode(*window);
    HideWindows(*window);
    ASSERT_EQ(Script.trayEvents.menuWanted().at(2), "Open Planovarium...");
    window->show();
    MenuOfClick(Somewhere, Qt::RightButton, "See the Calendar...");
    HideWindows(*window);
    Script.trayEvents.itemChosen(2);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(PopupMenus, AVerbThatIsNoneDoesNothing) {
    ShowHomeworkMode(*window);
    for (const char* tag : {"homework", "homework ", "homework dance", "task see", "", "lecture 1"}) {
        window->mnuPopupItems = {{"An item", tag}};
        RunPopupCommand(*window, 0);
        EXPECT_EQ(window->CurrentMode(), Mode::Homework) << tag;
    }
}
