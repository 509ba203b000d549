// The mode entries.
#pragma once

#include "mainwindow/state/Mode.h"

class frmMain;

// Enters the mode unless its item is checked already.
void ChooseMode(frmMain& window, Mode mode);

// Enter the mode, also anew.
void ShowCalendarMode(frmMain& window);
void ShowHomeworkMode(frmMain& window);
void ShowStudySessionsMode(frmMain& window);
void ShowTaskMode(frmMain& window);
void ShowEventMode(frmMain& window);
void ShowReminderMode(frmMain& window);
