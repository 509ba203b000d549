// The record files that a data folder holds, read without changing anything.
#include "check/faults/DataFiles.h"

#include "core/TextFiles.h"
#include "core/Values.h"

#include <algorithm>
#include <limits>
#include <set>
#include <system_error>

namespace {

namespace fs = std::filesystem;

constexpr std::string_view AssignmentPrefix = "assignments_";
constexpr std::string_view Extension = ".xml";
constexpr std::string_view WaitingExtension = ".xml.tmp";

// The term in "assignments_3.xml" and what stands behind it; nothing for the name of any other kind.
struct TermAndRest {
    int term = 0;
    std::string_view rest;
};

std::optional<TermAndRest> TermIn(std::string_view name) {
    if (!name.starts_with(AssignmentPrefix)) {
        return std::nullopt;
    }
    name.remove_prefix(AssignmentPrefix.size());
    const std::string_view number = name.substr(0, name.find_first_of("._"));
    const std::optional<int> id = IdIn(number);
    if (!id || std::to_string(*id) != number) {
        return std::nullopt;
    }
    return TermAndRest{*id, name.substr(number.size())};
}

// False where the folder is there and cannot be listed to its end.
template <class IsWanted>
bool AddTerms(std::set<int>& terms, const fs::path& folder, IsWanted isWanted) {
    std::error_code error;
    fs::directory_iterator entry(folder, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        const std::optional<TermAndRest> found = TermIn(name);
        if (found && isWanted(found->rest)) {
            terms.insert(found->term);
        }
    }
    return !error || error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory;
}

} // namespace

std::optional<std::string> BytesOf(const fs::path& path) {
    std::error_code error;
    if (!fs::is_regular_file(path, error)) {
        return std::nullopt;
    }
    try {
        return FileBytes(path.string());
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

bool IsThere(const fs::path& path) {
    std::error_code error;
    return fs::status(path, error).type() != fs::file_type::not_found;
}

int WholeRecordsOf(const RecordFile& file) {
    int whole = std::numeric_limits<int>::max();
    for (const RecordField& field : file.fields) {
        whole = std::min(whole, field.list->Count());
    }
    return whole;
}

ReadFile ReadBytes(const RecordFile& file, std::string_view bytes) {
    ReadFile read{.file = file};
    for (const RecordField& field : file.fields) {
        field.list->Clear();
    }
    *file.nextId = 1;
    std::vector<int> finished;
    try {
        read.complete = ScanRecords(file, bytes, finished, &read.trace);
    } catch (const RunTimeError& error) {
        read.fault = error.what();
        read.complete = false;
    }
    read.records = WholeRecordsOf(file);
    return read;
}

int LineOf(const ReadFile& read, std::size_t field, int position) {
    const std::vector<LineRange>& lines = read.trace.values[field];
    const auto index = static_cast<std::size_t>(position - 1);
    return index < lines.size() ? lines[index].first : 0;
}

std::size_t FieldIndex(const RecordFile& file, std::string_view tag) {
    const auto found = std::ranges::find(file.fields, tag, &RecordField::tag);
    return static_cast<std::size_t>(found - file.fields.begin());
}

std::string NameOf(const RecordFile& file, int position) {
    return position <= file.named->Count() ? file.named->Item(position) : std::string{};
}

Finding FindingAt(const ReadFile& read, std::size_t field, int position) {
    return {.file = read.file.name,
            .line = LineOf(read, field, position),
            .record = position,
            .name = NameOf(read.file, position),
            .field = std::string(read.file.fields[field].tag)};
}

TermsFound TermsWithAssignmentFiles() {
    std::set<int> terms;
    const bool all = AddTerms(terms, DataFolder, [](std::string_view rest) {
        return rest == Extension || rest == WaitingExtension;
    });
    return {{terms.begin(), terms.end()}, all};
}

TermsFound TermsWithAssignmentCopies() {
    std::set<int> terms;
    const bool allWaiting =
        AddTerms(terms, DataFolder, [](std::string_view rest) { return rest == WaitingExtension; });
    const bool allBackups =
        AddTerms(terms, BackupFolder, [](std::string_view rest) { return rest.starts_with("_backup"); });
    return {{terms.begin(), terms.end()}, allWaiting && allBackups};
}

std::optional<RecordFile> RecordFileNamed(std::string_view name) {
    const std::string whole = std::string(name) + std::string(name.ends_with(Extension) ? "" : Extension);
    if (const std::optional<TermAndRest> found = TermIn(whole); found && found->rest == Extension) {
        ActiveTermID = found->term;
        return AssignmentFile();
    }
    for (const RecordFile& file : {TermFile(), ClassFile(), TaskFile(), EventFile()}) {
        if (file.name == whole) {
            return file;
        }
    }
    return std::nullopt;
}
