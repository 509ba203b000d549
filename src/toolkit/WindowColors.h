// The colours that the windows have in common. Each is 0xBBGGRR.
#pragma once

inline constexpr int BarColor = 0x5A4239;  // the mode bar's dark blue, which also marks today
inline constexpr int WordColor = 0xC0C0C0; // of the words on it
inline constexpr int ActiveWordColor = 0xFFFFFF;
inline constexpr int BarHoverColor = 0x705548;  // behind the entry of the bar under the pointer
inline constexpr int BarActiveColor = 0x82675A; // behind that of the active mode
inline constexpr int BarMarkColor = 0xF5C08C;   // the line under it
inline constexpr int SurfaceColor = 0xF9F6F4;
inline constexpr int PanelColor = 0xF3EDE9;
inline constexpr int EdgeColor = 0xD8CCC5;
inline constexpr int TextColor = 0x352822;
inline constexpr int FaintTextColor = 0xA3938A;
inline constexpr int ButtonColor = 0xFDFCFB;
inline constexpr int AccentColor = 0xB26F2F;
inline constexpr int AlertColor = 0x252F9C;
inline constexpr int AlertGroundColor = 0xE8EBFC;
inline constexpr int AlertEdgeColor = 0xACB3E4;
