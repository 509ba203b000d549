// The events of a month's 42 days out of 10,000 series, by the planner and by two calendar libraries on the
// same rules. The libraries find their rules parsed; the planner starts from the texts of the store, as at
// each refresh.
#include "planner/dates/DateHelpers.h"
#include "planner/lists/EventMarks.h"
#include "planner/recurrence/EventOccursOn.h"
#include "planner/recurrence/EventWalk.h"
#include "support/RfcSeries.h"
#include "support/StoreRecords.h"

#include <KCalendarCore/ICalFormat>
#include <KCalendarCore/RecurrenceRule>
#include <QTimeZone>
#include <benchmark/benchmark.h>
#include <libical/ical.h>

#include <algorithm>
#include <array>
#include <memory>
#include <vector>

using namespace std::chrono_literals;

namespace {

constexpr int SeriesCount = 10000;
constexpr int GreatestRecordCount = 32766;
constexpr Date Earliest{2004y / 1 / 1};
constexpr Date FirstCell{2009y / 9 / 27}; // all series have begun by then, and some have ended
constexpr Date LastCell = FirstCell + std::chrono::days{MonthCells - 1};

using CellCounts = std::array<int, MonthCells>;

std::vector<RfcSeries> SampleSeries(int count) {
    std::mt19937 random{42};
    std::vector<RfcSeries> all(static_cast<std::size_t>(count));
    std::ranges::generate(all, [&] { return RandomRfcSeries(random, Earliest); });
    return all;
}

// A store of that many series, none of them a class meeting.
void FillStore(int count) {
    Store = {};
    NextEventID = 1;
    for (const RfcSeries& series : SampleSeries(count)) {
        AddEventRecord(series.event);
    }
}

ListFilter AllEvents() {
    ListFilter filter;
    filter.comboList = "All";
    return filter;
}

CellCounts PlannerCounts() {
    FillStore(SeriesCount);
    return MarkEventDays(FirstCell, AllEvents()).count;
}

// Ends the benchmark of a library that does not find the same events as the planner.
void ExpectPlannerCounts(benchmark::State& state, const CellCounts& counts) {
    if (counts != PlannerCounts()) {
        state.SkipWithError("The events found are not those of the planner");
    }
}

icaltimetype IcalDate(Date date) {
    const std::chrono::year_month_day parts{date};
    icaltimetype time = icaltime_null_time();
    time.is_date = 1;
    time.year = static_cast<int>(parts.year());
    time.month = static_cast<int>(static_cast<unsigned>(parts.month()));
    time.day = static_cast<int>(static_cast<unsigned>(parts.day()));
    return time;
}

struct IcalSeries {
    icaltimetype first;
    icalrecurrencetype rule;
};

void CountWithIcal(const IcalSeries& series, CellCounts& counts) {
    icalrecur_iterator* iterator = icalrecur_iterator_new(series.rule, series.first);
    icalrecur_iterator_set_start(iterator, IcalDate(FirstCell));
    for (icaltimetype time = icalrecur_iterator_next(iterator); !icaltime_is_null_time(time);
         time = icalrecur_iterator_next(iterator)) {
        const Date date{std::chrono::year{time.year} / time.month / time.day};
        if (date > LastCell) {
            break;
        }
        if (date >= FirstCell) {
            ++counts[static_cast<std::size_t>(DayDiff(FirstCell, date))];
        }
    }
    icalrecur_iterator_free(iterator);
}

QDateTime QtDate(Date date) {
    const std::chrono::year_month_day parts{date};
    const QDate day(static_cast<int>(parts.year()), static_cast<int>(static_cast<unsigned>(parts.month())),
                    static_cast<int>(static_cast<unsigned>(parts.day())));
    return {day, QTime(0, 0), Qt::UTC};
}

} // namespace

static void MarksOfAMonth(benchmark::State& state) {
    FillStore(SeriesCount);
    const ListFilter filter = AllEvents();
    for (auto _ : state) {
        benchmark::DoNotOptimize(MarkEventDays(FirstCell, filter));
    }
}

BENCHMARK(MarksOfAMonth)->Unit(benchmark::kMillisecond);

// Each series a meeting of one of ten terms' 60 classes.
static void MarksOfAMonthOfClassMeetings(benchmark::State& state) {
    constexpr int Classes = 60;
    constexpr int ClassesInTerm = 6;
    FillStore(SeriesCount);
    for (int id = 1; id <= Classes; ++id) {
        AddClassRecord({.id = std::to_string(id), .term = std::to_string((id - 1) / ClassesInTerm + 1)});
    }
    ActiveTermID = Classes / ClassesInTerm;
    for (int index = 1; index <= SeriesCount; ++index) {
        const int id = index % ClassesInTerm + Classes - ClassesInTerm + 1;
        Store.EventRecord.type.Replace(index, "TermID" + std::to_string(ActiveTermID) + "-ClassID" +
                                                  std::to_string(id));
    }
    const ListFilter filter = AllEvents();
    for (auto _ : state) {
        benchmark::DoNotOptimize(MarkEventDays(FirstCell, filter));
    }
}

BENCHMARK(MarksOfAMonthOfClassMeetings)->Unit(benchmark::kMillisecond);

static void MarksOfAMonthByLibical(benchmark::State& state) {
    std::vector<IcalSeries> all;
    for (const RfcSeries& series : SampleSeries(SeriesCount)) {
        all.push_back({IcalDate(series.first), icalrecurrencetype_from_string(series.rule.c_str())});
    }
    CellCounts counts{};
    for (auto _ : state) {
        counts = {};
        for (const IcalSeries& series : all) {
            CountWithIcal(series, counts);
        }
        benchmark::DoNotOptimize(counts);
    }
    ExpectPlannerCounts(state, counts);
}

BENCHMARK(MarksOfAMonthByLibical)->Unit(benchmark::kMillisecond);

static void MarksOfAMonthByKCalendarCore(benchmark::State& state) {
    std::vector<std::unique_ptr<KCalendarCore::RecurrenceRule>> all;
    KCalendarCore::ICalFormat format;
    for (const RfcSeries& series : SampleSeries(SeriesCount)) {
        auto rule = std::make_unique<KCalendarCore::RecurrenceRule>();
        if (!format.fromString(rule.get(), QString::fromStdString(series.rule))) {
            state.SkipWithError("A rule is not understood");
        }
        rule->setStartDt(QtDate(series.first));
        rule->setAllDay(true);
        all.push_back(std::move(rule));
    }
    CellCounts counts{};
    for (auto _ : state) {
        counts = {};
        for (const auto& rule : all) {
            for (const QDateTime& time : rule->timesInInterval(QtDate(FirstCell), QtDate(LastCell))) {
                ++counts[static_cast<std::size_t>(QtDate(FirstCell).daysTo(time))];
            }
        }
        benchmark::DoNotOptimize(counts);
    }
    ExpectPlannerCounts(state, counts);
}

BENCHMARK(MarksOfAMonthByKCalendarCore)->Unit(benchmark::kMillisecond);

// The time of one question.
static void OneEventOnOneDay(benchmark::State& state) {
    FillStore(SeriesCount);
    int index = 0;
    for (auto _ : state) {
        index = index % SeriesCount + 1;
        benchmark::DoNotOptimize(EventOccursOn(FirstCell, index));
    }
}

BENCHMARK(OneEventOnOneDay);

static void OccurrencesOfARange(benchmark::State& state, std::string_view range) {
    FillStore(GreatestRecordCount);
    for (auto _ : state) {
        benchmark::DoNotOptimize(SelectEventsInRange(FirstCell, range));
    }
}

BENCHMARK_CAPTURE(OccurrencesOfARange, Week, "Week")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(OccurrencesOfARange, Month, "Month")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(OccurrencesOfARange, Year, "Year")->Unit(benchmark::kMillisecond);

static void RemindersOfADay(benchmark::State& state) {
    FillStore(GreatestRecordCount);
    for (auto _ : state) {
        benchmark::DoNotOptimize(SelectEventReminders(FirstCell));
    }
}

BENCHMARK(RemindersOfADay)->Unit(benchmark::kMillisecond);
