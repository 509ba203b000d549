// The flows of an event: asked for, entered, written.
#pragma once

#include "platform/Clock.h"

class frmMain;

// For a new event on the clicked day, at the half hour clicked last.
void NewEvent(frmMain& window);

// The same at nine o'clock, where no time was clicked.
void NewMorningEvent(frmMain& window);

// Edits or deletes the event at the position; of a series the occurrence on the day, or the whole.
void EditEvent(frmMain& window, int position, Date day);

// The same on the clicked day.
void EditEvent(frmMain& window, int position);
