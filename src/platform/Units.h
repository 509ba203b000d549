// The units in which the painted views are laid out: 15 to the pixel.
#pragma once

inline constexpr int UnitsPerPixel = 15;

struct UnitRect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    friend bool operator==(const UnitRect&, const UnitRect&) = default;
};

// True when the point lies inside the rectangle; its right and its bottom edge are outside.
constexpr bool Holds(const UnitRect& rect, int x, int y) {
    return x >= rect.left && x < rect.left + rect.width && y >= rect.top && y < rect.top + rect.height;
}
