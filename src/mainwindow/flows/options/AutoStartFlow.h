// The choice whether and how the planner starts with the desktop session.
#pragma once

#include <string>

class frmMain;

// Starts with the session from now on as the word of StartModes says, or not at all.
void ChooseAutoStart(frmMain& window, const std::string& word);
