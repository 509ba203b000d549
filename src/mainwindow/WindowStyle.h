// The look of the windows: their measures, and the style that all of them have.
#pragma once

#include <QSize>

class PictureBox;

inline constexpr QSize DesignSize{780, 575};
inline constexpr int LeftPanelWidth = 200; // pixels
inline constexpr int PanelMargin = 7;

// A picture of that size to press, and its name for those who do not see it.
PictureBox* PictureButton(int size, const char* name);

// Gives all windows of the program one style, one palette and one font, whatever the desktop's are.
void ApplyProgramStyle();
