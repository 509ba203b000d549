// The backups of the record files, as they lie in the backup folder.
#include "check/Generations.h"

#include "check/faults/DataFiles.h"
#include "check/faults/FileAge.h"
#include "check/faults/FileRecords.h"
#include "persistence/BackupNames.h"
#include "persistence/SafeSave.h"

#include <algorithm>

namespace {

std::vector<std::string> Words() {
    std::vector<std::string> words{WaitingWord};
    for (int generation = 1; generation <= Generations; ++generation) {
        words.push_back(std::to_string(generation));
    }
    return words;
}

FileCopy CopyAt(const RecordFile& file, const std::string& word, const std::filesystem::path& path,
                const std::vector<RecordTexts>& present) {
    FileCopy copy{
        .file = file.name, .name = path.filename().string(), .word = word, .written = WrittenAt(path)};
    if (const std::optional<std::string> bytes = BytesOf(path)) {
        const std::vector<RecordTexts> records = RecordsIn(file, *bytes);
        Difference difference = Differ(records, present);
        copy.readable = true;
        copy.records = static_cast<int>(records.size());
        copy.onlyHere = std::move(difference.onlyInFirst);
        copy.onlyInPresent = std::move(difference.onlyInSecond);
        copy.changed = difference.changed;
    }
    return copy;
}

void AddCopies(std::vector<FileCopy>& all, const RecordFile& file) {
    std::vector<FileCopy> copies = CopiesOf(file);
    std::ranges::move(copies, std::back_inserter(all));
}

} // namespace

std::filesystem::path PathOfCopy(const RecordFile& file, const std::string& word) {
    if (word == WaitingWord) {
        return DataFolder / WaitingName(file.name);
    }
    const std::vector<std::string> words = Words();
    const auto found = std::ranges::find(words, word);
    return found == words.end()
               ? std::filesystem::path{}
               : BackupFolder / GenerationName(file.name, static_cast<int>(found - words.begin()));
}

std::vector<FileCopy> CopiesOf(const RecordFile& file) {
    const std::vector<RecordTexts> present = RecordsIn(file, BytesOf(DataFolder / file.name).value_or(""));
    std::vector<FileCopy> copies;
    for (const std::string& word : Words()) {
        const std::filesystem::path path = PathOfCopy(file, word);
        if (IsThere(path)) {
            copies.push_back(CopyAt(file, word, path, present));
        }
    }
    return copies;
}

DriveCopies AllCopies() {
    const TermsFound found = TermsWithAssignmentCopies();
    std::vector<FileCopy> all;
    AddCopies(all, TermFile());
    AddCopies(all, ClassFile());
    for (const int term : found.terms) {
        ActiveTermID = term;
        AddCopies(all, AssignmentFile());
    }
    AddCopies(all, TaskFile());
    AddCopies(all, EventFile());
    const bool allRead = std::ranges::all_of(all, &FileCopy::readable);
    return {std::move(all), found.all && allRead};
}
