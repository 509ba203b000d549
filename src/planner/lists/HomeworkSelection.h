// The rows of the Homework and the Study Sessions lists.
#pragma once

#include "planner/rows/BoxText.h"
#include "planner/rows/ListFilter.h"
#include "platform/Clock.h"

// Counted before the filter takes effect.
struct HomeworkCounts {
    int total = 0;
    int left = 0; // not done
};

// Fills HomeworkRows, RowClass, RowForeColor, RowBackColor and RowTimeLeft with the assignments due on the
// day, or with all of them when it is AllDates, deleted ones left out. ComboList "Done" leaves out those not
// done, "Not Done" those done. A bad text raises the run-time error.
HomeworkCounts HomeworkDayList(Date day, const ListFilter& filter);

// HomeworkDayList for the range in ComboDateRange: "Day" is the clicked day, any other word the whole term.
HomeworkCounts SelectHomeworkRows(const ListFilter& filter);

struct StudySessionBoxes {
    BoxText TextBoxStudySessions; // number of sessions
    BoxText TextboxStudyTime;     // their length
};

// Fills StudyRowTime, StudyRowDate, HomeworkRows, RowClass, RowForeColor and RowBackColor with the log of
// study sessions: those of the day, or all when it is AllDates, as long as their assignment is there.
StudySessionBoxes StudySessionDayList(Date day);

// StudySessionDayList for the range in ComboDateRange, as above.
StudySessionBoxes SelectStudyRows(const ListFilter& filter);
