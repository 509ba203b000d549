// Files whose read was cut short: what they hold behind the fault is kept when the first save replaces them,
// and a record that did not end does not merge with the next one.
#include "persistence/DamagedFile.h"

#include "core/TextFiles.h"
#include "persistence/BackupNames.h"
#include "platform/Process.h"

namespace {

std::optional<std::string> ReadableBytes(const std::string& name) {
    try {
        return FileBytes(name);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

bool HasEntryInEachList(const RecordFile& file, const std::vector<int>& finished) {
    for (std::size_t i = 0; i < finished.size(); ++i) {
        if (file.fields[i].list->Count() == finished[i]) {
            return false;
        }
    }
    return true;
}

} // namespace

bool KeepDamagedFile(const RecordFile& file) {
    bool& toBeKept = (LastReads.*file.read).toBeKept;
    if (!toBeKept) {
        return true;
    }
    if (const std::optional<std::string> bytes = ReadableBytes(file.name)) {
        const std::string copy = FreeBackupName(file.name, "_damaged", {});
        try {
            MakeFile(BackupFolder / copy, [&bytes](OutputFile& output) { WriteBytes(output, *bytes); });
        } catch (const RunTimeError&) {
            ShowFileError(copy, "writing");
            return false;
        }
        SyncFolder(BackupFolder);
    }
    toBeKept = false;
    return true;
}

void DropUnfinishedRecord(const RecordFile& file) {
    std::vector<int>& finished = (LastReads.*file.read).finished;
    if (!HasEntryInEachList(file, finished)) { // else the record is whole but for its closing tag
        for (std::size_t i = 0; i < finished.size(); ++i) {
            while (file.fields[i].list->Count() > finished[i]) {
                file.fields[i].list->Remove(file.fields[i].list->Count());
            }
        }
    }
    finished.clear();
}
