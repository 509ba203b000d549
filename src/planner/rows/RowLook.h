// What a row shows of its record's class or type: the name and the two colours.
#pragma once

#include "planner/rows/Colors.h"

#include <string>
#include <string_view>
#include <unordered_map>

// Without a class or a type: an empty name, black on white.
struct RowLook {
    std::string name;
    int forecolor = ColorBlack; // 0xBBGGRR
    int backcolor = ColorWhite;
};

// The positions in Store.ClassRecord of the classes of all terms by their ids, deleted ones left out. Of two
// classes with one id the first counts.
using ClassPositions = std::unordered_map<int, int>;

ClassPositions ClassPositionsById();

// The position of the class whose id is the one in the text; 0 when there is none.
int ClassPositionOf(const ClassPositions& classes, std::string_view id);

// The name and colours of the class at the position; of none when the position is 0.
RowLook ClassLook(int position);

// The shown name and the colours of a task's type. "None" keeps its name, black on white; an unknown type has
// no name.
RowLook TaskTypeLook(std::string_view type);

// The shown name and the colours of an event's type, and for a class meeting those of its class, in whichever
// term. A type that is not in the table, "None" among them, has no name.
RowLook EventTypeLook(std::string_view type);
