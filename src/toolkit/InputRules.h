// What mouse and keys must not do in any window: the second click of a double click does not fall on what the
// first one opened, Enter held down does not open or confirm, and the wheel does not turn a combo without the
// focus.
#pragma once

class QCoreApplication;

// Lets the rules hold for all windows of the application.
void InstallInputRules(QCoreApplication& application);

// Called as a dialog, a box or a menu is about to open. Where a press of the mouse opens it, further presses
// near that spot are dropped until they are too late for a double click.
void DropDoubleClick();
