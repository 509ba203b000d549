// A smart drive in a folder of its own for a test, gone with it.
#include "support/TemporaryDrive.h"

#include "core/Module1.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace fs = std::filesystem;

namespace {

fs::path NewFolder(const fs::path& parent) {
    std::string name = (parent / "planovarium-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) {
        throw std::runtime_error("No temporary folder");
    }
    return name;
}

std::string BytesOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        return NoFile;
    }
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

fs::path FolderOfDrives() {
    const fs::path memory = "/dev/shm";
    return fs::exists(memory) ? memory : fs::temp_directory_path();
}

TemporaryDrive::TemporaryDrive(const fs::path& parent)
    : root(NewFolder(parent)), previousFolder(fs::current_path()) {
    for (const char* name :
         {"U3_HOST_EXEC_PATH", "U3_DEVICE_PATH", "U3_DEVICE_DOCUMENT_PATH", "U3_DEVICE_EXEC_PATH"}) {
        const fs::path folder = root / name;
        fs::create_directory(folder);
        ::setenv(name, folder.c_str(), 1);
    }
}

TemporaryDrive::~TemporaryDrive() {
    std::error_code ignored;
    fs::current_path(previousFolder, ignored);
    fs::remove_all(root, ignored);
}

std::string DataFile(const std::string& name) {
    return BytesOf(DataFolder / name);
}

std::string BackupFile(const std::string& name) {
    return BytesOf(BackupFolder / name);
}

void SetDataFile(const std::string& name, const std::string& bytes) {
    std::ofstream(DataFolder / name, std::ios::binary) << bytes;
}
