// The filter menus, and the filters kept from mode to mode.
#pragma once

#include "mainwindow/state/Mode.h"

class frmMain;

void BindViewMenus(frmMain& window);

// The filters of all modes as they are at the start.
void InitViewMenus();

// Keeps the words chosen in the mode that is checked.
void SaveViewMenus(const frmMain& window);

// Offers the mode's items in the menus, with the words last chosen in it; nothing for a mode without filters.
void FillViewMenus(frmMain& window, Mode mode);
