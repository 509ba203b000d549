// The status bar and its clock.
#pragma once

class frmMain;

void BindStatusBar(frmMain& window);
