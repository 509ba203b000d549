// The tick of the reminder window at the greatest size of a planner: scan, rows and paint.
#include "ReminderBench.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "planner/dates/DateHelpers.h"
#include "reminders/frmReminders.h"
#include "support/Reminders.h"
#include "support/ScriptedPlatform.h"

#include <QImage>

#include <benchmark/benchmark.h>

namespace {

constexpr int GreatestRecords = 32766;

enum class Standing { Nothing, AThousandFiring, EveryTask };

// How many of the tasks, from the first on, are due.
int DueOf(Standing standing) {
    switch (standing) {
    case Standing::Nothing:
        return 0;
    case Standing::AThousandFiring:
        return 1000;
    case Standing::EveryTask:
        return GreatestRecords;
    }
    return 0;
}

// Every record armed for some day of the year to come, and so many tasks for yesterday.
void FillStore(int due) {
    const std::string yesterday = StoredDate(Today() - std::chrono::days{1});
    Store.TaskRecord = {};
    Store.Assignment = {};
    Store.EventRecord = {};
    NextTaskID = NextAssignmentID = NextEventID = 1;
    for (int i = 1; i <= GreatestRecords; ++i) {
        const std::string day = StoredDate(Today() + std::chrono::days{1 + i % 365});
        AddTaskRecord(ArmedTask({.date = day}, i <= due ? yesterday : day, "09:00 AM"));
        AddAssignmentRecord(ArmedAssignment({.date = day}, day, "09:00 AM"));
        AddArmedEvent({.date = day, .recurrence = i % 2 == 0 ? "Day" : "None", .repeat_daily = "TTTTTFF"});
    }
}

// Where reminders are to fire, they are armed anew before each tick.
void TickOfReminders(benchmark::State& state, Standing standing) {
    const PlannerStore kept = Store;
    FillStore(DueOf(standing));
    const PlannerStore armed = Store;
    frmReminders list;
    list.ShowByHand();
    QImage image(list.size(), QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        if (standing == Standing::AThousandFiring) {
            state.PauseTiming();
            Store = armed;
            state.ResumeTiming();
        }
        CheckReminders(Now(), list, list);
        list.DrawReminderGrid();
        list.SetReminderButtons();
        list.render(&image);
    }
    if (list.ReminderIds.Count() != DueOf(standing)) {
        state.SkipWithError("other reminders stand than were due");
    }
    Store = kept;
}

} // namespace

void RegisterReminderBenchmarks() {
    const auto add = [](const char* name, Standing standing) {
        benchmark::RegisterBenchmark(name, [standing](benchmark::State& state) {
            TickOfReminders(state, standing);
        })->Unit(benchmark::kMillisecond);
    };
    add("Tick/NothingDue", Standing::Nothing);
    add("Tick/1000Due", Standing::AThousandFiring);
    add("Tick/32766Standing", Standing::EveryTask);
}
