// An entry of the mode bar.
#include "mainwindow/modes/ModeBarEntry.h"

#include "toolkit/ClickLabel.h"
#include "toolkit/WindowColors.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int SideMargin = 8;
constexpr int Gap = 7; // between the picture and the word
constexpr int GroundInset = 4;
constexpr double GroundRadius = 5;
constexpr int MarkHeight = 3; // of the line under the active entry

} // namespace

ModeBarEntry::ModeBarEntry(PictureBox* picture, ClickLabel* word, const QString& tip) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(SideMargin, 0, SideMargin, 0);
    row->setSpacing(Gap);
    row->addWidget(picture);
    if (word != nullptr) {
        row->addWidget(word);
    }
    setCursor(Qt::PointingHandCursor);
    setToolTip(tip); // which its parts, having none, show as well
}

void ModeBarEntry::ShowActive(bool active) {
    isActive = active;
    update();
}

bool ModeBarEntry::event(QEvent* event) {
    if (event->type() == QEvent::Enter || event->type() == QEvent::Leave) {
        update();
    }
    return QWidget::event(event);
}

void ModeBarEntry::paintEvent(QPaintEvent* /*event*/) {
    if (!isActive && !underMouse()) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ToQColor(isActive ? BarActiveColor : BarHoverColor));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0, GroundInset, 0, -GroundInset), GroundRadius,
                            GroundRadius);
    if (isActive) {
        painter.fillRect(QRectF(SideMargin, height() - MarkHeight, width() - 2 * SideMargin, MarkHeight),
                         ToQColor(BarMarkColor));
    }
}

void ModeBarEntry::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void ModeBarEntry::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
        emit Clicked();
    }
}
