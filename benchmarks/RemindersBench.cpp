// The scan for reminders and the table of grades, at the greatest number of records that a planner can hold.
#include "core/DateText.h"
#include "planner/grades/Grades.h"
#include "support/Reminders.h"
#include "support/ScriptedPlatform.h"

#include <benchmark/benchmark.h>

namespace {

constexpr int GreatestRecords = 32766;
constexpr int ClassesOfATerm = 10;

void FillTerm() {
    ResetScript();
    ResetStore();
    Store.Term.id.Add("1");
    Store.Term.name.Add("Fall 2009");
    Store.Term.start.Add("2009/08/24");
    Store.Term.end.Add("2009/12/18");
    ChooseActiveTerm("Fall 2009");
    for (int id = 1; id <= ClassesOfATerm; ++id) {
        AddClassRecord({.id = std::to_string(id), .name = "Class " + std::to_string(id)});
    }
}

// A day of the year to come, every one of its numbers among them.
std::string DayToCome(int number) {
    return StoredDate(Today() + std::chrono::days{1 + number % 365});
}

// Every record armed: half of the events are series of every kind, and none of it is due.
void FillWithRemindersToCome() {
    FillTerm();
    for (int i = 1; i <= GreatestRecords; ++i) {
        const std::string day = DayToCome(i);
        AddTaskRecord(ArmedTask({.date = day}, day, "09:00 AM"));
        AddAssignmentRecord(ArmedAssignment({.date = day}, day, "09:00 AM"));
        AddArmedEvent({.date = day,
                       .type = i % 3 == 0 ? "TermID1-ClassID1" : "Work",
                       .recurrence = i % 2 == 0 ? "Day" : "None",
                       .repeat_daily = "TTTTTFF"});
    }
}

void CheckRemindersWithNothingDue(benchmark::State& state) {
    FillWithRemindersToCome();
    ReminderWindow window;
    for (auto _ : state) {
        window.Tick();
    }
    if (window.rows.ReminderIds.Count() != 0) {
        state.SkipWithError("a reminder was due");
    }
    ResetStore();
}

void CheckRemindersWithAllStanding(benchmark::State& state) {
    FillWithRemindersToCome();
    SetClock(2010, 12, 1);
    ReminderWindow window;
    window.Tick();
    for (auto _ : state) {
        window.Tick();
    }
    if (window.rows.ReminderIds.Count() != 3 * GreatestRecords) {
        state.SkipWithError("a reminder did not stand");
    }
    ResetStore();
}

void BuildGPATableOfOneTerm(benchmark::State& state) {
    FillTerm();
    for (int i = 1; i <= GreatestRecords; ++i) {
        AddAssignmentRecord({.class_ = std::to_string(1 + i % ClassesOfATerm),
                             .score = std::to_string(i % 100) + ".5",
                             .total = "100"});
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(BuildGPATable(true));
    }
    ResetStore();
}

BENCHMARK(CheckRemindersWithNothingDue)->Unit(benchmark::kMillisecond);
BENCHMARK(CheckRemindersWithAllStanding)->Unit(benchmark::kMillisecond);
BENCHMARK(BuildGPATableOfOneTerm)->Unit(benchmark::kMillisecond);

} // namespace
