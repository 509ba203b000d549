// A restore and a record set aside: what is there now can still be had, whatever happens meanwhile.
#include "check/Restore.h"
#include "check/CheckedDrive.h"
#include "support/ChildProcess.h"

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <set>
#include <sys/resource.h>
#include <sys/syscall.h>

namespace fs = std::filesystem;

namespace {

class Restoring : public CheckedDrive {
protected:
    void SetUp() override {
        CheckedDrive::SetUp();
        present = DataFile("tasks.xml");
        backup = present;
        backup.replace(backup.find("Task 1"), 6, "Before");
        SetDataFile("Backup/tasks_backup1.xml", backup);
    }

    static void RemoveCopies() {
        for (const char* name : {"tasks_replaced1.xml", "tasks_replaced2.xml", "tasks_waiting1.xml",
                                 "tasks_waiting2.xml", "tasks_set_aside.xml", "tasks_set_aside2.xml"}) {
            fs::remove(BackupFolder / name);
        }
        fs::remove(DataFolder / "tasks.xml.tmp");
    }

    // The bytes are whole under one of the names of the data folder or the backup folder.
    static bool CanBeHad(const std::string& bytes) {
        for (const fs::path& folder : {DataFolder, BackupFolder}) {
            for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
                if (entry.is_regular_file() && DataFile(entry.path().string()) == bytes) {
                    return true;
                }
            }
        }
        return false;
    }

    std::string present;
    std::string backup;
};

void LimitFileSize(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, bytes};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
}

void LetOthersIn() {
    for (fs::path folder = DataFolder; folder != fs::path("/dev/shm") && folder.has_relative_path();
         folder = folder.parent_path()) {
        std::error_code ignored;
        fs::permissions(folder, fs::perms{0755}, ignored);
    }
}

struct Fault {
    std::string name;
    std::function<void()> happens;
};

const std::vector<Fault> Faults{
    {"FullDiskAtTheCopy", [] { LimitFileSize(0); }},
    {"FullDiskWithinTheCopy", [] { LimitFileSize(700); }},
    {"FullDiskAtTheNewContent", [] { fs::create_symlink("/dev/full", DataFolder / "tasks.xml.tmp"); }},
    {"ReadOnlyBackups",
     [] {
         LetOthersIn();
         fs::permissions(BackupFolder, fs::perms{0555});
         DropPrivileges();
     }},
    {"ReadOnlyData",
     [] {
         LetOthersIn();
         fs::permissions(BackupFolder, fs::perms{0777});
         fs::permissions(DataFolder, fs::perms{0555});
         DropPrivileges();
     }},
    {"SyncFails", [] { FailSystemCall(SYS_fsync, EIO); }},
    {"WritingFails", [] { FailSystemCall(SYS_write, ENOSPC); }},
    {"RenamingFails", [] { FailSystemCall(SYS_rename, EIO); }},
    {"TmpIsAFolder", [] { fs::create_directory(DataFolder / "tasks.xml.tmp"); }},
};

class RestoringUnder : public Restoring, public testing::WithParamInterface<Fault> {};

class SettingAside : public Restoring {};

} // namespace

TEST_F(Restoring, OfABackupKeepsThePresentFile) {
    const ChangeResult result = RestoreFile(TaskFile(), "1");
    EXPECT_TRUE(result.done) << result.text;
    EXPECT_EQ(result.kept, Texts{"tasks_replaced1.xml"});
    EXPECT_EQ(DataFile("tasks.xml"), backup);
    EXPECT_EQ(BackupFile("tasks_replaced1.xml"), present);
    EXPECT_EQ(BackupFile("tasks_backup1.xml"), backup);
    EXPECT_EQ(DataFile("tasks.xml.tmp"), NoFile);
}

TEST_F(Restoring, OfWhatWaitsKeepsBoth) {
    SetDataFile("tasks.xml.tmp", backup);
    const ChangeResult result = RestoreFile(TaskFile(), "waiting");
    EXPECT_TRUE(result.done) << result.text;
    EXPECT_EQ(result.kept, (Texts{"tasks_replaced1.xml", "tasks_waiting1.xml"}));
    EXPECT_EQ(DataFile("tasks.xml"), backup);
    EXPECT_EQ(BackupFile("tasks_replaced1.xml"), present);
    EXPECT_EQ(BackupFile("tasks_waiting1.xml"), backup);
}

TEST_F(Restoring, OfABackupKeepsWhatWaitsToo) {
    SetDataFile("tasks.xml.tmp", "half a sa");
    EXPECT_TRUE(RestoreFile(TaskFile(), "1").done);
    EXPECT_EQ(BackupFile("tasks_waiting1.xml"), "half a sa");
}

TEST_F(Restoring, NeverOverwritesWhatWasKept) {
    EXPECT_TRUE(RestoreFile(TaskFile(), "1").done);
    SetDataFile("tasks.xml", "another");
    SetDataFile("tasks.xml.tmp", "first");
    EXPECT_TRUE(RestoreFile(TaskFile(), "1").done);
    SetDataFile("tasks.xml.tmp", "second");
    EXPECT_TRUE(RestoreFile(TaskFile(), "1").done);
    EXPECT_EQ(BackupFile("tasks_replaced1.xml"), present);
    EXPECT_EQ(BackupFile("tasks_replaced2.xml"), "another");
    EXPECT_EQ(BackupFile("tasks_replaced3.xml"), backup);
    EXPECT_EQ(BackupFile("tasks_waiting1.xml"), "first");
    EXPECT_EQ(BackupFile("tasks_waiting2.xml"), "second");
}

TEST_F(Restoring, PassesOverANameThatLeadsNowhere) {
    fs::create_symlink("nowhere", BackupFolder / "tasks_replaced1.xml");
    EXPECT_EQ(RestoreFile(TaskFile(), "1").kept, Texts{"tasks_replaced2.xml"});
    EXPECT_EQ(BackupFile("tasks_replaced2.xml"), present);
}

TEST_F(Restoring, OverAFileThatCannotBeReadLeavesItAsItIs) {
    EXPECT_TRUE(SucceedsInChild([] {
        LetOthersIn();
        fs::permissions(BackupFolder, fs::perms{0777});
        fs::permissions(DataFolder, fs::perms{0777});
        fs::permissions(DataFolder / "tasks.xml", fs::perms{0});
        DropPrivileges();
        const ChangeResult result = RestoreFile(TaskFile(), "1");
        EXPECT_FALSE(result.done);
        EXPECT_TRUE(result.text.starts_with("The file cannot be read: ")) << result.text;
        EXPECT_EQ(result.kept, Texts{});
    }));
    fs::permissions(DataFolder / "tasks.xml", fs::perms{0644});
    EXPECT_EQ(DataFile("tasks.xml"), present);
    EXPECT_EQ(DataFile("tasks.xml.tmp"), NoFile);
}

TEST_F(Restoring, OfTheOldestGenerationIsPossible) {
    SetDataFile("Backup/tasks_backup3.xml", "the oldest");
    EXPECT_TRUE(RestoreFile(TaskFile(), "3").done);
    EXPECT_EQ(DataFile("tasks.xml"), "the oldest");
}

TEST_F(Restoring, OfAFileThatIsGonePutsTheBackupThere) {
    fs::remove(DataFolder / "tasks.xml");
    const ChangeResult result = RestoreFile(TaskFile(), "1");
    EXPECT_TRUE(result.done);
    EXPECT_EQ(result.kept, Texts{});
    EXPECT_EQ(DataFile("tasks.xml"), backup);
}

TEST_F(Restoring, OfWhatIsNotThereChangesNothing) {
    for (const char* word : {"2", "3", "waiting", "0", "4", "", "latest"}) {
        const ChangeResult result = RestoreFile(TaskFile(), word);
        EXPECT_FALSE(result.done) << word;
        EXPECT_FALSE(result.text.empty());
    }
    EXPECT_EQ(DataFile("tasks.xml"), present);
    EXPECT_EQ(BackupFile("tasks_replaced1.xml"), NoFile);
}

TEST_F(Restoring, HasAllOnTheDeviceBeforeTheFileIsReplaced) {
    SetDataFile("tasks.xml.tmp", "waits");
    Texts synced;
    Script.whileSyncing = [&synced, this](const std::string& name) {
        synced.push_back(name);
        const bool inPlace = DataFile("tasks.xml") == backup;
        EXPECT_EQ(inPlace, synced.size() == 5U) << name;
    };
    EXPECT_TRUE(RestoreFile(TaskFile(), "1").done);
    EXPECT_EQ(synced,
              (Texts{"tasks_replaced1.xml", "tasks_waiting1.xml", "Backup", "tasks.xml.tmp", "Data"}));
}

TEST_F(Restoring, KilledAtAnySystemCallLosesNothing) {
    std::set<std::string> seen;
    const std::string waiting = "what waited";
    SetDataFile("tasks.xml.tmp", waiting);
    const auto restore = [] { RestoreFile(TaskFile(), "1"); };
    for (int stop = 1; KilledAtStop(stop, restore); ++stop) {
        const std::string file = DataFile("tasks.xml");
        seen.insert(file == present ? "old" : file == backup ? "new" : file == NoFile ? "none" : "torn");
        ASSERT_TRUE(CanBeHad(present)) << stop;
        ASSERT_TRUE(CanBeHad(backup)) << stop;
        ASSERT_TRUE(CanBeHad(waiting)) << stop;
        ASSERT_TRUE(file != NoFile || DataFile("tasks.xml.tmp") == backup) << stop;
        RemoveCopies();
        SetDataFile("tasks.xml", present);
        SetDataFile("tasks.xml.tmp", waiting);
    }
    EXPECT_EQ(seen, (std::set<std::string>{"old", "new", "none"}));
}

TEST_P(RestoringUnder, LosesNothingAndSaysWhy) {
    EXPECT_TRUE(SucceedsInChild([] {
        GetParam().happens();
        const ChangeResult result = RestoreFile(TaskFile(), "1");
        EXPECT_FALSE(result.done);
        EXPECT_FALSE(result.text.empty());
    }));
    EXPECT_TRUE(CanBeHad(present));
    EXPECT_TRUE(CanBeHad(backup));
    EXPECT_TRUE(DataFile("tasks.xml") == present || DataFile("tasks.xml.tmp") == backup);
}

INSTANTIATE_TEST_SUITE_P(Faults, RestoringUnder, testing::ValuesIn(Faults),
                         [](const testing::TestParamInfo<Fault>& row) { return row.param.name; });

TEST_F(SettingAside, TakesTheLinesOfOneRecordOut) {
    const std::size_t begin = present.find("<task>", present.find("</task>"));
    const std::size_t end = present.find("</task>\r\n", begin) + 9;
    const ChangeResult result = SetRecordAside(TaskFile(), 2);
    EXPECT_TRUE(result.done) << result.text;
    EXPECT_EQ(result.kept, (Texts{"tasks_set_aside.xml", "tasks_replaced1.xml"}));
    EXPECT_EQ(DataFile("tasks.xml"), present.substr(0, begin) + present.substr(end));
    EXPECT_EQ(BackupFile("tasks_set_aside.xml"), present.substr(begin, end - begin));
    EXPECT_EQ(BackupFile("tasks_replaced1.xml"), present);
    EXPECT_EQ(Shown(Check().findings), "");
}

TEST_F(SettingAside, OfADateThatIsNoneMakesTheDriveSound) {
    Edit("tasks.xml", "<date>2009/10/12", "<date>soon");
    ASSERT_EQ(Check().findings.front().record, 2);
    EXPECT_TRUE(SetRecordAside(TaskFile(), 2).done);
    EXPECT_EQ(Shown(Check().findings), "");
    ResetStore();
    ReadTasks();
    EXPECT_EQ(Store.TaskRecord.desc.values, (Texts{"Task 1", "Task 3"}));
    EXPECT_NE(BackupFile("tasks_set_aside.xml").find("<date>soon</date>"), std::string::npos);
}

TEST_F(SettingAside, OfTheLastLinesOfAFileWithoutALineEndTakesThemToTheirEnd) {
    const std::size_t begin = present.rfind("<task>");
    const std::size_t end = present.rfind("</task>") + 7;
    SetDataFile("tasks.xml", present.substr(0, end));
    EXPECT_TRUE(SetRecordAside(TaskFile(), 3).done);
    EXPECT_EQ(DataFile("tasks.xml"), present.substr(0, begin));
    EXPECT_EQ(BackupFile("tasks_set_aside.xml"), present.substr(begin, end - begin));
}

TEST_F(SettingAside, MakesTheBackupFolderWhereThereIsNone) {
    fs::remove_all(BackupFolder);
    const ChangeResult result = SetRecordAside(TaskFile(), 1);
    EXPECT_TRUE(result.done) << result.text;
    EXPECT_EQ(BackupFile("tasks_replaced1.xml"), present);
}

TEST_F(SettingAside, OfARecordThatIsNotThereOrNotClosedChangesNothing) {
    for (const int record : {0, -1, 4}) {
        EXPECT_FALSE(SetRecordAside(TaskFile(), record).done);
    }
    const std::string cut = present.substr(0, present.rfind("</task>"));
    SetDataFile("tasks.xml", cut);
    EXPECT_FALSE(SetRecordAside(TaskFile(), 3).done);
    EXPECT_EQ(DataFile("tasks.xml"), cut);
    EXPECT_EQ(BackupFile("tasks_set_aside.xml"), NoFile);
}

TEST_F(SettingAside, KilledAtAnySystemCallLosesNothing) {
    const auto setAside = [] { SetRecordAside(TaskFile(), 1); };
    ASSERT_TRUE(SetRecordAside(TaskFile(), 1).done);
    const std::string left = DataFile("tasks.xml");
    RemoveCopies();
    SetDataFile("tasks.xml", present);
    for (int stop = 1; KilledAtStop(stop, setAside); ++stop) {
        const std::string file = DataFile("tasks.xml");
        ASSERT_TRUE(file == present || file == left || DataFile("tasks.xml.tmp") == left) << stop;
        ASSERT_TRUE(CanBeHad(present)) << stop;
        RemoveCopies();
        SetDataFile("tasks.xml", present);
    }
}
