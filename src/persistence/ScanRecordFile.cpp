// The reader of the record files: lines, tags and values by hand, since they only look like XML.
#include "persistence/RecordFileText.h"
#include "persistence/modIO.h"

#include "core/TextFiles.h"
#include "core/Values.h"
#include "platform/Process.h"

#include <algorithm>
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

std::string_view NextLine(std::string_view& rest) {
    const std::optional<std::string_view> line = TakeLine(rest);
    if (!line) {
        throw RunTimeError("Input past the end of the file");
    }
    return *line;
}

// What stands between the line's first character, whatever that is, and its first ">".
std::string_view TagOf(std::string_view line) {
    const std::size_t index = line.find('>');
    if (index >= GreatestInt16) { // the position, from 1 on, has 16 bits; a line without ">" runs past them
        throw RunTimeError("Overflow");
    }
    const std::string_view front = line.substr(0, index);
    return front.substr(std::min<std::size_t>(front.size(), 1));
}

bool EndsWithClosingTag(std::string_view text, std::string_view tag) {
    if (!text.ends_with('>')) {
        return false;
    }
    text.remove_suffix(1);
    if (!text.ends_with(tag)) {
        return false;
    }
    text.remove_suffix(tag.size());
    return text.ends_with("</");
}

void RaiseCounter(int& nextId, std::string_view id) {
    const double number = ToNumber(id);
    if (number >= nextId) {
        nextId = Int16Of(number + 1);
    }
}

void AddValue(const RecordFile& file, const RecordField& field, std::string_view value) {
    field.list->Add(field.rule == FieldRule::DateText ? WithSlashes(Trim(value)) : std::string(value));
    if (field.rule == FieldRule::Id) {
        RaiseCounter(*file.nextId, value);
    }
}

// A field runs on over the lines behind its first until one ends with its closing tag. An unknown one is
// dropped.
void ReadField(const RecordFile& file, std::string_view firstLine, std::string_view& rest,
               std::string& text) {
    const std::string_view tag = TagOf(firstLine);
    text = firstLine;
    while (!EndsWithClosingTag(text, tag)) {
        text.append(LineEnd).append(NextLine(rest));
    }
    const auto field = std::ranges::find(file.fields, tag, &RecordField::tag);
    if (field != file.fields.end()) {
        const std::size_t opening = tag.size() + 2;
        const std::size_t closing = tag.size() + 3;
        AddValue(file, *field, std::string_view(text).substr(opening, text.size() - opening - closing));
    }
}

void NoteCounts(const RecordFile& file, std::vector<int>& counts) {
    for (const RecordField& field : file.fields) {
        counts.push_back(field.list->Count());
    }
}

// Notes the counts of the lists while a record is open. Gives whether the file came to its end.
bool ReadRecords(const RecordFile& file, std::string_view rest, std::vector<int>& finished) {
    NextLine(rest); // the header is not looked at
    const std::string_view root = Trim(NextLine(rest));
    if (!root.empty() && root != OpeningTag(file.root)) {
        throw RunTimeError("Not the root of the file", root);
    }
    const std::string rootEnd = ClosingTag(file.root);
    const std::string recordStart = OpeningTag(file.record);
    const std::string recordEnd = ClosingTag(file.record);
    std::string text; // of the field, kept from field to field for its memory
    bool betweenRecords = true;
    bool rootClosed = false;
    while (const std::optional<std::string_view> line = TakeLine(rest)) {
        const std::string_view trimmed = Trim(*line);
        if (trimmed.empty()) {
            continue;
        }
        if (trimmed == rootEnd) {
            rootClosed = true; // it ends nothing: lines behind it are read on
        } else if (trimmed == (betweenRecords ? recordStart : recordEnd)) {
            betweenRecords = !betweenRecords;
            finished.clear();
            if (!betweenRecords) {
                NoteCounts(file, finished);
            }
        } else {
            ReadField(file, LeftTrim(*line), rest, text);
        }
    }
    return rootClosed && betweenRecords;
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
        read.cutShort = read.toBeKept = !ReadRecords(file, FileBytes(file.name), read.finished);
        return true;
    } catch (const RunTimeError&) {
        ShowFileError(file.name, "reading");
        return false;
    }
}
