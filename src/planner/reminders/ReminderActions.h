// What the buttons of the reminder window change in the store and in the rows. The files to be written are
// named by the flags, as after a scan.
#pragma once

#include "planner/reminders/ReminderEngine.h"

#include <string_view>

// Snoozes the record of a row: armed for the interval from now, off the list. The interval is a text of the
// window's combo, as "1.5 Hours". Raises the run-time error where it holds none.
void SnoozeReminder(std::string_view mode, std::string_view id, std::string_view interval, Moment now,
                    ReminderFlags& flags);

// Takes the record of a row off the list; a series follows its next occurrence.
void RemoveReminder(std::string_view mode, std::string_view id, ReminderFlags& flags);

// The same for the records of all rows; those that have gone are passed over.
void RemoveAllReminders(const ReminderListRows& rows, ReminderFlags& flags);

// Empties the lists, and selects none.
void EmptyReminderRows(ReminderListRows& rows, ReminderFlags& flags);

// Position of the record with that id among those of the mode; 0 when it has gone, and then the two above
// change nothing.
int ReminderPosition(std::string_view mode, std::string_view id);

// Takes a row out of the lists, and the selection back into them.
void TakeOutReminderRow(ReminderListRows& rows, int row, ReminderFlags& flags);

// Takes out the rows of homework and of class meetings: their ids are those of one term, which is left. The
// selection stays on its item, and goes with it.
void TakeOutTermRows(ReminderListRows& rows, ReminderFlags& flags);
