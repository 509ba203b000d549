// The exports: a list or a month becomes a page where the student chooses, and the browser shows it. Each
// ends in a refresh, also when cancelled. A page that cannot be written or a template that is missing raises
// the run-time error.
#pragma once

class frmMain;

// The rows that stand in the list, in their order.
void ExportHomeworkList(frmMain& window);
void ExportStudyList(frmMain& window);
void ExportTaskList(frmMain& window);
void ExportReminderList(frmMain& window);
void ExportEventList(frmMain& window);

// The month that the calendar shows, whatever is in the list.
void ExportHomeworkCalendar(frmMain& window);
void ExportTaskCalendar(frmMain& window);
void ExportEventCalendar(frmMain& window);

// The list and the calendar of the present mode; none in Calendar mode.
void ExportListOfMode(frmMain& window);
void ExportCalendarOfMode(frmMain& window);
