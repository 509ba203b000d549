// The painted grid as a table for screen readers.
#pragma once

#include "toolkit/PictureBox.h"

class frmMain;

// Lets the toolkit describe the grid of the window as a table. To be called as the grid is built.
void InstallGridAccessible(PictureBox& grid);

// Tell a screen reader, if there is one, that the grid shows something else, and where the keys stand.
void NotifyGridChanged(frmMain& window);
void NotifyGridMoved(frmMain& window);
