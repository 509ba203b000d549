// The load, the tray menu and the shutdown, as the main window runs them.
#include "platform/Process.h"
#include "core/Module1.h"
#include "core/RunTimeError.h"
#include "editors/FrmTask.h"
#include "editors/frmAssignment.h"
#include "editors/frmCourseSchedule.h"
#include "editors/frmEvent.h"
#include "mainwindow/dialogs/frmAbout.h"
#include "mainwindow/dialogs/frmGPA.h"
#include "mainwindow/dialogs/frmTip.h"
#include "mainwindow/flows/TaskFlow.h"
#include "mainwindow/flows/TermFlow.h"
#include "mainwindow/flows/WindowFlow.h"
#include "mainwindow/frame/BringForward.h"
#include "mainwindow/frame/Load.h"
#include "mainwindow/frame/Unload.h"
#include "persistence/ProcessMarker.h"
#include "support/LegacyDrive.h"
#include "support/WindowTest.h"

#include <QtTest/qtestspontaneevent.h>

#include <fstream>
#include <set>

namespace {

const std::string TwoTerms = TermsFile({{}, {2, "Spring 2010", "2010/01/11", "2010/05/14"}});

class Process : public WindowTest {
protected:
    std::string MarkerName() const { return std::to_string(::getpid()) + ".PID"; }

    std::vector<std::string> TrayMenu() { return Script.trayEvents.menuWanted(); }

    std::string Preferences() const { return ReadData("Prefs.ini"); }

    // Opens the editor of a new task, runs the action while it is open, and cancels it.
    void WhileEditorIsOpen(const std::function<void()>& action) {
        WhenDialogOpens([&action](QWidget* editor) {
            action();
            editor->close();
        });
        NewTask(*window);
    }

    // A request to close the window: the window manager's or the program's own. Gives whether it is granted.
    bool CloseRequestIsGranted(bool fromWindowManager) {
        QCloseEvent request;
        if (fromWindowManager) {
            QSpontaneKeyEvent::setSpontaneous(&request);
        }
        qApp->notify(window.get(), &request); // which leaves the origin of the event as it is
        return request.isAccepted();
    }
};

} // namespace

TEST_F(Process, LoadPutsTheIconIntoTheTrayWithItsTip) {
    LoadWindow();
    EXPECT_EQ(Script.trayTip, "Planovarium Homework System");
    EXPECT_EQ(window->windowTitle(), "Planovarium Homework System");
}

TEST_F(Process, LoadMakesTheMarkerAndTheEmptyFiles) {
    LoadWindow();
    EXPECT_EQ(std::filesystem::file_size(drive / "Host" / MarkerName()), 0U);
    for (const char* name : {"terms.xml", "classes.xml", "tasks.xml", "events.xml"}) {
        EXPECT_TRUE(DataExists(name)) << name;
    }
    EXPECT_FALSE(DataExists("assignments_0.xml"));
}

TEST_F(Process, LoadTakesOverTheDataOfTheOlderRelease) {
    WriteData("Preferences.ini", "");
    WriteData("Terms.txt", LegacyTerm("1", "Fall 2009"));
    WriteData("Classes.txt", LegacyClass("1", "1", "Algebra"));
    WriteData("Notes.txt", LegacyNote("1", "Old note"));
    WriteData("Assignments.txt", LegacyAssignment({}));
    WriteData("Tasks.txt", LegacyTask({}));
    WriteData("Events.txt", LegacyEvent({}));
    LoadWindow();
    EXPECT_TRUE(Script.boxes.empty());
    EXPECT_EQ(ActiveTermName, "Fall 2009");
    EXPECT_EQ(ActiveClasses.name.values, std::vector<std::string>{"Algebra"});
    EXPECT_EQ(Store.Assignment.notes.values, std::vector<std::string>{"Old note"});
    EXPECT_EQ(Store.TaskRecord.desc.values, std::vector<std::string>{"Old task"});
    EXPECT_EQ(Store.EventRecord.desc.values, std::vector<std::string>{"Old event"});
    EXPECT_EQ(NextTaskID, 2) << "the readers set the counters";
}

TEST_F(Process, LoadSetsEveryFirstOpenFlag) {
    for (bool* flag :
         {&AssignmentDBFirstOpen, &GPADBFirstOpen, &RemindersDBFirstOpen, &ColorsNameDBFirstOpen}) {
        *flag = false;
    }
    LoadWindow();
    EXPECT_TRUE(AssignmentDBFirstOpen && SelectCourseScheduleDBFirstOpen && CourseScheduleDBFirstOpen &&
                TaskDBFirstOpen && RecurrenceDBFirstOpen && EventDBFirstOpen && ColorsDBFirstOpen &&
                ColorsNameDBFirstOpen && AboutDBFirstOpen && AlertDBFirstOpen && RemindersDBFirstOpen &&
                GPADBFirstOpen);
}

TEST_F(Process, LoadLeavesTheControlsOfTheEditorsToTheirFirstOpening) {
    LoadWindow();
    const auto makesThemOnce = [](auto& editor) {
        SCOPED_TRACE(editor.metaObject()->className());
        EXPECT_TRUE(editor.template findChildren<QWidget*>().isEmpty());
        editor.MakeControls();
        const auto controls = editor.template findChildren<QWidget*>();
        EXPECT_FALSE(controls.isEmpty());
        editor.MakeControls();
        EXPECT_EQ(editor.template findChildren<QWidget*>(), controls);
    };
    makesThemOnce(*AssignmentDialog);
    makesThemOnce(*TermDialog);
    makesThemOnce(*TaskDialog);
    makesThemOnce(*EventDialog);
}

TEST_F(Process, LoadLeavesWhatIsOnlyReadUntilItIsAskedFor) {
    LoadWindow();
    EXPECT_EQ(TipDialog, nullptr);
    EXPECT_EQ(AboutDialog, nullptr);
    EXPECT_EQ(GPADialog, nullptr);
}

TEST_F(Process, LoadGivesTheModesTheirFirstFilters) {
    LoadWindow();
    const std::array<std::string, 5> ranges{"Term", "Term", "All", "Month", "Today"};
    for (std::size_t i = 0; i < ranges.size(); ++i) {
        EXPECT_EQ(ChosenFilters[i].list, "All");
        EXPECT_EQ(ChosenFilters[i].range, ranges[i]);
    }
}

TEST_F(Process, LoadShowsTodayInCalendarModeWithTheStudyTimerAtZero) {
    LoadWindow();
    EXPECT_EQ(window->CurrentMode(), Mode::Calendar);
    EXPECT_EQ(window->SelectedDate, Today());
    EXPECT_EQ(DrawnTexts(*window->picTime), QStringList{"00:00:00"});
    EXPECT_TRUE(window->TimerStatusBar->isActive());
}

TEST_F(Process, LoadThatCannotMakeTheMarkerRaisesTheErrorBeforeAnythingIsReadOrMade) {
    std::filesystem::remove(drive / "Host");
    window = std::make_unique<frmMain>();
    EXPECT_THROW(LoadPlanner(*window), RunTimeError);
    EXPECT_FALSE(std::filesystem::exists(drive / "Documents" / "Planovarium"));
    EXPECT_EQ(Script.trayTip, "Planovarium Homework System") << "the icon comes first of all";
}

TEST_F(Process, LoadDeletesTheEmptyMarkersOfProcessesThatAreNoMore) {
    const std::filesystem::path host = drive / "Host";
    const std::string living = std::to_string(StartProcess("program", {})) + ".PID";
    const std::set<std::string> kept{living, "4712.pid", "4712.PID.txt", "x4712.PID", "4712", ".PID", "full"};
    for (const std::string& name : kept) {
        std::ofstream(host / name);
    }
    for (const char* name : {"4712.PID", "0.PID", "99999999999999999999.PID"}) {
        std::ofstream(host / name);
    }
    std::ofstream(host / "4714.PID") << "text";
    std::filesystem::create_directory(host / "4715.PID");
    std::filesystem::create_symlink("full", host / "4716.PID");
    LoadWindow();
    std::set<std::string> expected = kept;
    expected.insert({MarkerName(), "4714.PID", "4715.PID", "4716.PID"});
    std::set<std::string> found;
    for (const auto& entry : std::filesystem::directory_iterator(host)) {
        found.insert(entry.path().filename().string());
    }
    EXPECT_EQ(found, expected);
}

TEST_F(Process, LoadOfATermNamedAsDeletedReadsNoAssignments) {
    WriteData("terms.xml", TermsFile({{3, "DELETED RECORD"}}));
    WriteData("Prefs.ini", "ActiveTerm=DELETED RECORD\n");
    LoadWindow();
    EXPECT_EQ(window->LabelTerm->text(), "No Term Selected");
    EXPECT_EQ(window->LabelDaysLeft->text(), "");
    EXPECT_FALSE(DataExists("assignments_3.xml"));
}

TEST_F(Process, LoadActivatesTheTermOfThePreferences) {
    WriteData("terms.xml", TwoTerms);
    WriteData("Prefs.ini", "ActiveTerm=Fall 2009\n");
    LoadWindow();
    EXPECT_EQ(ActiveTermID, 1);
    EXPECT_EQ(window->LabelTerm->text(), "Fall 2009");
    EXPECT_EQ(window->LabelDaysLeft->text(), "65 days left in the term");
    EXPECT_TRUE(DataExists("assignments_1.xml"));
    EXPECT_FALSE(DataExists("assignments_2.xml"));
}

TEST_F(Process, LoadOfATermThatIsGoneActivatesTheLastOne) {
    WriteData("terms.xml", TwoTerms);
    WriteData("Prefs.ini", "ActiveTerm=Summer 2008\n");
    LoadWindow();
    EXPECT_EQ(ActiveTermName, "Spring 2010");
}

TEST_F(Process, LoadWithoutTermsSelectsNone) {
    LoadWindow();
    EXPECT_EQ(window->LabelTerm->text(), "No Term Selected");
    EXPECT_EQ(window->LabelDaysLeft->text(), "");
}

TEST_F(Process, LoadGoesOnWithWhatWasReadOfAFileThatFails) {
    WriteData("terms.xml", TwoTerms + "<id>none</id>\n");
    LoadWindow();
    ASSERT_EQ(Script.boxes.size(), 1U);
    EXPECT_NE(Script.boxes[0].text.find("Error reading the file: terms.xml"), std::string::npos);
    EXPECT_FALSE(DataExists("classes.xml"));
    EXPECT_TRUE(DataExists("tasks.xml") && DataExists("events.xml"));
    EXPECT_EQ(window->LabelTerm->text(), "Spring 2010");
}

TEST_F(Process, DaysLeftAreCountedToTheEndOfTheTerm) {
    WriteData("terms.xml", TwoTerms);
    WriteData("Prefs.ini", "ActiveTerm=Fall 2009\n");
    SetClock(2009, 12, 17);
    LoadWindow();
    EXPECT_EQ(window->LabelDaysLeft->text(), "1 day left in the term");
    for (const int day : {18, 19}) {
        SetClock(2009, 12, day);
        SetActiveTerm(*window, "Fall 2009");
        EXPECT_EQ(window->LabelDaysLeft->text(), "0 Days Left in Term");
    }
}

TEST_F(Process, FirstAppearanceGoesByTheCommandLineAndTheStartMode) {
    struct AppearanceCase {
        const char* commandLine;
        const char* autoStart;
        bool visible;
        bool minimized;
    };

    constexpr std::array<AppearanceCase, 9> cases{{
        {"", "Tray", true, false},
        {"", "Min", true, false},
        {"startup folder", "Tray", true, false},
        {"Startup Folder ", "Tray", true, false},
        {"Startup Folder", "Normal", true, false},
        {"Startup Folder", "Min", true, true},
        {"Startup Folder", "Full", false, false}, // the start looks for "Normal", and it is meant to be so
        {"Startup Folder", "Tray", false, false},
        {"Startup Folder", "No", false, false},
    }};
    for (const AppearanceCase& each : cases) {
        window = std::make_unique<frmMain>();
        MainWindow = window.get();
        ASSERT_TRUE(LoadPlanner(*window));
        EXPECT_FALSE(window->isVisible()) << "the load shows nothing";
        window->AutoStart = each.autoStart;
        ShowAtStart(*window, each.commandLine);
        EXPECT_EQ(window->isVisible(), each.visible) << each.commandLine << "/" << each.autoStart;
        EXPECT_EQ(window->isMinimized(), each.minimized) << each.commandLine << "/" << each.autoStart;
    }
}

TEST_F(Process, TrayMenuOffersTheWindowOnlyWhileItIsHidden) {
    LoadWindow();
    EXPECT_EQ(TrayMenu(), (std::vector<std::string>{"Show Popup Reminders...", "-", "Shutdown Planovarium"}));
    HideWindows(*window);
    EXPECT_EQ(TrayMenu(), (std::vector<std::string>{"Show Popup Reminders...", "-", "Open Planovarium...",
                                                    "Shutdown Planovarium"}));
    Script.trayEvents.itemChosen(2);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(Process, TrayMenuRestoresTheMinimizedWindow) {
    LoadWindow();
    window->setWindowState(Qt::WindowMaximized | Qt::WindowMinimized);
    ASSERT_EQ(TrayMenu().size(), 4U);
    Script.trayEvents.itemChosen(2);
    EXPECT_EQ(window->windowState() & ~Qt::WindowActive, Qt::WindowMaximized);
}

TEST_F(Process, TrayMenuShowsTheWindowThatWasHiddenWhileItWasMinimized) {
    LoadWindow();
    window->setWindowState(Qt::WindowMinimized);
    window->hide();
    ASSERT_EQ(TrayMenu().size(), 4U);
    Script.trayEvents.itemChosen(2);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(Process, TrayMenuIsEmptyWhileADialogIsOpen) {
    LoadWindow();
    WhileEditorIsOpen([this] { EXPECT_EQ(TrayMenu(), std::vector<std::string>{}); });
    EXPECT_EQ(TrayMenu().size(), 3U);
}

TEST_F(Process, TrayItemsOfAnEarlierMenuDoNothingWhileADialogIsOpen) {
    LoadWindow();
    TrayMenu();
    WhileEditorIsOpen([] {
        Script.trayEvents.itemChosen(2);
        EXPECT_FALSE(ShuttingDown);
    });
}

TEST_F(Process, TrayMenuShutsThePlannerDown) {
    LoadWindow();
    TrayMenu();
    Script.trayEvents.itemChosen(2);
    EXPECT_TRUE(ShuttingDown);
    EXPECT_TRUE(DataExists("Prefs.ini"));
}

TEST_F(Process, TrayDoubleClickShowsTheHiddenWindow) {
    LoadWindow();
    HideWindows(*window);
    Script.trayEvents.doubleClicked();
    EXPECT_TRUE(window->isVisible());
}

TEST_F(Process, ASecondInstanceBringsTheWindowForward) {
    LoadWindow();
    HideWindows(*window);
    EXPECT_TRUE(Script.receiveLink("Take Control"));
    EXPECT_TRUE(window->isVisible());
}

TEST_F(Process, ASecondInstanceGivesTheWindowTheFocus) {
    LoadWindow();
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    EXPECT_TRUE(Script.receiveLink("Take Control"));
    EXPECT_TRUE(WaitUntil([this] { return window->isActiveWindow(); }));
}

TEST_F(Process, AMaximizedWindowComesBackMaximizedInEachWay) {
    LoadWindow();
    HideWindows(*window);
    window->setWindowState(Qt::WindowMaximized);
    const std::vector<std::function<void()>> ways{
        [this] { ShowAtStart(*window, ""); },
        [] { Script.trayEvents.doubleClicked(); },
        [this] {
            ASSERT_EQ(TrayMenu().at(2), "Open Planovarium...");
            Script.trayEvents.itemChosen(2);
        },
        [] { EXPECT_TRUE(Script.receiveLink("Take Control")); },
    };
    for (const auto& comeBack : ways) {
        comeBack();
        EXPECT_TRUE(window->isVisible());
        EXPECT_TRUE(window->isMaximized());
        HideWindows(*window);
    }
}

TEST_F(Process, ASecondInstanceIsAcceptedWhateverItSays) {
    LoadWindow();
    EXPECT_TRUE(Script.receiveLink("anything"));
}

TEST_F(Process, ASecondInstanceSetsAMinimizedWindowToNormal) {
    LoadWindow();
    window->setWindowState(Qt::WindowMaximized | Qt::WindowMinimized);
    EXPECT_TRUE(Script.receiveLink("Take Control"));
    EXPECT_EQ(window->windowState() & ~Qt::WindowActive, Qt::WindowNoState);
}

TEST_F(Process, ASecondInstanceFindsAMaximizedWindowMaximized) {
    LoadWindow();
    window->setWindowState(Qt::WindowMaximized);
    HideWindows(*window);
    EXPECT_TRUE(Script.receiveLink("Take Control"));
    EXPECT_TRUE(window->isMaximized());
}

TEST_F(Process, ASecondInstanceIsRefusedWhileADialogIsOpen) {
    LoadWindow();
    WhileEditorIsOpen([] { EXPECT_FALSE(Script.receiveLink("Take Control")); });
    EXPECT_TRUE(Script.receiveLink("Take Control"));
}

TEST_F(Process, ClosingByTheWindowManagerOnlyHidesTheWindow) {
    LoadWindow();
    EXPECT_FALSE(CloseRequestIsGranted(true));
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(ShuttingDown);
}

TEST_F(Process, ClosingByTheProgramOrInAShutdownIsGranted) {
    LoadWindow();
    EXPECT_TRUE(CloseRequestIsGranted(false));
    ShuttingDown = true;
    EXPECT_TRUE(CloseRequestIsGranted(true));
}

TEST_F(Process, ExitOnlyHidesTheWindow) {
    LoadWindow();
    window->MenuExit->trigger();
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(ShuttingDown);
    EXPECT_TRUE(std::filesystem::exists(drive / "Host" / MarkerName()));
}

TEST_F(Process, ShutdownWritesThePreferencesAndTakesMarkerAndIconAway) {
    WriteData("terms.xml", TwoTerms);
    WriteData("Prefs.ini", "AutoStart=Min\nActiveTerm=Fall 2009\nStartDayofWeek=Saturday\nCurrentTip=7\n");
    LoadWindow();
    Unload(*window);
    EXPECT_FALSE(std::filesystem::exists(drive / "Host" / MarkerName()));
    EXPECT_EQ(Script.trayTip, "");
    EXPECT_FALSE(window->isVisible());
    EXPECT_NE(Preferences().find("\nActiveTerm=Fall 2009\nStartDayofWeek=Saturday\nShowTipsAtStartup=Yes\n"
                                 "AutoStart=Min\nCurrentTip=7\n"),
              std::string::npos);
}

TEST_F(Process, ShutdownStopsTheTimers) {
    LoadWindow();
    for (QTimer* timer : {window->Timer1, window->TimerButton, window->TimerStatusBar, window->TimerTip}) {
        timer->start();
    }
    Unload(*window);
    for (const QTimer* timer :
         {window->Timer1, window->TimerButton, window->TimerStatusBar, window->TimerTip}) {
        EXPECT_FALSE(timer->isActive());
    }
}

TEST_F(Process, ShutdownRunsOnlyOnce) {
    LoadWindow();
    FileWrittenFlags.tasks = true;
    Unload(*window);
    Unload(*window);
    EXPECT_FALSE(std::filesystem::exists(data / "Backup" / "tasks_backup2.xml"));
}

TEST_F(Process, ShutdownWithoutTheMarkerGoesOn) {
    LoadWindow();
    std::filesystem::remove(drive / "Host" / MarkerName());
    Unload(*window);
    EXPECT_TRUE(DataExists("Prefs.ini"));
    EXPECT_EQ(Script.trayTip, "");
}

TEST_F(Process, AMarkerThatCannotBeDeletedIsARunTimeErrorAndEndsTheShutdownsSteps) {
    LoadWindow();
    const std::filesystem::path marker = drive / "Host" / MarkerName();
    std::filesystem::remove(marker);
    std::filesystem::create_directories(marker / "not empty");
    EXPECT_THROW(DeleteProcessMarker(), RunTimeError);
    Unload(*window);
    EXPECT_FALSE(DataExists("Prefs.ini"));
    EXPECT_FALSE(window->isVisible()) << "the process goes on ending";
}

TEST_F(Process, ShutdownRotatesOnlyWhatWasWrittenInThisRun) {
    WriteData("terms.xml", TwoTerms);
    LoadWindow();
    FileWrittenFlags.tasks = true;
    Unload(*window);
    EXPECT_TRUE(std::filesystem::exists(data / "Backup" / "tasks_backup1.xml"));
    EXPECT_FALSE(std::filesystem::exists(data / "Backup" / "terms_backup1.xml"));
}

TEST_F(Process, ShutdownThatCannotWriteThePreferencesLeavesTheRestUndone) {
    LoadWindow();
    FileWrittenFlags.tasks = true;
    std::filesystem::create_directory(data / "Prefs.ini"); // a folder of that name cannot be written
    Unload(*window);
    EXPECT_FALSE(std::filesystem::exists(drive / "Host" / MarkerName())) << "it went before";
    EXPECT_FALSE(std::filesystem::exists(data / "Backup" / "tasks_backup1.xml"));
    EXPECT_NE(Script.trayTip, "");
    EXPECT_FALSE(window->isVisible()) << "the process goes on ending";
    EXPECT_TRUE(Script.boxes.empty());
}

TEST_F(Process, ShutdownDuringALoadStopsItThere) {
    WriteData("terms.xml", "line 1\n<wrong>\n");
    WriteData("Prefs.ini", "ActiveTerm=Fall 2009\n");
    window = std::make_unique<frmMain>();
    MainWindow = window.get();
    Script.whileBoxIsOpen = [this](const ShownBox& box) {
        EXPECT_EQ(box.title, "Planovarium - File Read Error");
        Unload(*window);
    };
    EXPECT_FALSE(LoadPlanner(*window));
    EXPECT_FALSE(DataExists("events.xml"));
    EXPECT_EQ(Preferences(), "ActiveTerm=Fall 2009\n");
}
