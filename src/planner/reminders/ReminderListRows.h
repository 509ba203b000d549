// The rows of the reminder window: eight parallel lists of its own, one entry a row.
#pragma once

#include "core/TextList.h"
#include "planner/rows/ListFilter.h"

// A scan gives them in the order tasks, homework, events, each in the store's order.
struct ReminderListRows {
    TextList ReminderIds;   // id of the record
    TextList ReminderModes; // "Task", "Homework" or "Event"
    TextList ReminderNames;
    TextList ReminderTypes;
    TextList ReminderWhens;
    List<double> ReminderSortKeys; // days of a task or an assignment, minutes of an event
    NumberList ReminderForeColors; // 0xBBGGRR
    NumberList ReminderBackColors;
};

// Calls the action with each of the eight lists.
template <class Action>
void ForEachList(ReminderListRows& rows, Action action) {
    action(rows.ReminderIds);
    action(rows.ReminderModes);
    action(rows.ReminderNames);
    action(rows.ReminderTypes);
    action(rows.ReminderWhens);
    action(rows.ReminderSortKeys);
    action(rows.ReminderForeColors);
    action(rows.ReminderBackColors);
}

// What a row is about: a record by its kind and id. Both are empty for none.
struct ReminderItem {
    std::string mode;
    std::string id;
};

// The item of the row; that of row 0 is none.
ReminderItem ItemOfRow(const ReminderListRows& rows, int row);

// The row of the item; 0 where it does not stand.
int RowOfItem(const ReminderListRows& rows, const ReminderItem& item);

// The columns by their position in the window, where 0 is the row's number.
enum class ReminderListColumn : int { Mode = 1, Type, Name, Time };

// Sorts the eight lists together; rows that compare equal keep their order, and a column that the window does
// not have leaves all of them. Texts are compared without regard to case. The days of tasks and homework and
// the minutes of events are compared as plain numbers, so that an event in two hours sorts with a task in 120
// days, as is meant.
void SortReminderListRows(ReminderListRows& rows, SortOrder order);
