// The main window at the greatest size of a planner, 1920 by 1080: the work of each refresh in each mode
// before the paint, and the paint.
#include "DialogBench.h"
#include "ReminderBench.h"
#include "SampleRecords.h"
#include "core/Module1.h"
#include "mainwindow/flows/TermFlow.h"
#include "mainwindow/frame/Load.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/modes/Modes.h"
#include "persistence/modIO.h"
#include "support/ScriptedPlatform.h"
#include "support/StoreRecords.h"
#include "support/TemporaryDrive.h"

#include <QApplication>
#include <QImage>

#include <benchmark/benchmark.h>

namespace {

constexpr int Records = 32766;
constexpr QSize WindowSize{1920, 1080};
constexpr int Classes = 9;

struct NamedMode {
    const char* name;
    Mode mode;
};

constexpr std::array<NamedMode, ModeCount> NamedModes{{
    {"Calendar", Mode::Calendar},
    {"Homework", Mode::Homework},
    {"StudySessions", Mode::StudySessions},
    {"Tasks", Mode::Tasks},
    {"Events", Mode::Events},
    {"Reminders", Mode::Reminders},
}};

constexpr std::array<std::string_view, 8> Reasons{ReasonModeChange,     ReasonViewChange, ReasonCalendar,
                                                  ReasonStartDayOfWeek, ReasonNewRecord,  ReasonNewTerm,
                                                  ReasonColorChange,    ReasonResize};

void AddSampleTasks(int count) {
    constexpr std::array<const char*, 4> types{"None", "School", "Home", "Work"};
    constexpr std::array<const char*, 4> priorities{"None", "Low", "Medium", "High"};
    for (int i = 1; i <= count; ++i) {
        AddTaskRecord({.date = "2009/" + std::to_string(i % 4 + 9) + "/" + std::to_string(i % 28 + 1),
                       .desc = "Bring the books back, shelf " + std::to_string(i % 400),
                       .date_exists = i % 3 == 0 ? "False" : "True",
                       .type = types[static_cast<std::size_t>(i) % types.size()],
                       .priority = priorities[static_cast<std::size_t>(i / 5) % priorities.size()],
                       .done = i % 4 == 0 ? "True" : "False",
                       .reminder = i % 7 == 0 ? "True" : "False"});
    }
}

void FillPlanner(frmMain& window) {
    TermLists& terms = Store.Term;
    terms.id.Add("1");
    terms.name.Add("Fall 2009");
    terms.start.Add("2009/08/24");
    terms.end.Add("2010/12/18");
    for (int i = 1; i <= Classes; ++i) {
        AddClassRecord({.id = std::to_string(i), .name = "Introduction to Subject " + std::to_string(i)});
    }
    SetActiveTerm(window, "Fall 2009");
    AddSampleAssignments(Records);
    AddSampleTasks(Records);
    AddSampleEvents(Records);
    WriteAssignments(); // a term that is made active reads them again
}

// By way of Tasks, since a mode entered from Calendar may leave that checked.
void Enter(frmMain& window, Mode mode) {
    ShowTaskMode(window);
    switch (mode) {
    case Mode::Calendar:
        return ShowCalendarMode(window);
    case Mode::Homework:
        return ShowHomeworkMode(window);
    case Mode::StudySessions:
        return ShowStudySessionsMode(window);
    case Mode::Events:
        return ShowEventMode(window);
    case Mode::Reminders:
        return ShowReminderMode(window);
    case Mode::Tasks:
    case Mode::None:
        return;
    }
}

void RefreshWork(benchmark::State& state, frmMain& window, Mode mode, std::string_view reason) {
    Enter(window, mode);
    for (auto _ : state) {
        window.RefreshFor(reason);
    }
}

void Paint(benchmark::State& state, frmMain& window, Mode mode) {
    Enter(window, mode);
    QImage image(WindowSize, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        window.render(&image);
    }
}

void RegisterAll(frmMain& window) {
    for (const NamedMode& named : NamedModes) {
        const std::string mode = named.name;
        for (const std::string_view reason : Reasons) {
            benchmark::RegisterBenchmark(("Refresh/" + mode + "/" + std::string(reason)).c_str(),
                                         [&window, &named, reason](benchmark::State& state) {
                                             RefreshWork(state, window, named.mode, reason);
                                         })
                ->Unit(benchmark::kMillisecond);
        }
        benchmark::RegisterBenchmark(("Paint/" + mode).c_str(), [&window, &named](benchmark::State& state) {
            Paint(state, window, named.mode);
        })->Unit(benchmark::kMillisecond);
    }
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    ResetScript();
    const TemporaryDrive drive;
    frmMain window;
    MainWindow = &window;
    if (!LoadPlanner(window)) {
        return 1;
    }
    window.TimerTip->stop(); // a tip would wait for the student between the dialogs
    FillPlanner(window);
    window.resize(WindowSize);
    window.show();
    QApplication::processEvents();
    RegisterAll(window);
    RegisterDialogBenchmarks();
    RegisterReminderBenchmarks();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
