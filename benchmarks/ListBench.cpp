// The selection and the sort of the lists at the greatest size of a planner.
#include "core/DateText.h"
#include "core/RowLists.h"
#include "planner/dates/DateHelpers.h"
#include "planner/lists/EventSelection.h"
#include "planner/lists/HomeworkSelection.h"
#include "planner/lists/ReminderSelection.h"
#include "planner/lists/RowSorts.h"
#include "planner/lists/TaskSelection.h"
#include "support/EventRecords.h"
#include "support/ScriptedPlatform.h"
#include "support/StoreRecords.h"

#include <benchmark/benchmark.h>
#include <random>

using namespace std::chrono_literals;

namespace {

constexpr Date FirstDay{2009y / 8 / 24};
constexpr int Records = 32766;
constexpr int Classes = 60;

constexpr std::array<const char*, 7> Types{"Assignment", "Test",   "Quiz",   "Reading",
                                           "Study",      "Report", "Project"};
constexpr std::array<const char*, 6> Openings{"Read chapter ", "Problem set ", "Essay, part ",
                                              "Lab report ",   "Worksheet ",   "Vocabulary, unit "};

struct RandomTexts {
    std::mt19937 random{20091014};

    int Below(int limit) { return std::uniform_int_distribution<int>{0, limit - 1}(random); }

    std::string Date() { return StoredDate(FirstDay + std::chrono::days{Below(120)}); }

    std::string Boolean(int percent) { return Below(100) < percent ? "True" : "False"; }

    std::string Description() {
        return Openings[static_cast<std::size_t>(Below(6))] + std::to_string(Below(400)) + ", pages " +
               std::to_string(Below(900)) + " and following";
    }
};

void StoreClasses() {
    for (int i = 1; i <= Classes; ++i) {
        AddClassRecord({.id = std::to_string(i),
                        .name = "Introduction to Subject " + std::to_string(i * 37 % Classes),
                        .backcolor = "10732766"});
    }
}

void StoreHomework() {
    ResetScript();
    ResetStore();
    StoreClasses();
    RandomTexts texts;
    for (int i = 0; i < Records; ++i) {
        AddAssignmentRecord({.class_ = std::to_string(texts.Below(Classes) + 1),
                             .date = texts.Date(),
                             .desc = texts.Description(),
                             .type = Types[static_cast<std::size_t>(texts.Below(7))],
                             .priority = texts.Boolean(20),
                             .est_time = MinutesToClock(texts.Below(40) * 15),
                             .time_left = MinutesToClock(texts.Below(40) * 15),
                             .done = texts.Boolean(30),
                             .grade = texts.Below(3) == 0 ? std::to_string(texts.Below(101)) + "%" : "",
                             .reminder = texts.Boolean(10)});
    }
}

void StoreTasks() {
    ResetScript();
    ResetStore();
    RandomTexts texts;
    constexpr std::array<const char*, 4> priorities{"None", "Low", "Medium", "High"};
    constexpr std::array<const char*, 4> types{"None", "School", "Custom3", "Work"};
    for (int i = 0; i < Records; ++i) {
        AddTaskRecord({.date = texts.Date(),
                       .desc = texts.Description(),
                       .date_exists = texts.Boolean(70),
                       .type = types[static_cast<std::size_t>(texts.Below(4))],
                       .priority = priorities[static_cast<std::size_t>(texts.Below(4))],
                       .done = texts.Boolean(30),
                       .reminder = texts.Boolean(10)});
    }
}

void StoreEvents() {
    ResetScript();
    ResetStore();
    StoreClasses();
    RandomTexts texts;
    constexpr std::array<const char*, 5> types{"None", "Study Time", "Class", "TermID1-ClassID7", "Birthday"};
    for (int i = 0; i < Records; ++i) {
        AddEventRecord({.date = texts.Date(),
                        .duration = "1.5 Hours",
                        .desc = texts.Description(),
                        .type = types[static_cast<std::size_t>(texts.Below(5))],
                        .recurrence = i % 3 == 0 ? "Day" : "None",
                        .repeat_daily = "TFTFTFF"});
    }
    ActiveTermID = 1;
}

// The argument is the column.
void HomeworkListByColumn(benchmark::State& state) {
    StoreHomework();
    const ListFilter filter{"All", "Term", FirstDay};
    for (auto _ : state) {
        SelectHomeworkRows(filter);
        SortHomeworkRows({static_cast<int>(state.range(0)), Ascending});
        benchmark::DoNotOptimize(HomeworkRows.Count());
    }
}

BENCHMARK(HomeworkListByColumn)->DenseRange(0, 9)->Unit(benchmark::kMillisecond);

void HomeworkListOfADay(benchmark::State& state) {
    StoreHomework();
    const ListFilter filter{"All", "Day", FirstDay};
    for (auto _ : state) {
        SelectHomeworkRows(filter);
        SortHomeworkRows({static_cast<int>(HomeworkColumn::Due), Ascending});
        benchmark::DoNotOptimize(HomeworkRows.Count());
    }
}

BENCHMARK(HomeworkListOfADay)->Unit(benchmark::kMillisecond);

void TaskListByColumn(benchmark::State& state) {
    StoreTasks();
    const ListFilter filter{"All", "All", FirstDay};
    for (auto _ : state) {
        SelectTasks(FirstDay, filter);
        SortTaskRows({static_cast<int>(state.range(0)), Ascending});
        benchmark::DoNotOptimize(CountTasks(FirstDay));
    }
}

BENCHMARK(TaskListByColumn)->DenseRange(0, 6)->Unit(benchmark::kMillisecond);

void EventsOfADay(benchmark::State& state) {
    StoreEvents();
    const ListFilter filter{"All", "Month", FirstDay};
    for (auto _ : state) {
        SelectEventsForDay(FirstDay + std::chrono::days{21}, filter);
        SortEventRowsByDuration(Ascending);
        benchmark::DoNotOptimize(EventRows.Count());
    }
}

BENCHMARK(EventsOfADay)->Unit(benchmark::kMillisecond);

void ReminderList(benchmark::State& state) {
    StoreHomework();
    const ListFilter filter{"All", "Today", FirstDay};
    for (auto _ : state) {
        SelectReminders(FirstDay + std::chrono::days{21}, filter);
        SortReminderRows({static_cast<int>(ReminderColumn::When), Ascending});
        benchmark::DoNotOptimize(ReminderRows.Count());
    }
}

BENCHMARK(ReminderList)->Unit(benchmark::kMillisecond);

} // namespace
