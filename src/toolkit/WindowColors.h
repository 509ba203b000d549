// The colours of the screen but those that tell what is done and what is not. Each is 0xBBGGRR.
#pragma once

inline constexpr int InkColor = 0x000000;
inline constexpr int PaperColor = 0xFFFFFF;

// --- What the windows have in common ---
inline constexpr int SurfaceColor = 0xF9F6F4;
inline constexpr int PanelColor = 0xF3EDE9;
inline constexpr int EdgeColor = 0xD8CCC5;
inline constexpr int TextColor = 0x352822;
inline constexpr int FaintTextColor = 0xA3938A;
inline constexpr int ButtonColor = 0xFDFCFB;
inline constexpr int AccentColor = 0xB26F2F;
inline constexpr int CurrentColor = AccentColor; // the frame of what the keys stand on
inline constexpr int UnusedTextColor = 0x808080; // of a value that does not count
inline constexpr int MarkedDayColor = 0x0000C0;  // the number of the chosen day in a small calendar

// --- The mode bar and the splash ---
inline constexpr int BarColor = 0x5A4239;  // dark blue, which also marks today
inline constexpr int WordColor = 0xC0C0C0; // of the words on it
inline constexpr int ActiveWordColor = 0xFFFFFF;
inline constexpr int BarHoverColor = 0x705548;  // behind the entry of the bar under the pointer
inline constexpr int BarActiveColor = 0x82675A; // behind that of the active mode
inline constexpr int BarMarkColor = 0xF5C08C;   // the line under it
inline constexpr int SplashNameColor = 0xFFFFFF;
inline constexpr int SplashTitleColor = 0xE4D2C6;

// --- The panels ---
inline constexpr int AlertColor = 0x252F9C;
inline constexpr int AlertGroundColor = 0xE8EBFC;
inline constexpr int AlertEdgeColor = 0xACB3E4;
inline constexpr int RestingTimeColor = 0xA0A0A0; // of the study timer while it does not run
inline constexpr int DarkEdgeColor = 0xA0A0A0;    // of the status bar
inline constexpr int LightEdgeColor = 0xFFFFFF;

// --- The views ---
inline constexpr int EdgeLineColor = 0x808080; // around the data of a view
inline constexpr int ListLineColor = 0xE0E0E0;
inline constexpr int HeadGroundColor = 0xDCF5F5; // of the weekdays over the month
inline constexpr int HeadTextColor = 0x5C5C5C;
inline constexpr int OutOfMonthColor = 0xF5F5F5;
inline constexpr int HourLabelColor = 0x808080;
inline constexpr int HourLineColor = 0xC6C6C6;
inline constexpr int ThinLineColor = 0xECECEC; // on the half hour
inline constexpr int NightColor = 0xF2F2F2;

// --- The editors ---
inline constexpr int NotDoneStripColor = 0x2D52A0;
inline constexpr int DoneStripColor = 0x008000;
inline constexpr int StripOffColor = 0xC0C0C0; // of a strip whose box is not ticked
inline constexpr int WorkLeftColor = 0xE1E4FF;
inline constexpr int FinishedColor = 0xF0FFF0;
inline constexpr int SingleEventColor = 0xF0E8E2;
inline constexpr int SeriesColor = 0xDCF5F5;
