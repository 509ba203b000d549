// The load of the main window.
#pragma once

class frmMain;

// The ordered build of the window's data, without showing it. Gives false when the process has to end
// instead, because the data folder cannot be entered or a shutdown came in between.
bool LoadPlanner(frmMain& window);
