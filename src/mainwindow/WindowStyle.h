// The look of the windows: their colours and measures in one place.
#pragma once

#include <QColor>
#include <QSize>

class PictureBox;

inline constexpr QSize DesignSize{780, 575};
inline constexpr int LeftPanelWidth = 200; // pixels
inline constexpr int PanelMargin = 7;

inline constexpr QColor BarColor{0x39, 0x42, 0x5A};
inline constexpr int WordColor = 0xC0C0C0; // of the words on it, 0xBBGGRR
inline constexpr int ActiveWordColor = 0xFFFFFF;
inline constexpr QColor SurfaceColor{0xF4, 0xF6, 0xF9};
inline constexpr QColor PanelColor{0xE9, 0xED, 0xF3};
inline constexpr QColor EdgeColor{0xC5, 0xCC, 0xD8};
inline constexpr QColor TextColor{0x22, 0x28, 0x35};
inline constexpr QColor FaintTextColor{0x8A, 0x93, 0xA3};
inline constexpr QColor AccentColor{0x2F, 0x6F, 0xB2};
inline constexpr QColor AlertColor{0x9C, 0x2F, 0x25};
inline constexpr QColor AlertGroundColor{0xFC, 0xEB, 0xE8};
inline constexpr QColor AlertEdgeColor{0xE4, 0xB3, 0xAC};

// A picture of that size to press, and its name for those who do not see it.
PictureBox* PictureButton(int size, const char* name);

// Gives all windows of the program one style, one palette and one font, whatever the desktop's are.
void ApplyProgramStyle();
