// Where a dialog stands when it opens for the first time in a run.
#include "mainwindow/flows/FirstOpen.h"

#include "mainwindow/frmMain.h"

void PlaceAtFirstOpen(QWidget& dialog, bool& firstOpen, int below) {
    if (firstOpen) {
        dialog.move(MainWindow->pos() + QPoint(FirstOpenRight, below));
        firstOpen = false;
    }
}
