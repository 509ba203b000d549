// The window itself, as commands open and hide it.
#pragma once

class frmMain;

// Shows the window, or brings it back from the task bar.
void OpenWindow(frmMain& window);

// The caption of the item says "Exit"; the program stays in the tray all the same.
void HideWindows(frmMain& window);
