// Reading and saving the greatest record files, and the memory that their records take.
#include "SampleRecords.h"
#include "core/TextFiles.h"
#include "persistence/modIO.h"
#include "support/ScriptedPlatform.h"
#include "support/StoreRecords.h"
#include "support/TemporaryDrive.h"

#include <benchmark/benchmark.h>

#include <malloc.h>

namespace {

constexpr int Events = 10000;
constexpr int Assignments = 32766;

double BytesInUse() {
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

// Stops the benchmark with an error when the planner showed a message or has other records than it should.
void RequireRecords(benchmark::State& state, const TextList& ids, int count) {
    if (!Script.boxes.empty() || ids.Count() != count) {
        state.SkipWithError("The file was not read or written");
    }
}

// The store's bytes for each byte of the file that it was read from.
void TellMemory(benchmark::State& state, const std::string& file, double before) {
    const auto fileSize = static_cast<double>(std::filesystem::file_size(DataFolder / file));
    state.counters["file_MB"] = fileSize / 1e6;
    state.counters["store_per_file"] = (BytesInUse() - before) / fileSize;
}

void SetUpDrive() {
    ResetScript();
    ResetStore();
    SetupFolders();
}

void ReadEventFile(benchmark::State& state) {
    const TemporaryDrive drive;
    SetUpDrive();
    AddSampleEvents(Events);
    WriteEvents();
    Store.EventRecord = {};
    malloc_trim(0);
    const double before = BytesInUse();
    for (auto _ : state) {
        state.PauseTiming();
        Store.EventRecord = {};
        state.ResumeTiming();
        ReadEvents();
    }
    TellMemory(state, "events.xml", before);
    RequireRecords(state, Store.EventRecord.id, Events);
}

BENCHMARK(ReadEventFile)->Unit(benchmark::kMillisecond);

void ReadAssignmentFile(benchmark::State& state) {
    const TemporaryDrive drive;
    SetUpDrive();
    ActiveTermID = 1;
    AddSampleAssignments(Assignments);
    WriteAssignments();
    ResetAssignmentLists();
    malloc_trim(0);
    const double before = BytesInUse();
    for (auto _ : state) {
        state.PauseTiming();
        ResetAssignmentLists();
        state.ResumeTiming();
        ReadAssignments();
    }
    TellMemory(state, "assignments_1.xml", before);
    RequireRecords(state, Store.Assignment.id, Assignments);
}

BENCHMARK(ReadAssignmentFile)->Unit(benchmark::kMillisecond);

void SaveEvents(benchmark::State& state) {
    SetUpDrive();
    AddSampleEvents(Events);
    for (auto _ : state) {
        WriteEvents();
    }
    RequireRecords(state, Store.EventRecord.id, Events);
}

// In memory, where the sync costs nothing, and on the disk.
void SaveEventFile(benchmark::State& state) {
    const TemporaryDrive drive;
    SaveEvents(state);
}

void SaveEventFileToDisk(benchmark::State& state) {
    const TemporaryDrive drive(std::filesystem::temp_directory_path());
    SaveEvents(state);
}

BENCHMARK(SaveEventFile)->Unit(benchmark::kMillisecond);
BENCHMARK(SaveEventFileToDisk)->Unit(benchmark::kMillisecond)->UseRealTime();

// What the device alone takes for the same bytes.
void DeviceSync(benchmark::State& state) {
    const TemporaryDrive drive(std::filesystem::temp_directory_path());
    SetUpDrive();
    AddSampleEvents(Events);
    WriteEvents();
    const std::string bytes = FileBytes("events.xml");
    for (auto _ : state) {
        WriteFile("bytes", bytes);
        state.PauseTiming();
        std::filesystem::remove("bytes");
        state.ResumeTiming();
    }
    RequireRecords(state, Store.EventRecord.id, Events);
}

BENCHMARK(DeviceSync)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
