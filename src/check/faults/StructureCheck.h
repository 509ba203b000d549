// Faults in the form of a record file: tags that are missing, doubled, unknown or not closed, and what they
// cost.
#pragma once

#include "check/faults/DataFiles.h"

// Adds what is wrong with the file that was read.
void CheckStructure(const ReadFile& read, Findings& findings);
