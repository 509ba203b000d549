// The backups: three generations of each record file, where a generation is a run in which the file was
// saved.
#include "persistence/modIO.h"

#include "core/RunTimeError.h"
#include "core/TextFiles.h"
#include "persistence/BackupNames.h"
#include "platform/Process.h"

#include <system_error>

namespace {

namespace fs = std::filesystem;

// The bytes alone: a drive that was mounted for another owner refuses to set a file's mode.
void CopyWherePossible(const fs::path& from, const fs::path& to) {
    try {
        CopyToNewFile(from, to);
    } catch (const RunTimeError&) {
        // Errors ignored: the generations move on without it.
    }
}

// A generation that could not move on keeps its name, and none takes its place.
void RenameWhereFree(const fs::path& from, const fs::path& to) {
    std::error_code ignored;
    if (!fs::exists(to, ignored)) {
        fs::rename(from, to, ignored);
    }
}

// Errors are ignored throughout: each step takes what the ones before it left.
void RotateFile(const std::string& name) {
    const fs::path present = BackupFolder / name;
    const auto generation = [&name](int number) { return BackupFolder / GenerationName(name, number); };
    std::error_code ignored;
    fs::remove(present, ignored);
    CopyWherePossible(DataFolder / name, present);
    fs::remove(generation(3), ignored);
    RenameWhereFree(generation(2), generation(3));
    RenameWhereFree(generation(1), generation(2));
    RenameWhereFree(present, generation(1));
    SyncFolder(BackupFolder);
}

} // namespace

void RotateBackups() {
    std::error_code ignored;
    fs::current_path(BackupFolder, ignored);
    for (const RecordFile& file : RecordFiles()) {
        if (FileWrittenFlags.*file.written) {
            RotateFile(file.name);
        }
    }
}
