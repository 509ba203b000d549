// Faults in Prefs.ini.
#pragma once

#include "check/faults/Finding.h"

#include <string_view>

// Adds the value at which the planner stops reading the bytes, and the colours of types that are none. The
// type table holds what was read.
void CheckPreferences(std::string_view bytes, Findings& findings);
