// The types of tasks and events as they are before the student changes them.
#pragma once

#include "core/TypeTable.h"

// The 27 rows with their default names and colours.
TypeTableLists DefaultTypes();
