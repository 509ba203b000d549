// The items that say whether and how the planner starts with the desktop session.
#include "core/Preferences.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/menus/StartupShortcut.h"

namespace {

// In the order of StartModes.
std::array<QAction*, StartModes.size()> StartItems(const frmMain& window) {
    return {window.MenuStartFull, window.MenuStartMin, window.MenuStartTray, window.MenuStartNo};
}

} // namespace

void frmMain::CheckAutoStartItem(const std::string& word) {
    const std::array items = StartItems(*this);
    for (std::size_t i = 0; i < items.size(); ++i) {
        items[i]->setChecked(word == StartModes[i]);
    }
}

void frmMain::ChooseAutoStart(const std::string& word) {
    CheckAutoStartItem(word);
    AutoStart = word;
    if (word == "No") {
        RemoveStartupShortcut();
    } else {
        PutStartupShortcut();
    }
}

void frmMain::BindAutoStart() {
    const std::array items = StartItems(*this);
    for (std::size_t i = 0; i < items.size(); ++i) {
        connect(items[i], &QAction::triggered, this, [this, item = items[i], i](bool nowChecked) {
            if (nowChecked) {
                ChooseAutoStart(std::string(StartModes[i]));
            } else {
                item->setChecked(true); // it was chosen already
            }
        });
    }
}
