// The schedule of a day as it is painted.
#pragma once

#include <QString>

// What is painted of the text of an event row in a box of that width.
QString ShownEventText(int eventRow, int boxWidth);
