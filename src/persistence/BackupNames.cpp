// What the files of the backup folder are called.
#include "persistence/BackupNames.h"

#include "core/Module1.h"

#include <system_error>

namespace {

constexpr const char* Extension = ".xml";

std::string Stem(const std::string& fileName) {
    return std::filesystem::path(fileName).stem().string();
}

} // namespace

std::string GenerationName(const std::string& fileName, int generation) {
    return Stem(fileName) + "_backup" + std::to_string(generation) + Extension;
}

std::string FreeBackupName(const std::string& fileName, std::string_view suffix,
                           std::string_view firstNumber) {
    const std::string stem = Stem(fileName).append(suffix);
    std::string name = (stem + std::string(firstNumber)).append(Extension);
    std::error_code error;
    for (int number = 2; std::filesystem::exists(std::filesystem::symlink_status(BackupFolder / name, error));
         ++number) {
        name = stem + std::to_string(number) + Extension;
    }
    return name;
}
