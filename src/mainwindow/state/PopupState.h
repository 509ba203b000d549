// The popup menus: the one of the window, and the items of it and of the tray's.
#pragma once

#include "mainwindow/state/PopupItem.h"

#include <QPoint>

class QMenu;

struct PopupState {
    QMenu* mnuPopup = nullptr;
    QPoint PopupPoint; // where on the screen the next popup menu opens
    PopupItems mnuPopupItems;
    PopupItems TrayItems; // apart from those of the windows' menus, which come and go meanwhile
};
