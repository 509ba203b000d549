// The commands of the menu bar, the mode bar and the buttons.
#pragma once

class frmMain;

void BindCommands(frmMain& window);
