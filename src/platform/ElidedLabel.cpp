// A label of one line that never asks for more width than it gets.
#include "platform/ElidedLabel.h"

#include <QEvent>
#include <QPainter>

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::minimumSizeHint() const {
    return {1, QLabel::minimumSizeHint().height()};
}

QString ElidedLabel::ShownText() const {
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const bool cut = ShownText() != text();
        setToolTip(cut ? QStringLiteral("<span>") + text().toHtmlEscaped() + QStringLiteral("</span>")
                       : QString());
    }
    return QLabel::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(contentsRect(), static_cast<int>(alignment()) | Qt::TextSingleLine, ShownText());
}
