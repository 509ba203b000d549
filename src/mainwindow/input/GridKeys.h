// What the keys of the grid mean.
#pragma once

#include "mainwindow/state/ViewAction.h"

class frmMain;

// Lets the grid ask for what its keys mean before the toolkit makes anything of them.
void InstallGridKeys(frmMain& window);

struct KeyMeaning {
    bool taken = false; // the key means something here, though it may ask for nothing
    ViewAction action{};
};

KeyMeaning MeaningOfKey(const frmMain& window, int key, Qt::KeyboardModifiers modifiers);

// Where on the grid, in pixels, a menu opens beside the row or the half hour on which the keys stand.
QPoint PointBesideKeys(const frmMain& window);
