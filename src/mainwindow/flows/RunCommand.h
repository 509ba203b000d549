// The commands of menus, popup items, buttons and keys, and what runs them.
#pragma once

#include "mainwindow/state/Command.h"

#include <string>

class frmMain;

void RunCommand(frmMain& window, Command command);

// Runs the command of a popup item, which its two words name: those of a command, or the subject and the
// number of a row of the day. Other words do nothing.
void RunPopupItem(frmMain& window, const std::string& words);
