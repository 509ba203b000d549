// The planner that the pictures show: a term with its classes, homework, study sessions, tasks and events
// around Wednesday, 14 October 2009.
#pragma once

// The term as the drive holds it.
extern const char* const PictureTerm;

// Puts everything else into the store.
void FillPicturePlanner();
