// The study alert and the panel of today's study time over a full term.
#include "core/DateText.h"
#include "planner/dates/DateHelpers.h"
#include "planner/lists/DayTotals.h"
#include "planner/recurrence/EventOccursOn.h"
#include "planner/study/StudyTimeAlert.h"
#include "planner/study/StudyTimeToday.h"
#include "support/EventRecords.h"
#include "support/ScriptedPlatform.h"
#include "support/StoreRecords.h"

#include <benchmark/benchmark.h>

using namespace std::chrono_literals;

namespace {

constexpr Date FirstDay{2009y / 8 / 24};
constexpr int TermDays = 120;
constexpr int Assignments = 10000;
constexpr int StudySeries = 1000;

void StoreHomework() {
    for (int i = 0; i < Assignments; ++i) {
        AddAssignmentRecord({.date = StoredDate(FirstDay + std::chrono::days{i * 7919 % TermDays}),
                             .desc = "Read chapter " + std::to_string(i),
                             .time_left = i % 3 == 0 ? "00 : 45" : "01 : 30",
                             .done = i % 4 == 0 ? "True" : "False"});
    }
}

// Weekly sessions of every pattern with an end, two exceptions now and then, and a monthly one among a
// hundred.
void StoreStudy() {
    constexpr std::array<const char*, 4> patterns{"TFTFTFF", "FTFTFFF", "TTTTTFF", "FFFFFTT"};
    for (int i = 0; i < StudySeries; ++i) {
        EventTexts event{.date = StoredDate(FirstDay + std::chrono::days{i % 30}),
                         .time = "07:00 PM",
                         .duration = i % 5 == 0 ? "1.5 Hours" : "30 Minutes",
                         .type = "Study Time",
                         .recurrence = i % 100 == 0 ? "Month" : "Day"};
        event.exceptions = i % 8 == 0 ? "2009/09/16 2009/10/07" : "";
        event.same_date = "True";
        event.repeat_daily = patterns[static_cast<std::size_t>(i) % patterns.size()];
        event.end = i % 3 == 0 ? "True" : "False";
        event.end_date = StoredDate(FirstDay + std::chrono::days{TermDays});
        AddEventRecord(event);
    }
}

void StoreTerm() {
    ResetScript();
    ResetStore();
    SetClock(2009, 8, 24, 9, 0);
    StoreHomework();
    StoreStudy();
}

void AlertOfATerm(benchmark::State& state) {
    StoreTerm();
    for (auto _ : state) {
        benchmark::DoNotOptimize(StudyTimeAlertCheck());
    }
}

BENCHMARK(AlertOfATerm)->Unit(benchmark::kMillisecond);

void AlertOfATermWithHomeworkDueIn3100(benchmark::State& state) {
    StoreTerm();
    AddAssignmentRecord({.date = "3100/12/31"});
    for (auto _ : state) {
        benchmark::DoNotOptimize(StudyTimeAlertCheck());
    }
}

BENCHMARK(AlertOfATermWithHomeworkDueIn3100)->Unit(benchmark::kMillisecond);

void StudyTimeOfToday(benchmark::State& state) {
    StoreTerm();
    for (auto _ : state) {
        benchmark::DoNotOptimize(StudyTimeToday(FirstDay));
    }
}

BENCHMARK(StudyTimeOfToday)->Unit(benchmark::kMillisecond);

void HomeworkTotalsOfADay(benchmark::State& state) {
    StoreTerm();
    for (auto _ : state) {
        benchmark::DoNotOptimize(HomeworkDayTotals(FirstDay));
    }
}

BENCHMARK(HomeworkTotalsOfADay)->Unit(benchmark::kMillisecond);

void EventTotalsOfADay(benchmark::State& state) {
    StoreTerm();
    for (auto _ : state) {
        benchmark::DoNotOptimize(EventDayTotals(EventsOn(FirstDay)));
    }
}

BENCHMARK(EventTotalsOfADay)->Unit(benchmark::kMillisecond);

} // namespace
