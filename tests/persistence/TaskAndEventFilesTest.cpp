// The files of tasks and events byte for byte: what is written, and that it reads back the same.
#include "persistence/DataFolderTest.h"
#include "planner/recurrence/SeriesEdits.h"
#include "support/EventRecords.h"

namespace {

class Tasks : public DataFolderTest {};

class Events : public DataFolderTest {};

std::string TaskText(const std::string& id, const std::string& date, const std::string& desc,
                     const std::string& dateExists, const std::string& reminderDate,
                     const std::string& notes) {
    return Lines({"<task>", "  <id>" + id + "</id>", "  <date>" + date + "</date>",
                  "  <desc>" + desc + "</desc>", "  <date_exists>" + dateExists + "</date_exists>",
                  "  <type>None</type>", "  <priority>None</priority>",
                  "  <percent_complete>0%</percent_complete>", "  <done>False</done>",
                  "  <reminder>False</reminder>", "  <reminder_date>" + reminderDate + "</reminder_date>",
                  "  <reminder_time>09:00 AM</reminder_time>",
                  "  <reminder_alarm>2009/10/14 09:00:00</reminder_alarm>",
                  "  <reminder_list>False</reminder_list>", "  <notes>" + notes + "</notes>", "</task>"});
}

} // namespace

TEST_F(Tasks, AreWrittenByteForByteAndReadBackTheSame) {
    AddTaskRecord({.desc = "A < B & C", .notes = "one\r\ntwo"});
    AddTaskRecord({.date = "10/15/2009", .desc = "DELETED RECORD", .reminder_date = "2009.10.15"});
    WriteTasks();
    EXPECT_EQ(
        DataFile("tasks.xml"),
        FileOf("task_data", TaskText("1", "2009/10/14", "A < B & C", "True", "2009/10/14", "one\r\ntwo") +
                                TaskText("2", "2009/10/15", "DELETED RECORD", "True", "2009/10/15", "")));
    EXPECT_TRUE(FileWrittenFlags.tasks);
    TaskLists expected = Store.TaskRecord;
    expected.date.Replace(2, "2009/10/15");
    expected.reminder_date.Replace(2, "2009/10/15");
    ResetStore();
    ReadTasks();
    for (const Field<TaskLists>& field : TaskFields) {
        EXPECT_EQ(Store.TaskRecord.*field.list, expected.*field.list) << field.tag;
    }
    EXPECT_EQ(NextTaskID, 3);
}

TEST_F(Tasks, AreAnEmptyFileAtTheFirstRead) {
    ReadTasks();
    EXPECT_EQ(DataFile("tasks.xml"), FileOf("task_data", ""));
}

TEST_F(Tasks, WithoutADateKeepItsTextThroughASave) {
    AddTaskRecord({.date = "2009/10/14", .date_exists = "False"});
    WriteTasks();
    ResetStore();
    ReadTasks();
    EXPECT_EQ(Store.TaskRecord.date.values, Texts{"2009/10/14"});
    EXPECT_EQ(Store.TaskRecord.date_exists.values, Texts{"False"});
}

TEST_F(Tasks, WithDashesInADateReadAsSlashes) {
    SetDataFile("tasks.xml", FileOf("task_data", Lines({"  <date>2009-05-01</date>"})));
    ReadTasks();
    EXPECT_EQ(Store.TaskRecord.date.values, Texts{"2009/05/01"});
}

TEST_F(Tasks, WriteADateThatIsNoneThreeTimesAndAnEmptyOneAsTwoSlashes) {
    AddTaskRecord({.date = "someday", .reminder_date = ""});
    WriteTasks();
    EXPECT_EQ(DataFile("tasks.xml"),
              FileOf("task_data", TaskText("1", "someday/someday/someday", "Task", "True", "//", "")));
}

TEST_F(Tasks, DoNotGrowFromRunToRunByAnEmptyDate) {
    AddTaskRecord({.date = "", .reminder_date = "/////"});
    for (int run = 1; run <= 3; ++run) {
        WriteTasks();
        EXPECT_EQ(DataFile("tasks.xml"), FileOf("task_data", TaskText("1", "//", "Task", "True", "//", "")));
        ResetStore();
        ReadTasks();
        EXPECT_EQ(Store.TaskRecord.date.values, Texts{"//"});
    }
}

TEST_F(Tasks, KeepTheIdsUpToTheGreatest) {
    for (const char* id : {"32765", "32766"}) {
        AddTaskRecord({});
        Store.TaskRecord.id.Replace(Store.TaskRecord.id.Count(), id);
    }
    WriteTasks();
    ResetStore();
    ReadTasks();
    EXPECT_EQ(Store.TaskRecord.id.values, (Texts{"32765", "32766"}));
    EXPECT_EQ(NextTaskID, 32767);
    EXPECT_EQ(Script.boxes, Boxes{});
}

TEST_F(Tasks, WithTheId32767EndInTheReadingMessage) {
    AddTaskRecord({});
    Store.TaskRecord.id.Replace(1, "32767");
    WriteTasks();
    ResetStore();
    ReadTasks();
    EXPECT_EQ(Store.TaskRecord.id.values, Texts{"32767"});
    EXPECT_EQ(Store.TaskRecord.date.values, Texts{});
    EXPECT_EQ(Script.boxes, Boxes{FileErrorBox("tasks.xml", "reading")});
}

TEST_F(Tasks, OutOfStepEndInTheWritingMessageWithTheOldFileWhole) {
    AddTaskRecord({.desc = "first"});
    WriteTasks();
    const std::string old = DataFile("tasks.xml");
    AddTaskRecord({.desc = "second"});
    Store.TaskRecord.notes.Remove(1);
    WriteTasks();
    EXPECT_EQ(DataFile("tasks.xml"), old);
    EXPECT_EQ(Script.boxes, Boxes{FileErrorBox("tasks.xml.tmp", "writing")});
    EXPECT_FALSE(FileWrittenFlags.tasks);
}

TEST_F(Tasks, WriteAsManyRecordsAsThereAreIds) {
    AddTaskRecord({});
    Store.TaskRecord.notes.Add("beyond");
    WriteTasks();
    EXPECT_EQ(DataFile("tasks.xml"),
              FileOf("task_data", TaskText("1", "2009/10/14", "Task", "True", "2009/10/14", "")));
}

TEST_F(Events, AreWrittenByteForByteAndReadBackTheSame) {
    AddEventRecord({.date = "2009-10-14",
                    .desc = "Swimming <late>",
                    .type = "Recreation",
                    .recurrence = "Day",
                    .exceptions = "2009/05/01 2009/05/08",
                    .repeat_daily = "TFFFFTF",
                    .end = "True",
                    .end_date = "2010.01.31",
                    .reminder = "True",
                    .reminder_alarm = "2009/10/14 08:30:00",
                    .reminder_currentday = "2009-10-14",
                    .reminder_nextday = "14.10.2009",
                    .reminder_nextalarm = "2009/10/19 08:30:00",
                    .notes = "towel\r\nkey"});
    WriteEvents();
    EXPECT_EQ(DataFile("events.xml"),
              FileOf("event_data", Lines({"<event>",
                                          "  <id>1</id>",
                                          "  <date>2009/10/14</date>",
                                          "  <time>09:00 AM</time>",
                                          "  <duration>30 Minutes</duration>",
                                          "  <desc>Swimming <late></desc>",
                                          "  <type>Recreation</type>",
                                          "  <recurrence>Day</recurrence>",
                                          "  <exceptions>2009/05/01 2009/05/08</exceptions>",
                                          "  <parent_id></parent_id>",
                                          "  <same_date>False</same_date>",
                                          "  <repeat_number>First</repeat_number>",
                                          "  <repeat_day>Day</repeat_day>",
                                          "  <repeat_daily>TFFFFTF</repeat_daily>",
                                          "  <end>True</end>",
                                          "  <end_date>2010/01/31</end_date>",
                                          "  <reminder>True</reminder>",
                                          "  <reminder_time>30 Minutes</reminder_time>",
                                          "  <reminder_alarm>2009/10/14 08:30:00</reminder_alarm>",
                                          "  <reminder_list>False</reminder_list>",
                                          "  <reminder_currentday>2009-10-14</reminder_currentday>",
                                          "  <reminder_nextday>14.10.2009</reminder_nextday>",
                                          "  <reminder_nextalarm>2009/10/19 08:30:00</reminder_nextalarm>",
                                          "  <notes>towel",
                                          "key</notes>",
                                          "</event>"})));
    EXPECT_TRUE(FileWrittenFlags.events);
    EventLists expected = Store.EventRecord;
    expected.date.Replace(1, "2009/10/14");
    expected.end_date.Replace(1, "2010/01/31");
    ResetStore();
    ReadEvents();
    for (const Field<EventLists>& field : EventFields) {
        EXPECT_EQ(Store.EventRecord.*field.list, expected.*field.list) << field.tag;
    }
    EXPECT_EQ(NextEventID, 2);
}

TEST_F(Events, AreAnEmptyFileAtTheFirstRead) {
    ReadEvents();
    EXPECT_EQ(DataFile("events.xml"), FileOf("event_data", ""));
}

TEST_F(Events, WithoutAnEndDateKeepTwoSlashes) {
    AddEventRecord({.end_date = ""});
    for (int run = 1; run <= 2; ++run) {
        WriteEvents();
        ResetStore();
        ReadEvents();
        EXPECT_EQ(Store.EventRecord.end_date.values, Texts{"//"});
    }
}

TEST_F(Events, ThatAreChangedOccurrencesNameTheirSeries) {
    AddEventRecord({.desc = "series", .recurrence = "Day", .exceptions = "2009/10/21"});
    AddEventRecord({.date = "2009/10/21", .desc = "changed", .parent_id = "1"});
    WriteEvents();
    ResetStore();
    ReadEvents();
    EXPECT_EQ(Store.EventRecord.parent_id.values, (Texts{"", "1"}));
}

TEST_F(Events, OfARemovedSeriesAreNoLongerInTheFile) {
    AddEventRecord({.desc = "series", .recurrence = "Day"});
    AddEventRecord({.desc = "child", .parent_id = "1"});
    AddEventRecord({.desc = "other"});
    WriteEvents();
    RemoveRecord(Store.EventRecord, EventFields, 2);
    RemoveRecord(Store.EventRecord, EventFields, 1);
    WriteEvents();
    ResetStore();
    ReadEvents();
    EXPECT_EQ(Store.EventRecord.desc.values, Texts{"other"});
    EXPECT_EQ(Store.EventRecord.id.values, Texts{"3"});
}

TEST_F(Events, OfASeriesThatIsRemovedLeaveTheFileWithItsChangedOccurrences) {
    AddEventRecord({.desc = "before"});
    AddEventRecord({.desc = "series", .recurrence = "Day", .repeat_daily = "TTTTTTT"});
    AddEventRecord({.desc = "of another series", .parent_id = "1"});
    ReplaceOccurrence(2, Date{std::chrono::year{2009} / 10 / 16}, Store.EventRecord);
    Store.EventRecord.desc.Replace(4, "changed");
    WriteEvents();
    EXPECT_NE(DataFile("events.xml").find("<parent_id>2</parent_id>"), std::string::npos);
    RemoveSeries(2);
    WriteEvents();
    const std::string file = DataFile("events.xml");
    for (const char* gone : {"series</desc>\r\n  <type>None</type>\r\n  <recurrence>Day", "changed",
                             "<parent_id>2</parent_id>", "2009/10/16"}) {
        EXPECT_EQ(file.find(gone), std::string::npos) << gone;
    }
    ResetStore();
    ReadEvents();
    EXPECT_EQ(Store.EventRecord.desc.values, (Texts{"before", "of another series"}));
    EXPECT_EQ(Store.EventRecord.id.values, (Texts{"1", "3"}));
    EXPECT_EQ(Store.EventRecord.parent_id.values, (Texts{"", "1"}));
}

TEST_F(Events, NameTheirFileInBothMessagesAndClearTheFlag) {
    FileWrittenFlags.events = true;
    SetDataFile("events.xml", "damaged");
    ReadEvents();
    EXPECT_FALSE(FileWrittenFlags.events);
    FileWrittenFlags.events = true;
    std::filesystem::create_directory(DataFolder / "events.xml.tmp");
    WriteEvents();
    EXPECT_FALSE(FileWrittenFlags.events);
    EXPECT_EQ(Script.boxes,
              (Boxes{FileErrorBox("events.xml", "reading"), FileErrorBox("events.xml.tmp", "writing")}));
}
