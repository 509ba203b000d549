// The safe save: a file is replaced only once its new content is whole on the device under another name.
#include "persistence/SafeSave.h"

#include "persistence/DamagedFile.h"
#include "persistence/RecordFileText.h"
#include "platform/Process.h"

#include <system_error>
#include <utility>

std::string WaitingName(const std::string& fileName) {
    return fileName + ".tmp";
}

void WriteWaiting(const std::string& fileName, const std::function<void(OutputFile&)>& write) {
    OutputFile output = OpenForWriting(WaitingName(fileName));
    write(output);
    SyncAndClose(std::move(output));
}

void PutWaitingInPlace(const std::string& fileName) {
    std::error_code ignored;
    std::filesystem::remove(fileName, ignored);
    std::filesystem::rename(WaitingName(fileName), fileName, ignored);
    SyncFolder(DataFolder);
}

bool SaveRecordFile(const RecordFile& file) {
    if (ShuttingDown || !EnterDataFolder()) {
        return false;
    }
    if (!KeepDamagedFile(file)) {
        return false;
    }
    try {
        WriteWaiting(file.name,
                     [&file](OutputFile& output) { WriteRecords(output, file, file.counted->Count()); });
    } catch (const RunTimeError&) {
        ShowFileError(WaitingName(file.name), "writing");
        return false;
    }
    FileWrittenFlags.*file.written = true;
    PutWaitingInPlace(file.name);
    return true;
}
