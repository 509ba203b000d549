// The marker of the running process: an empty file named for its number in the host's scratch folder.
#include "mainwindow/ProcessMarker.h"

#include "core/RunTimeError.h"
#include "platform/Process.h"

#include <filesystem>
#include <fstream>

namespace {

std::filesystem::path MarkerPath() {
    const std::filesystem::path folder = EnvironmentValue("U3_HOST_EXEC_PATH");
    return folder / (std::to_string(ProcessNumber()) + ".PID");
}

} // namespace

void MakeProcessMarker() {
    const std::filesystem::path path = MarkerPath();
    std::ofstream marker(path);
    if (!marker) {
        throw RunTimeError("Cannot write the file", path.string());
    }
}

void DeleteProcessMarker() {
    std::filesystem::remove(MarkerPath());
}
