// Prefs.ini and the main window.
#pragma once

#include <string>

class frmMain;

// Takes the options over and puts the window where it was left. Gives the name of the term to activate.
std::string ReadPreferences(frmMain& window);

// Hands the options and the window's place back to the file.
void WritePreferences(const frmMain& window);
