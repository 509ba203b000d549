// What the pictures show of the planner's one term: its classes, homework, study sessions, tasks and events
// around Wednesday, 14 October 2009.
#pragma once

// Puts it into the store, in which the term stands.
void FillPicturePlanner();
