// What the program says of itself. Version and addresses are set as the build is configured.
#pragma once

#include <string>
#include <string_view>

inline constexpr std::string_view ProgramTitle = "Planovarium Homework System";
inline constexpr std::string_view ProgramDescription =
    "A student's planner: homework, study time, classes, events, tasks, reminders and grades.";

// As "0.5.0".
std::string_view ProgramVersion();

// Addresses of its maker's pages.
std::string HomePage();
std::string ContactPage();

// Address of the homework help; empty where it is the page in the program folder.
std::string HomeworkHelpPage();
