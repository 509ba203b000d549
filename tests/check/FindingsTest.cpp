// Drives with one fault each: the check names its file, line, record and field, and says what it would mean.
#include "check/CheckedDrive.h"

#include "check/faults/FileAge.h"
#include "support/CutDrive.h"

#include <chrono>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

constexpr int GreatestId = 32766;

#ifdef __SANITIZE_ADDRESS__
constexpr double MostSeconds = 60;
#else
constexpr double MostSeconds = 4; // a second on a machine of its own
#endif

// What is put in place of a text of a file, and what the check has to tell first of it.
struct OneFault {
    std::string name;
    std::string file;
    std::string from;
    std::string to;
    std::string lineWith; // what the line told begins with; empty where no line is told
    int occurrence;       // which of such lines
    int record;
    std::string field;
    std::string fault;   // a part of it
    std::string meaning; // a part of it
};

const std::vector<OneFault> Faults{
    {"RecordTagDoubled", "tasks.xml", "<task>\r\n", "<task>\r\n<task>\r\n", "<task>", 2, 1, "",
     "the tag <task> is doubled", "swallows lines 4 to 20"},
    {"RecordNotClosed", "tasks.xml", "</task>\r\n", "", "<task>", 2, 1, "",
     "the record of line 3 is not closed with </task>", "swallows"},
    {"RootLate", "events.xml", "<event_data>\r\n", "\r\n<event_data>\r\n", "<event_data>", 1, 0, "",
     "the tag <event_data> stands too late", "drops lines 3 to"},
    {"RootOfAnotherKind", "terms.xml", "<term_data>", "<task_data>", "<task_data>", 1, 0, "",
     "the second line is not <term_data>", "does not read the classes"},
    {"RootNotClosed", "tasks.xml", "</task_data>\r\n", "", "</task>", 3, 0, "",
     "the file ends without </task_data>", "may have been cut"},
    {"FieldMissing", "tasks.xml", "  <desc>Task 2</desc>\r\n", "", "<task>", 2, 2, "desc", "lacks this field",
     "out of step"},
    {"FieldDoubled", "tasks.xml", "  <done>False</done>\r\n",
     "  <done>False</done>\r\n  <done>False</done>\r\n", "<task>", 1, 1, "done", "has this field 2 times",
     "out of step"},
    {"FieldUnknown", "tasks.xml", "<notes>", "<note></note>\r\n  <notes>", "<note>", 1, 1, "note",
     "knows no field \"note\"", "drops line 17 without"},
    {"FieldOutside", "tasks.xml", "<task>\r\n", "  <done>False</done>\r\n<task>\r\n", "<done>", 1, 0, "done",
     "outside of a record", "out of step"},
    {"FieldBetweenRecords", "tasks.xml", "</task>\r\n", "</task>\r\n  <done>False</done>\r\n", "<done>", 2, 0,
     "done", "outside of a record", "out of step"},
    {"FieldUnknownOnTwoLines", "tasks.xml", "<notes>", "<note>\r\n</note>\r\n  <notes>", "<note>", 1, 1,
     "note", "knows no field", "drops lines 17 to 18 without"},
    {"FieldNotClosed", "tasks.xml", "Task 3</desc>", "Task 3", "<desc>Task 3", 1, 3, "desc",
     "no line behind it ends with </desc>", "2 records of it"},
    {"BlanksBehindATag", "tasks.xml", "Task 1</desc>", "Task 1</desc> ", "<desc>Task 1", 1, 1, "desc",
     "the field takes lines 6 to 23, with the end of its record", "makes one record of two"},
    {"BlanksBehindTheTagOfTheLastRecord", "tasks.xml", "Task 3</desc>", "Task 3</desc> ", "<desc>Task 3", 1,
     3, "desc", "no line behind it ends with </desc>", "2 records of it"},
    {"LineWithoutATag", "tasks.xml", "<task>\r\n", "<task>\r\nlost words\r\n", "lost words", 1, 1, "",
     "has no \">\"", "Error reading the file: tasks.xml"},
    {"EmptyFile", "tasks.xml", "", "", "", 0, 0, "", "the file is empty", "It has 0 records"},
    {"IdNone", "tasks.xml", "<id>2</id>", "<id>two</id>", "<id>two", 1, 2, "id", "Not a number: \"two\"",
     "stops reading"},
    {"IdTooGreat", "events.xml", "<id>2</id>", "<id>32767</id>", "<id>32767", 1, 2, "id", "Overflow",
     "stops reading"},
    {"IdFraction", "tasks.xml", "<id>2</id>", "<id>1.5</id>", "<id>1.5", 1, 2, "id", "is no whole number",
     "No other record"},
    {"IdDoubled", "tasks.xml", "<id>3</id>", "<id>1</id>", "<id>1</id>", 2, 3, "id",
     "the id 1 is that of record 1 too", "both records"},
    {"TermDate", "terms.xml", "<start>2009/08/24", "<start>2009/13/24", "<start>2009/13", 1, 1, "start",
     "\"2009/13/24\" is no date", "as the term is chosen"},
    {"ClassColor", "classes.xml", "<backcolor>16777215", "<backcolor>white", "<backcolor>white", 1, 1,
     "backcolor", "is no colour", "as soon as a view shows it"},
    {"ClassCredits", "classes.xml", "<credits>3", "<credits>three", "<credits>three", 1, 1, "credits",
     "is no number", "computes the grades"},
    {"ClassWithoutItsTerm", "classes.xml", "<term>1", "<term>9", "<term>9", 1, 1, "term",
     "there is no term with the id \"9\"", "nowhere"},
    {"AssignmentDate", "assignments_1.xml", "<date>2009/10/11", "<date>soon", "<date>soon", 1, 1, "date",
     "\"soon\" is no date", "at each start"},
    {"AssignmentFlag", "assignments_1.xml", "<done>False", "<done>perhaps", "<done>perhaps", 1, 1, "done",
     "neither True nor False", "at each start"},
    {"AssignmentClock", "assignments_1.xml", "<est_time>01 : 00", "<est_time>long", "<est_time>long", 1, 1,
     "est_time", "is no length of time", "study time"},
    {"AssignmentScore", "assignments_1.xml", "<score>8", "<score>eight", "<score>eight", 1, 1, "score",
     "is no number", "grades"},
    {"AssignmentGrade", "assignments_1.xml", "<grade>80%", "<grade>good", "<grade>good", 1, 1, "grade",
     "is no percentage", "sorted by its grade"},
    {"AssignmentWithoutItsClass", "assignments_1.xml", "<class>2", "<class>77", "<class>77", 1, 2, "class",
     "no class with the id \"77\"", "without its class"},
    {"TaskAlarm", "tasks.xml", "<reminder_alarm>2009/10/11 10:00:00", "<reminder_alarm>never",
     "<reminder_alarm>never", 1, 1, "reminder_alarm", "is no date and time", "look at the reminders"},
    {"TaskFlag", "tasks.xml", "<date_exists>True", "<date_exists>Yes", "<date_exists>Yes", 1, 1,
     "date_exists", "neither True nor False", "counts the tasks"},
    {"EventTime", "events.xml", "<time>09:00 AM", "<time>noon", "<time>noon", 1, 1, "time",
     "is no time of day", "reminds"},
    {"EventLength", "events.xml", "<duration>1.5 Hours", "<duration>an hour", "<duration>an hour", 1, 1,
     "duration", "is no length such as", "schedule"},
    {"EventLeadTime", "events.xml", "<reminder_time>30 Minutes", "<reminder_time>early",
     "<reminder_time>early", 1, 1, "reminder_time", "is no time before", "reminders"},
    {"SeriesFlag", "events.xml",
     "<same_date>False</same_date>\r\n  <repeat_number>First</repeat_number>\r\n  "
     "<repeat_day>Sunday</repeat_day>\r\n  <repeat_daily>TTFFFFF</repeat_daily>\r\n"
     "  <end>True",
     "<same_date>both</same_date>\r\n  <repeat_number>First</repeat_number>\r\n  "
     "<repeat_day>Sunday</repeat_day>\r\n  <repeat_daily>TTFFFFF</repeat_daily>\r\n  <end>True",
     "<same_date>both", 1, 2, "same_date", "neither True nor False", "days of"},
    {"SeriesEnd", "events.xml", "<end>True</end>\r\n  <end_date>2010/10/14",
     "<end>True</end>\r\n  <end_date>2010/02/30", "<end_date>2010/02/30", 1, 2, "end_date", "is no date",
     "days of"},
    {"SeriesExceptions", "events.xml", "<exceptions>2009/10/21 2009/10/28", "<exceptions>2009/10/21 x",
     "<exceptions>2009/10/21 x", 1, 2, "exceptions", "has a text that is no date", "days of"},
    {"ChildWithoutItsSeries", "events.xml", "<parent_id>", "<parent_id>55", "<parent_id>55", 1, 1,
     "parent_id", "there is no series with the id \"55\"", "single"},
    {"MeetingWithoutItsClass", "events.xml", "<type>TermID1-ClassID1", "<type>TermID1-ClassID9",
     "<type>TermID1-ClassID9", 1, 1, "type", "no class of the link", "can never fire"},
    {"ClassIdBeyond16Bits", "classes.xml", "<id>3</id>", "<id>-40000</id>", "<id>-40000", 1, 3, "id",
     "is no whole number of 16 bits", "No other record"},
    {"AssignmentReminderDate", "assignments_1.xml", "<reminderdate>2009/10/11", "<reminderdate>x",
     "<reminderdate>x", 1, 1, "reminderdate", "is no date", "as the record is opened"},
    {"TaskReminderDate", "tasks.xml", "<reminder_date>2009/10/11", "<reminder_date>x", "<reminder_date>x", 1,
     1, "reminder_date", "is no date", "as the record is opened"},
    {"SingleEventFlag", "events.xml",
     "<recurrence>Day</recurrence>\r\n  <exceptions></exceptions>\r\n  <parent_id></parent_id>\r\n  "
     "<same_date>False",
     "<recurrence>None</recurrence>\r\n  <exceptions></exceptions>\r\n  <parent_id></parent_id>\r\n  "
     "<same_date>both",
     "<same_date>both", 1, 1, "same_date", "neither True nor False", "opens the event"},
    {"PreferencesNumber", "Prefs.ini", "CurrentTip=0", "CurrentTip=first", "CurrentTip=first", 1, 0,
     "CurrentTip", "Not a number: \"first\"", "stops reading here"},
    {"PreferencesColor", "Prefs.ini", "EventBC_Class=9934841", "EventBC_Class=red", "EventBC_Class=red", 1, 0,
     "EventBC_Class", "\"red\" is no colour", "shows the type"},
};

class DriveWith : public CheckedDrive, public testing::WithParamInterface<OneFault> {};

class Waiting : public CheckedDrive {};

} // namespace

TEST_F(CheckedDrive, OfSoundRecordsHasNoFinding) {
    const CheckResult result = Check();
    EXPECT_EQ(Shown(result.findings), "");
    EXPECT_TRUE(result.lookedAtAll);
    EXPECT_EQ(result.files, 6);
    EXPECT_EQ(result.records, 15);
}

TEST_F(CheckedDrive, WithoutFilesHasNoFindingAndStaysWithoutThem) {
    for (const char* name : {"terms.xml", "classes.xml", "assignments_1.xml", "tasks.xml", "events.xml"}) {
        fs::remove(DataFolder / name);
    }
    EXPECT_EQ(Shown(Check().findings), "");
    EXPECT_EQ(DataFile("terms.xml"), NoFile);
}

TEST_P(DriveWith, IsToldWithItsPlace) {
    const OneFault& fault = GetParam();
    if (fault.from.empty()) {
        SetDataFile(fault.file, "");
    } else {
        ASSERT_NO_FATAL_FAILURE(Edit(fault.file, fault.from, fault.to));
    }
    const CheckResult result = Check();
    ASSERT_FALSE(result.findings.empty());
    const Finding& first = result.findings.front();
    EXPECT_EQ(first.file, fault.file) << Shown(result.findings);
    EXPECT_EQ(first.line, fault.lineWith.empty() ? 1 : LineWith(fault.file, fault.lineWith, fault.occurrence))
        << Shown(result.findings);
    EXPECT_EQ(first.record, fault.record) << Shown(result.findings);
    EXPECT_EQ(first.field, fault.field) << Shown(result.findings);
    EXPECT_NE(first.fault.find(fault.fault), std::string::npos) << Shown(result.findings);
    EXPECT_NE(first.meaning.find(fault.meaning), std::string::npos) << Shown(result.findings);
    EXPECT_TRUE(result.lookedAtAll);
}

INSTANTIATE_TEST_SUITE_P(OneFault, DriveWith, testing::ValuesIn(Faults),
                         [](const testing::TestParamInfo<OneFault>& row) { return row.param.name; });

TEST_F(Waiting, SaveIsToldWithItsAgeAndWhatTheFileLacks) {
    std::string waiting = DataFile("tasks.xml");
    waiting.insert(
        waiting.find("</task_data>"),
        waiting.substr(waiting.find("<task>"), waiting.find("</task>") + 9 - waiting.find("<task>")));
    const std::size_t id = waiting.rfind("<id>1<");
    waiting.replace(id, 5, "<id>4");
    waiting.replace(waiting.find("Task 1", id), 6, "Task 4");
    waiting.replace(waiting.find("Task 2"), 6, "Other!");
    SetDataFile("tasks.xml.tmp", waiting);
    const Moment written = WrittenAt(DataFolder / "tasks.xml.tmp").value();
    Script.now = written + std::chrono::hours{49};
    const CheckResult result = Check();
    ASSERT_EQ(result.findings.size(), 1U) << Shown(result.findings);
    EXPECT_EQ(result.findings[0].file, "tasks.xml.tmp");
    EXPECT_EQ(result.findings[0].fault, "a save waits here since " + WrittenText(written) + " (2 days)");
    EXPECT_EQ(
        result.findings[0].meaning,
        "The planner does not read it. It holds 4 records, of which the file lacks 1: \"Task 4\", and 1 "
        "that differ from the file's.");
}

TEST_F(Waiting, SaveThatCannotBeReadSaysThatItCouldNotLook) {
    fs::create_directory(DataFolder / "tasks.xml.tmp");
    const CheckResult result = Check();
    EXPECT_FALSE(result.lookedAtAll);
    ASSERT_EQ(result.findings.size(), 1U) << Shown(result.findings);
    EXPECT_EQ(result.findings[0].file, "tasks.xml.tmp");
    EXPECT_EQ(result.findings[0].fault, "the file cannot be read");
}

TEST_F(Waiting, SaveOfAFileThatIsGoneIsToldTogetherWithAllThatItHolds) {
    fs::rename(DataFolder / "events.xml", DataFolder / "events.xml.tmp");
    const CheckResult result = Check();
    ASSERT_EQ(result.findings.size(), 1U) << Shown(result.findings);
    EXPECT_NE(result.findings[0].meaning.find("It holds 3 records, of which the file lacks 3: \"Event 1\""),
              std::string::npos)
        << Shown(result.findings);
    EXPECT_EQ(DataFile("events.xml"), NoFile);
}

TEST_F(Waiting, SaveOfAssignmentsIsToldThoughTheirFileIsGone) {
    fs::rename(DataFolder / "assignments_1.xml", DataFolder / "assignments_1.xml.tmp");
    const CheckResult result = Check();
    ASSERT_EQ(result.findings.size(), 1U) << Shown(result.findings);
    EXPECT_EQ(result.findings[0].file, "assignments_1.xml.tmp");
}

TEST_F(CheckedDrive, WithAssignmentsOfNoTermTellsTheFile) {
    fs::rename(DataFolder / "assignments_1.xml", DataFolder / "assignments_8.xml");
    const CheckResult result = Check();
    ASSERT_EQ(result.findings.size(), 1U) << Shown(result.findings);
    EXPECT_EQ(result.findings[0].file, "assignments_8.xml");
    EXPECT_EQ(result.findings[0].fault, "there is no term with the id 8");
}

TEST_F(CheckedDrive, WithAssignmentsOfADeletedTermTellsTheFile) {
    ASSERT_NO_FATAL_FAILURE(Edit("terms.xml", "<name>Term 1", "<name>DELETED RECORD"));
    const CheckResult result = Check();
    ASSERT_EQ(result.findings.size(), 1U) << Shown(result.findings);
    EXPECT_EQ(result.findings[0].file, "assignments_1.xml");
    EXPECT_EQ(result.findings[0].fault, "there is no term with the id 1");
}

TEST_F(CheckedDrive, WithHomeworkOfADeletedClassTellsThatItStays) {
    ASSERT_NO_FATAL_FAILURE(Edit("classes.xml", "<name>Class 2", "<name>DELETED RECORD"));
    const CheckResult result = Check();
    ASSERT_EQ(result.findings.size(), 1U) << Shown(result.findings);
    EXPECT_TRUE(HasFinding(result.findings, "assignments_1.xml", 2, "class"));
    EXPECT_EQ(result.findings[0].fault, "the term's class with the id \"2\" is deleted");
    EXPECT_EQ(result.findings[0].meaning, "The planner shows the assignment without its class.");
}

TEST_F(CheckedDrive, WhoseTermsFailDoesNotCallEveryLinkAFault) {
    SetDataFile("terms.xml", "x\r\ny\r\n");
    const CheckResult result = Check();
    EXPECT_EQ(result.findings.size(), 1U) << Shown(result.findings);
}

TEST_F(CheckedDrive, WhoseClassesWereCutDoesNotCallEveryLinkToThemAFault) {
    const std::string classes = DataFile("classes.xml");
    SetDataFile("classes.xml", classes.substr(0, classes.find("</class>") + 10));
    const CheckResult result = Check();
    ASSERT_EQ(result.findings.size(), 1U) << Shown(result.findings);
    EXPECT_EQ(result.findings[0].fault, "the file ends without </class_data>");
}

TEST_F(CheckedDrive, WithAFileThatCannotBeReadSaysThatItCouldNotLook) {
    fs::remove(DataFolder / "tasks.xml");
    fs::create_directory(DataFolder / "tasks.xml");
    const CheckResult result = Check();
    EXPECT_FALSE(result.lookedAtAll);
    EXPECT_TRUE(HasFinding(result.findings, "tasks.xml", 0, ""));
}

TEST_F(CheckedDrive, WithAllTheRecordsThatThereCanBeIsCheckedWithoutDelay) {
    ResetStore();
    FillCutDrive(GreatestId);
    WriteTermsAndClasses();
    WriteAssignments();
    WriteTasks();
    WriteEvents();
    const auto start = std::chrono::steady_clock::now();
    const CheckResult result = Check();
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    EXPECT_EQ(Shown(result.findings), "");
    EXPECT_EQ(result.records, 5 * GreatestId);
    EXPECT_LT(seconds.count(), MostSeconds);
}
