// The tray icon. Trays of the XEmbed kind report a click and then a double click; status notifiers report
// clicks alone, so two clicks within the double-click time count as a double click there.
#include "platform/Tray.h"

#include "toolkit/Text.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMenu>
#include <QSystemTrayIcon>

namespace {

// A child of the application, which takes it down where the tray icon was not removed before.
struct TrayState : QObject {
    TrayState() : QObject(qApp) {}

    QSystemTrayIcon icon{QIcon(QStringLiteral(":/icons/planovarium.svg"))};
    QMenu menu;
    QElapsedTimer sinceClick;
    TrayEvents events;
};

TrayState* tray = nullptr;

void RebuildMenu() {
    tray->menu.clear();
    int index = 0;
    for (const std::string& caption : tray->events.menuWanted()) {
        if (caption == "-") {
            tray->menu.addSeparator();
        } else {
            QObject::connect(tray->menu.addAction(MenuText(caption)), &QAction::triggered, &tray->menu,
                             [index] { tray->events.itemChosen(index); });
        }
        ++index;
    }
}

void IconActivated(QSystemTrayIcon::ActivationReason reason) {
    if (reason == QSystemTrayIcon::DoubleClick) {
        tray->sinceClick.invalidate();
        tray->events.doubleClicked();
        return;
    }
    if (reason != QSystemTrayIcon::Trigger) {
        return;
    }
    const bool second =
        tray->sinceClick.isValid() && tray->sinceClick.elapsed() <= QApplication::doubleClickInterval();
    if (second) {
        tray->sinceClick.invalidate();
        tray->events.doubleClicked();
        return;
    }
    tray->sinceClick.start();
}

} // namespace

void AddTrayIcon(std::string_view tip, TrayEvents events) {
    tray = new TrayState;
    tray->events = std::move(events);
    tray->icon.setToolTip(FromStore(tip));
    QObject::connect(&tray->menu, &QMenu::aboutToShow, &tray->menu, &RebuildMenu);
    QObject::connect(&tray->icon, &QSystemTrayIcon::activated, &tray->menu, &IconActivated);
    RebuildMenu(); // a status notifier shows no menu that has never held an item
    tray->icon.setContextMenu(&tray->menu);
    tray->icon.show();
}

void RemoveTrayIcon() {
    tray->icon.hide();
    tray->deleteLater(); // the shutdown may have come from its own menu
}
