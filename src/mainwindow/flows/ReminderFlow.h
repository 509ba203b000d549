// What the reminder window asks of the main window.
#pragma once

class frmMain;

// Shows the reminder window, by hand.
void ShowReminders(frmMain& window);

// Brings the main window forward for the item that the reminder window has chosen, which opens behind that.
void ComeForwardForReminder(frmMain& window);

// Opens the item that the reminder window has chosen, if its record is still there and nothing else is open;
// nothing while it has chosen none.
void OpenFromReminders(frmMain& window);
