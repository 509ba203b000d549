// The dialogs that are only read: what an alert button says, and the grades.
#pragma once

#include <cstddef>

class frmMain;

// What the alert button at the index says, in their order from 0.
void ShowAlertMessage(frmMain& window, std::size_t index);

// Computes and shows the grades of the active term. Raises the run-time error where a score, a total or
// credits are no number; nothing is shown then.
void ShowGPA(frmMain& window);
