// The marker of the running process: an empty file named for its number in the host's scratch folder.
#include "mainwindow/ProcessMarker.h"

#include "core/RunTimeError.h"
#include "core/TextFiles.h"
#include "platform/Process.h"

#include <filesystem>
#include <fstream>
#include <system_error>

namespace {

std::filesystem::path MarkerPath() {
    const std::filesystem::path folder = EnvironmentValue(HostFolderVariable);
    return folder / (std::to_string(ProcessNumber()) + ".PID");
}

} // namespace

void MakeProcessMarker() {
    const std::filesystem::path path = MarkerPath();
    std::ofstream marker(path);
    if (!marker) {
        throw RunTimeError("Cannot write the file", PathText(path));
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
