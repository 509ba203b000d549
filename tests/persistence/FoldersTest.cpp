// The folders of the drive, and the messages for files and folders that fail.
#include "persistence/DataFolderTest.h"

#include "support/ChildProcess.h"

#include <array>
#include <cerrno>
#include <fstream>
#include <sys/syscall.h>

namespace fs = std::filesystem;

namespace {

class Folders : public testing::Test {
protected:
    void SetUp() override {
        ResetScript();
        ResetStore();
    }

    TemporaryDrive drive;
    fs::path documents = drive.root / "U3_DEVICE_DOCUMENT_PATH";
};

class FileMessages : public DataFolderTest {
protected:
    void SetUp() override {
        DataFolderTest::SetUp();
        FileWrittenFlags = {true, true, true, true, true};
    }
};

using Flags = std::array<bool, 5>;

// The written flags of terms, classes, assignments, tasks and events.
Flags WrittenFlags() {
    const FileFlags& flags = FileWrittenFlags;
    return {flags.terms, flags.classes, flags.assignments, flags.tasks, flags.events};
}

} // namespace

TEST_F(Folders, AppearOnAnEmptyDriveAndTheReadersCreateEmptyFiles) {
    ASSERT_TRUE(SetupFolders());
    EXPECT_EQ(DocumentFolder, documents / "Planovarium");
    EXPECT_EQ(DataFolder, documents / "Planovarium" / "Data");
    EXPECT_EQ(BackupFolder, documents / "Planovarium" / "Data" / "Backup");
    EXPECT_TRUE(fs::is_directory(BackupFolder));
    EXPECT_TRUE(fs::is_empty(BackupFolder));
    ReadTermsAndClasses();
    ReadTasks();
    ReadEvents();
    EXPECT_EQ(DataFile("terms.xml"), FileOf("term_data", ""));
    EXPECT_EQ(DataFile("classes.xml"), FileOf("class_data", ""));
    EXPECT_EQ(DataFile("tasks.xml"), FileOf("task_data", ""));
    EXPECT_EQ(DataFile("events.xml"), FileOf("event_data", ""));
    EXPECT_EQ(Script.boxes, Boxes{});
}

TEST_F(Folders, AreEnteredAndTheHelpFileIsThatOfTheProgramFolder) {
    ASSERT_TRUE(SetupFolders());
    EXPECT_EQ(fs::current_path(), fs::canonical(DataFolder));
    EXPECT_EQ(HelpFile, drive.root / "U3_DEVICE_EXEC_PATH" / "Help" / "index.html");
}

TEST_F(Folders, ThatExistKeepWhatIsInThem) {
    fs::create_directories(documents / "Planovarium" / "Data" / "Backup");
    std::ofstream(documents / "Planovarium" / "Data" / "tasks.xml") << "kept";
    ASSERT_TRUE(SetupFolders());
    EXPECT_EQ(DataFile("tasks.xml"), "kept");
}

TEST_F(Folders, ThatCannotBeCreatedAreAProgramError) {
    fs::remove(documents);
    EXPECT_THROW(SetupFolders(), RunTimeError);
    EXPECT_EQ(Script.boxes, Boxes{});
}

TEST_F(Folders, ThatCannotBeCreatedAreToldInTheCharactersOfTheStore) {
    ::setenv("U3_DEVICE_DOCUMENT_PATH", "/J\xC3\xBCrgen \xE2\x82\xAC \xE2\x88\x9E", 1);
    try {
        SetupFolders();
        FAIL() << "no folder can be created there";
    } catch (const RunTimeError& error) {
        EXPECT_STREQ(error.what(), "Folder cannot be created: \"/J\xFCrgen \x80 ?/Planovarium\"");
    }
}

TEST_F(Folders, WhoseNamesAreNoTextAreToldByteForByte) {
    ::setenv("U3_DEVICE_DOCUMENT_PATH", "/J\xFCrgen", 1);
    try {
        SetupFolders();
        FAIL() << "no folder can be created there";
    } catch (const RunTimeError& error) {
        EXPECT_STREQ(error.what(), "Folder cannot be created: \"/J\xFCrgen/Planovarium\"");
    }
}

// Anything of the folder's name counts as the folder; what then fails is the creation of the one below it.
TEST_F(Folders, InWhosePlaceAFileLiesAreTakenAsExisting) {
    fs::create_directory(documents / "Planovarium");
    std::ofstream(documents / "Planovarium" / "Data") << "a file";
    EXPECT_THROW(SetupFolders(), RunTimeError);
    EXPECT_EQ(DataFile(""), NoFile);
    EXPECT_TRUE(fs::is_regular_file(documents / "Planovarium" / "Data"));
}

TEST_F(Folders, InWhosePlaceAFileLiesDoNotKeepThePlannerFromItsStart) {
    fs::create_directories(documents / "Planovarium" / "Data");
    std::ofstream(documents / "Planovarium" / "Data" / "Backup") << "a file";
    EXPECT_TRUE(SetupFolders());
    EXPECT_EQ(DataFile("Backup"), "a file");
    WriteTasks();
    RotateBackups();
    EXPECT_EQ(Script.boxes, Boxes{});
    EXPECT_EQ(DataFile("Backup"), "a file");
}

TEST_F(Folders, ThatCannotBeEnteredAtStartGiveTheDirectoryMessageAndEndTheProcess) {
    EXPECT_TRUE(SucceedsInChild([] {
        FailSystemCall(SYS_chdir, EACCES);
        EXPECT_FALSE(SetupFolders());
        EXPECT_EQ(
            Script.boxes,
            (Boxes{{"Planovarium - Directory Error",
                    "Error creating Planovarium Data Directory\n\nPlease restart Planovarium. If the error "
                    "continues, please contact Planovarium Software.",
                    Buttons::Ok, Icon::Exclamation}}));
    }));
}

TEST_F(FileMessages, NameTheFileAndSayReadErrorInTheTitleAlsoWhenWriting) {
    ShowFileError("terms.xml", "reading");
    ShowFileError("assignments_3.xml.tmp", "writing");
    EXPECT_EQ(
        Script.boxes,
        (Boxes{
            {"Planovarium - File Read Error",
             "Error reading the file: terms.xml\n\nDo not continue working. Exit and restart Planovarium. If "
             "the error continues, see the Help for more information.",
             Buttons::Ok, Icon::Exclamation},
            {"Planovarium - File Read Error",
             "Error writing the file: assignments_3.xml.tmp\n\nDo not continue working. Exit and restart "
             "Planovarium. If the error continues, see the Help for more information.",
             Buttons::Ok, Icon::Exclamation}}));
}

TEST_F(FileMessages, ClearTheFlagThatTheStartOfTheNameTells) {
    ShowFileError("terms.xml", "reading");
    EXPECT_EQ(WrittenFlags(), (Flags{false, true, true, true, true}));
    ShowFileError("classes.xml", "reading");
    EXPECT_EQ(WrittenFlags(), (Flags{false, false, true, true, true}));
    ShowFileError("assignments_12.xml.tmp", "writing");
    EXPECT_EQ(WrittenFlags(), (Flags{false, false, false, true, true}));
    ShowFileError("tasks.xml.tmp", "writing");
    EXPECT_EQ(WrittenFlags(), (Flags{false, false, false, false, true}));
    ShowFileError("events.xml", "reading");
    EXPECT_EQ(WrittenFlags(), (Flags{false, false, false, false, false}));
}

TEST_F(FileMessages, ClearNoFlagForAnyOtherName) {
    ShowFileError("Prefs.ini", "reading");
    EXPECT_EQ(WrittenFlags(), (Flags{true, true, true, true, true}));
}

TEST_F(FileMessages, AboutFoldersClearNoFlag) {
    ShowDirectoryError();
    EXPECT_EQ(Script.boxes, Boxes{DirectoryErrorBox()});
    EXPECT_EQ(WrittenFlags(), (Flags{true, true, true, true, true}));
}

TEST_F(FileMessages, AreNeitherShownNorAreFilesReadOrWrittenOnceAShutdownHasBegun) {
    SetDataFile("tasks.xml", "no record file");
    ShuttingDown = true;
    ReadTasks();
    WriteTasks();
    ReadEvents();
    WriteEvents();
    ShuttingDown = false;
    EXPECT_EQ(Script.boxes, Boxes{});
    EXPECT_EQ(DataFile("tasks.xml"), "no record file");
    EXPECT_EQ(DataFile("events.xml"), NoFile);
}
