// What the views lead to: another day, another first day of the week, the editor of a row.
#pragma once

#include "platform/Clock.h"

#include <string>

class frmMain;

// Shows the date, in whatever mode.
void GoToDate(frmMain& window, Date date);

// Lets the weeks begin with the day of that full name.
void ChooseStartDayOfWeek(frmMain& window, const std::string& day);

// Shows the first day of the week that the options hold.
void ApplyStartDayOfWeek(frmMain& window);

// Open the editor on a row of the list, on an event row of the day, which was chosen in that half hour, or
// for a new event at a half hour. The keys go on from there.
void OpenRow(frmMain& window, int row);
void OpenEventBox(frmMain& window, int row, int halfHour);
void OpenHalfHour(frmMain& window, int halfHour);
