// The types of tasks and events between their editors and the store: the rows that a combo offers, the text
// that it shows for a stored type, and the type that is stored for a shown text.
#pragma once

#include "core/TypeTable.h"

#include <string>
#include <string_view>
#include <vector>

// The row that parts the classes from the types; choosing it chooses "None".
inline constexpr std::string_view SeparatorRow = "------------------------------";

// "None", then each task type in the table's order by its custom name or, where that is empty, its key.
std::vector<std::string> TaskTypeRows();

// "None", "Study Time", the active term's classes and the other event types, with a separator before each of
// these two.
std::vector<std::string> EventTypeRows();

// What the combo shows for a stored type: a type's custom name or key, and for a class meeting the name of
// its class, in whichever term. Empty for a type whose key or class has gone.
std::string ShownTaskType(std::string_view type);
std::string ShownEventType(std::string_view type);

// The type to store for a shown text: "None", or the key of the last type whose custom name or key it is. The
// name of one of the active term's classes goes before that. A text that matches nothing leaves the type as
// it was.
std::string ResolveTaskType(std::string_view shown, std::string_view type);
std::string ResolveEventType(std::string_view shown, std::string_view type);
