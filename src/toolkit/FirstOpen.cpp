// Where a dialog stands when it opens for the first time in a run.
#include "toolkit/FirstOpen.h"

#include <QWidget>

void PlaceAtFirstOpen(QWidget& dialog, bool& firstOpen, const QWidget& beside, QPoint offset) {
    if (firstOpen) {
        dialog.move(beside.pos() + offset);
        firstOpen = false;
    }
}
