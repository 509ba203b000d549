// An item of a context menu or of the tray menu.
#pragma once

#include <string>
#include <vector>

// A caption and the two words of the command, subject and verb; both in the characters of the store. A
// caption of "-" is a separator and has no command.
struct PopupItem {
    std::string caption;
    std::string tag;

    friend bool operator==(const PopupItem&, const PopupItem&) = default;
};

using PopupItems = std::vector<PopupItem>;
