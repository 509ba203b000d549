// Which drive is asked for, and whether a planner is at work on it.
#include "check/Drive.h"

#include "core/Module1.h"
#include "core/TextFiles.h"
#include "platform/InstanceLink.h"
#include "platform/Process.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>
#include <iterator>
#include <set>
#include <system_error>

namespace {

namespace fs = std::filesystem;

constexpr std::array<const char*, 5> KnownFiles{"terms.xml", "classes.xml", "tasks.xml", "events.xml",
                                                "Prefs.ini"};
constexpr const char* Processes = "/proc";

bool IsFolder(const fs::path& path) {
    std::error_code error;
    return fs::is_directory(path, error);
}

bool HoldsData(const fs::path& folder) {
    return IsFolder(folder) && std::ranges::any_of(KnownFiles, [&folder](const char* name) {
               std::error_code error;
               return fs::exists(folder / name, error);
           });
}

bool SetFolders(const fs::path& data) {
    std::error_code error;
    const fs::path whole = fs::canonical(data, error);
    if (error) {
        return false;
    }
    DataFolder = whole;
    BackupFolder = DataFolder / "Backup";
    DocumentFolder = DataFolder.parent_path();
    return true;
}

// The data folder of a drive, of its folder for documents, or of the planner's own document folder.
bool FindBelow(const fs::path& path) {
    for (const char* below : {"Documents/Planovarium/Data", "Planovarium/Data", "Data"}) {
        if (IsFolder(path / below)) {
            return SetFolders(path / below);
        }
    }
    std::error_code error;
    const fs::path whole = fs::canonical(path, error); // without the "/" that a shell puts behind a folder
    return (whole.filename() == "Data" || HoldsData(path)) && IsFolder(path) && SetFolders(path);
}

fs::path ProgramFolder() {
    std::error_code error;
    return fs::read_symlink(fs::path(Processes) / "self" / "exe", error).parent_path();
}

std::string Contents(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// The process's own parent; 0 where that is not known.
long ParentOf(long process) {
    const std::string state = Contents(fs::path(Processes) / std::to_string(process) / "stat");
    const std::size_t behindName = state.rfind(") ");
    if (behindName == std::string::npos || behindName + 4 >= state.size()) {
        return 0;
    }
    long parent = 0;
    std::from_chars(state.data() + behindName + 4, state.data() + state.size(), parent);
    return parent;
}

// This process and those that started it: a shell or a launcher that has the variables is no planner.
std::set<long> OwnLine() {
    std::set<long> line;
    for (long process = ProcessNumber(); process > 0 && line.insert(process).second;) {
        process = ParentOf(process);
    }
    return line;
}

// What the process was started with; empty where it may not be looked at.
std::string VariableOf(const fs::path& process, const std::string& name) {
    const std::string all = Contents(process / "environ");
    const std::string beginning = name + "=";
    for (std::size_t at = 0; at < all.size();) {
        const std::size_t end = std::min(all.find('\0', at), all.size());
        if (all.compare(at, beginning.size(), beginning) == 0) {
            return all.substr(at + beginning.size(), end - at - beginning.size());
        }
        at = end + 1;
    }
    return {};
}

bool IsStartedForDrive(const fs::path& process) {
    const fs::path documents = VariableOf(process, DocumentFolderVariable);
    std::error_code error;
    return documents.is_absolute() && fs::equivalent(documents, DocumentFolder.parent_path(), error);
}

// The number of a process that was started for this drive; 0 where there is none.
long ProcessOfDrive() {
    const std::set<long> own = OwnLine();
    std::error_code error;
    fs::directory_iterator entry(Processes, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        long number = 0;
        const auto result = std::from_chars(name.data(), name.data() + name.size(), number);
        const bool isProcess = result.ec == std::errc{} && result.ptr == name.data() + name.size();
        if (isProcess && !own.contains(number) && IsStartedForDrive(entry->path())) {
            return number;
        }
    }
    return 0;
}

} // namespace

bool FindDrive(const std::string& text) {
    if (!text.empty()) {
        return FindBelow(fs::path(text).lexically_normal());
    }
    const std::string documents = EnvironmentValue(DocumentFolderVariable);
    if (!documents.empty()) {
        return FindBelow(documents);
    }
    return FindBelow(ProgramFolder().parent_path());
}

std::string WhyInUse() {
    if (!ClaimDrive(DocumentFolder.parent_path().string())) {
        return "The planner is at work on this drive. Shut it down first, from its icon in the tray.";
    }
    if (const long process = ProcessOfDrive(); process != 0) {
        return "The process " + std::to_string(process) +
               " was started for this drive. Shut the planner down first, from its icon in the tray.";
    }
    return {};
}
