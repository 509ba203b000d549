// Where a dialog stands when it opens for the first time in a run.
#pragma once

#include <QPoint>

class QWidget;

// Pixels from the top left corner of the window beside which it opens.
inline constexpr QPoint FirstOpenOffset{250, 50};

// Puts a dialog whose flag is true beside the corner of that window and clears the flag. Later it opens where
// the student has left it. To be called before the dialog is shown.
void PlaceAtFirstOpen(QWidget& dialog, bool& firstOpen, const QWidget& beside,
                      QPoint offset = FirstOpenOffset);
