// Any bytes given to the scanner end in records or in one reading message, and records that were read survive
// a save.
#include "FuzzedDrive.h"

#include "core/DateText.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace {

const TemporaryDrive Drive;

// The kind of file whose root stands in the bytes; terms where none does.
RecordFile KindOf(const std::string& bytes) {
    ActiveTermID = 1;
    for (RecordFile file : {ClassFile(), AssignmentFile(), TaskFile(), EventFile()}) {
        if (bytes.find("<" + file.root + ">") != std::string::npos) {
            return file;
        }
    }
    return TermFile();
}

std::vector<TextList> ListsOf(const RecordFile& file) {
    std::vector<TextList> lists;
    for (const RecordField& field : file.fields) {
        lists.push_back(*field.list);
    }
    return lists;
}

// A date field with any other text is written three times, and its lines may then end with a closing tag.
bool IsDateOrSlashes(const std::string& text) {
    return IsDate(text) || text.find_first_not_of('/') == std::string::npos;
}

bool CanBeSavedWhole(const RecordFile& file) {
    return std::ranges::all_of(file.fields, [&file](const RecordField& field) {
        return field.list->Count() == file.counted->Count() &&
               (field.rule != FieldRule::DateText || std::ranges::all_of(*field.list, IsDateOrSlashes));
    });
}

void RequireSurvival(const RecordFile& file) {
    const std::vector<TextList> before = ListsOf(file);
    Require(SaveRecordFile(file));
    for (const RecordField& field : file.fields) {
        field.list->Clear();
    }
    Require(ScanRecordFile(file));
    const std::vector<TextList> after = ListsOf(file);
    for (std::size_t i = 0; i < file.fields.size(); ++i) {
        Require(file.fields[i].rule == FieldRule::DateText || after[i] == before[i]);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    SetUpDrive();
    const RecordFile file = KindOf(bytes);
    SetDataFile(file.name, bytes);
    const bool read = ScanRecordFile(file);
    Require(Script.boxes.size() == (read ? 0U : 1U));
    Require(*file.nextId >= 1 && *file.nextId <= 32767);
    if (read && CanBeSavedWhole(file)) {
        RequireSurvival(file);
    }
    return 0;
}
