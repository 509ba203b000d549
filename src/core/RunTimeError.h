// The general run-time error: a position outside a list, a text that does not convert, a 16-bit overflow.
// The file procedures catch it and show their fixed messages; anywhere else it ends the program.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

struct RunTimeError : std::runtime_error {
    // The text tells the value at fault where there is one.
    explicit RunTimeError(std::string_view text, std::string_view offendingValue = {})
        : std::runtime_error(offendingValue.empty()
                                 ? std::string(text)
                                 : std::string(text) + ": \"" + std::string(offendingValue) + "\""),
          place(offendingValue.data()) {}

    // Where the value at fault stood. The text there may be gone by now: this is only good for finding out
    // whether it is one of those that still stand.
    const char* place;
};
