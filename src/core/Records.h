// The five kinds of record: their field lists, and for each kind one table of the fields in the file's order,
// which the reader, the writer and the removal of records walk.
#pragma once

#include "core/TextList.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string_view>

// How the reader and the writer of the record files treat a field.
enum class FieldRule {
    Plain,    // the text unchanged
    DateText, // separators become "/" when read; formatted as yyyy/MM/dd when written
    Id        // the text unchanged, and it raises the kind's id counter when read
};

template <class Lists>
struct Field {
    std::string_view tag;
    TextList Lists::*list;
    FieldRule rule = FieldRule::Plain;
};

struct TermLists {
    TextList id, name, start, end;
};

inline constexpr std::array<Field<TermLists>, 4> TermFields{{
    {"id", &TermLists::id, FieldRule::Id},
    {"name", &TermLists::name},
    {"start", &TermLists::start, FieldRule::DateText},
    {"end", &TermLists::end, FieldRule::DateText},
}};

struct ClassLists {
    TextList id, term, name, credits, forecolor, backcolor, notes;
};

inline constexpr std::array<Field<ClassLists>, 7> ClassFields{{
    {"id", &ClassLists::id, FieldRule::Id},
    {"term", &ClassLists::term},
    {"name", &ClassLists::name},
    {"credits", &ClassLists::credits},
    {"forecolor", &ClassLists::forecolor},
    {"backcolor", &ClassLists::backcolor},
    {"notes", &ClassLists::notes},
}};

struct AssignmentLists {
    TextList id, class_, date, type, priority, est_time, time_left, percent_complete, desc, done, score,
        total, grade, reminder, reminderdate, remindertime, reminderalarm, reminderlist, notes;
};

inline constexpr std::array<Field<AssignmentLists>, 19> AssignmentFields{{
    {"id", &AssignmentLists::id, FieldRule::Id},
    {"class", &AssignmentLists::class_},
    {"date", &AssignmentLists::date, FieldRule::DateText},
    {"desc", &AssignmentLists::desc},
    {"type", &AssignmentLists::type},
    {"priority", &AssignmentLists::priority},
    {"est_time", &AssignmentLists::est_time},
    {"time_left", &AssignmentLists::time_left},
    {"percent_complete", &AssignmentLists::percent_complete},
    {"done", &AssignmentLists::done},
    {"score", &AssignmentLists::score},
    {"total", &AssignmentLists::total},
    {"grade", &AssignmentLists::grade},
    {"reminder", &AssignmentLists::reminder},
    {"reminderdate", &AssignmentLists::reminderdate, FieldRule::DateText},
    {"remindertime", &AssignmentLists::remindertime},
    {"reminderalarm", &AssignmentLists::reminderalarm},
    {"reminderlist", &AssignmentLists::reminderlist},
    {"notes", &AssignmentLists::notes},
}};

struct TaskLists {
    TextList id, desc, date_exists, date, type, priority, percent_complete, done, reminder, reminder_date,
        reminder_time, reminder_alarm, reminder_list, notes;
};

inline constexpr std::array<Field<TaskLists>, 14> TaskFields{{
    {"id", &TaskLists::id, FieldRule::Id},
    {"date", &TaskLists::date, FieldRule::DateText},
    {"desc", &TaskLists::desc},
    {"date_exists", &TaskLists::date_exists},
    {"type", &TaskLists::type},
    {"priority", &TaskLists::priority},
    {"percent_complete", &TaskLists::percent_complete},
    {"done", &TaskLists::done},
    {"reminder", &TaskLists::reminder},
    {"reminder_date", &TaskLists::reminder_date, FieldRule::DateText},
    {"reminder_time", &TaskLists::reminder_time},
    {"reminder_alarm", &TaskLists::reminder_alarm},
    {"reminder_list", &TaskLists::reminder_list},
    {"notes", &TaskLists::notes},
}};

struct EventLists {
    TextList id, date, time, duration, desc, type, recurrence, exceptions, parent_id, same_date,
        repeat_number, repeat_day, repeat_daily, end, end_date, reminder, reminder_time, reminder_alarm,
        reminder_list, reminder_currentday, reminder_nextday, reminder_nextalarm, notes;
};

inline constexpr std::array<Field<EventLists>, 23> EventFields{{
    {"id", &EventLists::id, FieldRule::Id},
    {"date", &EventLists::date, FieldRule::DateText},
    {"time", &EventLists::time},
    {"duration", &EventLists::duration},
    {"desc", &EventLists::desc},
    {"type", &EventLists::type},
    {"recurrence", &EventLists::recurrence},
    {"exceptions", &EventLists::exceptions},
    {"parent_id", &EventLists::parent_id},
    {"same_date", &EventLists::same_date},
    {"repeat_number", &EventLists::repeat_number},
    {"repeat_day", &EventLists::repeat_day},
    {"repeat_daily", &EventLists::repeat_daily},
    {"end", &EventLists::end},
    {"end_date", &EventLists::end_date, FieldRule::DateText},
    {"reminder", &EventLists::reminder},
    {"reminder_time", &EventLists::reminder_time},
    {"reminder_alarm", &EventLists::reminder_alarm},
    {"reminder_list", &EventLists::reminder_list},
    {"reminder_currentday", &EventLists::reminder_currentday},
    {"reminder_nextday", &EventLists::reminder_nextday},
    {"reminder_nextalarm", &EventLists::reminder_nextalarm},
    {"notes", &EventLists::notes},
}};

// The log of study sessions. Nothing adds to it and no file holds it; the rules read it all the same.
struct StudySessionLists {
    TextList id, assignment, time, date;
};

// The table of each kind.
constexpr const auto& FieldTable(const TermLists& /*kind*/) {
    return TermFields;
}

constexpr const auto& FieldTable(const ClassLists& /*kind*/) {
    return ClassFields;
}

constexpr const auto& FieldTable(const AssignmentLists& /*kind*/) {
    return AssignmentFields;
}

constexpr const auto& FieldTable(const TaskLists& /*kind*/) {
    return TaskFields;
}

constexpr const auto& FieldTable(const EventLists& /*kind*/) {
    return EventFields;
}

// How many records of the kind are whole: the positions that each of its lists has. Lists fall out of step
// where a file was cut short or lacks a tag; all that goes over the records of a kind goes over these.
template <class Lists>
int WholeRecords(const Lists& lists) {
    int whole = std::numeric_limits<int>::max();
    for (const auto& field : FieldTable(lists)) {
        whole = std::min(whole, (lists.*field.list).Count());
    }
    return whole;
}

// Takes the record at the position out of every list of its kind.
template <class Lists, std::size_t Count>
void RemoveRecord(Lists& lists, const std::array<Field<Lists>, Count>& fields, int position) {
    for (const Field<Lists>& field : fields) {
        (lists.*field.list).Remove(position);
    }
}
