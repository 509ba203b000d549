// The refresh: which steps run for which reason in which mode, told by what they leave behind.
#include "core/DateText.h"
#include "mainwindow/flows/ViewFlow.h"
#include "mainwindow/modes/ModeTables.h"
#include "mainwindow/modes/Modes.h"
#include "support/StoreRecords.h"
#include "support/WindowTest.h"

#include <algorithm>

using std::chrono::days;

namespace {

constexpr int October = 10;

// Before each refresh the window is made to show what no step leaves behind.
class Refresh : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        LoadWindow();
        selected = Today() + days{2};
        clicked = Today() + days{5}; // of the same month, so that nothing but an order makes its marks anew
    }

    void Enter(Mode mode) {
        const std::array<QAction*, ModeCount> items{window->MenuHomework,      window->MenuCalendar,
                                                    window->MenuStudySessions, window->MenuTasks,
                                                    window->MenuEvents,        window->MenuReminders};
        for (std::size_t i = 0; i < items.size(); ++i) {
            items[i]->setChecked(i == static_cast<std::size_t>(mode));
        }
    }

    void MakeStale() {
        window->SelectedDate = selected;
        window->ClickedDate = clicked;
        window->ShownMonth = October;
        window->ShownYear = 2009;
        window->Month.CellMarked[0] = true; // there is no record at all
        window->LabelMonth->setText("stale");
        window->picGrid->DrawText(0, 0, "stale", {}, 0);
        window->LabelTop->setText("stale");
        window->ButtonAlert[LateAlert]->show(); // there is no late homework
        window->TextBoxMinimum->setText("stale");
        window->TextBoxSuggested->setText("stale");
    }

    // The steps by what they have left behind, each once: the month of the selected day (C), of today (D) or
    // of the clicked day (b) is built, with its marks made anew (M); L the layout has cleared the grid; F the
    // fill has set the title; A the alerts, T the study time.
    std::string StepsOf(std::string_view reason) {
        MakeStale();
        window->RefreshFor(reason);
        EXPECT_EQ(window->RefreshReason, "None");
        std::string steps;
        if (window->LabelMonth->text() != "stale") {
            EXPECT_EQ(window->SelectedDate, window->ClickedDate);
            steps += window->ClickedDate == selected ? "C" : window->ClickedDate == clicked ? "b" : "D";
        } else {
            EXPECT_EQ(window->ClickedDate, clicked);
        }
        EXPECT_EQ(window->ShownMonth, October);
        steps += window->Month.CellMarked[0] ? "" : "M";
        steps += DrawnTexts(*window->picGrid).contains("stale") ? "" : "L";
        steps += window->LabelTop->text() == "stale" ? "" : "F";
        steps += window->ButtonAlert[LateAlert]->isHidden() ? "A" : "";
        const bool study = window->TextBoxMinimum->text() != "stale";
        EXPECT_EQ(study, window->TextBoxSuggested->text() != "stale");
        steps += study ? "T" : "";
        return steps;
    }

    // The cell of a day of the month shown.
    std::size_t CellOf(const std::string& date) const {
        const auto& cells = window->Month.CellDate;
        return static_cast<std::size_t>(std::ranges::find(cells, DateValue(date)) - cells.begin());
    }

    static constexpr std::size_t LateAlert = 3;

    Date selected{}, clicked{};
};

struct ReasonCase {
    const char* name;
    std::string_view reason;
    std::array<std::string, ModeCount> steps; // in the order of Mode
};

class RefreshReasons : public Refresh, public testing::WithParamInterface<ReasonCase> {};

} // namespace

TEST_P(RefreshReasons, RunTheirStepsInEachMode) {
    for (std::size_t i = 0; i < ModeCount; ++i) {
        Enter(static_cast<Mode>(i));
        EXPECT_EQ(StepsOf(GetParam().reason), GetParam().steps[i]) << "mode " << i;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Reasons, RefreshReasons,
    testing::Values(
        // Homework, Calendar, Study Sessions, Tasks, Events, Reminders
        ReasonCase{"ModeChange", ReasonModeChange, {"CMLFA", "CMLFA", "CMLF", "CMLF", "CMLFA", "DMLFT"}},
        ReasonCase{"ViewChange", ReasonViewChange, {"CMLF", "CMLF", "CMLF", "CMLF", "CMLF", "CMLFT"}},
        ReasonCase{"Calendar", ReasonCalendar, {"bLF", "bLF", "bLF", "bLF", "bLF", "bMLFT"}},
        ReasonCase{"StartDayofWeek", ReasonStartDayOfWeek, {"CM", "CMLF", "CM", "CM", "CM", "CM"}},
        ReasonCase{"NewRecord", ReasonNewRecord, {"CMLFA", "CMLFA", "CMLF", "CMLF", "CMLFA", "CMLFT"}},
        ReasonCase{"NewTerm", ReasonNewTerm, {"CMLFA", "CMLFA", "CMLF", "", "", ""}},
        ReasonCase{"ColorChange", ReasonColorChange, {"LF", "LF", "LF", "LF", "LF", "LF"}},
        ReasonCase{"Resize", ReasonResize, {"LF", "LF", "LF", "LF", "LF", "LF"}}),
    [](const auto& each) { return each.param.name; });

TEST_F(Refresh, AnyOtherReasonIsOnlyReset) {
    Enter(Mode::Homework);
    EXPECT_EQ(StepsOf("Something"), "");
}

TEST_F(Refresh, NothingRunsWhileNoModeIsChecked) {
    Enter(Mode::None);
    EXPECT_EQ(StepsOf(ReasonNewRecord), "");
}

TEST_F(Refresh, StudySessionsAndRemindersCountAsCalendarWhileItIsChecked) {
    ShowStudySessionsMode(*window);
    EXPECT_EQ(StepsOf(ReasonNewRecord), "CMLFA");
    ShowCalendarMode(*window);
    ShowReminderMode(*window);
    EXPECT_EQ(StepsOf(ReasonNewRecord), "CMLFA");
}

TEST_F(Refresh, RemindersShowTodayWhateverWasSelected) {
    ShowTaskMode(*window);
    GoToDate(*window, Today() + days{17});
    ShowReminderMode(*window);
    EXPECT_EQ(window->ClickedDate, Today());
    EXPECT_EQ(window->SelectedDate, Today());
}

TEST_F(Refresh, AnotherMonthIsMarkedAnewWithoutAnOrder) {
    ShowTaskMode(*window);
    AddTaskRecord({.date = "2009/11/20"});
    GoToDate(*window, Date{std::chrono::year{2009} / 11 / 2});
    EXPECT_TRUE(window->Month.CellMarked[CellOf("2009/11/20")]);
}

TEST_F(Refresh, RemindersAreMarkedFromTheListThatTheSameRefreshHasFilled) {
    ShowTaskMode(*window); // entered from Calendar the reminders would count as Calendar
    ShowReminderMode(*window);
    AddTaskRecord({.date = "2009/10/12"}); // two days late
    window->RefreshFor(ReasonNewRecord);
    EXPECT_TRUE(window->Month.CellMarked[CellOf("2009/10/12")]);
}

TEST_F(Refresh, StudyTimeIsThatOfTheDayShown) {
    ShowTaskMode(*window);
    ShowReminderMode(*window);
    AddAssignmentRecord({.date = "2009/10/20", .est_time = "02 : 00"});
    GoToDate(*window, Date{std::chrono::year{2009} / 10 / 14});
    EXPECT_EQ(window->TextBoxMinimum->text(), "00:00");
    EXPECT_EQ(window->TextBoxSuggested->text(), "00:20");
    GoToDate(*window, Date{std::chrono::year{2009} / 10 / 19});
    EXPECT_EQ(window->TextBoxMinimum->text(), "02:00");
    EXPECT_EQ(window->TextBoxSuggested->text(), "02:00");
}

TEST_F(Refresh, CalendarPaintsTheMonthAsItIsWhenTheModeChanges) {
    AddTaskRecord({.date = "2009/10/20"});
    ShowHomeworkMode(*window);
    EXPECT_EQ(DrawnTexts(*window->picGrid).count("0 / 1"), 0);
    ShowCalendarMode(*window);
    EXPECT_EQ(DrawnTexts(*window->picGrid).count("0 / 1"), 1);
}

TEST_F(Refresh, DayScheduleOpensAtTheMorning) {
    ShowEventMode(*window);
    EXPECT_EQ(window->VSGridScroll->value(), 11);
    EXPECT_EQ(window->FirstRow, 11);
}

TEST_F(Refresh, DayScheduleStaysWhereItIsBelowTheMorning) {
    ShowEventMode(*window);
    window->VSGridScroll->setValue(15);
    window->RefreshFor(ReasonModeChange);
    EXPECT_EQ(window->VSGridScroll->value(), 15);
    window->VSGridScroll->setValue(3);
    window->RefreshFor(ReasonNewRecord);
    EXPECT_EQ(window->VSGridScroll->value(), 3) << "only a mode change scrolls";
}

TEST_F(Refresh, ResizeOfTheWindowLaysTheListOutAgainAndBuildsNoMonth) {
    ShowTaskMode(*window);
    MakeStale();
    window->resize(window->width() + 100, window->height() + 60);
    ASSERT_TRUE(WaitUntil([this] { return window->LabelTop->text() != "stale"; }));
    EXPECT_FALSE(DrawnTexts(*window->picGrid).contains("stale"));
    EXPECT_EQ(window->LabelMonth->text(), "stale");
    EXPECT_EQ(window->ClickedDate, clicked);
}

TEST_F(Refresh, ResizeDuringARefreshIsLeftOut) {
    ShowTaskMode(*window);
    MakeStale();
    window->RefreshReason = ReasonNewRecord;
    window->resize(window->width() + 100, window->height());
    QTest::qWait(0);
    EXPECT_EQ(window->LabelTop->text(), "stale");
    EXPECT_EQ(window->RefreshReason, ReasonNewRecord);
}

TEST_F(Refresh, ResizeDuringAModeEntryIsLeftOut) {
    ShowTaskMode(*window);
    MakeStale();
    window->ChangingMode = true;
    window->resize(window->width() + 100, window->height());
    QTest::qWait(0);
    EXPECT_EQ(window->LabelTop->text(), "stale");
    EXPECT_EQ(window->RefreshReason, "None");
}

TEST_F(Refresh, WindowIsNeverSmallerThanItsDesign) {
    EXPECT_EQ(window->minimumSize(), QSize(780, 575));
    for (const QSize& wanted : {QSize(100, 100), QSize(779, 1000), QSize(1000, 574)}) {
        window->resize(wanted);
        EXPECT_EQ(window->size(), wanted.expandedTo({780, 575}));
    }
}

TEST_F(Refresh, MinimizedWindowIsLaidOutOnlyWhenItComesBack) {
    ShowTaskMode(*window);
    window->showMinimized();
    QCoreApplication::processEvents();
    MakeStale();
    window->RefreshAfterResize();
    EXPECT_EQ(window->LabelTop->text(), "stale");
    window->showNormal();
    ASSERT_TRUE(WaitUntil([this] { return window->LabelTop->text() != "stale"; }));
}
