// The grades of the active term, shown.
#pragma once

class frmMain;

// Computes and shows them. Raises the run-time error where a score, a total or credits are no number; nothing
// is shown then.
void ShowGPA(frmMain& window);
