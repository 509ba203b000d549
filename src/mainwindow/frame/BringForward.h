// The ways in which the main window appears.
#pragma once

#include <string>

class frmMain;

// The first appearance, by the command line and the start mode.
void ShowAtStart(frmMain& window, const std::string& commandLine);

// What a second instance asks for; refused while a modal dialog is open.
bool LinkExecute(frmMain& window);

void TrayDoubleClick(frmMain& window);
