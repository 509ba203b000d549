// What a row shows of its record: the name and the two colours of its class or type, and a text where the
// description is empty.
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

// The text, or the other one where it is empty.
std::string OrElse(const std::string& text, std::string_view other);

// A type, a priority or a recurrence as rows show it: nothing for "None".
std::string_view ShownChoice(std::string_view text);

// A clock length as rows show it: without its blanks.
std::string ShownClock(std::string_view clock);

// A type and a description, joined by " - " where there are both.
std::string TypeAndDescription(std::string_view type, std::string_view desc);

// The marks of a reminder and of a high priority in lists and menus.
inline constexpr std::string_view ReminderMark = "\xAE";
inline constexpr std::string_view PriorityMark = "!";

// What stands for an empty description.
inline constexpr std::string_view NewAssignmentText = "New Assignment";
inline constexpr std::string_view NewTaskText = "New Task";

// The same for an event of the type: "Class" for a class meeting, "Study Time" for study, else "New Event".
std::string_view NewEventText(std::string_view type);
