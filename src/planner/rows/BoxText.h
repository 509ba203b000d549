// What one of the window's boxes shows.
#pragma once

#include <string>

struct BoxText {
    std::string text;
    int backcolor = 0xFFFFFF; // 0xBBGGRR

    friend bool operator==(const BoxText&, const BoxText&) = default;
};
