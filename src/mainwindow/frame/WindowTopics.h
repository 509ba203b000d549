// The help topics of what stands around the view of the main window, and of its alerts.
#pragma once

class frmMain;

void SetWindowTopics(const frmMain& window);
