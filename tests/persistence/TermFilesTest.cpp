// The files of terms, classes and assignments byte for byte: what is written, and that it reads back the
// same.
#include "persistence/DataFolderTest.h"

namespace {

class TermsAndClasses : public DataFolderTest {};

class Assignments : public DataFolderTest {};

void AddTerm(const std::string& id, const std::string& name, const std::string& start,
             const std::string& end) {
    Store.Term.id.Add(id);
    Store.Term.name.Add(name);
    Store.Term.start.Add(start);
    Store.Term.end.Add(end);
}

// All 128 bytes beyond ASCII.
std::string UpperBytes() {
    std::string bytes;
    for (int byte = 0x80; byte <= 0xFF; ++byte) {
        bytes += static_cast<char>(byte);
    }
    return bytes;
}

std::string AssignmentText(const std::string& id, const std::string& desc, const std::string& notes) {
    return Lines({"<assignment>",
                  "  <id>" + id + "</id>",
                  "  <class>1</class>",
                  "  <date>2009/10/14</date>",
                  "  <desc>" + desc + "</desc>",
                  "  <type>Reading</type>",
                  "  <priority>False</priority>",
                  "  <est_time>01 : 00</est_time>",
                  "  <time_left>01 : 00</time_left>",
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
                  "  <notes>" + notes + "</notes>",
                  "</assignment>"});
}

} // namespace

TEST_F(TermsAndClasses, AreWrittenByteForByteAndReadBackTheSame) {
    AddTerm("1", "Fall 2009", "2009/08/24", "2009/12/18");
    AddTerm("2", "A < B & C", "2010-01-11", "2010.05.14");
    AddTerm("3", "DELETED RECORD", "", "soon");
    AddClassRecord({"7", "1", "Chemistry", "3.5", "0", "16777215", "Room 12\r\n\r\n  bring goggles"});
    AddClassRecord({"8", "1", "DELETED RECORD", "", "", "", UpperBytes()});
    WriteTermsAndClasses();
    const std::string terms =
        FileOf("term_data",
               Lines({"<term>", "  <id>1</id>", "  <name>Fall 2009</name>", "  <start>2009/08/24</start>",
                      "  <end>2009/12/18</end>", "</term>", "<term>", "  <id>2</id>",
                      "  <name>A < B & C</name>", "  <start>2010/01/11</start>", "  <end>2010/05/14</end>",
                      "</term>", "<term>", "  <id>3</id>", "  <name>DELETED RECORD</name>",
                      "  <start>//</start>", "  <end>soon/soon/soon</end>", "</term>"}));
    const std::string classes = FileOf("class_data", Lines({"<class>",
                                                            "  <id>7</id>",
                                                            "  <term>1</term>",
                                                            "  <name>Chemistry</name>",
                                                            "  <credits>3.5</credits>",
                                                            "  <forecolor>0</forecolor>",
                                                            "  <backcolor>16777215</backcolor>",
                                                            "  <notes>Room 12",
                                                            "",
                                                            "  bring goggles</notes>",
                                                            "</class>",
                                                            "<class>",
                                                            "  <id>8</id>",
                                                            "  <term>1</term>",
                                                            "  <name>DELETED RECORD</name>",
                                                            "  <credits></credits>",
                                                            "  <forecolor></forecolor>",
                                                            "  <backcolor></backcolor>",
                                                            "  <notes>" + UpperBytes() + "</notes>",
                                                            "</class>"}));
    EXPECT_EQ(DataFile("terms.xml"), terms);
    EXPECT_EQ(DataFile("classes.xml"), classes);
    const PlannerStore written = Store;
    ResetStore();
    ReadTermsAndClasses();
    EXPECT_EQ(Store.Term.id, written.Term.id);
    EXPECT_EQ(Store.Term.name, written.Term.name);
    EXPECT_EQ(Store.Term.start.values, (Texts{"2009/08/24", "2010/01/11", "//"}));
    EXPECT_EQ(Store.Term.end.values, (Texts{"2009/12/18", "2010/05/14", "soon/soon/soon"}));
    for (const Field<ClassLists>& field : ClassFields) {
        EXPECT_EQ(Store.ClassRecord.*field.list, written.ClassRecord.*field.list) << field.tag;
    }
    EXPECT_EQ(NextTermID, 4);
    EXPECT_EQ(NextClassID, 9);
    EXPECT_EQ(Script.boxes, Boxes{});
}

TEST_F(TermsAndClasses, WithDashesOrDotsInADateAreSavedWithSlashes) {
    SetDataFile("terms.xml", FileOf("term_data", Lines({"<term>", "  <id>1</id>", "  <name>Fall</name>",
                                                        "  <start>2009-08-24</start>",
                                                        "  <end>2009.12.18</end>", "</term>"})));
    ReadTermsAndClasses();
    EXPECT_EQ(Store.Term.start.values, Texts{"2009/08/24"});
    EXPECT_EQ(Store.Term.end.values, Texts{"2009/12/18"});
    WriteTermsAndClasses();
    EXPECT_EQ(
        DataFile("terms.xml"),
        FileOf("term_data", Lines({"<term>", "  <id>1</id>", "  <name>Fall</name>",
                                   "  <start>2009/08/24</start>", "  <end>2009/12/18</end>", "</term>"})));
}

TEST_F(TermsAndClasses, OfAnEmptyStoreAreFilesOfHeaderAndRoot) {
    WriteTermsAndClasses();
    EXPECT_EQ(DataFile("terms.xml"), FileOf("term_data", ""));
    EXPECT_EQ(DataFile("classes.xml"), FileOf("class_data", ""));
}

TEST_F(TermsAndClasses, LeaveTheClassesUnreadWhenTheTermsFail) {
    SetDataFile("terms.xml", Lines({Header, "<class_data>"}));
    SetDataFile("classes.xml", FileOf("class_data", Lines({"<name>Algebra</name>"})));
    ReadTermsAndClasses();
    EXPECT_EQ(Store.ClassRecord.name.values, Texts{});
    EXPECT_EQ(Script.boxes, Boxes{FileErrorBox("terms.xml", "reading")});
}

TEST_F(TermsAndClasses, KeepTheTermsWhenTheClassesFail) {
    SetDataFile("terms.xml", FileOf("term_data", Lines({"<name>Fall</name>"})));
    SetDataFile("classes.xml", FileOf("class_data", Lines({"<name>Algebra"})));
    ReadTermsAndClasses();
    EXPECT_EQ(Store.Term.name.values, Texts{"Fall"});
    EXPECT_EQ(Script.boxes, Boxes{FileErrorBox("classes.xml", "reading")});
}

TEST_F(TermsAndClasses, SetTheirFlagsEachBehindItsOwnFile) {
    std::filesystem::create_directory(DataFolder / "classes.xml.tmp");
    WriteTermsAndClasses();
    EXPECT_TRUE(FileWrittenFlags.terms);
    EXPECT_FALSE(FileWrittenFlags.classes);
    EXPECT_EQ(Script.boxes, Boxes{FileErrorBox("classes.xml.tmp", "writing")});
}

TEST_F(TermsAndClasses, SkipTheClassesWhenTheTermsCannotBeWritten) {
    std::filesystem::create_directory(DataFolder / "terms.xml.tmp");
    WriteTermsAndClasses();
    EXPECT_EQ(DataFile("classes.xml"), NoFile);
    EXPECT_EQ(Script.boxes, Boxes{FileErrorBox("terms.xml.tmp", "writing")});
}

TEST_F(TermsAndClasses, WrittenTwiceAreTheSameBytesAndNoTmpIsLeft) {
    AddTerm("1", "Fall", "2009/08/24", "2009/12/18");
    WriteTermsAndClasses();
    const std::string first = DataFile("terms.xml");
    WriteTermsAndClasses();
    EXPECT_EQ(DataFile("terms.xml"), first);
    EXPECT_EQ(DataFile("terms.xml.tmp"), NoFile);
}

TEST_F(Assignments, AreWrittenByteForByteAndReadBackTheSame) {
    ActiveTermID = 3;
    AddAssignmentRecord({.desc = "Read <Ch. 1> & 2", .notes = "first\r\nsecond\r\n"});
    AddAssignmentRecord({.desc = UpperBytes()});
    AddAssignmentRecord({.desc = "DELETED RECORD"});
    WriteAssignments();
    EXPECT_EQ(DataFile("assignments_3.xml"),
              FileOf("assignment_data", AssignmentText("1", "Read <Ch. 1> & 2", "first\r\nsecond\r\n") +
                                            AssignmentText("2", UpperBytes(), "") +
                                            AssignmentText("3", "DELETED RECORD", "")));
    EXPECT_TRUE(FileWrittenFlags.assignments);
    const AssignmentLists written = Store.Assignment;
    ResetAssignmentLists();
    ReadAssignments();
    for (const Field<AssignmentLists>& field : AssignmentFields) {
        EXPECT_EQ(Store.Assignment.*field.list, written.*field.list) << field.tag;
    }
    EXPECT_EQ(NextAssignmentID, 4);
}

TEST_F(Assignments, OfATermChosenForTheFirstTimeAreAnEmptyFile) {
    ActiveTermID = 12;
    ReadAssignments();
    EXPECT_EQ(DataFile("assignments_12.xml"), FileOf("assignment_data", ""));
    EXPECT_EQ(NextAssignmentID, 1);
}

TEST_F(Assignments, HaveIdsOfTheirOwnInEachTerm) {
    for (const int term : {1, 2}) {
        ActiveTermID = term;
        ResetAssignmentLists();
        ReadAssignments();
        AddAssignmentRecord({.desc = "of term " + std::to_string(term)});
        WriteAssignments();
    }
    EXPECT_EQ(DataFile("assignments_1.xml"), FileOf("assignment_data", AssignmentText("1", "of term 1", "")));
    EXPECT_EQ(DataFile("assignments_2.xml"), FileOf("assignment_data", AssignmentText("1", "of term 2", "")));
}

TEST_F(Assignments, AreReadAnewAtEachChangeOfTheTermWithEmptyListsAndCounter1) {
    AddTerm("1", "Fall", "2009/08/24", "2009/12/18");
    AddTerm("2", "Spring", "2010/01/11", "2010/05/14");
    SetDataFile("assignments_1.xml", FileOf("assignment_data", AssignmentText("9", "of fall", "")));
    for (const char* name : {"Fall", "Spring", "Fall"}) {
        ChooseActiveTerm(name);
        ReadAssignments();
        const bool fall = std::string(name) == "Fall";
        EXPECT_EQ(Store.Assignment.desc.values, fall ? Texts{"of fall"} : Texts{});
        EXPECT_EQ(NextAssignmentID, fall ? 10 : 1);
    }
}

TEST_F(Assignments, OfATermThatHasGoneAreThoseOfTheNextOneOfItsId) {
    AddTerm("1", "Fall", "2009/08/24", "2009/12/18");
    SetDataFile("assignments_2.xml", FileOf("assignment_data", AssignmentText("9", "of spring", "")));
    WriteTermsAndClasses();
    ReadTermsAndClasses();
    ActiveTermID = NextTermID;
    ReadAssignments();
    EXPECT_EQ(ActiveTermID, 2);
    EXPECT_EQ(Store.Assignment.desc.values, Texts{"of spring"});
}

TEST_F(Assignments, NameTheirFileInBothMessagesAndClearTheFlag) {
    ActiveTermID = 3;
    FileWrittenFlags.assignments = true;
    SetDataFile("assignments_3.xml", "damaged");
    ReadAssignments();
    EXPECT_FALSE(FileWrittenFlags.assignments);
    FileWrittenFlags.assignments = true;
    std::filesystem::create_directory(DataFolder / "assignments_3.xml.tmp");
    WriteAssignments();
    EXPECT_FALSE(FileWrittenFlags.assignments);
    EXPECT_EQ(Script.boxes, (Boxes{FileErrorBox("assignments_3.xml", "reading"),
                                   FileErrorBox("assignments_3.xml.tmp", "writing")}));
}

TEST_F(Assignments, AreNotReadFromADamagedFileButTheCounterStartsAt1) {
    ActiveTermID = 3;
    NextAssignmentID = 50;
    SetDataFile("assignments_3.xml", "damaged");
    ReadAssignments();
    EXPECT_EQ(NextAssignmentID, 1);
}

TEST_F(Assignments, StartTheCounterAt1AlsoWhenTheFolderIsGone) {
    ActiveTermID = 3;
    NextAssignmentID = 50;
    std::filesystem::rename(DataFolder, drive.root / "elsewhere");
    ReadAssignments();
    EXPECT_EQ(Script.boxes, Boxes{DirectoryErrorBox()});
    EXPECT_EQ(NextAssignmentID, 1);
}
