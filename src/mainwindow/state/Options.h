// The options, kept in Prefs.ini.
#pragma once

#include <string>

class QTimer;

struct Options {
    std::string StartDayOfWeek = "Monday"; // or "Sunday", "Saturday"; so until the preferences are read
    std::string AutoStart = "Tray";        // or "Full", "Min", "No"
    std::string tempShowTipsAtStartup = "Yes";
    int tempCurrentTip = 0;
    QTimer* TimerTip = nullptr;       // brings the tip of the day up
    bool PreferencesWereRead = false; // a shutdown before that leaves the file as it is
};
