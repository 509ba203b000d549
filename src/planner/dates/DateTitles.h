// The titles under which a month and a day are shown.
#pragma once

#include "platform/Clock.h"
#include "platform/Formats.h"

// "October 2009".
ScreenText MonthTitle(Date date);

// "Wednesday, Oct 14".
ScreenText DayTitle(Date date);
