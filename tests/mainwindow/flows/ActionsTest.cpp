// Views say what is asked of them, and change nothing by themselves.
#include "mainwindow/flows/Actions.h"
#include "core/Module1.h"
#include "mainwindow/frmMain.h"
#include "support/WindowTest.h"

using namespace std::chrono_literals;

namespace {

// What the window holds that any of the actions would change.
struct Held {
    Mode mode;
    Date clickedDate;
    std::string startDayOfWeek, autoStart;
    bool timerRuns, timerShowsSeconds;
    double banked;

    friend bool operator==(const Held&, const Held&) = default;
};

// The window with nobody who acts.
class Views : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        LoadWindow();
        window->StudyTimer.TimerBanked = 60;
        QObject::disconnect(window.get(), &frmMain::Asked, nullptr, nullptr);
        QObject::connect(window.get(), &frmMain::Asked, window.get(),
                         [this](const ViewAction& action) { asked.push_back(action); });
        held = HeldNow();
    }

    Held HeldNow() const {
        return {window->CurrentMode(),         window->ClickedDate,
                window->StartDayOfWeek,        window->AutoStart,
                window->Timer1->isActive(),    window->StudyTimer.ShowSeconds,
                window->StudyTimer.TimerBanked};
    }

    // The one action that was asked for; nothing has changed by it.
    ViewAction Said() {
        EXPECT_EQ(asked.size(), 1);
        EXPECT_EQ(HeldNow(), held);
        const ViewAction said = asked.empty() ? ViewAction{} : asked.back();
        asked.clear();
        return said;
    }

    ViewAction SaidBy(QWidget* pressed) {
        QTest::mouseClick(pressed, Qt::LeftButton);
        return Said();
    }

    ViewAction SaidBy(QAction* item) {
        item->trigger();
        return Said();
    }

    std::vector<ViewAction> asked;
    Held held{};
};

} // namespace

TEST_F(Views, OfTheStudyTimerSayWhichButtonWasPressed) {
    EXPECT_EQ(SaidBy(window->ButtonStart).kind, ViewActionKind::StartOrPauseTimer);
    EXPECT_EQ(SaidBy(window->ButtonReset).kind, ViewActionKind::ResetTimer);
    EXPECT_EQ(SaidBy(window->ButtonSeconds).kind, ViewActionKind::TurnTimerSeconds);
}

TEST_F(Views, OfTheStartSayTheWord) {
    const ViewAction said = SaidBy(window->MenuStartFull);
    EXPECT_EQ(said.kind, ViewActionKind::ChooseAutoStart);
    EXPECT_EQ(said.words, "Full");
}

TEST_F(Views, OfTheCalendarSayTheDateAndTheDay) {
    const ViewAction date = SaidBy(window->LabelCalDate[20]);
    EXPECT_EQ(date.kind, ViewActionKind::GoToDate);
    EXPECT_EQ(date.date, window->Month.CellDate[20]);
    const ViewAction day = SaidBy(window->MenuStartSat);
    EXPECT_EQ(day.kind, ViewActionKind::ChooseStartDay);
    EXPECT_EQ(day.words, "Saturday");
}

TEST_F(Views, OfTheMonthSayTheDate) {
    const UnitRect& cell = window->CalendarGrid.cell[20].area;
    QTest::mouseClick(window->picGrid, Qt::LeftButton, {},
                      {(cell.left + cell.width - 60) / UnitsPerPixel, (cell.top + 60) / UnitsPerPixel});
    const ViewAction said = Said();
    EXPECT_EQ(said.kind, ViewActionKind::GoToDate);
    EXPECT_EQ(said.date, window->Month.CellDate[20]);
}

TEST_F(Views, OfTheModesAndCommandsSayWhichIsMeant) {
    const ViewAction mode = SaidBy(window->LabelBarTasks);
    EXPECT_EQ(mode.kind, ViewActionKind::ChooseMode);
    EXPECT_EQ(mode.mode, Mode::Tasks);
    const ViewAction command = SaidBy(window->MenuNewTask);
    EXPECT_EQ(command.kind, ViewActionKind::RunCommand);
    EXPECT_EQ(command.command, Command::NewTask);
}

TEST_F(Views, AreActedOnByOneProcedure) {
    Act(*window, {.kind = ViewActionKind::TurnTimerSeconds});
    EXPECT_FALSE(window->StudyTimer.ShowSeconds);
    Act(*window, {.kind = ViewActionKind::ChooseMode, .mode = Mode::Tasks});
    EXPECT_EQ(window->CurrentMode(), Mode::Tasks);
    Act(*window, {.kind = ViewActionKind::GoToDate, .date = Date{2009y / 10 / 14}});
    EXPECT_EQ(window->ClickedDate, Date{2009y / 10 / 14});
    Act(*window, {.kind = ViewActionKind::None});
    Act(*window, {.kind = ViewActionKind::RunCommand, .command = Command::None});
    EXPECT_EQ(window->CurrentMode(), Mode::Tasks);
}
