// The records of the older release: where in its bytes each field of a record stands, and what becomes of it.
#pragma once

#include "core/FieldTables.h"
#include "core/Records.h"

#include <cstddef>
#include <string_view>

enum class LegacyRule {
    Plain,    // as it stands
    Notes,    // the same, with a blank behind each line that the reader would take for the field's last
    DateText, // "." and "-" become "/"
    Day,      // the date as yyyy/mm/dd; a text that is none as a date
    Time,     // "None" becomes the time of reminders
    Progress  // the percentage that stands for the done mark
};

inline constexpr std::string_view LegacyTime = "09:00 AM";
inline constexpr std::string_view LegacyAlarm = " 09:00:00"; // behind the day
inline constexpr std::string_view LegacyTrue = "True";
inline constexpr std::string_view NoTimeLeft = "00 : 00";

// The value is what stands at the offset, without the blanks at its end, by the rule; the text stands behind
// it. A width of 0 leaves the text alone, the same for each record.
template <class Lists>
struct LegacyField {
    TextList Lists::*list;
    std::size_t offset = 0;
    std::size_t width = 0;
    LegacyRule rule = LegacyRule::Plain;
    std::string_view text{};
};

// The bytes of a record in each file.
inline constexpr std::size_t LegacyTermLength = 100;
inline constexpr std::size_t LegacyClassLength = 615;
inline constexpr std::size_t LegacyNoteLength = 1500;
inline constexpr std::size_t LegacyAssignmentLength = 160;
inline constexpr std::size_t LegacyTaskLength = 1000;
inline constexpr std::size_t LegacyEventLength = 1000;

inline constexpr std::array<LegacyField<TermLists>, 4> LegacyTermFields{{
    {&TermLists::id, 0, 5},
    {&TermLists::name, 5, 35},
    {&TermLists::start, 40, 15, LegacyRule::DateText},
    {&TermLists::end, 55, 15, LegacyRule::DateText},
}};

inline constexpr std::array<LegacyField<ClassLists>, 7> LegacyClassFields{{
    {&ClassLists::id, 0, 5},
    {&ClassLists::term, 5, 5},
    {&ClassLists::name, 10, 25},
    {&ClassLists::notes, 75, 500, LegacyRule::Notes},
    {.list = &ClassLists::credits, .text = "1"},
    {.list = &ClassLists::forecolor, .text = "0"},
    {.list = &ClassLists::backcolor, .text = "16777215"},
}};

// The notes of assignments had a file of their own.
struct LegacyNotes {
    TextList owner, text;
};

inline constexpr std::array<LegacyField<LegacyNotes>, 2> LegacyNoteFields{{
    {&LegacyNotes::owner, 5, 5},
    {&LegacyNotes::text, 50, 1450, LegacyRule::Notes},
}};

// The time left is the estimate here, and none for what is done; the notes come from their file.
inline constexpr std::array<LegacyField<AssignmentLists>, 19> LegacyAssignmentFields{{
    {&AssignmentLists::id, 5, 5},
    {&AssignmentLists::class_, 10, 5},
    {&AssignmentLists::date, 15, 15, LegacyRule::DateText},
    {&AssignmentLists::type, 30, 10},
    {&AssignmentLists::est_time, 50, 7},
    {&AssignmentLists::time_left, 50, 7},
    {&AssignmentLists::desc, 57, 50},
    {&AssignmentLists::done, 107, 5},
    {&AssignmentLists::percent_complete, 107, 5, LegacyRule::Progress},
    {.list = &AssignmentLists::priority, .text = "False"},
    {.list = &AssignmentLists::score},
    {.list = &AssignmentLists::total},
    {.list = &AssignmentLists::grade},
    {.list = &AssignmentLists::reminder, .text = "False"},
    {&AssignmentLists::reminderdate, 15, 15, LegacyRule::DateText},
    {.list = &AssignmentLists::remindertime, .text = LegacyTime},
    {&AssignmentLists::reminderalarm, 15, 15, LegacyRule::DateText, LegacyAlarm},
    {.list = &AssignmentLists::reminderlist, .text = "False"},
    {.list = &AssignmentLists::notes},
}};

inline constexpr std::array<LegacyField<TaskLists>, 14> LegacyTaskFields{{
    {&TaskLists::id, 5, 5},
    {&TaskLists::desc, 10, 60},
    {&TaskLists::date_exists, 70, 5},
    {&TaskLists::date, 75, 15, LegacyRule::DateText},
    {&TaskLists::type, 90, 10},
    {&TaskLists::priority, 100, 10},
    {&TaskLists::done, 110, 5},
    {&TaskLists::percent_complete, 110, 5, LegacyRule::Progress},
    {&TaskLists::notes, 115, 845, LegacyRule::Notes},
    {.list = &TaskLists::reminder, .text = "False"},
    {&TaskLists::reminder_date, 75, 15, LegacyRule::DateText},
    {.list = &TaskLists::reminder_time, .text = LegacyTime},
    {&TaskLists::reminder_alarm, 75, 15, LegacyRule::DateText, LegacyAlarm},
    {.list = &TaskLists::reminder_list, .text = "False"},
}};

inline constexpr std::array<LegacyField<EventLists>, 23> LegacyEventFields{{
    {&EventLists::id, 5, 5},
    {&EventLists::date, 10, 15, LegacyRule::DateText},
    {&EventLists::desc, 25, 60},
    {&EventLists::type, 85, 10},
    {&EventLists::time, 95, 10, LegacyRule::Time},
    {&EventLists::recurrence, 105, 5},
    {&EventLists::same_date, 110, 5},
    {&EventLists::repeat_number, 115, 10},
    {&EventLists::repeat_day, 125, 10},
    {&EventLists::repeat_daily, 135, 10},
    {&EventLists::end, 145, 5},
    {&EventLists::end_date, 150, 15, LegacyRule::DateText},
    {&EventLists::notes, 165, 795, LegacyRule::Notes},
    {.list = &EventLists::duration, .text = "1 Hour"},
    {.list = &EventLists::exceptions},
    {.list = &EventLists::parent_id},
    {.list = &EventLists::reminder, .text = "False"},
    {.list = &EventLists::reminder_time, .text = "30 Minutes"},
    {&EventLists::reminder_alarm, 10, 15, LegacyRule::Day, LegacyAlarm},
    {.list = &EventLists::reminder_list, .text = "False"},
    {&EventLists::reminder_currentday, 10, 15, LegacyRule::Day},
    {&EventLists::reminder_nextday, 10, 15, LegacyRule::Day},
    {&EventLists::reminder_nextalarm, 10, 15, LegacyRule::Day, LegacyAlarm},
}};

static_assert(NamesAllFieldsBut(LegacyTermFields, &LegacyField<TermLists>::list));
static_assert(NamesAllFieldsBut(LegacyClassFields, &LegacyField<ClassLists>::list));
static_assert(NamesAllFieldsBut(LegacyAssignmentFields, &LegacyField<AssignmentLists>::list));
static_assert(NamesAllFieldsBut(LegacyTaskFields, &LegacyField<TaskLists>::list));
static_assert(NamesAllFieldsBut(LegacyEventFields, &LegacyField<EventLists>::list));
