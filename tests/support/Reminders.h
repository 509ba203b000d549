// Reminders for the tests: records armed as their editors arm them, and a reminder window without a window.
#pragma once

#include "planner/reminders/ReminderActions.h"
#include "planner/reminders/ReminderEngine.h"
#include "support/EventRecords.h"
#include "support/StoreRecords.h"

#include <string>

// A task and an assignment with a reminder at that time of that day, as "2009/10/14" and "09:00 AM".
TaskTexts ArmedTask(TaskTexts task, const std::string& date, const std::string& time);
AssignmentTexts ArmedAssignment(AssignmentTexts assignment, const std::string& date, const std::string& time);

// Arms the event at the position by its own date, time and lead time.
void ArmEvent(int index);

// Appends the event, armed, and gives its position.
int AddArmedEvent(const EventTexts& event);

struct ReminderWindow {
    ReminderFlags flags;
    ReminderListRows rows;

    // One tick at the clock's time, with the files not yet written and the window not yet shown.
    void Tick();

    // The same with everything done that the flags ask for, so that the next tick tells what it adds.
    void QuietTick();

    // The rows as "mode id", in the order of the list.
    std::vector<std::string> Standing() const;
};
