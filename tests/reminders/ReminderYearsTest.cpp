// Ten years of a student's work through the real reminder window, held against a plain model. Ticks lie on a
// grid of 40 seconds, thinned to one in three hours on average. In between, items are snoozed and removed by
// the window's own controls, opened from it and closed again, edited, given up and replaced with their file
// saved as their flows save it, the term changes, the clock is set forth and back by up to five days, and the
// program is closed for up to two months and started again, with everything read back from the disk. With
// PLANOVARIUM_LONG_WALK set there are fifty such students in place of four.
#include "core/DateText.h"
#include "mainwindow/flows/PreferencesFlow.h"
#include "mainwindow/flows/TermFlow.h"
#include "persistence/modIO.h"
#include "reminders/RemindersTest.h"
#include "support/ReminderStudent.h"

#include <algorithm>
#include <cstdlib>

namespace {

using std::chrono::days;
using std::chrono::seconds;

constexpr seconds TickInterval{40};
constexpr int TicksLeftOut = 540;
constexpr int TicksPerAction = 25;
constexpr days SimulatedTime{3653};
#ifdef __SANITIZE_ADDRESS__
constexpr unsigned ShortSeeds = 1;
#else
constexpr unsigned ShortSeeds = 4;
#endif
constexpr unsigned LongSeeds = 50;

Texts Sorted(Texts texts) {
    std::ranges::sort(texts);
    return texts;
}

unsigned Seeds() {
    return std::getenv("PLANOVARIUM_LONG_WALK") == nullptr ? ShortSeeds : LongSeeds;
}

class ReminderYearsInTheWindow : public RemindersTest, public testing::WithParamInterface<unsigned> {
protected:
    void SetUp() override {
        RemindersTest::SetUp();
        simulation.random.seed(GetParam());
        Begin(simulation); // anew, over the window that is loaded
        WriteTermsAndClasses();
        WriteTasks();
        WriteEvents();
        SaveBothTerms();
        TakeHands();
        Restart();
    }

    void SaveBothTerms() {
        WriteAssignments();
        ChooseActiveTerm(ActiveTermID == 1 ? "Term 2" : "Term 1");
        Store.Assignment = simulation.closedTerms[ActiveTermID];
        WriteAssignments();
    }

    void TakeHands() {
        simulation.hands.snooze = [this](const ModelItem& item, const std::string& interval) {
            Select(NameOf(item));
            list->ComboReminderTime->setCurrentText(QString::fromStdString(interval));
            Click(list->ButtonReset);
            savedByWindow = true;
        };
        simulation.hands.remove = [this](const ModelItem& item) {
            Select(NameOf(item));
            Click(list->ButtonRemove);
            savedByWindow = true;
        };
        simulation.hands.changeTerm = [this](const std::string& term) {
            SetActiveTerm(*window, term);
            simulation.rows = RowsShown();
            std::erase_if(simulation.dismissed,
                          [](const std::string& row) { return row.starts_with("Homework"); });
            savedByWindow = true;
        };
        simulation.hands.restart = [this] { Restart(); };
    }

    // Closes the program and starts it again; the store is what the disk gives back.
    void Restart() {
        const PlannerStore before = Store;
        WritePreferences(*window);
        window.reset();
        ResetStore();
        LoadWindow();
        list = ReminderListWindow;
        list->TimerReminders->stop(); // the ticks come by the simulated clock
        window->TimerStatusBar->stop();
        NoteSaves();
        EXPECT_EQ(Store.TaskRecord.reminder_alarm, before.TaskRecord.reminder_alarm);
        EXPECT_EQ(Store.TaskRecord.reminder_list, before.TaskRecord.reminder_list);
        EXPECT_EQ(Store.TaskRecord.reminder, before.TaskRecord.reminder);
        EXPECT_EQ(Store.Assignment.reminderalarm, before.Assignment.reminderalarm);
        EXPECT_EQ(Store.Assignment.reminderlist, before.Assignment.reminderlist);
        EXPECT_EQ(Store.Assignment.reminder, before.Assignment.reminder);
        for (const auto& field : EventFields) {
            EXPECT_EQ(Store.EventRecord.*field.list, before.EventRecord.*field.list) << field.tag;
        }
        first = true;
    }

    // The rows as the model has them, in its words.
    Texts RowsShown() const {
        Texts rows = Standing();
        for (std::string& row : rows) {
            const int event = row.starts_with("Event ") ? ReminderPosition("Event", row.substr(6)) : 0;
            if (event > 0 && Store.EventRecord.recurrence.Item(event) != "None") {
                row += " " + Store.EventRecord.reminder_currentday.Item(event);
            }
        }
        return rows;
    }

    void TickAndCompare() {
        const auto fired = simulation.model.Tick(Now(), ActiveTermID);
        list->hide();
        QuietTick();
        Tick(); // what the first only passed over may uncover a snoozed occurrence
        simulation.rows = RowsShown();
        ASSERT_EQ(Sorted(simulation.rows), Sorted(simulation.model.Rows(ActiveTermID)));
        ASSERT_EQ(list->isVisible(), !fired.empty() || (first && !simulation.rows.empty()));
        ASSERT_EQ(list->RowCount, list->ReminderIds.Count());
        ASSERT_EQ(list->windowTitle().section(' ', 0, 0).toInt(), list->ReminderIds.Count());
        for (const std::string& row : simulation.rows) {
            ASSERT_FALSE(simulation.dismissed.contains(row)) << row;
        }
        first = first && simulation.rows.empty();
        firedInAll += static_cast<int>(fired.size());
    }

    // Opens a task or an assignment that stands, and cancels its editor.
    void LookAtARow() {
        for (const std::string& item : Standing()) {
            if (!item.starts_with("Event")) {
                Select(item);
                bool opened = false;
                WhenDialogOpens([&opened](QWidget* editor) {
                    opened = true;
                    editor->close();
                });
                Click(list->ButtonView);
                ASSERT_TRUE(WaitUntil([&opened] { return opened; })) << item;
                ++openedInAll;
                return;
            }
        }
    }

    void ActOnce() {
        savedByWindow = false;
        if (simulation.Chance(10)) {
            LookAtARow();
            return;
        }
        Act(simulation);
        if (!savedByWindow) { // as the flows of the editors save
            WriteTasks();
            WriteAssignments();
            WriteEvents();
        }
    }

    Simulation simulation{0};
    bool first = true;          // no row was seen since the start
    bool savedByWindow = false; // the action saved what it changed by itself
    int firedInAll = 0;
    int openedInAll = 0;
};

} // namespace

TEST_P(ReminderYearsInTheWindow, LoseNothingRepeatNothingAndStandOnTheDisk) {
    const Moment end = Now() + SimulatedTime;
    while (Now() < end && !HasFailure()) {
        Script.now += TickInterval * (1 + simulation.Below(TicksLeftOut));
        SCOPED_TRACE(StoredMoment(Now()));
        ASSERT_NO_FATAL_FAILURE(TickAndCompare());
        if (simulation.Below(TicksPerAction) == 0) {
            ASSERT_NO_FATAL_FAILURE(ActOnce());
        }
    }
    EXPECT_GT(firedInAll, 250);
    EXPECT_GT(openedInAll, 10);
}

INSTANTIATE_TEST_SUITE_P(Seeds, ReminderYearsInTheWindow, testing::Range(1U, 1U + Seeds()),
                         testing::PrintToStringParamName());
