// The menus that are built as they are wanted, and the one procedure that runs their commands.
#include "core/Module1.h"
#include "mainwindow/frmMain.h"
#include "platform/Modal.h"

void frmMain::ShowTrayMenu() {
    mnuPopupItems.clear();
    if (ModalDialogIsOpen()) {
        return;
    }
    mnuPopupItems = {{"Show Popup Reminders...", "tray reminders"}, {"-", ""}};
    if (!isVisible() || isMinimized()) {
        mnuPopupItems.push_back({"Open Planovarium...", "tray view"});
    }
    mnuPopupItems.push_back({"Shutdown Planovarium", "tray shutdown"});
}

namespace {

void RunTrayCommand(frmMain& window, const std::string& verb) {
    if (verb == "view") {
        if (window.isVisible() && window.isMinimized()) {
            window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
        } else {
            window.show();
        }
    } else if (verb == "shutdown") {
        window.Unload();
    }
}

} // namespace

void frmMain::RunPopupCommand(int index) {
    const std::string tag = mnuPopupItems.at(static_cast<std::size_t>(index)).tag;
    const std::size_t blank = tag.find(' ');
    if (blank == std::string::npos) {
        return;
    }
    const std::string subject = tag.substr(0, blank);
    const std::string verb = tag.substr(blank + 1);
    if (subject == "tray") {
        RunTrayCommand(*this, verb);
    }
}
