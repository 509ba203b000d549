// The alert buttons' captions, and what the window behind each of them says.
#pragma once

#include "planner/study/StudyTimeAlert.h"
#include "platform/Formats.h"

#include <array>
#include <string_view>

struct AlertTitle {
    std::string_view caption; // of the button
    std::string_view title;   // of its message's window
};

// By the index of the button. The last caption and its title differ, and are meant to.
inline constexpr std::array<AlertTitle, AlertCount> AlertTitles{{
    {"Study Time Alert", "Planovarium - Study Time Alert"},
    {"Homework Due Tomorrow", "Planovarium - Homework Due Tomorrow"},
    {"Homework Due Today", "Planovarium - Homework Due Today"},
    {"Late Assignment", "Planovarium - Late Homework"},
}};

struct AlertWindow {
    std::string_view title;
    ScreenText text; // lines ended by carriage return and line feed
};

// The window behind the button. The text of the study alert holds what the last alert that fired left in
// AlertWhen, AlertAmount and AlertBefore.
AlertWindow AlertMessage(Alert alert);
