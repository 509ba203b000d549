// What reaches the device, and in which order: each sync, and what lay in the folders at that moment.
#include "persistence/DataFolderTest.h"

#include "core/Preferences.h"
#include "core/RunTimeError.h"
#include "core/TextFiles.h"
#include "support/ChildProcess.h"

#include <cerrno>
#include <csignal>
#include <functional>
#include <sys/resource.h>
#include <sys/syscall.h>

namespace {

// A file or folder that was synced, and the files that were looked at as it was.
using Synced = std::vector<std::string>;

class DeviceOrder : public DataFolderTest {
protected:
    // The syncs of the work, each with what the procedure then sees.
    std::vector<Synced> SyncsOf(const std::function<void()>& work, const std::function<Texts()>& seen) {
        std::vector<Synced> syncs;
        Script.whileSyncing = [&](const std::string& name) {
            Synced entry = seen();
            entry.insert(entry.begin(), name);
            syncs.push_back(std::move(entry));
        };
        work();
        Script.whileSyncing = nullptr;
        return syncs;
    }

    std::vector<Synced> SyncsOf(const std::function<void()>& work) {
        return SyncsOf(work, [] { return Texts{}; });
    }

    void SaveTask(const std::string& desc) {
        AddTaskRecord({.desc = desc});
        WriteTasks();
    }
};

Texts Backups() {
    return {BackupFile("tasks.xml"), BackupFile("tasks_backup1.xml"), BackupFile("tasks_backup2.xml"),
            BackupFile("tasks_backup3.xml")};
}

Texts TasksAndTmp() {
    return {DataFile("tasks.xml"), DataFile("tasks.xml.tmp")};
}

const std::string EmptyTasks = FileOf("task_data", "");

} // namespace

TEST_F(DeviceOrder, OfASaveIsTheTmpWholeBesideTheOldFileAndThenTheFolderWithTheNewOne) {
    SaveTask("old");
    const std::string old = DataFile("tasks.xml");
    const auto syncs = SyncsOf([this] { SaveTask("new"); }, TasksAndTmp);
    const std::string saved = DataFile("tasks.xml");
    EXPECT_EQ(syncs, (std::vector<Synced>{{"tasks.xml.tmp", old, saved}, {"Data", saved, NoFile}}));
}

TEST_F(DeviceOrder, OfTermsAndClassesIsAllOfTheOneAndThenAllOfTheOther) {
    EXPECT_EQ(SyncsOf(WriteTermsAndClasses),
              (std::vector<Synced>{{"terms.xml.tmp"}, {"Data"}, {"classes.xml.tmp"}, {"Data"}}));
}

TEST_F(DeviceOrder, OfARotationIsTheCopyBeforeTheGenerationsMoveAndThenTheFolder) {
    for (const char* desc : {"one", "two", "three"}) {
        SaveTask(desc);
        RotateBackups();
    }
    const Texts before = Backups();
    SaveTask("four");
    const auto syncs = SyncsOf(RotateBackups, Backups);
    const std::string four = DataFile("tasks.xml");
    EXPECT_EQ(syncs, (std::vector<Synced>{{"tasks.xml", four, before[1], before[2], before[3]},
                                          {"Backup", NoFile, four, before[1], before[2]}}));
}

TEST_F(DeviceOrder, OfTheRotationOfAllFilesIsOneFileBehindTheOther) {
    ActiveTermID = 4;
    WriteTermsAndClasses();
    WriteAssignments();
    WriteTasks();
    WriteEvents();
    EXPECT_EQ(SyncsOf(RotateBackups), (std::vector<Synced>{{"terms.xml"},
                                                           {"Backup"},
                                                           {"classes.xml"},
                                                           {"Backup"},
                                                           {"assignments_4.xml"},
                                                           {"Backup"},
                                                           {"tasks.xml"},
                                                           {"Backup"},
                                                           {"events.xml"},
                                                           {"Backup"}}));
}

TEST_F(DeviceOrder, OfARunWithoutASaveIsEmpty) {
    EXPECT_EQ(SyncsOf(RotateBackups), std::vector<Synced>{});
}

TEST_F(DeviceOrder, OfAMissingFileIsOneAsideAndThenTheFolderWithIt) {
    const auto syncs = SyncsOf(ReadTasks, TasksAndTmp);
    EXPECT_EQ(syncs, (std::vector<Synced>{{"tasks.xml.new", NoFile, NoFile}, {"Data", EmptyTasks, NoFile}}));
    EXPECT_EQ(DataFile("tasks.xml.new"), NoFile);
}

TEST_F(DeviceOrder, OfAFileThatIsThereIsEmptyAsItIsRead) {
    SaveTask("one");
    EXPECT_EQ(SyncsOf(ReadTasks), std::vector<Synced>{});
}

TEST_F(DeviceOrder, OfTheFoldersIsTheOneInWhichEachWasMade) {
    const std::filesystem::path documents = DocumentFolder.parent_path();
    std::filesystem::remove_all(DocumentFolder);
    EXPECT_EQ(SyncsOf([] { SetupFolders(); }),
              (std::vector<Synced>{{documents.filename().string()}, {"Planovarium"}, {"Data"}}));
    EXPECT_EQ(SyncsOf([] { SetupFolders(); }), std::vector<Synced>{});
}

TEST_F(DeviceOrder, OfThePreferencesIsTheFileAndThenTheFolderWithIt) {
    EXPECT_EQ(SyncsOf([] { WritePreferencesFile({}); }), (std::vector<Synced>{{"Prefs.ini"}, {"Data"}}));
}

TEST_F(DeviceOrder, OfAReadThatFindsTheFileGoneLeavesTheTmpAsItIs) {
    SaveTask("the only copy");
    std::filesystem::rename(DataFolder / "tasks.xml", DataFolder / "tasks.xml.tmp");
    const std::string whole = DataFile("tasks.xml.tmp");
    ReadTasks();
    EXPECT_EQ(DataFile("tasks.xml.tmp"), whole);
    EXPECT_EQ(DataFile("tasks.xml"), EmptyTasks);
}

TEST_F(DeviceOrder, OfAReadTakesNoLeftoverOfAnEarlierStart) {
    SetDataFile("tasks.xml.new", "<?xm");
    ReadTasks();
    EXPECT_EQ(Script.boxes, Boxes{});
    EXPECT_EQ(DataFile("tasks.xml"), EmptyTasks);
    EXPECT_EQ(DataFile("tasks.xml.new"), NoFile);
}

TEST_F(DeviceOrder, OfAReadWhoseRenameFailsShowsTheReadingMessage) {
    EXPECT_TRUE(SucceedsInChild([] {
        FailSystemCall(SYS_rename, EIO);
        ReadTasks();
        EXPECT_EQ(Script.boxes, Boxes{FileErrorBox("tasks.xml", "reading")});
    }));
    EXPECT_EQ(DataFile("tasks.xml"), NoFile);
}

class Copy : public DataFolderTest {};

TEST_F(Copy, HasTheBytesOfTheFileWhateverTheyAre) {
    std::string bytes(200000, '\0');
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<char>(i * 7);
    }
    SetDataFile("tasks.xml", bytes);
    CopyToNewFile(DataFolder / "tasks.xml", BackupFolder / "tasks_damaged.xml");
    EXPECT_EQ(BackupFile("tasks_damaged.xml"), bytes);
}

TEST_F(Copy, IsNeverMadeOverAFileThatIsThere) {
    SetDataFile("tasks.xml", "new");
    SetDataFile("other.xml", "old");
    EXPECT_THROW(CopyToNewFile(DataFolder / "tasks.xml", DataFolder / "other.xml"), RunTimeError);
    EXPECT_EQ(DataFile("other.xml"), "old");
}

TEST_F(Copy, OfAFileThatIsNotThereMakesNone) {
    EXPECT_THROW(CopyToNewFile(DataFolder / "tasks.xml", BackupFolder / "tasks.xml"), RunTimeError);
    EXPECT_EQ(BackupFile("tasks.xml"), NoFile);
}

TEST_F(Copy, ThatIsNotWholeOnTheDeviceIsTakenAway) {
    SetDataFile("tasks.xml", std::string(1000, 'x'));
    EXPECT_TRUE(SucceedsInChild([] {
        FailSystemCall(SYS_fsync, EIO);
        EXPECT_THROW(CopyToNewFile(DataFolder / "tasks.xml", BackupFolder / "tasks.xml"), RunTimeError);
    }));
    EXPECT_EQ(BackupFile("tasks.xml"), NoFile);
}

// Four runs with a save each, after which no file of before is left.
class BackupsOn : public DeviceOrder {
protected:
    void SetUp() override {
        DeviceOrder::SetUp();
        for (const char* desc : {"one", "two", "three"}) {
            SaveTask(desc);
            RotateBackups();
        }
        before = Backups();
    }

    Texts before;
};

TEST_F(BackupsOn, AMountThatRefusesToSetModesAreMadeAllTheSame) {
    EXPECT_TRUE(SucceedsInChild([this] {
        for (const int number : {SYS_fchmod, SYS_chmod, SYS_fchmodat}) {
            FailSystemCall(static_cast<int>(number), EPERM);
        }
        SaveTask("four");
        RotateBackups();
    }));
    EXPECT_EQ(Backups(), (Texts{NoFile, DataFile("tasks.xml"), before[1], before[2]}));
}

TEST_F(BackupsOn, AFullDriveMoveOnWithoutTheCopyAndLeaveNoHalfOne) {
    SaveTask(std::string(5000, 'x'));
    EXPECT_TRUE(SucceedsInChild([] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{3000, 3000};
        ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
        RotateBackups();
    }));
    EXPECT_EQ(Backups(), (Texts{NoFile, NoFile, before[1], before[2]}));
}
