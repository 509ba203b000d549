// The modes of the main window, and the reasons for which it is refreshed.
#pragma once

#include <string_view>

// In the order in which whoever needs the mode tests the checked menu items; the first that is checked
// counts.
enum class Mode { Homework, Calendar, StudySessions, Tasks, Events, Reminders, None };

inline constexpr int ModeCount = 6;

// The words that callers set as RefreshReason before they call RefreshView.
inline constexpr std::string_view ReasonNone = "None";
inline constexpr std::string_view ReasonModeChange = "Mode Change";
inline constexpr std::string_view ReasonViewChange = "ViewChange";
inline constexpr std::string_view ReasonCalendar = "Calendar";
inline constexpr std::string_view ReasonStartDayOfWeek = "StartDayofWeek";
inline constexpr std::string_view ReasonNewRecord = "NewRecord";
inline constexpr std::string_view ReasonNewTerm = "NewTerm";
inline constexpr std::string_view ReasonColorChange = "ColorChange";
inline constexpr std::string_view ReasonResize = "Resize";
