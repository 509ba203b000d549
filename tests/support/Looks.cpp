// What a label or a picture looks like, as the student would see it.
#include "support/Looks.h"

bool HasForeColor(const QLabel* label, int color) {
    return label->palette().color(QPalette::WindowText) == ToQColor(color);
}

bool HasBackColor(const QLabel* label, int color) {
    return label->palette().color(QPalette::Window) == ToQColor(color);
}

QString PictureOf(const PictureBox* box) {
    return box->Drawn().empty() ? QString() : box->Drawn().back().text;
}
