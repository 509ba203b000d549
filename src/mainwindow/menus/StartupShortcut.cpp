// The shortcut by which the desktop session starts the planner.
#include "mainwindow/menus/StartupShortcut.h"

#include "platform/Process.h"

#include <filesystem>

namespace {

constexpr const char* ShortcutName = "Planovarium Startup Shortcut.lnk";

} // namespace

// The planner works without its shortcut, so a folder that is missing or read-only is passed over.
void PutStartupShortcut() {
    RemoveStartupShortcut();
    const std::filesystem::path programFolder = EnvironmentValue(ProgramFolderVariable);
    std::error_code ignored;
    std::filesystem::copy_file(programFolder / ShortcutName, StartupFolder() / ShortcutName, ignored);
}

void RemoveStartupShortcut() {
    std::error_code ignored;
    std::filesystem::remove(StartupFolder() / ShortcutName, ignored);
}
