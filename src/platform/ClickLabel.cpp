// A label that can be pressed with the mouse.
#include "platform/ClickLabel.h"

#include "platform/PictureBox.h"

#include <QMouseEvent>

ClickLabel::ClickLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
}

void ClickLabel::mousePressEvent(QMouseEvent* event) {
    emit Pressed(event->button());
}

void ClickLabel::mouseReleaseEvent(QMouseEvent* event) {
    emit Released(event->button());
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
        emit Clicked();
    }
}

void SetLabelColors(QLabel* label, int forecolor, int backcolor) {
    QPalette colors = label->palette();
    colors.setColor(QPalette::WindowText, ToQColor(forecolor));
    colors.setColor(QPalette::Window, ToQColor(backcolor));
    label->setAutoFillBackground(true);
    label->setPalette(colors);
}

void SetLabelForeColor(QLabel* label, int forecolor) {
    QPalette colors = label->palette();
    colors.setColor(QPalette::WindowText, ToQColor(forecolor));
    label->setPalette(colors);
}
