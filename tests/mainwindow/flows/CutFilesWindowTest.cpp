// The window over a file of each kind cut at any byte: every mode is shown and every dialog opens.
#include "core/RowLists.h"
#include "editors/EditorTest.h"
#include "editors/frmCourseSchedule.h"
#include "editors/frmSelectCourseSchedule.h"
#include "mainwindow/flows/AssignmentFlow.h"
#include "mainwindow/flows/EventFlow.h"
#include "mainwindow/flows/ReadDialogs.h"
#include "mainwindow/flows/ReminderFlow.h"
#include "mainwindow/flows/TaskFlow.h"
#include "mainwindow/flows/TermFlow.h"
#include "mainwindow/flows/options/ColorsFlow.h"
#include "mainwindow/modes/Modes.h"
#include "persistence/modIO.h"
#include "reminders/frmReminders.h"
#include "support/CutDrive.h"

#include <QApplication>

#include <algorithm>
#include <fstream>
#include <random>

namespace {

constexpr unsigned Seed = 20091014;
constexpr int Records = 6;

#ifdef __SANITIZE_ADDRESS__
constexpr int Cuts = 30;
#else
constexpr int Cuts = 300;
#endif

// Leaves each dialog as it opens; the chooser of terms by way of the term's dialog where there is a term.
void LeaveDialogs(QObject* owner) {
    auto* poll = new QTimer(owner);
    QObject::connect(poll, &QTimer::timeout, poll, [] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == TermChooser && TermChooser->ButtonEdit->isEnabled()) {
            TermChooser->ButtonEdit->click();
        } else if (dialog != nullptr) {
            dialog->reject();
        }
    });
    poll->start(0);
}

class CutFilesWindow : public WindowTest, public testing::WithParamInterface<CutKind> {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        LoadWindow();
        FillCutDrive(Records);
        for (const RecordFile& file : RecordFiles()) {
            ASSERT_TRUE(SaveRecordFile(file));
        }
    }

    void ReadDrive() {
        Store = {};
        LastReads = {};
        ReadTermsAndClasses();
        ReadTasks();
        ReadEvents();
        SetActiveTerm(*window, "Term 1");
    }

    void ShowAllModes() {
        for (void (*show)(frmMain&) : {&ShowCalendarMode, &ShowHomeworkMode, &ShowStudySessionsMode,
                                       &ShowTaskMode, &ShowEventMode, &ShowReminderMode}) {
            show(*window);
        }
    }

    void OpenAllDialogs() {
        NewTask(*window);
        NewAssignment(*window);
        NewEvent(*window);
        if (const int last = WholeRecords(Store.TaskRecord); last > 0) {
            EditTask(*window, last);
        }
        if (const int last = WholeRecords(Store.Assignment); last > 0) {
            EditAssignment(*window, last);
        }
        if (const int last = WholeRecords(Store.EventRecord); last > 0) {
            Script.answers = {Answer::Yes}; // to the series
            EditEvent(*window, last);
        }
        Script.answers.clear();
        ClassSchedule(*window);
        ShowColors(*window);
        ShowGPA(*window);
        ShowReminders(*window);
        ReminderListWindow->hide();
    }
};

} // namespace

TEST_P(CutFilesWindow, ShowsEveryModeAndOpensEveryDialog) {
    const std::string name = GetParam().file().name;
    std::string bytes;
    for (const char character : ReadData(name)) {
        bytes += character == '\n' ? "\r\n" : std::string(1, character);
    }
    LeaveDialogs(window.get());
    std::mt19937 random(Seed);
    int cutShort = 0;
    for (int i = 0; i < Cuts; ++i) {
        const std::size_t cut = random() % bytes.size();
        std::ofstream(data / name, std::ios::binary) << bytes.substr(0, cut) << (i % 2 == 0 ? "" : "\r\n");
        ASSERT_NO_THROW(ReadDrive()) << name << " cut at " << cut;
        ASSERT_NO_THROW(ShowAllModes()) << name << " cut at " << cut;
        ASSERT_NO_THROW(OpenAllDialogs()) << name << " cut at " << cut;
        ASSERT_TRUE(Script.fatalErrors.empty()) << name << " cut at " << cut;
        ShowTaskMode(*window);
        ASSERT_EQ(TaskRows.Count(), WholeRecords(Store.TaskRecord));
        cutShort += std::ranges::count(Script.boxes, "Planovarium - File Read Error", &ShownBox::title) > 0;
        Script.boxes.clear();
    }
    EXPECT_GT(cutShort, Cuts / 2) << "most cuts end in the reading box";
}

INSTANTIATE_TEST_SUITE_P(Kinds, CutFilesWindow, testing::ValuesIn(CutKinds),
                         [](const testing::TestParamInfo<CutKind>& row) { return row.param.name; });
