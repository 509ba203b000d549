// The row lists: what the list, the day schedule and the menus show, one entry a row. They point into the
// store by position, are rebuilt from nothing by each selection, and belong to Module1 like the store itself.
// Colours are 0xBBGGRR.
#pragma once

#include "core/TextList.h"
#include "platform/Clock.h"

#include <tuple>

// Homework and Study Sessions.
extern NumberList HomeworkRows; // position of the assignment
extern TextList RowClass;       // name of its class
extern NumberList RowForeColor, RowBackColor;
extern TextList RowTimeLeft;                  // left-over time as "HH:MM"
extern NumberList StudyRowTime, StudyRowDate; // position in the log of study sessions

// Tasks.
extern NumberList TaskRows; // position of the task
extern NumberList TaskRowForeColor, TaskRowBackColor;
extern TextList TaskRowType; // what its type is shown as

// Events. The boxes of the day schedule are in units of 15 to the pixel.
extern NumberList EventRows;    // position of the event
extern List<Date> EventRowDate; // date of this occurrence
extern NumberList EventRowForeColor, EventRowBackColor;
extern TextList EventRowType;
extern NumberList EventBoxLeft, EventBoxTop, EventBoxWidth, EventBoxHeight, EventBoxColumn;

// Reminders.
extern NumberList ReminderRows; // position in the source's lists
extern TextList ReminderRowKind, ReminderRowClass, ReminderRowType,
    ReminderRowText;               // kind: "Homework", "Task", "Event"
extern NumberList ReminderRowDays; // whole days to the item
extern List<Date> ReminderRowDate;
extern NumberList ReminderRowForeColor, ReminderRowBackColor;

// --- The lists of each kind of rows --------------------------------------------------------------

// All lists of a kind have one entry for each of its rows; what goes over them all walks its table.
inline constexpr auto HomeworkRowLists =
    std::tie(HomeworkRows, RowClass, RowForeColor, RowBackColor, RowTimeLeft);
inline constexpr auto StudyRowLists =
    std::tie(StudyRowTime, StudyRowDate, HomeworkRows, RowClass, RowForeColor, RowBackColor);
inline constexpr auto TaskRowLists = std::tie(TaskRows, TaskRowType, TaskRowForeColor, TaskRowBackColor);
inline constexpr auto EventRowLists =
    std::tie(EventRows, EventRowDate, EventRowForeColor, EventRowBackColor, EventRowType);
inline constexpr auto EventBoxLists = // empty until the boxes of a day are placed
    std::tie(EventBoxLeft, EventBoxTop, EventBoxWidth, EventBoxHeight, EventBoxColumn);
inline constexpr auto ReminderRowLists =
    std::tie(ReminderRows, ReminderRowKind, ReminderRowClass, ReminderRowType, ReminderRowText,
             ReminderRowDays, ReminderRowDate, ReminderRowForeColor, ReminderRowBackColor);

// Calls the action with each of the lists.
template <class... Lists, class Action>
void ForEachList(const std::tuple<Lists&...>& table, Action action) {
    std::apply([&action](Lists&... lists) { (action(lists), ...); }, table);
}

template <class... Lists>
void ClearLists(const std::tuple<Lists&...>& table) {
    ForEachList(table, [](auto& list) { list.Clear(); });
}

// --- Counters ------------------------------------------------------------------------------------

// Counters of the selections.
extern int TaskCount, TaskDoneCount, TaskLeftCount, UndatedTaskLeftCount;
extern int EventClassCount, EventOtherCount, EventTotalCount;
extern int ReminderHomeworkCount, ReminderTaskCount, ReminderEventCount;
