// The backups: three generations of each file, moved on by a run in which the file was saved.
#include "persistence/DataFolderTest.h"

#include <fstream>
#include <functional>
#include <map>

namespace {

const std::function<void()> NoChange = [] {};

class Backups : public DataFolderTest {
protected:
    // One run of the program: reads the tasks, does the work, and rotates the backups at its end.
    void Run(const std::function<void()>& work) {
        ResetStore();
        ASSERT_TRUE(SetupFolders());
        ReadTasks();
        work();
        RotateBackups();
    }
};

void SaveTask(const std::string& desc) {
    AddTaskRecord({.desc = desc});
    WriteTasks();
}

// The file and its generations, newest first.
Texts Generations(const std::string& name) {
    return {BackupFile(name + ".xml"), BackupFile(name + "_backup1.xml"), BackupFile(name + "_backup2.xml"),
            BackupFile(name + "_backup3.xml")};
}

} // namespace

TEST_F(Backups, KeepThreeGenerationsOverFiveRunsWithChanges) {
    Texts files;
    for (int run = 1; run <= 5; ++run) {
        Run([run] { SaveTask("run " + std::to_string(run)); });
        files.insert(files.begin(), DataFile("tasks.xml"));
        Texts expected = files;
        expected.insert(expected.begin(), NoFile);
        expected.resize(4, NoFile);
        EXPECT_EQ(Generations("tasks"), expected) << "run " << run;
    }
}

TEST_F(Backups, StayAsTheyAreInRunsWithoutChanges) {
    Run([] { SaveTask("one"); });
    const std::string one = DataFile("tasks.xml");
    Run(NoChange);
    Run(NoChange);
    EXPECT_EQ(Generations("tasks"), (Texts{NoFile, one, NoFile, NoFile}));
    Run([] { SaveTask("two"); });
    const std::string two = DataFile("tasks.xml");
    Run(NoChange);
    EXPECT_EQ(Generations("tasks"), (Texts{NoFile, two, one, NoFile}));
}

TEST_F(Backups, MoveOnOnceAfterTwoSavesInOneRun) {
    Run([] {
        SaveTask("first");
        SaveTask("second");
    });
    EXPECT_EQ(Generations("tasks"), (Texts{NoFile, DataFile("tasks.xml"), NoFile, NoFile}));
}

TEST_F(Backups, StayAfterAFailedReadWithoutALaterSave) {
    Run([] { SaveTask("one"); });
    const std::string one = DataFile("tasks.xml");
    SetDataFile("tasks.xml", "damaged");
    Run(NoChange);
    EXPECT_EQ(Script.boxes, Boxes{FileErrorBox("tasks.xml", "reading")});
    EXPECT_EQ(Generations("tasks"), (Texts{NoFile, one, NoFile, NoFile}));
}

TEST_F(Backups, MoveOnAfterAFailedReadThatALaterSaveFollows) {
    Run([] { SaveTask("one"); });
    const std::string one = DataFile("tasks.xml");
    SetDataFile("tasks.xml", "damaged");
    Run([] { SaveTask("two"); });
    EXPECT_EQ(Generations("tasks"), (Texts{NoFile, DataFile("tasks.xml"), one, NoFile}));
}

TEST_F(Backups, StayAfterASaveThatALaterFailureFollows) {
    Run([] {
        SaveTask("one");
        std::filesystem::create_directory(DataFolder / "tasks.xml.tmp");
        SaveTask("two");
    });
    EXPECT_EQ(Generations("tasks"), (Texts{NoFile, NoFile, NoFile, NoFile}));
}

TEST_F(Backups, TakeTheAssignmentsOfTheTermThatIsActiveAtTheEnd) {
    std::map<int, std::string> files;
    Run([&files] {
        for (const int term : {1, 2}) {
            ActiveTermID = term;
            ResetAssignmentLists();
            AddAssignmentRecord({.desc = "of term " + std::to_string(term)});
            WriteAssignments();
            files[term] = DataFile("assignments_" + std::to_string(term) + ".xml");
        }
    });
    EXPECT_EQ(Generations("assignments_1"), (Texts{NoFile, NoFile, NoFile, NoFile}));
    EXPECT_EQ(Generations("assignments_2"), (Texts{NoFile, files[2], NoFile, NoFile}));
}

TEST_F(Backups, OverFiveRunsWithAFailedReadAndAChangeOfTheTerm) {
    const auto saveInTerm = [](int term, const std::string& desc) {
        ActiveTermID = term;
        ReadAssignments();
        AddAssignmentRecord({.desc = desc});
        WriteAssignments();
    };
    Run([&] { saveInTerm(1, "a"); });
    const std::string first = DataFile("assignments_1.xml");
    Run([&] { saveInTerm(1, "b"); });
    const std::string second = DataFile("assignments_1.xml");
    Run([&] { saveInTerm(2, "c"); });
    const std::string other = DataFile("assignments_2.xml");
    Run([&] {
        SetDataFile("assignments_1.xml", "damaged");
        ActiveTermID = 1;
        ReadAssignments();
    });
    EXPECT_EQ(Generations("assignments_1"), (Texts{NoFile, second, first, NoFile}));
    EXPECT_EQ(Generations("assignments_2"), (Texts{NoFile, other, NoFile, NoFile}));
    Run([&] {
        ActiveTermID = 1;
        AddAssignmentRecord({.desc = "d"});
        WriteAssignments();
    });
    EXPECT_EQ(Generations("assignments_1"), (Texts{NoFile, DataFile("assignments_1.xml"), second, first}));
}

TEST_F(Backups, AreMadeOfEveryFileThatWasWritten) {
    Run([] {
        ActiveTermID = 4;
        WriteTermsAndClasses();
        WriteAssignments();
        WriteTasks();
        WriteEvents();
        SetDataFile("Prefs.ini", "preferences");
    });
    for (const char* name : {"terms", "classes", "assignments_4", "tasks", "events"}) {
        EXPECT_EQ(BackupFile(std::string(name) + "_backup1.xml"), DataFile(std::string(name) + ".xml"))
            << name;
    }
    EXPECT_EQ(BackupFile("Prefs.ini"), NoFile);
    EXPECT_EQ(std::filesystem::current_path(), std::filesystem::canonical(BackupFolder));
}

TEST_F(Backups, FailWithoutAMessageWhenTheFolderIsGone) {
    WriteTasks();
    std::filesystem::remove(BackupFolder);
    RotateBackups();
    EXPECT_EQ(Script.boxes, Boxes{});
    EXPECT_EQ(DataFile("tasks.xml"), FileOf("task_data", ""))
        << "nothing in the data folder is moved or removed";
}

TEST_F(Backups, LetTheGenerationsThroughThatCanMove) {
    Run([] { SaveTask("one"); });
    Run([] { SaveTask("two"); });
    const Texts before = Generations("tasks");
    Run([] {
        SaveTask("three");
        std::filesystem::remove(DataFolder / "tasks.xml");
    });
    EXPECT_EQ(Script.boxes, Boxes{});
    EXPECT_EQ(Generations("tasks"), (Texts{NoFile, NoFile, before[1], before[2]}));
}

TEST_F(Backups, ThatCannotMoveOnAreNotOverwritten) {
    Run([] { SaveTask("one"); });
    Run([] { SaveTask("two"); });
    const Texts before = Generations("tasks");
    std::filesystem::create_directories(BackupFolder / "tasks_backup3.xml" / "occupied");
    Run([] { SaveTask("three"); });
    EXPECT_EQ(Script.boxes, Boxes{});
    EXPECT_EQ(BackupFile("tasks.xml"), DataFile("tasks.xml"));
    EXPECT_EQ(BackupFile("tasks_backup1.xml"), before[1]);
    EXPECT_EQ(BackupFile("tasks_backup2.xml"), before[2]);
}

TEST_F(Backups, OfEventsStayAfterAFailedReadThatNoSaveOfThemFollows) {
    Run(WriteEvents);
    const std::string one = DataFile("events.xml");
    SetDataFile("events.xml", "damaged");
    Run([] {
        ReadEvents();
        SaveTask("another file");
    });
    EXPECT_EQ(Generations("events"), (Texts{NoFile, one, NoFile, NoFile}));
}

TEST_F(Backups, TakeTheNewestGenerationsNameOverALeftoverCopy) {
    std::ofstream(BackupFolder / "tasks.xml") << "left over";
    Run([] { SaveTask("one"); });
    EXPECT_EQ(Generations("tasks"), (Texts{NoFile, DataFile("tasks.xml"), NoFile, NoFile}));
}
