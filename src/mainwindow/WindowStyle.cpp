// The look of the windows: one style, one palette and one font, so that they look the same on every desktop.
#include "mainwindow/WindowStyle.h"

#include "platform/PictureBox.h"
#include "platform/WindowColors.h"

#include <QApplication>

namespace {

constexpr double WindowPoints = 9;

QPalette ProgramPalette() {
    QPalette colors(ToQColor(ButtonColor), ToQColor(SurfaceColor));
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        colors.setColor(role, ToQColor(TextColor));
        colors.setColor(QPalette::Disabled, role, ToQColor(FaintTextColor));
    }
    colors.setColor(QPalette::Base, Qt::white);
    colors.setColor(QPalette::AlternateBase, ToQColor(PanelColor));
    colors.setColor(QPalette::ToolTipBase, Qt::white);
    colors.setColor(QPalette::Highlight, ToQColor(AccentColor));
    colors.setColor(QPalette::HighlightedText, Qt::white);
    colors.setColor(QPalette::Link, ToQColor(AccentColor));
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
