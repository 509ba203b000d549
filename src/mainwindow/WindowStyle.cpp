// The look of the windows: one style, one palette and one font, so that they look the same on every desktop.
#include "mainwindow/WindowStyle.h"

#include "platform/PictureBox.h"

#include <QApplication>

namespace {

constexpr double WindowPoints = 9;
constexpr QColor ButtonColor{0xFB, 0xFC, 0xFD};

QPalette ProgramPalette() {
    QPalette colors(ButtonColor, SurfaceColor);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        colors.setColor(role, TextColor);
        colors.setColor(QPalette::Disabled, role, FaintTextColor);
    }
    colors.setColor(QPalette::Base, Qt::white);
    colors.setColor(QPalette::AlternateBase, PanelColor);
    colors.setColor(QPalette::ToolTipBase, Qt::white);
    colors.setColor(QPalette::Highlight, AccentColor);
    colors.setColor(QPalette::HighlightedText, Qt::white);
    colors.setColor(QPalette::Link, AccentColor);
    return colors;
}

} // namespace

PictureBox* PictureButton(int size, const char* name) {
    auto* box = new PictureBox;
    box->setFixedSize(size, size);
    box->setAccessibleName(QLatin1String(name));
    return box;
}

void ApplyProgramStyle() {
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setPalette(ProgramPalette());
    QApplication::setFont(ToQFont({Face::List, WindowPoints, false}));
}
