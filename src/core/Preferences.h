// Prefs.ini: where the main window stands, the active term, a few options, and the custom names and colours
// of the type table. This is the file alone; who reads it places the window and sets the menus by what it
// gives.
#pragma once

#include "platform/Screen.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

// The days with which a week can begin, and the ways in which the planner starts with the desktop session.
inline constexpr std::array<std::string_view, 3> StartDays{"Sunday", "Monday", "Saturday"};
inline constexpr std::array<std::string_view, 4> StartModes{"Full", "Min", "Tray", "No"};

enum class WindowState { Normal = 0, Minimized = 1, Maximized = 2 };

// Named as the keys of the file. What is set here are the values that stand when the file or a key is
// missing.
struct PreferenceValues {
    // When read, only normal or maximized; minimized is written and comes back as normal.
    WindowState FormMainState = WindowState::Normal;

    // In pixels. None leaves that side of the window where the design puts it, and is written as 0. A place
    // or size belongs to the window's normal state, also where the file says that it is maximized.
    std::optional<int> FormMainLocationX{}, FormMainLocationY{}, FormMainSizeX{}, FormMainSizeY{};

    std::string ActiveTerm{};
    std::string StartDayofWeek = "Sunday"; // one of StartDays
    std::string ShowTipsAtStartup = "Yes"; // or "No"
    std::string AutoStart = "Tray";        // one of StartModes
    bool AutoStartChecked = true; // false after a bad value: then no item of the start menu is checked
    int CurrentTip = 0;
};

inline constexpr const char* PreferencesFileName = "Prefs.ini";

// Takes over what the line of the file says, of the options into the values and of the types into TypeTable;
// raises the run-time error where a value does not convert.
void ReadPreferencesLine(PreferenceValues& values, ScreenSize screen, std::string_view line);

// Reads Prefs.ini of the data folder line by line, giving the options and changing TypeTable in place. A
// place or size counts when it lies above 0 and below the screen's size in its direction. A value that does
// not convert, or a place above 2184 pixels that counts, ends the read at its line without a message; what
// was read before stays.
PreferenceValues ReadPreferencesFile(ScreenSize screen);

// Writes Prefs.ini whole, from the values and TypeTable, into the data folder. The places and sizes of a
// window that is not in its normal state, and those at which a later read would end, are written as 0. Raises
// the run-time error when the file cannot be written.
void WritePreferencesFile(const PreferenceValues& values);
