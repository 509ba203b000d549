// The orders of the lists: by a click on a column's title, and of the boxes in the day schedule.
// Rows that compare equal keep the order of the selection in both directions. A column that the list does not
// have leaves the rows as they are, and so does a list of fewer than two rows. A text of the column that is
// no number, date or clock length raises the run-time error.
#pragma once

#include "planner/rows/ListFilter.h"

#include <concepts>

// The columns by their position in the list, where 0 is the row's number.
enum class HomeworkColumn : int { Reminder = 1, Priority, Class, Type, Description, Time, Due, Done, Score };
enum class StudyColumn : int { Class = 1, Type, Description, Priority, Time, DoneOn, Due };
enum class TaskColumn : int { Reminder = 1, Name, Type, Priority, Day, Done };
enum class EventColumn : int { Name = 1, Type, Day, Time, Recurrence };
enum class ReminderColumn : int { For = 1, Class, Type, Description, When, Day };

template <class Name>
concept ColumnName = std::same_as<Name, HomeworkColumn> || std::same_as<Name, StudyColumn> ||
    std::same_as<Name, TaskColumn> || std::same_as<Name, EventColumn> || std::same_as<Name, ReminderColumn>;

// A column of some list, given by its name: a bare number does not compile.
struct NamedColumn {
    int number = 0; // 0 for none

    constexpr NamedColumn() = default;

    // NOLINTNEXTLINE(google-explicit-constructor): the name stands for the column
    constexpr NamedColumn(ColumnName auto name) : number(static_cast<int>(name)) {}
};

// The number of a grade such as "85%", -1 without one; raises the run-time error at any other text.
double GradeNumber(std::string grade);

// Each puts the row lists of its mode into the order. An entry without a value stands at the end in both
// directions where a column has such entries: tasks and events without a type, a priority, a date or a
// recurrence, reminders without a class.
void SortHomeworkRows(SortOrder order);
void SortStudyRows(SortOrder order);
void SortTaskRows(SortOrder order);
void SortEventRows(SortOrder order);
void SortReminderRows(SortOrder order);

// Orders the event rows by their length, before the boxes of the day are placed.
void SortEventRowsByDuration(int direction);

// Orders the event rows and their boxes by EventBoxColumn, so that the boxes are painted from left to right.
void SortEventRowsByColumn();
