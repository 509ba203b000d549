// What the budgets are ratios of: plain work of the same run, so that they hold on a slower machine too.
#include "SampleRecords.h"
#include "support/TemporaryDrive.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr int Rows = 32766;
constexpr int Texts = 400;
constexpr std::size_t FileBytes = 10'000'000;

struct Row {
    std::string text;
    std::string date;
    int position;
};

// A row for each record of the greatest list, in no order.
std::vector<Row> ShuffledRows() {
    std::mt19937 random{20091014};
    std::vector<Row> rows;
    for (int i = 1; i <= Rows; ++i) {
        rows.push_back({"Bring the books back, shelf " + std::to_string(random() % Texts), "2009/10/14", i});
    }
    return rows;
}

void StableSortByText(benchmark::State& state) {
    const std::vector<Row> shuffled = ShuffledRows();
    for (auto _ : state) {
        state.PauseTiming();
        std::vector<Row> rows = shuffled;
        state.ResumeTiming();
        std::ranges::stable_sort(rows, {}, &Row::text);
        benchmark::DoNotOptimize(rows.data());
    }
}

// In memory, as the files of the other figures lie.
void CopyFile(benchmark::State& state) {
    const TemporaryDrive drive;
    WriteFile("original", std::string(FileBytes, 'x'));
    for (auto _ : state) {
        std::filesystem::copy_file("original", "copy", std::filesystem::copy_options::overwrite_existing);
    }
}

BENCHMARK(StableSortByText)->Unit(benchmark::kMillisecond);
BENCHMARK(CopyFile)->Unit(benchmark::kMillisecond);

} // namespace
