// The marker of the running process: an empty file named for its number in the host's scratch folder.
#pragma once

// Deletes the markers that killed processes left: those whose number no process has. Failures are not
// reported.
void DeleteDeadMarkers();

// Makes the marker; raises the run-time error when it cannot.
void MakeProcessMarker();

// Makes one of the same kind for a process that the planner has started; none for the number 0. A failure is
// not reported.
void LeaveMarkerOf(long process);

// Deletes the marker where it exists; raises the run-time error when it cannot.
void DeleteProcessMarker();
