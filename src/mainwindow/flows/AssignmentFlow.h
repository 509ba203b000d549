// The flows of an assignment: asked for, entered, written.
#pragma once

class frmMain;

// Asks for a term or its classes where there are none, and adds no assignment then.
void NewAssignment(frmMain& window);

// Edits or deletes the assignment at the position.
void EditAssignment(frmMain& window, int position);
