// The help book, the homework help, the data folder and the window that tells what the program is.
#include "mainwindow/flows/help/HelpFlow.h"

#include "core/Module1.h"
#include "core/ProgramFacts.h"
#include "mainwindow/dialogs/frmAbout.h"
#include "mainwindow/frmMain.h"
#include "persistence/ProcessMarker.h"
#include "platform/Process.h"
#include "toolkit/FirstOpen.h"
#include "toolkit/Modal.h"

namespace {

constexpr const char* DesktopOpener = "xdg-open";

} // namespace

void OpenHelp(frmMain& /*window*/) {
    LeaveMarkerOf(StartProcess(DesktopOpener, {HelpFile.string()}));
}

void OpenHomeworkHelp(frmMain& /*window*/) {
    const std::string page = HomeworkHelpPage();
    const std::filesystem::path programFolder = EnvironmentValue(ProgramFolderVariable);
    ShellOpen(page.empty() ? (programFolder / "Homework Help" / "index.html").string() : page);
}

void OpenDataFolder(frmMain& /*window*/) {
    StartProcess(DesktopOpener, {DataFolder.string()});
}

void ShowAbout(frmMain& window) {
    if (AboutDialog == nullptr) {
        AboutDialog = new frmAbout(&window);
    }
    PlaceAtFirstOpen(*AboutDialog, AboutDBFirstOpen, window);
    AboutDialog->cmdOK->setFocus(); // and not the address, which Enter would open
    RunModally(*AboutDialog);
    window.picGrid->setFocus();
}
