// Is there enough study time? The minutes of unfinished homework against the minutes of scheduled study, day
// by day from today on, and the four alert buttons that tell of it.
#pragma once

#include "core/TextList.h"
#include "platform/Clock.h"
#include "platform/Formats.h"

#include <array>
#include <string>
#include <string_view>

// The buttons by their index; any of them can stand beside any other.
enum Alert { StudyTimeAlert, HomeworkDueTomorrow, HomeworkDueToday, LateAssignment, AlertCount };

using AlertsShown = std::array<bool, AlertCount>;

// Rebuilt by each check, position 1 being today: the dates up to the last due date, the minutes of unfinished
// homework due on each, and the minutes of study scheduled on each.
extern List<Date> AlertDays;
extern NumberList AlertNeed, AlertStudy;

// The parts of the study alert's message. They are rewritten only when that alert fires.
extern ScreenText AlertWhen;
extern std::string AlertAmount, AlertBefore;

// Rebuilds the lists, composes the message where study time is short, and gives the buttons to show. Deleted
// assignments count as they stand, and an assignment needs its `time_left`, where StudyTimeToday takes
// `est_time`; both are meant. More than 32767 minutes on one day, or a bad text, raise the run-time error.
AlertsShown StudyTimeAlertCheck();

// Adds the scheduled study to AlertStudy, for each date of AlertDays, which begins with the day of the
// present moment and is not empty. A session of today that is over ends the count at once, with what was
// added by then: the sessions behind it in the store and those of all later days are left out. That is meant.
void StudyTimeByDay(Moment now);
