// A label that can be pressed with the mouse.
#include "toolkit/ClickLabel.h"

#include "toolkit/PictureBox.h"

#include <QMouseEvent>

ClickLabel::ClickLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
}

void ClickLabel::Press() {
    emit Pressed(Qt::LeftButton);
    emit Released(Qt::LeftButton);
    emit Clicked();
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
    SetLabelForeColor(label, forecolor);
    SetColor(label, QPalette::Window, backcolor);
    label->setAutoFillBackground(true);
}

void SetLabelForeColor(QLabel* label, int forecolor) {
    SetColor(label, QPalette::WindowText, forecolor);
}
