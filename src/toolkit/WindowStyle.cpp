// The look of the windows: one style, one palette and one font, so that they look the same on every desktop.
#include "toolkit/WindowStyle.h"

#include "toolkit/PictureBox.h"
#include "toolkit/Pressable.h"
#include "toolkit/ProgramStyle.h"

#include <QApplication>

#include <map>

namespace {

constexpr double WindowPoints = 9;

std::map<QString, QIcon> icons; // by the names of their pictures

} // namespace

QIcon ProgramIcon(const QString& picture) {
    if (icons.empty()) {
        qAddPostRoutine([] { icons.clear(); }); // none may outlive the application
    }
    QIcon& icon = icons[picture];
    if (icon.isNull()) {
        icon = QIcon(QStringLiteral(":/icons/") + picture);
    }
    return icon;
}

QString TipWithKey(const QString& what, const QKeySequence& key) {
    return key.isEmpty() ? what : QStringLiteral("%1 (%2)").arg(what, key.toString(QKeySequence::NativeText));
}

PictureBox* PictureButton(int size, const char* name, const QKeySequence& key) {
    auto* box = new PictureBox;
    DescribeAs(box, QAccessible::Button);
    box->setFixedSize(size, size);
    box->setCursor(Qt::PointingHandCursor);
    box->setAccessibleName(QLatin1String(name));
    box->setToolTip(TipWithKey(QLatin1String(name), key));
    return box;
}

void ApplyProgramStyle() {
    QApplication::setStyle(NewProgramStyle());
    QApplication::setPalette(ProgramPalette());
    QApplication::setFont(ToQFont({Face::List, WindowPoints, false}));
}
