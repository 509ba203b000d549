// The ordered shutdown.
#pragma once

class frmMain;

// Ends the process; nothing when it is ending already.
void Unload(frmMain& window);
