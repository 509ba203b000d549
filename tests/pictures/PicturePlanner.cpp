// The planner that the pictures show: enough of everything to fill each view, and in it each mark, colour,
// check and over-long text that a view can show.
#include "pictures/PicturePlanner.h"

#include "core/DateText.h"
#include "support/EventRecords.h"
#include "support/StoreRecords.h"

#include <array>

using namespace std::chrono_literals;
using std::chrono::days;

namespace {

constexpr Date Today14{2009y / 10 / 14};
constexpr int Weeks = 3; // for which the homework is repeated
constexpr const char* LongText =
    "A description of the kind that goes on and on and on and on and on and on and on and on and on and on "
    "and on and on and on and on and on and on and on and on and on and on and on and on and on";

constexpr std::array<std::array<const char*, 3>, 5> Classes{{
    {"Algebra", "0", "15788258"}, // name, fore colour, back colour
    {"Biology", "3021338", "13563594"},
    {"Composition and Rhetoric of the Nineteenth Century", "0", "13426175"},
    {"History", "16777215", "9067846"},
    {"Spanish", "8388608", "12320767"},
}};

struct Homework {
    int classNumber;
    int day; // from today
    const char* desc;
    const char* type;
    const char* priority;
    const char* timeLeft;
    const char* done;
    const char* grade;
    const char* reminder;
};

constexpr std::array<Homework, 10> HomeworkOfAWeek{{
    {1, -3, "Problems 1 to 24, odd", "Problem Set", "False", "00 : 00", "True", "92%", "False"},
    {2, -2, "Read chapter 4", "Reading", "False", "00 : 45", "False", "", "False"},
    {3, -1, LongText, "Essay", "True", "04 : 30", "False", "", "True"},
    {4, 0, "Causes of the war", "Project", "True", "02 : 00", "False", "", "True"},
    {5, 0, "Vocabulary, unit 6", "Quiz", "False", "00 : 30", "False", "", "False"},
    {1, 0, "Quadratic equations", "Problem Set", "False", "00 : 00", "True", "100%", "False"},
    {2, 1, "Laboratory report", "Report", "False", "01 : 15", "False", "", "True"},
    {3, 1, "", "Essay", "False", "01 : 00", "False", "", "False"},
    {4, 2, "Map of the colonies", "Other", "True", "00 : 20", "False", "", "False"},
    {5, 3, "Dialogue", "Presentation", "False", "01 : 00", "False", "85%", "False"},
}};

struct Task {
    int day;
    const char* desc;
    const char* type;
    const char* priority;
    const char* done;
    const char* reminder;
    const char* dated;
};

constexpr std::array<Task, 8> Tasks{{
    {0, "Return the library books", "None", "High", "False", "True", "True"},
    {0, LongText, "Friends", "None", "False", "False", "True"},
    {0, "", "Family", "Low", "True", "False", "True"},
    {1, "Ask about the field trip", "Project", "Medium", "False", "True", "True"},
    {-2, "Buy graph paper", "None", "None", "True", "False", "True"},
    {6, "Renew the bus pass", "Friends", "High", "False", "False", "True"},
    {0, "Find a study partner", "None", "None", "False", "False", "False"},
    {0, "Clean the desk", "Family", "None", "True", "False", "False"},
}};

constexpr const char* OnWeekdays = "TTTTTFF";

void AddClasses() {
    for (std::size_t i = 0; i < Classes.size(); ++i) {
        const auto& [name, forecolor, backcolor] = Classes[i];
        AddClassRecord(
            {.id = std::to_string(i + 1), .name = name, .forecolor = forecolor, .backcolor = backcolor});
    }
    SetupActiveClasses();
}

void AddHomework() {
    for (int week = 0; week < Weeks; ++week) {
        for (const Homework& each : HomeworkOfAWeek) {
            AddAssignmentRecord({.class_ = std::to_string(each.classNumber),
                                 .date = StoredDate(Today14 + days{each.day + 7 * week}),
                                 .desc = each.desc,
                                 .type = each.type,
                                 .priority = each.priority,
                                 .time_left = each.timeLeft,
                                 .done = each.done,
                                 .grade = each.grade,
                                 .reminder = each.reminder});
        }
    }
}

void AddStudySessions() {
    StudySessionLists& log = Store.StudySessionRecord;
    for (int i = 1; i <= 8; ++i) {
        log.id.Add(std::to_string(i));
        log.assignment.Add(std::to_string(i));
        log.time.Add("00 : " + std::to_string(10 + 5 * i));
        log.date.Add(StoredDate(Today14 - days{8 - i}));
    }
}

void AddTasks() {
    for (const Task& each : Tasks) {
        AddTaskRecord({.date = StoredDate(Today14 + days{each.day}),
                       .desc = each.desc,
                       .date_exists = each.dated,
                       .type = each.type,
                       .priority = each.priority,
                       .done = each.done,
                       .reminder = each.reminder});
    }
}

void AddEvents() {
    AddEventRecord({.date = "2009/08/24",
                    .time = "08:00 AM",
                    .duration = "50 Minutes",
                    .desc = "",
                    .type = "TermID1-ClassID1",
                    .recurrence = "Day",
                    .repeat_daily = OnWeekdays});
    AddEventRecord({.time = "09:00 AM", .duration = "1.5 Hours", .desc = "Chess", .type = "Friends"});
    AddEventRecord({.time = "09:30 AM", .duration = "1 Hour", .desc = LongText, .type = "Friends"});
    AddEventRecord({.time = "10:00 AM", .duration = "2 Hours", .desc = "Dentist", .reminder = "True"});
    AddEventRecord({.time = "01:00 PM", .duration = "30 Minutes", .desc = "Lunch"});
    AddEventRecord({.time = "02:00 PM", .duration = "2 Hours", .desc = "Library", .type = "Study Time"});
    AddEventRecord({.time = "07:00 PM", .duration = "3 Hours", .desc = "Concert"});
    AddEventRecord({.date = "2009/10/17", .time = "11:00 AM", .duration = "1 Day", .desc = "Journey"});
}

} // namespace

void FillPicturePlanner() {
    AddClasses();
    AddHomework();
    AddStudySessions();
    AddTasks();
    AddEvents();
}
