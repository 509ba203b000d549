// The rows that the editors' combo boxes offer; each takes other texts too, as its rule allows.
#pragma once

#include <array>
#include <string>
#include <string_view>

inline constexpr std::array<std::string_view, 7> AssignmentTypeRows{
    "Assignment", "Test", "Quiz", "Reading", "Study", "Report", "Project"};

inline constexpr std::array<std::string_view, 4> PriorityRows{"None", "Low", "Medium", "High"};

inline constexpr std::array<std::string_view, 5> PercentRows{"0%", "25%", "50%", "75%", "100%"};

inline constexpr std::array<std::string_view, 15> DurationRows{
    "0 Minutes", "15 Minutes", "30 Minutes", "45 Minutes", "1 Hour",  "1.5 Hours", "2 Hours", "2.5 Hours",
    "3 Hours",   "3.5 Hours",  "4 Hours",    "5 Hours",    "6 Hours", "7 Hours",   "8 Hours"};

// The lead time of an event's reminder: no 45 minutes, and more at the long end than a duration.
inline constexpr std::array<std::string_view, 20> LeadTimeRows{
    "0 Minutes", "15 Minutes", "30 Minutes", "1 Hour",  "1.5 Hours", "2 Hours", "2.5 Hours",
    "3 Hours",   "3.5 Hours",  "4 Hours",    "5 Hours", "6 Hours",   "7 Hours", "8 Hours",
    "9 Hours",   "12 Hours",   "18 Hours",   "1 Day",   "2 Days",    "3 Days"};

inline constexpr std::array<std::string_view, 20> SnoozeRows{
    "5 Minutes", "15 Minutes", "30 Minutes", "1 Hour",  "1.5 Hours", "2 Hours", "2.5 Hours",
    "3 Hours",   "3.5 Hours",  "4 Hours",    "5 Hours", "6 Hours",   "7 Hours", "8 Hours",
    "9 Hours",   "12 Hours",   "18 Hours",   "1 Day",   "2 Days",    "3 Days"};

// "00 : 15" to "04 : 45" by quarters of an hour, then whole hours to "20 : 00".
std::array<std::string, 27> EstimateRows();

// "12:00 AM" to "11:45 PM" by quarters of an hour; "9:00 AM" is row 36, counted from 0.
std::array<std::string, 96> TimeOfDayRows();
