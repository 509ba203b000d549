// What the reminder window asks of the main window.
#pragma once

class frmMain;

// Opens the item that the reminder window has chosen; nothing while it has chosen none.
void OpenFromReminders(frmMain& window);
