// The controls of the small calendar.
#pragma once

class frmMain;

void BindCalendar(frmMain& window);

// Shows the first day of the week over the small calendar and in the menu.
void ShowStartDayOfWeek(frmMain& window);
