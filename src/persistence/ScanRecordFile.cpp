// The reader of the record files: makes one that is missing, scans its bytes, and tells when that failed.
#include "persistence/RecordFileText.h"
#include "persistence/RecordScanner.h"

#include "core/TextFiles.h"
#include "platform/Process.h"

#include <system_error>

namespace {

// A file that is empty would fail at every later start, so it is made whole under a name of its own: the one
// that a save uses may hold the only copy of the records.
void CreateWhereMissing(const RecordFile& file) {
    std::error_code error;
    if (std::filesystem::status(file.name, error).type() != std::filesystem::file_type::not_found) {
        return;
    }
    const std::string aside = file.name + ".new";
    std::filesystem::remove(aside, error); // left over from a start that was cut short
    MakeFile(aside, [&file](OutputFile& output) { WriteRecords(output, file, 0); });
    std::filesystem::rename(aside, file.name, error);
    if (error) {
        throw RunTimeError("File cannot be renamed", aside);
    }
    SyncFolder(DataFolder);
}

} // namespace

bool ScanRecordFile(const RecordFile& file) {
    *file.nextId = 1;
    FileRead& read = LastReads.*file.read;
    read = {.cutShort = true, .toBeKept = true, .finished = {}};
    if (ShuttingDown || !EnterDataFolder()) {
        return false;
    }
    try {
        CreateWhereMissing(file);
        read.cutShort = read.toBeKept = !ScanRecords(file, FileBytes(file.name), read.finished);
        return true;
    } catch (const RunTimeError&) {
        ShowFileError(file.name, "reading");
        return false;
    }
}
