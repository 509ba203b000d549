// What records say of each other: ids that stand twice, and links to records that are not there.
#pragma once

#include "check/faults/DataFiles.h"

// Adds the ids of the file that several of its records have, and those that are no whole number.
void CheckIds(const ReadFile& read, Findings& findings);

// Adds the classes without their term. The terms are in the store.
void CheckClassLinks(const ReadFile& classes, Findings& findings);

// Adds the assignments of the active term without their class, and the file itself where its term is not
// there. The terms and classes are in the store.
void CheckAssignmentLinks(const ReadFile& assignments, Findings& findings);

// Adds the exception children without their series, and the reminders of meetings whose class is not there.
// The terms and classes are in the store.
void CheckEventLinks(const ReadFile& events, Findings& findings);
