// All the old data of a student, from tables, against the record files that have to come of it.
#include "persistence/DataFolderTest.h"
#include "persistence/modConvert.h"
#include "support/LegacyDrive.h"

#include <array>

namespace {

struct TermRow {
    const char* id;
    const char* name;
    const char* oldStart;
    const char* start;
    const char* oldEnd;
    const char* end;
};

constexpr std::array<TermRow, 3> Terms{{
    {"1", "Fall 2008", "2008-08-25", "2008/08/25", "2008.12.19", "2008/12/19"},
    {"2", "DELETED RECORD", "2009/01/12", "2009/01/12", "2009-05-15", "2009/05/15"},
    {"3", "Fall 2009", "8/24/2009", "2009/08/24", "12-18-2009", "2009/12/18"},
}};

struct ClassRow {
    const char* id;
    const char* term;
    const char* name;
    const char* notes;
};

constexpr std::array<ClassRow, 12> Classes{{
    {"1", "1", "Algebra", "Room 12\r\nMonday"},
    {"2", "1", "Biology", ""},
    {"3", "1", "Chemistry", "a < b & c"},
    {"4", "1", "DELETED RECORD", ""},
    {"5", "2", "Drawing", ""},
    {"6", "2", "English", "<i>short</i>"},
    {"7", "3", "French", ""},
    {"8", "3", "Geometry", ""},
    {"9", "3", "History", "Mr. Byrne"},
    {"10", "3", "DELETED RECORD", "gone"},
    {"11", "9", "Of no term", ""},
    {"12", "3", "Latin", ""},
}};

constexpr int Assignments = 200;
constexpr int Tasks = 30;
constexpr int Events = 40;

const ClassRow& ClassOf(int number) {
    return Classes[static_cast<std::size_t>(number) % Classes.size()];
}

bool IsDeleted(int number) {
    return number % 7 == 0;
}

bool IsDone(int number) {
    return number % 5 == 0;
}

bool IsUndated(int number) {
    return number % 4 == 0;
}

bool HasNote(int number) {
    return number % 3 == 0;
}

std::string TwoDigits(int number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

std::string DateOf(int number, const std::string& separator) {
    return "2009" + separator + TwoDigits(number % 12 + 1) + separator + TwoDigits(number % 28 + 1);
}

std::string Flag(bool value) {
    return value ? "True" : "False";
}

std::string DescOf(const std::string& kind, int number) {
    return IsDeleted(number) ? "DELETED RECORD" : kind + " " + std::to_string(number);
}

std::string NoteOf(int number) {
    return "Note " + std::to_string(number) + "\r\n" + std::string(static_cast<std::size_t>(number) * 7, '.');
}

void WriteOldTerms() {
    std::string terms;
    for (const TermRow& row : Terms) {
        terms += LegacyTerm(row.id, row.name, row.oldStart, row.oldEnd);
    }
    std::string classes;
    for (const ClassRow& row : Classes) {
        classes += LegacyClass(row.id, row.term, row.name, row.notes);
    }
    SetDataFile("Terms.txt", terms);
    SetDataFile("Classes.txt", classes);
}

void WriteOldAssignments() {
    std::string assignments;
    std::string notes;
    for (int number = 1; number <= Assignments; ++number) {
        assignments += LegacyAssignment({.id = std::to_string(number),
                                         .class_ = ClassOf(number).id,
                                         .date = DateOf(number, "-"),
                                         .est_time = TwoDigits(number % 10) + " : 15",
                                         .desc = DescOf("Work", number),
                                         .done = Flag(IsDone(number))});
        if (HasNote(number)) {
            notes += LegacyNote(std::to_string(number), NoteOf(number));
        }
    }
    SetDataFile("Assignments.txt", assignments);
    SetDataFile("Notes.txt", notes + LegacyNote("0", "of a record that went"));
}

void WriteOldTasksAndEvents() {
    std::string tasks;
    for (int number = 1; number <= Tasks; ++number) {
        tasks += LegacyTask({.id = std::to_string(number),
                             .desc = DescOf("Task", number),
                             .date_exists = Flag(!IsUndated(number)),
                             .date = IsUndated(number) ? "" : DateOf(number, "."),
                             .done = Flag(IsDone(number)),
                             .notes = HasNote(number) ? NoteOf(number) : ""});
    }
    std::string events;
    for (int number = 1; number <= Events; ++number) {
        events += LegacyEvent({.id = std::to_string(number),
                               .date = DateOf(number, "."),
                               .desc = DescOf("Event", number),
                               .time = IsDone(number) ? "None" : "11:30 AM",
                               .recurrence = IsUndated(number) ? "Day" : "None",
                               .repeat_daily = "TFTFTFF",
                               .end = Flag(IsDone(number)),
                               .end_date = DateOf(number + 1, "-")});
    }
    SetDataFile("Tasks.txt", tasks);
    SetDataFile("Events.txt", events);
}

std::string Tag(const std::string& tag, const std::string& value) {
    return "  <" + tag + ">" + value + "</" + tag + ">\r\n";
}

std::string ExpectedTerms() {
    std::string body;
    for (const TermRow& row : Terms) {
        body += "<term>\r\n" + Tag("id", row.id) + Tag("name", row.name) + Tag("start", row.start) +
                Tag("end", row.end) + "</term>\r\n";
    }
    return FileOf("term_data", body);
}

std::string ExpectedClasses() {
    std::string body;
    for (const ClassRow& row : Classes) {
        body += "<class>\r\n" + Tag("id", row.id) + Tag("term", row.term) + Tag("name", row.name) +
                Tag("credits", "1") + Tag("forecolor", "0") + Tag("backcolor", "16777215") +
                Tag("notes", row.notes) + "</class>\r\n";
    }
    return FileOf("class_data", body);
}

std::string ExpectedAssignment(int number) {
    const std::string date = DateOf(number, "/");
    const std::string estimate = TwoDigits(number % 10) + " : 15";
    return "<assignment>\r\n" + Tag("id", std::to_string(number)) + Tag("class", ClassOf(number).id) +
           Tag("date", date) + Tag("desc", DescOf("Work", number)) + Tag("type", "Reading") +
           Tag("priority", "False") + Tag("est_time", estimate) +
           Tag("time_left", IsDone(number) ? "00 : 00" : estimate) +
           Tag("percent_complete", IsDone(number) ? "100%" : "0%") + Tag("done", Flag(IsDone(number))) +
           Tag("score", "") + Tag("total", "") + Tag("grade", "") + Tag("reminder", "False") +
           Tag("reminderdate", date) + Tag("remindertime", "09:00 AM") +
           Tag("reminderalarm", date + " 09:00:00") + Tag("reminderlist", "False") +
           Tag("notes", HasNote(number) ? NoteOf(number) : "") + "</assignment>\r\n";
}

std::string ExpectedAssignments(const std::string& term) {
    std::string body;
    for (int number = 1; number <= Assignments; ++number) {
        const ClassRow& row = ClassOf(number);
        if (!IsDeleted(number) && row.term == term && std::string(row.name) != "DELETED RECORD") {
            body += ExpectedAssignment(number);
        }
    }
    return FileOf("assignment_data", body);
}

std::string ExpectedTasks() {
    std::string body;
    for (int number = 1; number <= Tasks; ++number) {
        if (IsDeleted(number)) {
            continue;
        }
        const std::string date = IsUndated(number) ? "//" : DateOf(number, "/");
        const std::string alarm = (IsUndated(number) ? "" : date) + " 09:00:00";
        body += "<task>\r\n" + Tag("id", std::to_string(number)) + Tag("date", date) +
                Tag("desc", DescOf("Task", number)) + Tag("date_exists", Flag(!IsUndated(number))) +
                Tag("type", "Home") + Tag("priority", "Low") +
                Tag("percent_complete", IsDone(number) ? "100%" : "0%") + Tag("done", Flag(IsDone(number))) +
                Tag("reminder", "False") + Tag("reminder_date", date) + Tag("reminder_time", "09:00 AM") +
                Tag("reminder_alarm", alarm) + Tag("reminder_list", "False") +
                Tag("notes", HasNote(number) ? NoteOf(number) : "") + "</task>\r\n";
    }
    return FileOf("task_data", body);
}

std::string ExpectedEvents() {
    std::string body;
    for (int number = 1; number <= Events; ++number) {
        if (IsDeleted(number)) {
            continue;
        }
        const std::string date = DateOf(number, "/");
        body += "<event>\r\n" + Tag("id", std::to_string(number)) + Tag("date", date) +
                Tag("time", IsDone(number) ? "09:00 AM" : "11:30 AM") + Tag("duration", "1 Hour") +
                Tag("desc", DescOf("Event", number)) + Tag("type", "School") +
                Tag("recurrence", IsUndated(number) ? "Day" : "None") + Tag("exceptions", "") +
                Tag("parent_id", "") + Tag("same_date", "False") + Tag("repeat_number", "First") +
                Tag("repeat_day", "Day") + Tag("repeat_daily", "TFTFTFF") + Tag("end", Flag(IsDone(number))) +
                Tag("end_date", DateOf(number + 1, "/")) + Tag("reminder", "False") +
                Tag("reminder_time", "30 Minutes") + Tag("reminder_alarm", date + " 09:00:00") +
                Tag("reminder_list", "False") + Tag("reminder_currentday", date) +
                Tag("reminder_nextday", date) + Tag("reminder_nextalarm", date + " 09:00:00") +
                Tag("notes", "") + "</event>\r\n";
    }
    return FileOf("event_data", body);
}

class LegacyStudent : public DataFolderTest {};

} // namespace

TEST_F(LegacyStudent, IsTakenOverByteForByte) {
    SetDataFile("Preferences.ini", "");
    WriteOldTerms();
    WriteOldAssignments();
    WriteOldTasksAndEvents();
    ConvertLegacyData();
    EXPECT_EQ(Script.boxes, Boxes{});
    EXPECT_EQ(DataFile("terms.xml"), ExpectedTerms());
    EXPECT_EQ(DataFile("classes.xml"), ExpectedClasses());
    for (const TermRow& term : Terms) {
        EXPECT_EQ(DataFile("assignments_" + std::string(term.id) + ".xml"), ExpectedAssignments(term.id));
    }
    EXPECT_EQ(DataFile("tasks.xml"), ExpectedTasks());
    EXPECT_EQ(DataFile("events.xml"), ExpectedEvents());
}
