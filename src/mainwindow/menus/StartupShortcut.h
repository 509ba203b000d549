// The shortcut by which the desktop session starts the planner.
#pragma once

// Copies the program folder's shortcut anew into the user's startup folder. Errors are ignored.
void PutStartupShortcut();

// Takes it away from there. Errors are ignored.
void RemoveStartupShortcut();
