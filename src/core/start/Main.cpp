// The entry: one instance a user and a drive, no start outside the smart drive, the splash while the planner
// loads.
#include "core/Module1.h"
#include "core/ProgramFacts.h"
#include "core/start/Application.h"
#include "core/start/frmSplash.h"
#include "mainwindow/frame/BringForward.h"
#include "mainwindow/frame/Load.h"
#include "mainwindow/frmMain.h"
#include "platform/InstanceLink.h"
#include "platform/MessageBoxes.h"
#include "platform/Process.h"
#include "toolkit/InputRules.h"
#include "toolkit/Text.h"
#include "toolkit/WindowStyle.h"

#include <QIcon>
#include <QSettings>

#include <algorithm>
#include <array>
#include <memory>
#include <string>

namespace {

// All that the smart drive's launcher sets; without any of them there is no drive to work on.
constexpr std::array<const char*, 4> DriveVariables{HostFolderVariable, DriveFolderVariable,
                                                    DocumentFolderVariable, ProgramFolderVariable};

bool StartedFromDrive() {
    return std::ranges::none_of(DriveVariables,
                                [](const char* name) { return EnvironmentValue(name).empty(); });
}

// The toolkit's dialogs keep their own settings in the host's scratch folder, not in the user's.
void RedirectToolkitSettings() {
    const QString scratch = QString::fromStdString(EnvironmentValue(HostFolderVariable));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, scratch);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, scratch);
}

void SetApplicationProperties() {
    Application::setApplicationName(QStringLiteral("Planovarium"));
    Application::setApplicationVersion(FromStore(ProgramVersion()));
    Application::setDesktopFileName(QStringLiteral("planovarium"));
    Application::setQuitOnLastWindowClosed(false);
    Application::setWindowIcon(ProgramIcon(QStringLiteral("planovarium.svg")));
}

// All that stands behind the program's name on the command line, joined by blanks.
std::string CommandLine(int argc, char** argv) {
    std::string line;
    for (int i = 1; i < argc; ++i) {
        line += (i > 1 ? " " : "") + std::string(argv[i]);
    }
    return line;
}

// An error ends the process while the window still stands: a signal that comes during its box unloads the
// window.
bool LoadBehind(frmSplash& splash, frmMain& window) {
    try {
        const bool loaded = LoadPlanner(window);
        splash.close();
        return loaded;
    } catch (const std::exception& error) {
        splash.close();
        Application::EndOnError(error);
        return false;
    }
}

int Run(const std::string& commandLine) {
    frmSplash splash;
    splash.PreviousFound = !ClaimFirstInstance();
    if (!splash.PreviousFound && !StartedFromDrive()) {
        MsgBox("Launch Planovarium from your u3 Smart Drive.", Buttons::Ok, Icon::None, "Planovarium");
        return 0;
    }
    splash.PreviousFound = splash.PreviousFound || !ClaimDrive(EnvironmentValue(DocumentFolderVariable));
    if (!splash.LoadSplash()) {
        return 0;
    }
    RedirectToolkitSettings();
    const auto window = std::make_unique<frmMain>();
    MainWindow = window.get();
    if (!LoadBehind(splash, *window)) {
        return 0;
    }
    ShowAtStart(*window, commandLine);
    return Application::exec();
}

} // namespace

int main(int argc, char** argv) {
    IgnoreFileSizeSignal();
    std::ranges::for_each(DriveVariables,
                          &MakePathAbsolute); // the working directory is the data folder's later
    Application application(argc, argv);
    InstallInputRules(application);
    ApplyProgramStyle();
    SetApplicationProperties();
    try {
        return Run(CommandLine(argc, argv));
    } catch (const std::exception& error) {
        Application::EndOnError(error);
    }
}
