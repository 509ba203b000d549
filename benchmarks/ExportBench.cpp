// The page of the longest list, and the most memory that writing it takes.
#include "SampleRecords.h"
#include "core/RowLists.h"
#include "export/ListPages.h"
#include "planner/lists/HomeworkSelection.h"
#include "support/ScriptedPlatform.h"
#include "support/StoreRecords.h"
#include "support/TemporaryDrive.h"

#include <benchmark/benchmark.h>
#include <sys/resource.h>

namespace {

namespace fs = std::filesystem;

// The most memory that the process has held so far, in kilobytes.
double GreatestMemory() {
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss);
}

// The argument is the number of rows.
void HomeworkPage(benchmark::State& state) {
    const TemporaryDrive drive;
    ResetScript();
    ResetStore();
    AddSampleAssignments(static_cast<int>(state.range(0)));
    SelectHomeworkRows({"All", "Term", Today()});
    const fs::path page = drive.root / "Page.html";
    WriteFile((drive.root / "Template.html").string(), "<table>\n<!-- INSERT -->\n</table>\n");
    const double before = GreatestMemory();
    for (auto _ : state) {
        WritePage(page, drive.root / "Template.html", [](std::string_view text, const AddLine& add) {
            AddListPage(ListPage::Homework, text, add);
        });
    }
    state.counters["page_MB"] = static_cast<double>(fs::file_size(page)) / 1e6;
    state.counters["grown_kB"] = GreatestMemory() - before;
    if (HomeworkRows.Count() != state.range(0)) {
        state.SkipWithError("The list has not all rows");
    }
}

BENCHMARK(HomeworkPage)->Arg(1000)->Arg(32766)->Unit(benchmark::kMillisecond);

} // namespace
