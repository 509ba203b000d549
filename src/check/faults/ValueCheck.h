// Values that a record cannot have: each is tried with the planner's own conversion.
#pragma once

#include "check/faults/DataFiles.h"

// Adds the values of the file's records that would raise the run-time error, with where in the planner they
// would.
void CheckValues(const ReadFile& read, Findings& findings);
