// The main window on paper.
#pragma once

class frmMain;

// Lets the student choose the printer, and prints the window once for each copy as it stands on the screen:
// from under its menu bar to its status bar, in its proportions and at its size, or smaller where the page
// is.
void PrintScreen(frmMain& window);
