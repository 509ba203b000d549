// The 27 types of tasks and events with their custom names and colours.
#pragma once

#include "core/TextList.h"

#include <string_view>

inline constexpr int TypeRows = 27;

// The type of a task or an event that has none.
inline constexpr std::string_view NoType = "None";

// The type of an event that is scheduled study.
inline constexpr std::string_view StudyTimeType = "Study Time";

// Five parallel lists. A colour is a decimal 0xBBGGRR as text; an empty custom name means that the key is
// shown.
struct TypeTableLists {
    TextList category, key, customname, forecolor, backcolor;
};

// Gives the table its 27 rows: first the task types, then the event types.
void SetDefaultTypeTable();

// The position of the first row with the category and key; 0 when there is none.
int TypeRow(std::string_view category, std::string_view key);

// What the row is shown as: its custom name or, where that is empty, its key.
const std::string& TypeDisplayName(int row);
