// The status bar: its surface, its left text and the timer of its clock.
#pragma once

#include <string>

class PictureBox;
class QTimer;

struct StatusBarState {
    PictureBox* picStatusBar = nullptr;
    QTimer* TimerStatusBar = nullptr;
    std::string ModeCaption; // the left text
};
