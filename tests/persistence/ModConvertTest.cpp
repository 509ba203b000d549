// The conversion of the older release's data: when it runs, what it takes over, and what its failures leave.
#include "persistence/modConvert.h"
#include "persistence/DataFolderTest.h"
#include "support/LegacyDrive.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

class Conversion : public DataFolderTest {
protected:
    // A folder of the older release: one term with one class, one of each other record.
    void SetUp() override {
        DataFolderTest::SetUp();
        SetDataFile("Preferences.ini", "anything");
        SetDataFile("Terms.txt", LegacyTerm("1", "Fall 2009"));
        SetDataFile("Classes.txt", LegacyClass("1", "1", "Algebra"));
        SetDataFile("Notes.txt", LegacyNote("1", "Old note"));
        SetDataFile("Assignments.txt", LegacyAssignment({}));
        SetDataFile("Tasks.txt", LegacyTask({}));
        SetDataFile("Events.txt", LegacyEvent({}));
    }

    // Converts and reads what came of it, as the planner does at its start.
    static void Start() {
        ConvertLegacyData();
        ReadTermsAndClasses();
        ReadTasks();
        ReadEvents();
        ChooseActiveTerm("");
        if (ActiveTermIsLiving()) {
            ReadAssignments();
        }
    }

    static void ReadAssignmentsOf(int term) {
        ResetAssignmentLists();
        ActiveTermID = term;
        ReadAssignments();
    }

    static void Remove(const std::string& name) { fs::remove(DataFolder / name); }

    static std::vector<std::string> FilesOfTheFolder() {
        std::vector<std::string> names;
        for (const fs::directory_entry& entry : fs::directory_iterator(DataFolder)) {
            names.push_back(entry.path().filename().string());
        }
        std::ranges::sort(names);
        return names;
    }
};

const Texts OldFilesAlone{"Assignments.txt", "Backup",          "Classes.txt", "Events.txt",
                          "Notes.txt",       "Preferences.ini", "Tasks.txt",   "Terms.txt"};

} // namespace

TEST_F(Conversion, TakesOverARecordOfEachKindByteForByte) {
    ConvertLegacyData();
    EXPECT_EQ(
        DataFile("terms.xml"),
        FileOf("term_data", Lines({"<term>", "  <id>1</id>", "  <name>Fall 2009</name>",
                                   "  <start>2009/08/24</start>", "  <end>2009/12/18</end>", "</term>"})));
    EXPECT_EQ(
        DataFile("classes.xml"),
        FileOf("class_data", Lines({"<class>", "  <id>1</id>", "  <term>1</term>", "  <name>Algebra</name>",
                                    "  <credits>1</credits>", "  <forecolor>0</forecolor>",
                                    "  <backcolor>16777215</backcolor>", "  <notes></notes>", "</class>"})));
    EXPECT_EQ(DataFile("assignments_1.xml"),
              FileOf("assignment_data", Lines({"<assignment>",
                                               "  <id>1</id>",
                                               "  <class>1</class>",
                                               "  <date>2009/10/14</date>",
                                               "  <desc>Old work</desc>",
                                               "  <type>Reading</type>",
                                               "  <priority>False</priority>",
                                               "  <est_time>01 : 30</est_time>",
                                               "  <time_left>01 : 30</time_left>",
                                               "  <percent_complete>0%</percent_complete>",
                                               "  <done>False</done>",
                                               "  <score></score>",
                                               "  <total></total>",
                                               "  <grade></grade>",
                                               "  <reminder>False</reminder>",
                                               "  <reminderdate>2009/10/14</reminderdate>",
                                               "  <remindertime>09:00 AM</remindertime>",
                                               "  <reminderalarm>2009/10/14 09:00:00</reminderalarm>",
                                               "  <reminderlist>False</reminderlist>",
                                               "  <notes>Old note</notes>",
                                               "</assignment>"})));
    EXPECT_EQ(DataFile("tasks.xml"),
              FileOf("task_data",
                     Lines({"<task>", "  <id>1</id>", "  <date>2009/10/14</date>", "  <desc>Old task</desc>",
                            "  <date_exists>True</date_exists>", "  <type>Home</type>",
                            "  <priority>Low</priority>", "  <percent_complete>0%</percent_complete>",
                            "  <done>False</done>", "  <reminder>False</reminder>",
                            "  <reminder_date>2009/10/14</reminder_date>",
                            "  <reminder_time>09:00 AM</reminder_time>",
                            "  <reminder_alarm>2009/10/14 09:00:00</reminder_alarm>",
                            "  <reminder_list>False</reminder_list>", "  <notes></notes>", "</task>"})));
    EXPECT_EQ(DataFile("events.xml"),
              FileOf("event_data", Lines({"<event>",
                                          "  <id>1</id>",
                                          "  <date>2009/10/14</date>",
                                          "  <time>10:30 AM</time>",
                                          "  <duration>1 Hour</duration>",
                                          "  <desc>Old event</desc>",
                                          "  <type>School</type>",
                                          "  <recurrence>None</recurrence>",
                                          "  <exceptions></exceptions>",
                                          "  <parent_id></parent_id>",
                                          "  <same_date>False</same_date>",
                                          "  <repeat_number>First</repeat_number>",
                                          "  <repeat_day>Day</repeat_day>",
                                          "  <repeat_daily>FFFFFFF</repeat_daily>",
                                          "  <end>False</end>",
                                          "  <end_date>2009/10/14</end_date>",
                                          "  <reminder>False</reminder>",
                                          "  <reminder_time>30 Minutes</reminder_time>",
                                          "  <reminder_alarm>2009/10/14 09:00:00</reminder_alarm>",
                                          "  <reminder_list>False</reminder_list>",
                                          "  <reminder_currentday>2009/10/14</reminder_currentday>",
                                          "  <reminder_nextday>2009/10/14</reminder_nextday>",
                                          "  <reminder_nextalarm>2009/10/14 09:00:00</reminder_nextalarm>",
                                          "  <notes></notes>",
                                          "</event>"})));
    EXPECT_EQ(Script.boxes, Boxes{});
}

TEST_F(Conversion, LeavesTheOldFilesAsTheyAre) {
    const std::string terms = DataFile("Terms.txt");
    const std::string notes = DataFile("Notes.txt");
    ConvertLegacyData();
    EXPECT_EQ(DataFile("Terms.txt"), terms);
    EXPECT_EQ(DataFile("Notes.txt"), notes);
    EXPECT_EQ(DataFile("Preferences.ini"), "anything");
}

TEST_F(Conversion, LeavesAnEmptyStoreAndTheCountersBehind) {
    ConvertLegacyData();
    EXPECT_EQ(Store.Term.id.Count() + Store.ClassRecord.id.Count() + Store.Assignment.id.Count() +
                  Store.TaskRecord.id.Count() + Store.EventRecord.id.Count(),
              0);
    EXPECT_EQ(NextTermID, 1);
    EXPECT_EQ(NextTaskID, 1);
}

TEST_F(Conversion, SetsTheFlagsOfItsSaves) {
    ConvertLegacyData();
    EXPECT_TRUE(FileWrittenFlags.terms && FileWrittenFlags.classes && FileWrittenFlags.assignments &&
                FileWrittenFlags.tasks && FileWrittenFlags.events);
}

TEST_F(Conversion, OfASecondStartConvertsNothing) {
    Start();
    const std::string tasks = DataFile("tasks.xml");
    SetDataFile("Tasks.txt", LegacyTask({.desc = "another"}));
    ResetStore();
    Start();
    EXPECT_EQ(DataFile("tasks.xml"), tasks);
    EXPECT_EQ(Store.TaskRecord.desc.values, Texts{"Old task"});
}

TEST_F(Conversion, DoesNothingWithoutTheOldPreferences) {
    Remove("Preferences.ini");
    ConvertLegacyData();
    Texts expected = OldFilesAlone;
    std::erase(expected, "Preferences.ini");
    EXPECT_EQ(FilesOfTheFolder(), expected);
}

TEST_F(Conversion, DoesNothingWhereTermsXmlExistsWhateverItHolds) {
    SetDataFile("terms.xml", "");
    ConvertLegacyData();
    EXPECT_EQ(DataFile("terms.xml"), "");
    EXPECT_EQ(DataFile("tasks.xml"), NoFile);
}

TEST_F(Conversion, FindsTheOldFilesInAnyCaseOfTheirLetters) {
    for (const char* name : {"Terms.txt", "Classes.txt", "Notes.txt", "Assignments.txt", "Tasks.txt",
                             "Events.txt", "Preferences.ini"}) {
        std::string upper = name;
        std::ranges::transform(upper, upper.begin(), [](unsigned char c) { return std::toupper(c); });
        fs::rename(DataFolder / name, DataFolder / upper);
    }
    Start();
    EXPECT_EQ(Store.Term.name.values, Texts{"Fall 2009"});
    EXPECT_EQ(Store.ClassRecord.name.values, Texts{"Algebra"});
    EXPECT_EQ(Store.Assignment.notes.values, Texts{"Old note"});
    EXPECT_EQ(Store.TaskRecord.desc.values, Texts{"Old task"});
    EXPECT_EQ(Store.EventRecord.desc.values, Texts{"Old event"});
}

TEST_F(Conversion, TakesAnExactNameBeforeOneInOtherLetters) {
    SetDataFile("TASKS.TXT", LegacyTask({.desc = "another"}));
    Start();
    EXPECT_EQ(Store.TaskRecord.desc.values, Texts{"Old task"});
}

TEST_F(Conversion, TakesTheFirstInTheOrderOfTheBytesOfTwoNamesInOtherLetters) {
    Remove("Tasks.txt");
    SetDataFile("tasks.TXT", LegacyTask({.desc = "of the second name"}));
    SetDataFile("TASKS.txt", LegacyTask({.desc = "of the first name"}));
    SetDataFile("tasks.txt", LegacyTask({.desc = "of the third name"}));
    Start();
    EXPECT_EQ(Store.TaskRecord.desc.values, Texts{"of the first name"});
}

TEST_F(Conversion, OfNoTermsConvertsEventsAndTasksOverWhatIsThere) {
    Remove("Terms.txt");
    SetDataFile("tasks.xml", "present");
    SetDataFile("events.xml", "present");
    Start();
    EXPECT_EQ(Store.TaskRecord.desc.values, Texts{"Old task"});
    EXPECT_EQ(Store.EventRecord.desc.values, Texts{"Old event"});
    EXPECT_EQ(DataFile("terms.xml"), FileOf("term_data", "")) << "the reader made it";
    EXPECT_EQ(DataFile("classes.xml"), FileOf("class_data", ""));
    EXPECT_EQ(DataFile("assignments_1.xml"), NoFile);
}

TEST_F(Conversion, OfNoClassesWritesNoTermsButAnAssignmentFileForEach) {
    Remove("Classes.txt");
    ConvertLegacyData();
    EXPECT_EQ(DataFile("terms.xml"), NoFile);
    EXPECT_EQ(DataFile("classes.xml"), NoFile);
    EXPECT_EQ(DataFile("assignments_1.xml"), FileOf("assignment_data", ""));
    EXPECT_NE(DataFile("tasks.xml"), NoFile);
    EXPECT_EQ(Script.boxes, Boxes{});
}

TEST_F(Conversion, OfNoAssignmentsMakesNoFileForThem) {
    Remove("Assignments.txt");
    ConvertLegacyData();
    EXPECT_EQ(DataFile("assignments_1.xml"), NoFile);
    EXPECT_NE(DataFile("terms.xml"), NoFile);
}

TEST_F(Conversion, OfNoNotesLeavesThemEmpty) {
    Remove("Notes.txt");
    Start();
    EXPECT_EQ(Store.Assignment.notes.values, Texts{""});
}

TEST_F(Conversion, PassesOverAFileThatCannotBeReadWithoutAWord) {
    Remove("Events.txt");
    fs::create_directory(DataFolder / "Events.txt");
    ConvertLegacyData();
    EXPECT_EQ(DataFile("events.xml"), NoFile);
    EXPECT_NE(DataFile("tasks.xml"), NoFile);
    EXPECT_EQ(Script.boxes, Boxes{});
}

TEST_F(Conversion, PassesOverClassesThatCannotBeReadAndWritesNoTerms) {
    Remove("Classes.txt");
    fs::create_directory(DataFolder / "Classes.txt");
    ConvertLegacyData();
    EXPECT_EQ(DataFile("terms.xml"), NoFile);
    ResetStore();
    Start();
    EXPECT_EQ(DataFile("terms.xml"), FileOf("term_data", "")) << "so the next start converts nothing";
}

TEST_F(Conversion, PassesOverAssignmentsThatCannotBeReadAndGoesOn) {
    Remove("Assignments.txt");
    fs::create_directory(DataFolder / "Assignments.txt");
    ConvertLegacyData();
    EXPECT_EQ(DataFile("assignments_1.xml"), NoFile);
    EXPECT_NE(DataFile("events.xml"), NoFile);
}

TEST_F(Conversion, GoesOnBehindTheBoxOfAWriter) {
    fs::create_directory(DataFolder / "events.xml.tmp");
    ConvertLegacyData();
    EXPECT_EQ(Script.boxes, Boxes{FileErrorBox("events.xml.tmp", "writing")});
    EXPECT_NE(DataFile("tasks.xml"), NoFile);
    EXPECT_FALSE(FileWrittenFlags.events);
    EXPECT_TRUE(FileWrittenFlags.tasks);
}

TEST_F(Conversion, WritesTermsThenAssignmentsThenEventsThenTasks) {
    SetDataFile("Terms.txt", LegacyTerm("2", "Spring 2010") + LegacyTerm("1", "Fall 2009"));
    Texts written;
    Script.whileSyncing = [&written](const std::string& name) {
        if (name.ends_with(".tmp")) {
            written.push_back(name);
        }
    };
    ConvertLegacyData();
    EXPECT_EQ(written, (Texts{"terms.xml.tmp", "classes.xml.tmp", "assignments_2.xml.tmp",
                              "assignments_1.xml.tmp", "events.xml.tmp", "tasks.xml.tmp"}));
}

TEST_F(Conversion, OfAFolderThatIsGoneDoesNothingAndSaysNothing) {
    fs::remove_all(DataFolder);
    ConvertLegacyData();
    EXPECT_EQ(Script.boxes, Boxes{});
}

TEST_F(Conversion, OfAFolderThatIsPulledAwayMeanwhileEndsWithoutAWord) {
    const fs::path elsewhere = drive.root / "elsewhere";
    Script.whileSyncing = [&elsewhere](const std::string& name) {
        if (name == "classes.xml.tmp") {
            fs::rename(DataFolder, elsewhere);
        }
    };
    ConvertLegacyData();
    EXPECT_EQ(Script.boxes, Boxes{});
    EXPECT_FALSE(fs::exists(DataFolder));
    EXPECT_TRUE(fs::exists(elsewhere / "terms.xml"));
    for (const char* name : {"assignments_1.xml", "tasks.xml", "events.xml"}) {
        EXPECT_FALSE(fs::exists(elsewhere / name)) << name;
    }
}

TEST_F(Conversion, WritesNothingOnceAShutdownHasBegun) {
    fs::create_directory(DataFolder / "classes.xml.tmp");
    Script.whileBoxIsOpen = [](const ShownBox&) { ShuttingDown = true; };
    ConvertLegacyData();
    ASSERT_EQ(Script.boxes, Boxes{FileErrorBox("classes.xml.tmp", "writing")});
    EXPECT_NE(DataFile("terms.xml"), NoFile);
    EXPECT_EQ(DataFile("assignments_1.xml"), NoFile);
    EXPECT_EQ(DataFile("tasks.xml"), NoFile);
}

TEST_F(Conversion, CarriesTombstonesOfTermsAndClassesAndDropsTheOthers) {
    SetDataFile("Terms.txt", LegacyTerm("1", "Fall 2009") + LegacyTerm("2", "DELETED RECORD"));
    SetDataFile("Classes.txt", LegacyClass("1", "1", "Algebra") + LegacyClass("2", "1", "DELETED RECORD"));
    SetDataFile("Assignments.txt", LegacyAssignment({}) +
                                       LegacyAssignment({.id = "2", .desc = "DELETED RECORD"}) +
                                       LegacyAssignment({.id = "3", .class_ = "2"}));
    SetDataFile("Tasks.txt", LegacyTask({.desc = "DELETED RECORD"}) + LegacyTask({.id = "2"}) +
                                 LegacyTask({.id = "3", .desc = "Deleted record"}));
    SetDataFile("Events.txt", LegacyEvent({.desc = "DELETED RECORD"}) + LegacyEvent({.id = "2"}));
    Start();
    EXPECT_EQ(Store.Term.name.values, (Texts{"Fall 2009", "DELETED RECORD"}));
    EXPECT_EQ(Store.ClassRecord.name.values, (Texts{"Algebra", "DELETED RECORD"}));
    EXPECT_EQ(Store.Assignment.id.values, Texts{"1"});
    EXPECT_EQ(Store.TaskRecord.id.values, (Texts{"2", "3"})) << "the words in capitals alone";
    EXPECT_EQ(Store.EventRecord.id.values, Texts{"2"});
    EXPECT_EQ(DataFile("assignments_2.xml"), FileOf("assignment_data", "")) << "a file for a tombstone too";
}

TEST_F(Conversion, SplitsTheAssignmentsByTheTermsOfTheirClasses) {
    SetDataFile("Terms.txt", LegacyTerm("1", "Fall") + LegacyTerm("2", "Spring"));
    SetDataFile("Classes.txt", LegacyClass("1", "1", "Algebra") + LegacyClass("2", "2", "Biology"));
    SetDataFile("Assignments.txt", LegacyAssignment({.id = "1", .class_ = "2"}) +
                                       LegacyAssignment({.id = "2", .class_ = "1"}) +
                                       LegacyAssignment({.id = "3", .class_ = "9"}) +
                                       LegacyAssignment({.id = "4", .class_ = "02"}));
    Start();
    ReadAssignmentsOf(1);
    EXPECT_EQ(Store.Assignment.id.values, Texts{"2"});
    ReadAssignmentsOf(2);
    EXPECT_EQ(Store.Assignment.id.values, (Texts{"1", "4"})) << "ids compare as numbers";
}

TEST_F(Conversion, AddsAnAssignmentOnceThoughTwoClassesFit) {
    SetDataFile("Classes.txt", LegacyClass("1", "1", "Algebra") + LegacyClass("1.0", "1", "Biology"));
    Start();
    EXPECT_EQ(Store.Assignment.id.values, Texts{"1"});
}

TEST_F(Conversion, ComparesIdsThatAreNoNumbersAsTexts) {
    SetDataFile("Classes.txt", LegacyClass("A", "1", "Algebra") + LegacyClass("B", "1", "Biology"));
    SetDataFile("Assignments.txt", LegacyAssignment({.class_ = "a"}) + LegacyAssignment({.class_ = "B"}));
    ConvertLegacyData();
    ReadAssignmentsOf(1);
    EXPECT_EQ(Store.Assignment.class_.values, Texts{"B"});
}

TEST_F(Conversion, PassesOverATermWhoseIdIsNoNumber) {
    SetDataFile("Terms.txt",
                LegacyTerm("x", "Nowhere") + LegacyTerm("99999", "Beyond") + LegacyTerm("1", "Fall 2009"));
    ConvertLegacyData();
    ReadAssignmentsOf(1);
    EXPECT_EQ(Store.Assignment.id.values, Texts{"1"});
    const Texts names = FilesOfTheFolder();
    EXPECT_EQ(std::ranges::count_if(names,
                                    [](const std::string& name) { return name.starts_with("assignments_"); }),
              1);
}

TEST_F(Conversion, GivesTheNoteToTheFirstAssignmentOfItsIdAndTheLastOfTwoNotes) {
    SetDataFile("Assignments.txt",
                LegacyAssignment({}) + LegacyAssignment({.id = "1.0"}) + LegacyAssignment({.id = "3"}));
    SetDataFile("Notes.txt", LegacyNote("01", "first") + LegacyNote("3", "third") + LegacyNote("1", "later") +
                                 LegacyNote("8", "of none"));
    Start();
    EXPECT_EQ(Store.Assignment.notes.values, (Texts{"later", "", "third"}));
}

TEST_F(Conversion, DropsNotesWhoseOwnerIsZeroOrNoNumber) {
    SetDataFile("Assignments.txt",
                LegacyAssignment({.id = "0"}) + LegacyAssignment({.id = "x"}) + LegacyAssignment({.id = ""}));
    SetDataFile("Notes.txt",
                LegacyNote("0", "zero") + LegacyNote("x", "no number") + LegacyNote("", "empty"));
    ConvertLegacyData();
    EXPECT_EQ(DataFile("assignments_1.xml").find("zero"), std::string::npos);
    EXPECT_EQ(DataFile("assignments_1.xml").find("no number"), std::string::npos);
    EXPECT_EQ(DataFile("assignments_1.xml").find("empty"), std::string::npos);
}

TEST_F(Conversion, KeepsTheLinesOfNotesBehindOneThatLooksLikeTheirEnd) {
    const std::string notes = "see</notes>\r\nline two</notes>\r\n</notes> and on</notes>";
    SetDataFile("Classes.txt", LegacyClass("1", "1", "Algebra", notes));
    SetDataFile("Notes.txt", LegacyNote("1", notes));
    SetDataFile("Tasks.txt", LegacyTask({.notes = notes}) + LegacyTask({.id = "2"}));
    SetDataFile("Events.txt", LegacyEvent({.notes = notes}) + LegacyEvent({.id = "2"}));
    Start();
    const std::string kept = "see</notes> \r\nline two</notes> \r\n</notes> and on</notes>";
    EXPECT_EQ(Store.ClassRecord.notes.values, Texts{kept});
    EXPECT_EQ(Store.Assignment.notes.values, Texts{kept});
    EXPECT_EQ(Store.TaskRecord.notes.values, (Texts{kept, ""}));
    EXPECT_EQ(Store.EventRecord.notes.values, (Texts{kept, ""}));
    EXPECT_EQ(Script.boxes, Boxes{});
}

TEST_F(Conversion, OfWhatWasDoneLeavesNoTimeAndAllOfItComplete) {
    SetDataFile("Assignments.txt", LegacyAssignment({.done = "True"}) + LegacyAssignment({.done = "true"}));
    SetDataFile("Tasks.txt", LegacyTask({.done = "True"}) + LegacyTask({.done = "true"}));
    Start();
    EXPECT_EQ(Store.Assignment.time_left.values, (Texts{"00 : 00", "01 : 30"}));
    EXPECT_EQ(Store.Assignment.est_time.values, (Texts{"01 : 30", "01 : 30"}));
    EXPECT_EQ(Store.Assignment.percent_complete.values, (Texts{"100%", "0%"}));
    EXPECT_EQ(Store.Assignment.done.values, (Texts{"True", "true"}));
    EXPECT_EQ(Store.TaskRecord.percent_complete.values, (Texts{"100%", "0%"}));
}

TEST_F(Conversion, GivesAnEventWithoutATimeThatOfReminders) {
    SetDataFile("Events.txt",
                LegacyEvent({.time = "None"}) + LegacyEvent({.time = "none"}) + LegacyEvent({.time = ""}));
    Start();
    EXPECT_EQ(Store.EventRecord.time.values, (Texts{"09:00 AM", "none", ""}));
}

TEST_F(Conversion, FormsTheDaysOfAnEventAndKeepsATextThatIsNoDate) {
    SetDataFile("Events.txt", LegacyEvent({.date = "10.14.09"}) + LegacyEvent({.date = "9-31-2009"}) +
                                  LegacyEvent({.date = "soon"}) + LegacyEvent({.date = ""}));
    Start();
    EXPECT_EQ(Store.EventRecord.date.values,
              (Texts{"2009/10/14", "9/31/2009/9/31/2009/9/31/2009", "soon/soon/soon", "//"}));
    EXPECT_EQ(Store.EventRecord.reminder_currentday.values, (Texts{"2009/10/14", "9/31/2009", "soon", ""}));
    EXPECT_EQ(Store.EventRecord.reminder_nextday.values, (Texts{"2009/10/14", "9/31/2009", "soon", ""}));
    EXPECT_EQ(Store.EventRecord.reminder_alarm.values,
              (Texts{"2009/10/14 09:00:00", "9/31/2009 09:00:00", "soon 09:00:00", " 09:00:00"}));
    EXPECT_EQ(Store.EventRecord.reminder_nextalarm.values, Store.EventRecord.reminder_alarm.values);
}

TEST_F(Conversion, LeavesTheAlarmsOfAssignmentsAndTasksInTheFormOfTheOldDate) {
    SetDataFile("Assignments.txt", LegacyAssignment({.date = "10.14.09"}));
    SetDataFile("Tasks.txt",
                LegacyTask({.date = "10-14-09"}) + LegacyTask({.date_exists = "False", .date = ""}));
    Start();
    EXPECT_EQ(Store.Assignment.date.values, Texts{"2009/10/14"});
    EXPECT_EQ(Store.Assignment.reminderdate.values, Texts{"2009/10/14"});
    EXPECT_EQ(Store.Assignment.reminderalarm.values, Texts{"10/14/09 09:00:00"});
    EXPECT_EQ(Store.TaskRecord.reminder_alarm.values, (Texts{"10/14/09 09:00:00", " 09:00:00"}));
    EXPECT_EQ(Store.TaskRecord.date.values, (Texts{"2009/10/14", "//"}));
    EXPECT_EQ(Store.TaskRecord.reminder_date.values, (Texts{"2009/10/14", "//"}));
}

TEST_F(Conversion, CountsAPartialLastRecordAsIfItWerePadded) {
    SetDataFile("Tasks.txt", LegacyTask({}) + LegacyTask({.id = "2", .notes = "lost"}).substr(0, 80));
    SetDataFile("Events.txt", LegacyEvent({}) + "9");
    Start();
    EXPECT_EQ(Store.TaskRecord.id.values, (Texts{"1", "2"}));
    EXPECT_EQ(Store.TaskRecord.date.values, (Texts{"2009/10/14", "2009//2009//2009/"}));
    EXPECT_EQ(Store.TaskRecord.priority.values, (Texts{"Low", ""}));
    EXPECT_EQ(DataFile("events.xml").find("Old event"), DataFile("events.xml").rfind("Old event"));
    EXPECT_NE(DataFile("events.xml").find("  <id></id>"), std::string::npos);
}

TEST_F(Conversion, TakesALineEndForTextLikeAnyOther) {
    SetDataFile("Tasks.txt", LegacyTask({.notes = "two\r\nlines"}));
    SetDataFile("Terms.txt", LegacyTerm("1", "Fall 2009") + "\r\n");
    ConvertLegacyData();
    EXPECT_NE(DataFile("tasks.xml").find("<notes>two\r\nlines</notes>"), std::string::npos);
    EXPECT_NE(DataFile("terms.xml").find("  <id>\r\n</id>"), std::string::npos);
}

TEST_F(Conversion, OfEmptyFilesGivesFilesWithoutRecords) {
    for (const char* name :
         {"Terms.txt", "Classes.txt", "Notes.txt", "Assignments.txt", "Tasks.txt", "Events.txt"}) {
        SetDataFile(name, "");
    }
    ConvertLegacyData();
    EXPECT_EQ(DataFile("terms.xml"), FileOf("term_data", ""));
    EXPECT_EQ(DataFile("classes.xml"), FileOf("class_data", ""));
    EXPECT_EQ(DataFile("tasks.xml"), FileOf("task_data", ""));
    EXPECT_EQ(DataFile("events.xml"), FileOf("event_data", ""));
}

TEST_F(Conversion, ReadsThePresentFilesWhereNothingOldIsThere) {
    for (const std::string& name : OldFilesAlone) {
        if (name != "Backup") {
            Remove(name);
        }
    }
    Start();
    EXPECT_EQ(Store.Term.id.Count(), 0);
    EXPECT_EQ(FilesOfTheFolder(), (Texts{"Backup", "classes.xml", "events.xml", "tasks.xml", "terms.xml"}));
}
