// The name of a case of a table, made of the words that tell it from the others.
#pragma once

#include <algorithm>
#include <string>

// The text with an underscore for whatever the name of a test cannot hold.
inline std::string CaseName(std::string text) {
    std::ranges::replace_if(
        text,
        [](char c) { return !((c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z')); },
        '_');
    return text;
}
