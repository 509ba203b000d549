// A file whose read was cut short and the save that replaces it: the record that did not end goes, the bytes
// are kept aside, and what the student adds stays apart from what was cut.
#include "persistence/DataFolderTest.h"

#include "core/RunTimeError.h"
#include "core/Values.h"

#include <filesystem>

namespace fs = std::filesystem;

namespace {

class DamagedRecords : public DataFolderTest {
protected:
    void SetUp() override {
        DataFolderTest::SetUp();
        AddTaskRecord({.desc = "one"});
        AddTaskRecord({.desc = "two"});
        AddTaskRecord({.desc = "three"});
        WriteTasks();
        whole = DataFile("tasks.xml");
    }

    // Leaves the front part of the file up to the text, and reads it in a run of its own.
    void ReadCutBefore(const std::string& text) {
        cut = whole.substr(0, whole.rfind(text));
        ReadInsteadOfTasks(cut);
    }

    void ReadInsteadOfTasks(const std::string& bytes) {
        SetDataFile("tasks.xml", bytes);
        ResetStore();
        Script.boxes.clear();
        ReadTasks();
    }

    static void AddAfterDrop(const std::string& desc) {
        DropUnfinishedRecord(TaskFile());
        AddTaskRecord({.desc = desc});
        WriteTasks();
    }

    static Texts Descriptions() { return Store.TaskRecord.desc.values; }

    std::string whole, cut;
};

const Boxes ReadingBox{FileErrorBox("tasks.xml", "reading")};

} // namespace

TEST_F(DamagedRecords, TheRecordThatWasCutDoesNotMergeWithTheNextOne) {
    ReadCutBefore("</desc>");
    EXPECT_EQ(Store.TaskRecord.id.Count(), 3);
    AddAfterDrop("four");
    EXPECT_EQ(Script.boxes, ReadingBox);
    EXPECT_EQ(Descriptions(), (Texts{"one", "two", "four"}));
    EXPECT_EQ(Store.TaskRecord.id.values, (Texts{"1", "2", "4"})) << "not the id of the one that was cut";
    EXPECT_TRUE(FileWrittenFlags.tasks);
    ReadInsteadOfTasks(DataFile("tasks.xml"));
    EXPECT_EQ(Descriptions(), (Texts{"one", "two", "four"}));
    EXPECT_EQ(Script.boxes, Boxes{});
}

TEST_F(DamagedRecords, TheFileAsItStandsIsKeptOnceBeforeItIsReplaced) {
    ReadCutBefore("</desc>");
    EXPECT_EQ(BackupFile("tasks_damaged.xml"), NoFile) << "reading changes nothing";
    AddAfterDrop("four");
    AddAfterDrop("five");
    EXPECT_EQ(BackupFile("tasks_damaged.xml"), cut);
    EXPECT_EQ(BackupFile("tasks_damaged2.xml"), NoFile);
}

TEST_F(DamagedRecords, TheCopyIsOnTheDeviceBeforeTheSaveBegins) {
    ReadCutBefore("</desc>");
    Texts synced;
    Script.whileSyncing = [&](const std::string& name) {
        synced.push_back(name);
        EXPECT_EQ(DataFile("tasks.xml") == cut, name != "Data") << name;
    };
    AddAfterDrop("four");
    EXPECT_EQ(synced, (Texts{"tasks_damaged.xml", "Backup", "tasks.xml.tmp", "Data"}));
}

TEST_F(DamagedRecords, NoCopyTakesThePlaceOfAnother) {
    Texts cuts;
    for (const char* end : {"</desc>", "</type>", "</notes>"}) {
        ReadCutBefore(end);
        cuts.push_back(cut);
        AddAfterDrop("more");
    }
    EXPECT_EQ((Texts{BackupFile("tasks_damaged.xml"), BackupFile("tasks_damaged2.xml"),
                     BackupFile("tasks_damaged3.xml")}),
              cuts);
}

TEST_F(DamagedRecords, AWholeFileIsNotKept) {
    ReadInsteadOfTasks(whole);
    AddAfterDrop("four");
    EXPECT_TRUE(fs::is_empty(BackupFolder));
}

TEST_F(DamagedRecords, ACutBetweenTwoLinesIsOneToo) {
    ReadCutBefore("  <type>");
    EXPECT_EQ(Script.boxes, Boxes{}) << "no tag is missing as far as the reader can tell";
    AddAfterDrop("four");
    EXPECT_EQ(Descriptions(), (Texts{"one", "two", "four"}));
    EXPECT_TRUE(FileWrittenFlags.tasks);
    EXPECT_EQ(BackupFile("tasks_damaged.xml"), cut);
}

TEST_F(DamagedRecords, ACutBetweenTwoRecordsIsOneToo) {
    const std::size_t third = whole.rfind("<task>");
    ReadInsteadOfTasks(whole.substr(0, third));
    AddAfterDrop("four");
    EXPECT_EQ(Descriptions(), (Texts{"one", "two", "four"}));
    EXPECT_EQ(BackupFile("tasks_damaged.xml"), whole.substr(0, third));
}

TEST_F(DamagedRecords, ARecordThatLacksItsClosingTagAloneStays) {
    for (const char* end : {"</task>", "ask>\r\n</task_data>"}) {
        ReadCutBefore(end);
        AddAfterDrop("four");
        EXPECT_EQ(Descriptions(), (Texts{"one", "two", "three", "four"})) << end;
    }
}

TEST_F(DamagedRecords, ABadIdGoesAndWhatStandsBehindItIsKept) {
    std::string bytes = whole;
    bytes.replace(bytes.find("<id>2"), 5, "<id>x");
    ReadInsteadOfTasks(bytes);
    EXPECT_EQ(Store.TaskRecord.id.values, (Texts{"1", "x"}))
        << "it stays in its list while nothing is changed";
    AddAfterDrop("four");
    EXPECT_EQ(Store.TaskRecord.id.values, (Texts{"1", "2"}));
    EXPECT_EQ(Descriptions(), (Texts{"one", "four"}));
    EXPECT_EQ(BackupFile("tasks_damaged.xml"), bytes);
}

TEST_F(DamagedRecords, ATagMissingInTheMiddleStaysAsItIs) {
    std::string bytes = whole;
    bytes.erase(bytes.find("  <type>"), std::string("  <type>None</type>\r\n").size());
    ReadInsteadOfTasks(bytes);
    EXPECT_EQ(WholeRecords(Store.TaskRecord), 2);
    AddAfterDrop("four");
    EXPECT_EQ(Script.boxes, Boxes{FileErrorBox("tasks.xml.tmp", "writing")});
    EXPECT_EQ(DataFile("tasks.xml"), bytes);
}

TEST_F(DamagedRecords, WithoutACopyTheFileIsNotReplaced) {
    ReadCutBefore("</desc>");
    fs::remove(BackupFolder);
    AddAfterDrop("four");
    EXPECT_EQ(Script.boxes.back(), FileErrorBox("tasks_damaged.xml", "writing"));
    EXPECT_EQ(DataFile("tasks.xml"), cut);
    EXPECT_FALSE(FileWrittenFlags.tasks);
    fs::create_directory(BackupFolder);
    WriteTasks();
    EXPECT_EQ(BackupFile("tasks_damaged.xml"), cut);
    EXPECT_TRUE(FileWrittenFlags.tasks);
}

// A device that has gone tells of each name in it neither that it is there nor that it is not.
TEST_F(DamagedRecords, AFolderThatTellsNothingOfItsNamesEndsInTheWritingBox) {
    ReadCutBefore("</desc>");
    fs::remove(BackupFolder);
    fs::create_symlink(BackupFolder, BackupFolder);
    AddAfterDrop("four");
    EXPECT_EQ(Script.boxes.back(), FileErrorBox("tasks_damaged.xml", "writing"));
    EXPECT_EQ(DataFile("tasks.xml"), cut);
}

TEST_F(DamagedRecords, TheWriterAloneTakesNothingOut) {
    ReadCutBefore("</desc>");
    WriteTasks();
    EXPECT_EQ(Script.boxes.back(), FileErrorBox("tasks.xml.tmp", "writing"));
    EXPECT_EQ(Store.TaskRecord.id.Count(), 3);
    EXPECT_EQ(DataFile("tasks.xml"), cut);
}

TEST_F(DamagedRecords, ARootThatClosesWithinARecordIsACutToo) {
    std::string bytes = whole;
    bytes.erase(bytes.rfind("</task>\r\n"), std::string("</task>\r\n").size());
    ReadInsteadOfTasks(bytes);
    AddAfterDrop("four");
    EXPECT_EQ(Descriptions(), (Texts{"one", "two", "three", "four"}));
    EXPECT_EQ(BackupFile("tasks_damaged.xml"), bytes);
}

TEST_F(DamagedRecords, AFileThatHasGoneIsSavedAnew) {
    ReadCutBefore("</desc>");
    fs::remove("tasks.xml");
    AddAfterDrop("four");
    EXPECT_TRUE(FileWrittenFlags.tasks);
    EXPECT_TRUE(fs::is_empty(BackupFolder));
}

TEST_F(DamagedRecords, ClassesThatWereNotReadForTheTermsAreKeptToo) {
    Store.Term = {};
    AddClassRecord({.name = "Algebra"});
    WriteTermsAndClasses();
    const std::string classes = DataFile("classes.xml");
    SetDataFile("terms.xml", "no terms");
    ResetStore();
    ReadTermsAndClasses();
    EXPECT_TRUE(LastReads.terms.cutShort);
    EXPECT_TRUE(LastReads.classes.cutShort);
    WriteTermsAndClasses();
    EXPECT_EQ(BackupFile("terms_damaged.xml"), "no terms");
    EXPECT_EQ(BackupFile("classes_damaged.xml"), classes);
}

TEST_F(DamagedRecords, AreForgottenByTheNextRead) {
    ReadCutBefore("</desc>");
    EXPECT_TRUE(LastReads.tasks.cutShort);
    ReadInsteadOfTasks(whole);
    EXPECT_FALSE(LastReads.tasks.cutShort);
    DropUnfinishedRecord(TaskFile());
    EXPECT_EQ(Descriptions(), (Texts{"one", "two", "three"}));
}
