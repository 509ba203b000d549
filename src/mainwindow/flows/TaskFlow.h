// The flows of a task: asked for, entered, written.
#pragma once

class frmMain;

void NewTask(frmMain& window);

// Edits or deletes the task at the position.
void EditTask(frmMain& window, int position);
