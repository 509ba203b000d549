// What is done about what a view says.
#pragma once

#include "mainwindow/state/ViewAction.h"

class frmMain;

void Act(frmMain& window, const ViewAction& action);
