// The shortcut by which the desktop session starts the planner.
#include "mainwindow/menus/StartupShortcut.h"

#include "platform/Process.h"

#include <filesystem>
#include <fstream>
#include <istream>
#include <string>
#include <string_view>

namespace {

constexpr const char* ShortcutName = "Planovarium Startup Shortcut.desktop";
constexpr const char* OlderShortcutName = "Planovarium Startup Shortcut.lnk";
constexpr std::string_view CommandKey = "Exec=";
constexpr const char* StartArgument = "Startup Folder";

// What stands behind a backslash in the quotes of a command, which itself stands in a text where each
// backslash is doubled.
constexpr std::string_view Escaped = "\"`$\\";
constexpr std::string_view DoubledBackslash = R"(\\)";

std::string Quoted(const std::string& argument) {
    std::string text = "\"";
    for (const char character : argument) {
        if (Escaped.find(character) != std::string_view::npos) {
            text += DoubledBackslash;
        }
        if (character == '\\') {
            text += DoubledBackslash;
        } else if (character == '%') {
            text += "%%"; // a single one stands for what is opened with the program
        } else {
            text += character;
        }
    }
    return text + '"';
}

// Starts this program on the drive where it stands now.
std::string StartCommand() {
    std::string command = "env";
    for (const char* variable :
         {HostFolderVariable, DriveFolderVariable, DocumentFolderVariable, ProgramFolderVariable}) {
        command += ' ' + Quoted(variable + ('=' + EnvironmentValue(variable)));
    }
    return command + ' ' + Quoted(ProgramFile().string()) + ' ' + Quoted(StartArgument);
}

// The lines of the program folder's shortcut, with the command for the drive's present place.
std::string ShortcutText(std::istream& file) {
    std::string text;
    for (std::string line; std::getline(file, line);) {
        text += line.starts_with(CommandKey) ? std::string(CommandKey) + StartCommand() : line;
        text += '\n';
    }
    return text;
}

} // namespace

// The planner works without its shortcut, so a folder that is missing or read-only is passed over.
void PutStartupShortcut() {
    RemoveStartupShortcut();
    const std::filesystem::path programFolder = EnvironmentValue(ProgramFolderVariable);
    std::ifstream file(programFolder / ShortcutName, std::ios::binary);
    if (file) {
        std::error_code ignored;
        std::filesystem::create_directories(StartupFolder(), ignored);
        std::ofstream(StartupFolder() / ShortcutName, std::ios::binary) << ShortcutText(file);
    }
}

void RemoveStartupShortcut() {
    for (const char* name : {ShortcutName, OlderShortcutName}) {
        std::error_code ignored;
        std::filesystem::remove(StartupFolder() / name, ignored);
    }
}
