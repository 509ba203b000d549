// The look of the windows: one style, one palette and one font, so that they look the same on every desktop.
#include "mainwindow/WindowStyle.h"

#include "platform/PictureBox.h"
#include "platform/ProgramStyle.h"

#include <QApplication>

namespace {

constexpr double WindowPoints = 9;

} // namespace

PictureBox* PictureButton(int size, const char* name) {
    auto* box = new PictureBox;
    box->setFixedSize(size, size);
    box->setAccessibleName(QLatin1String(name));
    return box;
}

void ApplyProgramStyle() {
    QApplication::setStyle(NewProgramStyle());
    QApplication::setPalette(ProgramPalette());
    QApplication::setFont(ToQFont({Face::List, WindowPoints, false}));
}
