// How the keys move the selected day.
#pragma once

#include "platform/Clock.h"
#include "toolkit/layout/GridMoves.h"

// The date after the move: by a day to the side, by a week up and down, by a month a page, Home and End to
// the ends of the month.
Date MovedDate(GridMove move, Date date);
