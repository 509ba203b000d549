// The items that say whether and how the planner starts with the desktop session.
#pragma once

#include <string>

class frmMain;

void BindAutoStart(frmMain& window);

// Checks the start item of the word: "Full", "Min", "Tray" or "No"; with any other word none.
void CheckAutoStartItem(const frmMain& window, const std::string& word);
