// What the check passes over: values and links of deleted records, and dates that a task does not use.
#include "check/CheckedDrive.h"

#include <filesystem>

namespace fs = std::filesystem;

TEST_F(CheckedDrive, OfDeletedRecordsAsksNothingOfTheirValues) {
    ASSERT_NO_FATAL_FAILURE(Edit("events.xml", "<desc>Event 1", "<desc>DELETED RECORD"));
    ASSERT_NO_FATAL_FAILURE(Edit("events.xml", "<time>09:00 AM", "<time>noon"));
    EXPECT_EQ(Shown(Check().findings), "");
}

TEST_F(CheckedDrive, OfDeletedRecordsAsksNothingOfTheirLinks) {
    ASSERT_NO_FATAL_FAILURE(
        Edit("classes.xml", "<term>1</term>\r\n  <name>Class 1", "<term>9</term>\r\n  <name>DELETED RECORD"));
    ASSERT_NO_FATAL_FAILURE(Edit("assignments_1.xml", "<desc>Work 1", "<desc>DELETED RECORD"));
    ASSERT_NO_FATAL_FAILURE(Edit("events.xml", "<desc>Event 1", "<desc>DELETED RECORD"));
    ASSERT_NO_FATAL_FAILURE(Edit("events.xml", "<parent_id>", "<parent_id>55"));
    EXPECT_EQ(Shown(Check().findings), "");
}

TEST_F(CheckedDrive, OfAMeetingWithoutItsClassAsksOnlyForItsReminder) {
    ASSERT_NO_FATAL_FAILURE(Edit("events.xml", "<type>TermID1-ClassID1", "<type>TermID1-ClassID9"));
    ASSERT_NO_FATAL_FAILURE(Edit("events.xml", "<reminder>True", "<reminder>False"));
    EXPECT_EQ(Shown(Check().findings), "");
}

TEST_F(CheckedDrive, WithDeletedAssignmentsAloneOfNoTermHasNoFinding) {
    for (const char* name : {"Work 1", "Work 2", "Work 3"}) {
        ASSERT_NO_FATAL_FAILURE(
            Edit("assignments_1.xml", std::string("<desc>") + name, "<desc>DELETED RECORD"));
    }
    fs::rename(DataFolder / "assignments_1.xml", DataFolder / "assignments_8.xml");
    EXPECT_EQ(Shown(Check().findings), "");
}

TEST_F(CheckedDrive, AsksForTheOccurrenceOfASeriesThatIsArmedOrStands) {
    const auto findings = [](const std::string& reminder, const std::string& list) {
        ResetStore();
        ReadEvents();
        Store.EventRecord.reminder.Replace(2, reminder);
        Store.EventRecord.reminder_list.Replace(2, list);
        Store.EventRecord.reminder_currentday.Replace(2, "someday");
        WriteEvents();
        return Check().findings;
    };
    EXPECT_TRUE(HasFinding(findings("True", "False"), "events.xml", 2, "reminder_currentday"));
    EXPECT_TRUE(HasFinding(findings("False", "True"), "events.xml", 2, "reminder_currentday"));
    EXPECT_EQ(Shown(findings("False", "False")), "");
}

TEST_F(CheckedDrive, WithDatesThatATaskDoesNotUseHasNoFinding) {
    ASSERT_NO_FATAL_FAILURE(Edit("tasks.xml",
                                 "<date>2009/10/11</date>\r\n  <desc>Task 1</desc>\r\n  <date_exists>True",
                                 "<date>//</date>\r\n  <desc>Task 1</desc>\r\n  <date_exists>False"));
    ASSERT_NO_FATAL_FAILURE(Edit("tasks.xml", "<reminder_date>2009/10/11", "<reminder_date>//"));
    EXPECT_EQ(Check().findings.size(), 1U) << "its reminder is on";
    ASSERT_NO_FATAL_FAILURE(Edit("tasks.xml", "<reminder>True", "<reminder>False"));
    EXPECT_EQ(Shown(Check().findings), "");
}
