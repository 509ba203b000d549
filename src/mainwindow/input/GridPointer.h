// What the pointer is shown on the grid as it passes: the row, the box or the counter that a click opens, and
// in a tip what a mark means, a counter counts or a shortened text says in whole.
#pragma once

#include "platform/Units.h"

#include <QPoint>
#include <QString>

#include <optional>

class frmMain;

// To be called once the grid and what stands on it are there.
void InstallGridPointer(frmMain& window);

// Looks again at what lies under the pointer, since the grid shows something else.
void RefreshGridPointer(frmMain& window);

// The row of a list, the box of an event or the counter of a day at the point of the grid, in units, which a
// click there opens.
std::optional<UnitRect> OpenableAt(const frmMain& window, int x, int y);

// The tip at the point of the grid, in pixels; empty for none.
QString GridTip(frmMain& window, QPoint point);
