// The records of the tests that cut files: every kind, and every field with what its editor would write.
#include "support/CutDrive.h"

#include "core/DateText.h"
#include "core/Values.h"
#include "support/Reminders.h"

#include <array>

namespace {

void AddTerm(int id) {
    Store.Term.id.Add(std::to_string(id));
    Store.Term.name.Add("Term " + std::to_string(id));
    Store.Term.start.Add("2009/08/24");
    Store.Term.end.Add("2009/12/18");
    NextTermID = id + 1;
}

EventTexts EventOf(int number, const std::string& date) {
    constexpr std::array<const char*, 4> recurrences{"None", "Day", "Month", "Year"};
    constexpr std::array<const char*, 3> types{"Study Time", "TermID1-ClassID1", "None"};
    return {.date = date,
            .duration = "1.5 Hours",
            .desc = "Event " + std::to_string(number),
            .type = types[static_cast<std::size_t>(number) % types.size()],
            .recurrence = recurrences[static_cast<std::size_t>(number) % recurrences.size()],
            .exceptions = number % 2 == 0 ? "2009/10/21 2009/10/28" : "",
            .repeat_day = "Sunday",
            .repeat_daily = "TTFFFFF",
            .end = number % 2 == 0 ? "True" : "False",
            .end_date = "2010/10/14",
            .notes = "<b>bold</b>\r\n\r\nlast"};
}

} // namespace

void FillCutDrive(int records) {
    for (int number = 1; number <= records; ++number) {
        AddTerm(number);
    }
    ChooseActiveTerm("Term 1");
    for (int number = 1; number <= records; ++number) {
        const std::string id = std::to_string(number);
        const std::string date = StoredDate(DateValue("2009/10/10") + std::chrono::days{number});
        AddClassRecord({.id = id, .name = "Class " + id, .notes = "Room " + id + "\r\nMonday"});
        AddAssignmentRecord(ArmedAssignment({.class_ = id,
                                             .date = date,
                                             .desc = "Work " + id,
                                             .done = BooleanText(number % 3 == 0),
                                             .score = "8",
                                             .total = "10",
                                             .grade = "80%",
                                             .notes = "a < b\r\n> c"},
                                            date, "09:00 AM"));
        AddTaskRecord(ArmedTask({.date = date, .desc = "Task " + id, .notes = "x\r\ny"}, date, "10:00 AM"));
        AddArmedEvent(EventOf(number, date));
    }
    NextClassID = records + 1;
    SetupActiveClasses();
}
