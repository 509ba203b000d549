// The windows' boxes that show what the rules have worked out.
#pragma once

#include "planner/rows/BoxText.h"

class QLineEdit;

// Gives the box its text and its back colour.
void ShowBox(QLineEdit* box, const BoxText& shown);
