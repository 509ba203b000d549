// frmSplash, the picture on the screen while the planner loads; a second instance hands over to the first
// with it.
#include "core/start/frmSplash.h"

#include "platform/InstanceLink.h"
#include "platform/MessageBoxes.h"
#include "toolkit/PictureBox.h"
#include "toolkit/WindowColors.h"
#include "toolkit/WindowStyle.h"

#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QScreen>

namespace {

constexpr QSize SplashSize{420, 220};
constexpr QRect IconPlace{40, 60, 96, 96};
constexpr QRect NamePlace{160, 70, 240, 44};
constexpr QRect TitlePlace{160, 116, 240, 30};
constexpr SurfaceFont NameFont{Face::Title, 20, true};
constexpr SurfaceFont TitleFont{Face::Title, 11, false};

} // namespace

frmSplash::frmSplash() : QWidget(nullptr, Qt::SplashScreen) {
    setFixedSize(SplashSize);
    setWindowTitle(QStringLiteral("Planovarium starts"));
    move(QGuiApplication::primaryScreen()->availableGeometry().center() - rect().center());
}

bool frmSplash::LoadSplash() {
    if (PreviousFound) {
        HandOver();
        return false;
    }
    show();
    repaint();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    return true;
}

void frmSplash::HandOver() {
    if (SendLinkCommand(LinkApplication, LinkTopic, LinkCommand) == LinkResult::Failed) {
        MsgBox("Planovarium is already running.", Buttons::Ok, Icon::None, "Planovarium");
    }
}

void frmSplash::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), ToQColor(BarColor));
    ProgramIcon(QStringLiteral("planovarium.svg")).paint(&painter, IconPlace);
    painter.setPen(ToQColor(SplashNameColor));
    painter.setFont(ToQFont(NameFont));
    painter.drawText(NamePlace, Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Planovarium"));
    painter.setPen(ToQColor(SplashTitleColor));
    painter.setFont(ToQFont(TitleFont));
    painter.drawText(TitlePlace, Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Homework System"));
}
