// The choice whether and how the planner starts with the desktop session.
#include "mainwindow/flows/options/AutoStartFlow.h"

#include "mainwindow/frmMain.h"
#include "mainwindow/menus/AutoStart.h"
#include "mainwindow/menus/StartupShortcut.h"

void ChooseAutoStart(frmMain& window, const std::string& word) {
    CheckAutoStartItem(window, word);
    window.AutoStart = word;
    if (word == "No") {
        RemoveStartupShortcut();
    } else {
        PutStartupShortcut();
    }
}
