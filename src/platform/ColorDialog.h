// The desktop's dialog for choosing a colour. Colours are 0xBBGGRR.
#pragma once

#include <array>
#include <optional>

// The colours that the student has put together in the dialog.
using CustomColors = std::array<int, 16>;

inline constexpr CustomColors NoCustomColors = [] {
    CustomColors colors{};
    colors.fill(0xFFFFFF);
    return colors;
}();

// Lets the student choose, from that colour on; nothing when cancelled. The custom colours are offered and,
// also when cancelled, taken back.
std::optional<int> ChooseColor(int color, CustomColors& custom);
