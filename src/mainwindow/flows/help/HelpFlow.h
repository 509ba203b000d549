// The help book, the homework help, the data folder and the window that tells what the program is. What
// cannot be opened shows nothing.
#pragma once

class frmMain;

// Opens the help book in what the desktop opens pages with, and leaves the marker of that process.
void OpenHelp(frmMain& window);

// Opens the page of the homework help: that of the web where the program knows one, else the drive's own.
void OpenHomeworkHelp(frmMain& window);

void OpenDataFolder(frmMain& window);
void ShowAbout(frmMain& window);
