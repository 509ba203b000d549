// A save that fails: the old file stays whole, the message names the .tmp file, and the flag is cleared.
#include "persistence/DataFolderTest.h"

#include "support/ChildProcess.h"

#include <cerrno>
#include <csignal>
#include <functional>
#include <sys/resource.h>
#include <sys/syscall.h>

namespace fs = std::filesystem;

namespace {

// Each fault is brought about in a child process, which then saves.
struct Fault {
    std::string name;
    std::function<void()> happens;
};

void LimitFileSize(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, bytes};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
}

void MakeDataFolderReadOnly() {
    const fs::path drive = DocumentFolder.parent_path().parent_path();
    for (fs::path folder = DataFolder; folder != drive.parent_path(); folder = folder.parent_path()) {
        fs::permissions(folder, fs::perms{0755}); // so that another user can come this far
    }
    fs::permissions(DataFolder, fs::perms{0555});
    DropPrivileges();
}

const std::vector<Fault> Faults{
    {"NoSpaceOnTheDevice", [] { fs::create_symlink("/dev/full", DataFolder / "tasks.xml.tmp"); }},
    {"FileSizeLimitAtOnce", [] { LimitFileSize(0); }},
    {"FileSizeLimitInTheMiddle", [] { LimitFileSize(300); }},
    {"ReadOnlyFolder", MakeDataFolderReadOnly},
    {"TmpIsAFolder", [] { fs::create_directory(DataFolder / "tasks.xml.tmp"); }},
    {"TmpLeadsNowhere", [] { fs::create_symlink("gone/away", DataFolder / "tasks.xml.tmp"); }},
    {"SyncNotPossible", [] { fs::create_symlink("/dev/null", DataFolder / "tasks.xml.tmp"); }},
    {"SyncFails", [] { FailSystemCall(SYS_fsync, EIO); }},
    {"OpeningFails", [] { FailSystemCall(SYS_openat, EMFILE); }},
    {"WritingFails", [] { FailSystemCall(SYS_write, ENOSPC); }},
    {"ClosingFails", [] { FailSystemCall(SYS_close, EIO); }},
    {"ListTooShort", [] { Store.TaskRecord.notes.Remove(1); }},
};

class Save : public DataFolderTest {
protected:
    void SetUp() override {
        DataFolderTest::SetUp();
        AddTaskRecord({.desc = "old"});
        WriteTasks();
        old = DataFile("tasks.xml");
        AddTaskRecord({.desc = "new"});
    }

    std::string old;
};

class SaveUnder : public Save, public testing::WithParamInterface<Fault> {};

class FirstRead : public DataFolderTest {};

} // namespace

TEST_P(SaveUnder, KeepsTheOldFileShowsTheMessageAndClearsTheFlag) {
    EXPECT_TRUE(SucceedsInChild([] {
        GetParam().happens();
        WriteTasks();
        EXPECT_EQ(Script.boxes, Boxes{FileErrorBox("tasks.xml.tmp", "writing")});
        EXPECT_FALSE(FileWrittenFlags.tasks);
        EXPECT_EQ(Store.TaskRecord.desc.values, (Texts{"old", "new"})) << "the store keeps the change";
    }));
    EXPECT_EQ(DataFile("tasks.xml"), old);
}

INSTANTIATE_TEST_SUITE_P(Faults, SaveUnder, testing::ValuesIn(Faults),
                         [](const testing::TestParamInfo<Fault>& row) { return row.param.name; });

TEST_F(Save, InAFolderThatIsGoneShowsTheDirectoryMessageAndKeepsTheFlag) {
    const fs::path elsewhere = drive.root / "elsewhere";
    fs::rename(DataFolder, elsewhere);
    WriteTasks();
    EXPECT_EQ(Script.boxes, Boxes{DirectoryErrorBox()});
    EXPECT_TRUE(FileWrittenFlags.tasks) << "nothing but a failed read or write clears it";
    EXPECT_EQ(Store.TaskRecord.desc.values, (Texts{"old", "new"}));
    fs::rename(elsewhere, DataFolder);
    EXPECT_EQ(DataFile("tasks.xml"), old);
    EXPECT_EQ(DataFile("tasks.xml.tmp"), NoFile);
}

TEST_F(Save, GoesAheadAfterAFailedOneAndSetsTheFlagAgain) {
    fs::create_directory(DataFolder / "tasks.xml.tmp");
    WriteTasks();
    EXPECT_FALSE(FileWrittenFlags.tasks);
    fs::remove(DataFolder / "tasks.xml.tmp");
    WriteTasks();
    EXPECT_TRUE(FileWrittenFlags.tasks);
    EXPECT_NE(DataFile("tasks.xml"), old);
}

TEST_F(Save, GoesAheadAfterAFailedRead) {
    SetDataFile("tasks.xml", "damaged");
    ReadTasks();
    ASSERT_EQ(Script.boxes.size(), 1U);
    WriteTasks();
    EXPECT_EQ(Script.boxes.size(), 1U);
    EXPECT_TRUE(FileWrittenFlags.tasks);
}

TEST_F(Save, OverwritesALeftoverTmpThatReadingIgnores) {
    SetDataFile("tasks.xml.tmp", std::string(100000, 'x'));
    ResetStore();
    ReadTasks();
    EXPECT_EQ(Store.TaskRecord.desc.values, Texts{"old"});
    WriteTasks();
    EXPECT_EQ(DataFile("tasks.xml"), old);
    EXPECT_EQ(DataFile("tasks.xml.tmp"), NoFile);
}

TEST_F(Save, PassesOverARenameThatFailsWithTheRecordsInTheTmp) {
    fs::remove(DataFolder / "tasks.xml");
    fs::create_directories(DataFolder / "tasks.xml" / "occupied");
    WriteTasks();
    EXPECT_EQ(Script.boxes, Boxes{});
    EXPECT_TRUE(FileWrittenFlags.tasks);
    EXPECT_TRUE(DataFile("tasks.xml.tmp").ends_with("</task_data>\r\n"));
}

TEST_F(Save, PassesOverARenameThatFailsBehindTheRemovalOfTheFile) {
    EXPECT_TRUE(SucceedsInChild([] {
        FailSystemCall(SYS_rename, EIO);
        WriteTasks();
        EXPECT_EQ(Script.boxes, Boxes{});
        EXPECT_TRUE(FileWrittenFlags.tasks);
    }));
    EXPECT_EQ(DataFile("tasks.xml"), NoFile);
    EXPECT_TRUE(DataFile("tasks.xml.tmp").ends_with("</task_data>\r\n"));
}

TEST_F(Save, LeavesAPartialTmpBehindWhenSpaceRunsOut) {
    EXPECT_TRUE(SucceedsInChild([] {
        LimitFileSize(300);
        WriteTasks();
    }));
    const std::string partial = DataFile("tasks.xml.tmp");
    EXPECT_EQ(partial.size(), 300U);
    EXPECT_TRUE(old.starts_with(partial));
}

TEST_F(FirstRead, OnAFullDriveShowsTheReadingMessageAndLeavesNoEmptyFile) {
    EXPECT_TRUE(SucceedsInChild([] {
        LimitFileSize(10);
        ReadTasks();
        EXPECT_EQ(Script.boxes, Boxes{FileErrorBox("tasks.xml", "reading")});
    }));
    EXPECT_EQ(DataFile("tasks.xml"), NoFile);
}

TEST_F(FirstRead, InAReadOnlyFolderShowsTheReadingMessage) {
    EXPECT_TRUE(SucceedsInChild([] {
        MakeDataFolderReadOnly();
        ReadTasks();
        EXPECT_EQ(Script.boxes, Boxes{FileErrorBox("tasks.xml", "reading")});
    }));
    EXPECT_EQ(DataFile("tasks.xml"), NoFile);
}

TEST_F(FirstRead, OfAFileThatCannotBeAskedForTakesItAsThere) {
    AddTaskRecord({.desc = "old"});
    WriteTasks();
    const std::string old = DataFile("tasks.xml");
    for (const int number : {SYS_newfstatat, SYS_stat, SYS_lstat, SYS_statx}) {
        EXPECT_TRUE(SucceedsInChild([number] {
            ResetStore();
            FailSystemCall(number, EACCES);
            ReadTasks();
            EXPECT_EQ(Script.boxes, Boxes{});
            EXPECT_EQ(Store.TaskRecord.desc.values, Texts{"old"});
        }));
        EXPECT_EQ(DataFile("tasks.xml"), old);
    }
}
