// What the keys of the grid mean.
#pragma once

#include "mainwindow/state/ViewAction.h"

class frmMain;

struct KeyMeaning {
    bool taken = false; // the key means something here, though it may ask for nothing
    ViewAction action{};
};

// What the key means in every view, and in the month and the schedule of a day; the lists have keys of their
// own.
KeyMeaning MeaningOfKey(const frmMain& window, int key, Qt::KeyboardModifiers modifiers);

// Asks for what the key means, also in the lists. Gives whether it means anything.
bool PressGridKey(frmMain& window, int key, Qt::KeyboardModifiers modifiers);

// Where on the grid, in pixels, a menu opens beside the half hour on which the keys stand.
QPoint PointBesideKeys(const frmMain& window);
