// What the editors store of a reminder: its time, and the moments at which it fires.
#pragma once

#include "platform/Clock.h"

#include <string>
#include <string_view>

// A typed time in the stored form "09:00 AM", which is also that of a start time; "09:00 AM" for a text that
// is no time.
std::string ValidateTime(std::string_view text);

// The alarm of an assignment or a task, as a stored moment. Raises the run-time error where the text is no
// time.
std::string ItemReminderAlarm(Date date, std::string_view time);

// The reminder fields of an event as its editor stores them: armed anew, off the list.
struct EventReminderFields {
    std::string reminder_alarm;
    std::string reminder_list;
    std::string reminder_currentday;
    std::string reminder_nextday;
    std::string reminder_nextalarm;
};

// Of an event on the date, or of a series that begins there. Raises the run-time error where the time is none
// or the lead time has no number.
EventReminderFields SetEventReminder(Date date, std::string_view time, std::string_view leadTime);

// The moment as it is; raises the run-time error where it falls outside the years that a stored
// date can have.
Moment RequireStorable(Moment moment);
