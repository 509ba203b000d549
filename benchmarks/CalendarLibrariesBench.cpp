// The same events as an iCalendar file, read and written by two calendar libraries.
#include "SampleRecords.h"
#include "core/TextFiles.h"
#include "persistence/modIO.h"
#include "support/ScriptedPlatform.h"
#include "support/StoreRecords.h"
#include "support/TemporaryDrive.h"

#include <KCalendarCore/FileStorage>
#include <KCalendarCore/ICalFormat>
#include <KCalendarCore/MemoryCalendar>
#include <QTimeZone>
#include <benchmark/benchmark.h>
#include <libical/ical.h>

#include <memory>

namespace {

constexpr int Events = 10000;
constexpr const char* FileName = "events.ics";

// A data folder in memory with the events in an iCalendar file; the store itself stays empty.
void SetUpICalendarFile() {
    ResetScript();
    ResetStore();
    SetupFolders();
    AddSampleEvents(Events);
    WriteFile(FileName, EventsAsICalendar());
    ResetStore();
}

struct ComponentFreer {
    void operator()(icalcomponent* component) const { icalcomponent_free(component); }
};

using Component = std::unique_ptr<icalcomponent, ComponentFreer>;

Component LoadedComponent() {
    return Component(icalparser_parse_string(FileBytes(FileName).c_str()));
}

void Require(benchmark::State& state, bool done) {
    if (!done) {
        state.SkipWithError("The calendar was not read or written");
    }
}

int EventsIn(icalcomponent* component) {
    return component == nullptr ? 0 : icalcomponent_count_components(component, ICAL_VEVENT_COMPONENT);
}

void ReadEventsWithLibical(benchmark::State& state) {
    const TemporaryDrive drive;
    SetUpICalendarFile();
    Component calendar;
    for (auto _ : state) {
        state.PauseTiming();
        calendar.reset();
        state.ResumeTiming();
        calendar = LoadedComponent();
    }
    Require(state, EventsIn(calendar.get()) == Events);
    state.counters["file_MB"] = static_cast<double>(FileBytes(FileName).size()) / 1e6;
}

BENCHMARK(ReadEventsWithLibical)->Unit(benchmark::kMillisecond);

void SaveEventsWithLibical(benchmark::State& state) {
    const TemporaryDrive drive;
    SetUpICalendarFile();
    const Component calendar = LoadedComponent();
    for (auto _ : state) {
        const std::unique_ptr<char, decltype(&std::free)> text(icalcomponent_as_ical_string_r(calendar.get()),
                                                               &std::free);
        WriteFile("saved.ics", text.get());
    }
    Require(state, EventsIn(calendar.get()) == Events);
}

BENCHMARK(SaveEventsWithLibical)->Unit(benchmark::kMillisecond);

KCalendarCore::MemoryCalendar::Ptr EmptyCalendar() {
    return KCalendarCore::MemoryCalendar::Ptr::create(QTimeZone::utc());
}

bool Load(const KCalendarCore::MemoryCalendar::Ptr& calendar) {
    return KCalendarCore::FileStorage(calendar, FileName, new KCalendarCore::ICalFormat).load();
}

bool Save(const KCalendarCore::MemoryCalendar::Ptr& calendar) {
    return KCalendarCore::FileStorage(calendar, "saved.ics", new KCalendarCore::ICalFormat).save();
}

void ReadEventsWithKCalendarCore(benchmark::State& state) {
    const TemporaryDrive drive;
    SetUpICalendarFile();
    auto calendar = EmptyCalendar();
    for (auto _ : state) {
        state.PauseTiming();
        calendar = EmptyCalendar();
        state.ResumeTiming();
        Require(state, Load(calendar));
    }
    Require(state, calendar->rawEvents().size() == Events);
}

BENCHMARK(ReadEventsWithKCalendarCore)->Unit(benchmark::kMillisecond);

void SaveEventsWithKCalendarCore(benchmark::State& state) {
    const TemporaryDrive drive;
    SetUpICalendarFile();
    const auto calendar = EmptyCalendar();
    Require(state, Load(calendar));
    for (auto _ : state) {
        Require(state, Save(calendar));
    }
    Require(state, calendar->rawEvents().size() == Events);
}

BENCHMARK(SaveEventsWithKCalendarCore)->Unit(benchmark::kMillisecond);

} // namespace
