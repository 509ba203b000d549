// The colours and names of types and classes.
#pragma once

class frmMain;

// Lets the student change them. On OK the table of the types takes its rows over, which Prefs.ini gets at the
// shutdown, and the classes of the active term take theirs, which are written at once.
void ShowColors(frmMain& window);
