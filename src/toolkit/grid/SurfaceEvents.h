// What happens on a painted surface, handed to procedures of its owner for as long as the owner lives: the
// pointer as it passes, keys, the wheel.
#pragma once

#include "toolkit/PictureBox.h"

#include <functional>
#include <optional>
#include <vector>

// What a surface shows the pointer.
struct PointerAnswers {
    // What a click at the point, in units, opens; it is tinted.
    std::function<std::optional<UnitRect>(int x, int y)> openableAt;

    // The tip at the point in pixels; empty for none.
    std::function<QString(QPoint point)> tipAt;
};

// Shows the pointer what lies under it, until it leaves the surface or enters one of those that stand on it.
void FollowPointer(PictureBox* surface, const std::vector<QWidget*>& onIt, QWidget* owner,
                   PointerAnswers answers);

// Looks again at what lies under the pointer, since the surface shows something else.
void LookAgainUnderPointer(PictureBox& surface,
                           const std::function<std::optional<UnitRect>(int x, int y)>& openableAt);

// Brings the keys pressed on the surface to the procedure before the toolkit makes anything of them; it gives
// whether the key means anything.
void TakeKeys(PictureBox* surface, QWidget* owner,
              std::function<bool(int key, Qt::KeyboardModifiers modifiers)> take);

// Brings every turn of the wheel over the owner that nothing in it takes for itself, in eighths of a degree
// (120 a notch, positive away from the student).
void TakeWheel(QWidget* owner, std::function<void(int eighths)> take);
