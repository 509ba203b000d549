// Changes to the data folder that the student asked for, each by the planner's own safe save.
#include "check/Restore.h"

#include "check/Generations.h"
#include "check/faults/DataFiles.h"
#include "core/RunTimeError.h"
#include "persistence/BackupNames.h"
#include "persistence/RecordFileText.h"
#include "persistence/SafeSave.h"
#include "platform/Process.h"

#include <system_error>

namespace {

namespace fs = std::filesystem;

constexpr std::string_view ReplacedSuffix = "_replaced";
constexpr std::string_view WaitingSuffix = "_waiting";
constexpr std::string_view SetAsideSuffix = "_set_aside";

// Raises the run-time error where the folder cannot be made.
void MakeBackupFolder() {
    std::error_code error;
    fs::create_directory(BackupFolder, error);
    if (error) {
        throw RunTimeError("Folder cannot be created", PathText(BackupFolder));
    }
}

// Writes the bytes to a name of the backup folder that is free and gives the name; raises the run-time error
// when they are not on the device then.
std::string KeepBytes(const RecordFile& file, std::string_view suffix, std::string_view firstNumber,
                      const std::string& bytes) {
    std::string name = FreeBackupName(file.name, suffix, firstNumber);
    MakeFile((BackupFolder / name).string(), [&bytes](OutputFile& output) { WriteBytes(output, bytes); });
    return name;
}

// Keeps what the path holds; raises the run-time error where something is there that cannot be kept.
void KeepFile(const RecordFile& file, const fs::path& path, std::string_view suffix, ChangeResult& result) {
    if (!IsThere(path)) {
        return;
    }
    const std::optional<std::string> bytes = BytesOf(path);
    if (!bytes) {
        throw RunTimeError("The file cannot be read", PathText(path));
    }
    result.kept.push_back(KeepBytes(file, suffix, "1", *bytes));
}

// Keeps all that the replacement would lose, then replaces the file by the safe save.
void Replace(const RecordFile& file, const std::string& bytes, ChangeResult& result) {
    KeepFile(file, DataFolder / file.name, ReplacedSuffix, result);
    KeepFile(file, DataFolder / WaitingName(file.name), WaitingSuffix, result);
    SyncFolder(BackupFolder);
    WriteWaiting(file.name, [&bytes](OutputFile& output) { WriteBytes(output, bytes); });
    PutWaitingInPlace(file.name);
    if (BytesOf(DataFolder / file.name) != bytes) {
        throw RunTimeError("The file waits and could not be put in its place", WaitingName(file.name));
    }
}

// The lines of the range, with their ends, and those around them.
struct CutText {
    std::string taken;
    std::string left;
};

CutText CutLines(std::string_view bytes, LineRange lines) {
    CutText cut;
    for (int number = 1; !bytes.empty(); ++number) {
        const std::size_t end = std::min(bytes.find('\n'), bytes.size() - 1) + 1;
        const bool within = number >= lines.first && number <= lines.last;
        (within ? cut.taken : cut.left).append(bytes.substr(0, end));
        bytes.remove_prefix(end);
    }
    return cut;
}

// Runs the change in the data folder and tells why it failed.
template <class Change>
ChangeResult Try(Change change) {
    ChangeResult result;
    try {
        ChangeToDataFolder();
        MakeBackupFolder();
        change(result);
        result.done = true;
    } catch (const RunTimeError& error) {
        result.text = error.what();
    }
    return result;
}

} // namespace

ChangeResult RestoreFile(const RecordFile& file, const std::string& word) {
    const fs::path path = PathOfCopy(file, word);
    const std::optional<std::string> bytes = path.empty() ? std::nullopt : BytesOf(path);
    if (!bytes) {
        return {.text = path.empty() ? "There is no generation \"" + PathText(word) + "\": 1 to " +
                                           std::to_string(Generations) + ", or " + WaitingWord
                                     : PathText(path.filename()) + " is not there or cannot be read"};
    }
    return Try([&](ChangeResult& result) {
        Replace(file, *bytes, result);
        result.text = PathText(path.filename());
    });
}

ChangeResult SetRecordAside(const RecordFile& file, int record) {
    const std::optional<std::string> bytes = BytesOf(DataFolder / file.name);
    if (!bytes) {
        return {.text = file.name + " is not there or cannot be read"};
    }
    const ReadFile read = ReadBytes(file, *bytes);
    const std::vector<LineRange>& records = read.trace.records;
    if (record < 1 || record > static_cast<int>(records.size())) {
        return {.text = file.name + " has no record " + std::to_string(record) + " that its reading reaches"};
    }
    const LineRange lines = records[static_cast<std::size_t>(record - 1)];
    if (lines.last == 0) {
        return {.text = "the record of line " + std::to_string(lines.first) +
                        " is not closed, so nobody knows where it ends"};
    }
    return Try([&](ChangeResult& result) {
        const CutText cut = CutLines(*bytes, lines);
        result.kept.push_back(KeepBytes(file, SetAsideSuffix, {}, cut.taken));
        Replace(file, cut.left, result);
        result.text = "lines " + std::to_string(lines.first) + " to " + std::to_string(lines.last);
    });
}
