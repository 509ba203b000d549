// The items that say whether and how the planner starts with the desktop session.
#include "mainwindow/menus/AutoStart.h"

#include "core/Preferences.h"
#include "mainwindow/frmMain.h"

namespace {

// In the order of StartModes.
std::array<QAction*, StartModes.size()> StartItems(const frmMain& window) {
    return {window.MenuStartFull, window.MenuStartMin, window.MenuStartTray, window.MenuStartNo};
}

} // namespace

void CheckAutoStartItem(const frmMain& window, const std::string& word) {
    const std::array items = StartItems(window);
    for (std::size_t i = 0; i < items.size(); ++i) {
        items[i]->setChecked(word == StartModes[i]);
    }
}

void BindAutoStart(frmMain& window) {
    const std::array items = StartItems(window);
    for (std::size_t i = 0; i < items.size(); ++i) {
        QObject::connect(items[i], &QAction::triggered, &window,
                         [&window, item = items[i], i](bool nowChecked) {
                             if (nowChecked) {
                                 emit window.Asked({.kind = ViewActionKind::ChooseAutoStart,
                                                    .words = std::string(StartModes[i])});
                             } else {
                                 item->setChecked(true); // it was chosen already
                             }
                         });
    }
}
