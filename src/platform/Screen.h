// The screen, in pixels of its logical resolution.
#pragma once

struct ScreenSize {
    int width = 0;
    int height = 0;
};

struct WorkArea {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

// The size of the primary screen.
ScreenSize PrimaryScreenSize();

// The part of the primary screen that no task bar covers.
WorkArea PrimaryWorkArea();
