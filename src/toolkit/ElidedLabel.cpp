// A label of one line that never asks for more width than it gets.
#include "toolkit/ElidedLabel.h"

#include "toolkit/Text.h"

#include <QEvent>
#include <QPainter>

namespace {

int Mnemonics(const QLabel& label) {
    return label.buddy() == nullptr ? 0 : Qt::TextShowMnemonic;
}

} // namespace

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::minimumSizeHint() const {
    return {1, QLabel::minimumSizeHint().height()};
}

QString ElidedLabel::ShownText() const {
    return fontMetrics().elidedText(text(), Elision, contentsRect().width(), Mnemonics(*this));
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const bool cut = ShownText() != text();
        setToolTip(cut ? PlainTip(buddy() == nullptr ? text() : WithoutMnemonics(text())) : QString());
    }
    return QLabel::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(contentsRect(), static_cast<int>(alignment()) | Qt::TextSingleLine | Mnemonics(*this),
                     ShownText());
}
