// The desktop's dialog that asks where a file is to be saved.
#pragma once

#include "platform/Formats.h"

#include <filesystem>
#include <optional>
#include <string>

struct SaveQuestion {
    std::string title;
    std::filesystem::path folder; // in which the dialog opens
    ScreenText name;              // that is proposed
    std::string filter;           // pairs of a text and its pattern: "HTML Files (*.html)|*.html|..."
    std::string ending;           // put behind a name that is typed without one: "html"

    friend bool operator==(const SaveQuestion&, const SaveQuestion&) = default;
};

// Lets the student choose, asking before a file would be replaced; nothing when cancelled. What was chosen is
// not remembered anywhere.
std::optional<std::filesystem::path> GetSaveFileName(const SaveQuestion& question);
