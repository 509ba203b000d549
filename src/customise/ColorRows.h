// The types and classes with their names and colours, as the student changes them before they count.
#pragma once

#include "core/TextList.h"
#include "core/TypeTable.h"
#include "planner/rows/ListFilter.h"

#include <string_view>

// The category of a class among the types.
inline constexpr std::string_view ClassCategory = "Class";

// Five parallel lists in the order of the table, and the numbers of their rows in the order that is shown.
struct ColorRows {
    TextList tempColorsTypeArray;       // "Task", "Event" or "Class"
    TextList tempColorsNameArray;       // the type's fixed name, or the name of the class
    TextList tempColorsCustomNameArray; // empty for none
    NumberList tempColorsForeColorArray, tempColorsBackColorArray; // 0xBBGGRR
    NumberList ColorRowNumbers;
};

// The columns of the list by their position, where 0 is the row's number.
enum class ColorColumn : int { Type = 1, DefaultName, CustomName };

// The rows of the table in its order. A colour of a type that is none becomes the type's default.
ColorRows ColorRowsOf(const TypeTableLists& types);

// Orders the row numbers by the column; the rows themselves stay where they are.
void SortColorRows(ColorRows& rows, SortOrder order);

// Gives tasks and events their default colours and no custom names. Classes keep theirs.
void RestoreDefaultColors(ColorRows& rows);

// The table of the types with what the rows say, in the order of the table and without the classes.
TypeTableLists TypesOf(const ColorRows& rows);
