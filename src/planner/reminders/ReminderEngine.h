// The reminder engine: which reminders stand on the list, which fire now, and what that changes in the store.
// There is no queue: a reminder is a few fields of its record, so it survives a restart by itself. The window
// owns the rows and the flags; it draws the rows, shows itself and writes the files that the flags name.
#pragma once

#include "planner/reminders/ReminderListRows.h"
#include "platform/Clock.h"

struct ReminderFlags {
    bool ReminderFirstTick = true;     // no row has been found since the start
    bool ReminderShowWindow = false;   // the window must come up and sound
    bool ReminderTasksChanged = false; // the file must be written
    bool ReminderHomeworkChanged = false;
    bool ReminderEventsChanged = false;
    int ReminderSelectedRow = 0; // 0 when none
};

// The day of the occurrence that the reminder of the event at the position is about: of a series its present
// one. Raises the run-time error where that text is no date.
Date ReminderDayOf(int position);

// Fills the rows anew. What is due fires: its fields in the store change, the flag of its file is set, the
// window is to come up and the selection is cleared. Deleted records and meetings of classes of other terms
// are passed over and stay as they are. Raises the run-time error at a bad text among those that a reminder's
// state lets it read: alarms of what is armed, dates, times and types of what stands.
void CheckReminders(Moment now, ReminderFlags& flags, ReminderListRows& rows);
