// The flow of a term and its classes, and the change of the active term.
#pragma once

#include <string>

class frmMain;

// Lets the student choose a term, or enter one with its classes, and makes it the active one.
void ClassSchedule(frmMain& window);

// Makes the term of that name the active one, reads its assignments and shows them.
void SetActiveTerm(frmMain& window, const std::string& name);
