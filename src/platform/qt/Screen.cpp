// The primary screen, from the toolkit.
#include "platform/Screen.h"

#include <QGuiApplication>
#include <QScreen>

ScreenSize PrimaryScreenSize() {
    const QSize size = QGuiApplication::primaryScreen()->size();
    return {size.width(), size.height()};
}

WorkArea PrimaryWorkArea() {
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    return {area.left(), area.top(), area.width(), area.height()};
}
