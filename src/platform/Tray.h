// The icon in the system tray.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

// What the icon asks of the program. The menu is asked for each time it is about to show; a caption of "-" is
// a separator, and an empty menu shows nothing.
struct TrayEvents {
    std::function<void()> doubleClicked;
    std::function<std::vector<std::string>()> menuWanted;
    std::function<void(int)> itemChosen; // index into the captions given last
};

// Puts the icon into the tray with its tip. Where there is no tray nothing is shown and nothing fails.
void AddTrayIcon(std::string_view tip, TrayEvents events);

void RemoveTrayIcon();
