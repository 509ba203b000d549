// The window itself, as commands open and hide it.
#pragma once

class frmMain;

// Shows the window, or brings it back from the task bar.
void OpenWindow(frmMain& window);

// Shows the window in front of all others and gives it the keyboard; a minimized one gets the size back that
// it had.
void ShowInFront(frmMain& window);

// The caption of the item says "Exit"; the program stays in the tray all the same, and the
// reminder window goes too.
void HideWindows(frmMain& window);
