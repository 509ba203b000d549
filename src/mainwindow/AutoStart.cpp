// The items that say whether and how the planner starts with the desktop session.
#include "mainwindow/StartupShortcut.h"
#include "mainwindow/frmMain.h"

namespace {

struct StartItem {
    QAction* item;
    const char* word;
};

std::array<StartItem, 4> StartItems(const frmMain& window) {
    return {{
        {window.MenuStartFull, "Full"},
        {window.MenuStartMin, "Min"},
        {window.MenuStartTray, "Tray"},
        {window.MenuStartNo, "No"},
    }};
}

} // namespace

void frmMain::CheckAutoStartItem(const std::string& word) {
    for (const StartItem& start : StartItems(*this)) {
        start.item->setChecked(word == start.word);
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
    for (const StartItem& start : StartItems(*this)) {
        connect(start.item, &QAction::triggered, this, [this, start](bool nowChecked) {
            if (nowChecked) {
                ChooseAutoStart(start.word);
            } else {
                start.item->setChecked(true); // it was chosen already
            }
        });
    }
}
