// The scan of a record file's bytes into the lists of its kind: lines, tags and values by hand, since such a
// file only looks like XML.
#include "persistence/RecordScanner.h"

#include "core/TextFiles.h"
#include "core/Values.h"
#include "persistence/RecordFileText.h"

#include <algorithm>

namespace {

// What is left of the file, and how many lines were taken off it.
struct LinesLeft {
    std::string_view text;
    int taken = 0;
};

std::optional<std::string_view> Take(LinesLeft& lines) {
    ++lines.taken;
    return TakeLine(lines.text);
}

std::string_view NextLine(LinesLeft& lines) {
    const std::optional<std::string_view> line = Take(lines);
    if (!line) {
        throw RunTimeError("Input past the end of the file");
    }
    return *line;
}

void Note(ScanTrace* trace, ScanStep step, int line, std::string_view tag = {}) {
    if (trace != nullptr) {
        trace->step = step;
        trace->line = line;
        trace->tag = tag;
    }
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
    if (field.rule == FieldRule::DateText) {
        field.list->Add(WithSlashes(Trim(value)));
        return;
    }
    field.list->values.emplace_back(value); // made in its place, without a text that is moved there
    if (field.rule == FieldRule::Id) {
        RaiseCounter(*file.nextId, value);
    }
}

bool IsRecordTag(const RecordFile& file, std::string_view line) {
    const std::string_view trimmed = Trim(line);
    return trimmed == OpeningTag(file.record) || trimmed == ClosingTag(file.record);
}

// What the fields of a file have in common as they are read.
struct FieldReading {
    std::vector<FieldFrame> frames; // of the fields in the order of the table
    std::size_t expected = 0;       // the place in the table of the field that should come next
    std::string text;               // of a field over several lines, kept from field to field for its memory
};

// Reads a field that is what nearly all are: the next of the table, whole on its line. Gives false for any
// other line, and takes nothing of it.
bool ReadExpectedField(const RecordFile& file, std::string_view line, FieldReading& reading) {
    if (reading.expected == reading.frames.size()) {
        return false;
    }
    const auto& [opening, closing] = reading.frames[reading.expected];
    if (!line.starts_with(opening) || !line.ends_with(closing)) { // of which none can overlap the other
        return false;
    }
    line.remove_prefix(opening.size());
    line.remove_suffix(closing.size());
    AddValue(file, file.fields[reading.expected], line);
    ++reading.expected;
    return true;
}

// A field runs on over the lines behind its first until one ends with its closing tag. An unknown one is
// dropped.
void ReadField(const RecordFile& file, std::string_view firstLine, LinesLeft& lines, FieldReading& reading,
               ScanTrace* trace) {
    const int first = lines.taken;
    Note(trace, ScanStep::Tag, first);
    const std::string_view tag = TagOf(firstLine);
    Note(trace, ScanStep::Field, first, tag);
    std::string_view text = firstLine;
    bool overRecordTag = false;
    while (!EndsWithClosingTag(text, tag)) {
        const std::string_view line = NextLine(lines);
        overRecordTag = overRecordTag || (trace != nullptr && IsRecordTag(file, line));
        if (text.data() == firstLine.data()) {
            reading.text = firstLine;
        }
        text = reading.text.append(LineEnd).append(line);
    }
    Note(trace, ScanStep::Value, first, tag);
    const auto field = std::ranges::find(file.fields, tag, &RecordField::tag);
    if (field == file.fields.end()) {
        if (trace != nullptr) {
            trace->dropped.push_back({std::string(tag), {first, lines.taken}});
        }
        return;
    }
    const auto place = static_cast<std::size_t>(field - file.fields.begin());
    reading.expected = place + 1;
    if (trace != nullptr) {
        trace->values[place].push_back({first, lines.taken});
        if (overRecordTag) {
            trace->swallowing.push_back({std::string(tag), {first, lines.taken}});
        }
    }
    const std::size_t opening = tag.size() + 2;
    const std::size_t closing = tag.size() + 3;
    AddValue(file, *field, text.substr(opening, text.size() - opening - closing));
}

void NoteCounts(const RecordFile& file, std::vector<int>& counts) {
    for (const RecordField& field : file.fields) {
        counts.push_back(field.list->Count());
    }
}

void NoteRecordTag(ScanTrace* trace, bool opens, int line) {
    if (trace == nullptr) {
        return;
    }
    if (opens) {
        trace->records.push_back({line, 0});
    } else {
        trace->records.back().last = line;
    }
}

void ReadHead(const RecordFile& file, LinesLeft& lines, ScanTrace* trace) {
    Note(trace, ScanStep::Header, 1);
    NextLine(lines); // the header is not looked at
    Note(trace, ScanStep::Root, 2);
    const std::string_view root = Trim(NextLine(lines));
    if (!root.empty() && root != OpeningTag(file.root)) {
        throw RunTimeError("Not the root of the file", root);
    }
}

} // namespace

bool ScanRecords(const RecordFile& file, std::string_view bytes, std::vector<int>& finished,
                 ScanTrace* trace) {
    LinesLeft lines{bytes};
    if (trace != nullptr) {
        trace->values.resize(file.fields.size());
    }
    ReadHead(file, lines, trace);
    const std::string rootEnd = ClosingTag(file.root);
    const std::string recordStart = OpeningTag(file.record);
    const std::string recordEnd = ClosingTag(file.record);
    FieldReading reading;
    reading.frames = FramesOf(file.fields);
    bool betweenRecords = true;
    int rootClosed = 0;
    while (const std::optional<std::string_view> line = Take(lines)) {
        const std::string_view trimmed = Trim(*line);
        if (trimmed.empty() || (trace == nullptr && ReadExpectedField(file, LeftTrim(*line), reading))) {
            continue;
        }
        if (trimmed == rootEnd) {
            rootClosed = lines.taken; // it ends nothing: lines behind it are read on
        } else if (trimmed == (betweenRecords ? recordStart : recordEnd)) {
            NoteRecordTag(trace, betweenRecords, lines.taken);
            reading.expected = 0;
            betweenRecords = !betweenRecords;
            finished.clear();
            if (!betweenRecords) {
                NoteCounts(file, finished);
            }
        } else {
            ReadField(file, LeftTrim(*line), lines, reading, trace);
        }
        if (trace != nullptr) {
            trace->lastLine = lines.taken;
            trace->rootClosed = rootClosed;
        }
    }
    Note(trace, ScanStep::End, lines.taken - 1);
    return rootClosed != 0 && betweenRecords;
}
