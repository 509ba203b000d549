// The safe save: a file is replaced only once its new content is whole on the device under another name.
#include "persistence/RecordFileText.h"

#include "core/TextFiles.h"
#include "persistence/DamagedFile.h"
#include "platform/Process.h"

#include <system_error>
#include <utility>

bool SaveRecordFile(const RecordFile& file) {
    if (ShuttingDown || !EnterDataFolder()) {
        return false;
    }
    if (!KeepDamagedFile(file)) {
        return false;
    }
    const std::string temporary = file.name + ".tmp";
    try {
        OutputFile output = OpenForWriting(temporary);
        WriteRecords(output, file, file.counted->Count());
        SyncAndClose(std::move(output));
    } catch (const RunTimeError&) {
        ShowFileError(temporary, "writing");
        return false;
    }
    FileWrittenFlags.*file.written = true;
    // Errors ignored: whatever happens here, the records are whole in one of the two files.
    std::error_code ignored;
    std::filesystem::remove(file.name, ignored);
    std::filesystem::rename(temporary, file.name, ignored);
    SyncFolder(DataFolder);
    return true;
}
