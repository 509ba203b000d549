// The row lists: what the list, the day schedule and the menus show, one entry a row. They point into the
// store by position, are rebuilt from nothing by each selection, and belong to Module1 like the store itself.
// Colours are 0xBBGGRR.
#pragma once

#include "core/TextList.h"
#include "platform/Clock.h"

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

// Counters of the selections.
extern int TaskCount, TaskDoneCount, TaskLeftCount, UndatedTaskLeftCount;
extern int EventClassCount, EventOtherCount, EventTotalCount;
extern int ReminderHomeworkCount, ReminderTaskCount, ReminderEventCount;
