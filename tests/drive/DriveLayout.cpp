// Runs the step that lays out a smart drive.
#include "drive/DriveLayout.h"

#include <array>
#include <cstdio>
#include <fstream>
#include <iterator>

namespace {

std::string Quoted(const std::filesystem::path& path) {
    return " '" + path.string() + "' ";
}

LayoutResult RunStep(const std::string& arguments) {
    const std::string command = "'" PLANOVARIUM_SOURCE_DIR "/tools/lay-out-drive' " + arguments + " 2>&1";
    LayoutResult result;
    FILE* const pipe = ::popen(command.c_str(), "r");
    if (pipe == nullptr) {
        return result;
    }
    std::array<char, 4096> bytes{};
    while (const std::size_t count = std::fread(bytes.data(), 1, bytes.size(), pipe)) {
        result.output.append(bytes.data(), count);
    }
    result.succeeded = ::pclose(pipe) == 0;
    return result;
}

} // namespace

LayoutResult LayOutDrive(const std::filesystem::path& source, const std::filesystem::path& target,
                         const std::string& day) {
    return RunStep(Quoted(source) + Quoted(target) + day);
}

LayoutResult RenewDrive(const std::filesystem::path& source, const std::filesystem::path& target) {
    return RunStep("--renew" + Quoted(source) + Quoted(target));
}

LayoutResult BringProgram(const std::filesystem::path& program, const std::filesystem::path& target) {
    return RunStep("--program" + Quoted(program) + Quoted(target));
}

std::string BytesOf(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}
