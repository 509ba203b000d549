// The texts of a row, made once for the grid, the popup menus, the reminders and the orders of the lists.
#pragma once

#include <string>
#include <string_view>

// What the record at the position in the store is called: its description, or what stands for an empty one.
// Good until the store changes.
std::string_view AssignmentName(int position); // else "New Assignment"
std::string_view TaskName(int position);       // else "New Task"
std::string_view EventName(int position); // else "Class" for a meeting, "Study Time" for study or "New Event"

// The type's shown name and the description of an event, joined by " - " where there are both; "New Event"
// without either.
std::string EventTitle(std::string_view type, std::string_view desc);

// A type and a description, joined in the same way; nothing without either.
std::string TypeAndDescription(std::string_view type, std::string_view desc);

// The text, or the other one where it is empty.
std::string OrElse(std::string_view text, std::string_view other);

// A type, a priority or a recurrence as rows show it: nothing for "None".
std::string_view ShownChoice(std::string_view text);

// A clock length as rows show it: without its blanks.
std::string ShownClock(std::string_view clock);

// A time of day as rows show it: in the stored form, nothing for a text that is no time.
std::string ShownTime(std::string_view time);

// The marks of a reminder and of a high priority in lists and menus.
inline constexpr std::string_view ReminderMark = "\xAE";
inline constexpr std::string_view PriorityMark = "!";

// What an event with neither type nor description is called.
inline constexpr std::string_view NewEventText = "New Event";
