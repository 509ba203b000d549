// The marker of the running process: an empty file named for its number in the host's scratch folder.
#include "persistence/ProcessMarker.h"

#include "core/RunTimeError.h"
#include "core/TextFiles.h"
#include "core/Values.h"
#include "platform/Process.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>

namespace {

constexpr std::string_view MarkerExtension = ".PID";

std::filesystem::path MarkerPath(long process = ProcessNumber()) {
    const std::filesystem::path folder = EnvironmentValue(HostFolderVariable);
    return folder / (std::to_string(process) + std::string(MarkerExtension));
}

// True for an empty file named as a marker is.
bool IsMarker(const std::filesystem::directory_entry& entry) {
    const std::string stem = entry.path().stem().string();
    std::error_code error;
    return entry.path().extension() == MarkerExtension && std::ranges::all_of(stem, IsDigit) &&
           !entry.is_symlink(error) && entry.is_regular_file(error) && entry.file_size(error) == 0;
}

// No process has a number that does not fit.
bool ProcessOfMarkerExists(const std::filesystem::path& path) {
    const std::string stem = path.stem().string();
    long number = 0;
    const auto result = std::from_chars(stem.data(), stem.data() + stem.size(), number);
    return result.ec == std::errc{} && ProcessExists(number);
}

} // namespace

void DeleteDeadMarkers() {
    std::error_code error;
    std::filesystem::directory_iterator entry(EnvironmentValue(HostFolderVariable), error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        if (IsMarker(*entry) && !ProcessOfMarkerExists(entry->path())) {
            std::error_code ignored; // it is left for a later start
            std::filesystem::remove(entry->path(), ignored);
        }
    }
}

void MakeProcessMarker() {
    const std::filesystem::path path = MarkerPath();
    std::ofstream marker(path);
    if (!marker) {
        throw RunTimeError("Cannot write the file", PathText(path));
    }
}

void LeaveMarkerOf(long process) {
    if (process != 0) {
        const std::ofstream marker(MarkerPath(process));
    }
}

void DeleteProcessMarker() {
    const std::filesystem::path path = MarkerPath();
    std::error_code error;
    std::filesystem::remove(path, error);
    if (error) {
        throw RunTimeError("Cannot delete the file", PathText(path));
    }
}
