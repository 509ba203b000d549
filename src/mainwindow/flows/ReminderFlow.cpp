// What the reminder window asks of the main window.
#include "mainwindow/flows/ReminderFlow.h"

#include "core/Module1.h"
#include "mainwindow/flows/AssignmentFlow.h"
#include "mainwindow/flows/EventFlow.h"
#include "mainwindow/flows/TaskFlow.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/modes/Modes.h"
#include "planner/reminders/ReminderEngine.h"
#include "planner/reminders/ReminderItems.h"

void OpenFromReminders(frmMain& window) {
    if (!CalledFromReminders) {
        return;
    }
    CalledFromReminders = false;
    if (ReminderOpenMode == TaskMode) {
        ChooseMode(window, Mode::Tasks);
        EditTask(window, ReminderIndex);
    } else if (ReminderOpenMode == HomeworkMode) {
        ChooseMode(window, Mode::Homework);
        EditAssignment(window, ReminderIndex);
    } else if (ReminderOpenMode == EventMode) {
        window.ClickedDate = ReminderDayOf(ReminderIndex);
        window.SelectedDate = window.ClickedDate; // which the mode entry takes the clicked day from
        ShowEventMode(window);
        EditEvent(window, ReminderIndex);
    }
}
