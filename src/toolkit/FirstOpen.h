// Where a dialog stands when it opens for the first time in a run.
#pragma once

class QWidget;

inline constexpr int FirstOpenRight = 250; // pixels from the left edge of the window beside which it opens
inline constexpr int FirstOpenBelow = 50;  // pixels from its top edge

// Puts a dialog whose flag is true beside the corner of that window and clears the flag. Later it opens where
// the student has left it. To be called before the dialog is shown.
void PlaceAtFirstOpen(QWidget& dialog, bool& firstOpen, const QWidget& beside, int below = FirstOpenBelow);
