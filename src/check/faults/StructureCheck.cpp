// Faults in the form of a record file: tags that are missing, doubled, unknown or not closed, and what they
// cost.
#include "check/faults/StructureCheck.h"

#include "core/Values.h"
#include "persistence/FaultText.h"
#include "persistence/RecordFileText.h"

#include <algorithm>

namespace {

std::string LinesText(LineRange lines) {
    return lines.first == lines.last
               ? "line " + std::to_string(lines.first)
               : "lines " + std::to_string(lines.first) + " to " + std::to_string(lines.last);
}

// The record whose lines hold the line, from 1 on; 0 outside of all.
int RecordAt(const ScanTrace& trace, int line) {
    const auto behind = std::ranges::upper_bound(trace.records, line, {}, &LineRange::first);
    if (behind == trace.records.begin()) {
        return 0;
    }
    const LineRange& record = *(behind - 1);
    return record.last == 0 || line <= record.last ? static_cast<int>(behind - trace.records.begin()) : 0;
}

std::string FaultOfStep(const ReadFile& read) {
    const ScanTrace& trace = read.trace;
    switch (trace.step) {
    case ScanStep::Header:
        return "the file is empty";
    case ScanStep::Root:
        return "the second line is not " + OpeningTag(read.file.root);
    case ScanStep::Tag:
        return "the line has no \">\", or only behind its 32767th character, so it is no field";
    case ScanStep::Field:
        return "the field is not closed: no line behind it ends with " + ClosingTag(trace.tag);
    case ScanStep::Value:
        return read.fault;
    case ScanStep::End:
        break;
    }
    return {};
}

std::string MeaningOfFailure(const ReadFile& read) {
    std::string text =
        "The planner stops reading here with the message \"Error reading the file: " + read.file.name +
        "\". It has " + Counted(read.records, "record") + " of it; all that stands behind is lost to it";
    if (read.file.kind == "terms") {
        text += ", and it does not read the classes";
    }
    return text + ".";
}

// The record of the value at which the scan stopped is the one that its list ends with.
int FailedRecord(const ReadFile& read) {
    if (read.trace.step == ScanStep::Value) {
        return read.file.fields[FieldIndex(read.file, read.trace.tag)].list->Count();
    }
    return RecordAt(read.trace, read.trace.line);
}

void TellFailure(const ReadFile& read, Findings& findings) {
    const int record = FailedRecord(read);
    const bool inField = read.trace.step == ScanStep::Field || read.trace.step == ScanStep::Value;
    findings.push_back({.file = read.file.name,
                        .line = read.trace.line,
                        .record = record,
                        .name = record == 0 ? "" : NameOf(read.file, record),
                        .field = inField ? read.trace.tag : "",
                        .fault = FaultOfStep(read),
                        .meaning = MeaningOfFailure(read)});
}

// A record's opening tag within a record, where it is read as a field up to the record's closing tag.
void TellSwallowedRecord(const ReadFile& read, const TaggedLines& dropped, Findings& findings) {
    const int record = RecordAt(read.trace, dropped.lines.first);
    const int opened = record == 0 ? 0 : read.trace.records[static_cast<std::size_t>(record - 1)].first;
    const bool doubled = opened + 1 == dropped.lines.first;
    findings.push_back(
        {.file = read.file.name,
         .line = dropped.lines.first,
         .record = record,
         .fault = doubled ? "the tag " + OpeningTag(dropped.tag) + " is doubled"
                          : "the record of line " + std::to_string(opened) + " is not closed with " +
                                ClosingTag(dropped.tag) + " before the next one begins",
         .meaning = "The planner swallows " + LinesText(dropped.lines) + ": it reads no record of them."});
}

void TellDropped(const ReadFile& read, const TaggedLines& dropped, Findings& findings) {
    if (dropped.tag == read.file.record) {
        TellSwallowedRecord(read, dropped, findings);
        return;
    }
    const bool isRoot = dropped.tag == read.file.root;
    findings.push_back({.file = read.file.name,
                        .line = dropped.lines.first,
                        .record = RecordAt(read.trace, dropped.lines.first),
                        .field = isRoot ? "" : dropped.tag,
                        .fault = isRoot ? "the tag " + OpeningTag(dropped.tag) + " stands too late"
                                        : "the planner knows no field " + QuotedBeginning(dropped.tag),
                        .meaning = "The planner drops " + LinesText(dropped.lines) +
                                   " without a message, and the next save leaves them out."});
}

void TellSwallowing(const ReadFile& read, const TaggedLines& field, Findings& findings) {
    const int record = RecordAt(read.trace, field.lines.first);
    findings.push_back({.file = read.file.name,
                        .line = field.lines.first,
                        .record = record,
                        .name = record == 0 ? "" : NameOf(read.file, record),
                        .field = field.tag,
                        .fault = "the field takes " + LinesText(field.lines) + ", with the end of its record",
                        .meaning = "The line does not end with " + ClosingTag(field.tag) +
                                   ", and blanks behind it count: the planner reads on to the next line that "
                                   "does, and makes one record of two."});
}

// How often the field stands in the record; the place goes on behind the record's values.
int ValuesIn(const std::vector<LineRange>& values, const LineRange& record, std::size_t& place) {
    int count = 0;
    while (place < values.size() && (record.last == 0 || values[place].first <= record.last)) {
        count += values[place].first >= record.first ? 1 : 0;
        ++place;
    }
    return count;
}

bool IsOutOfStep(const RecordFile& file) {
    return std::ranges::any_of(file.fields, [&file](const RecordField& field) {
        return field.list->Count() != file.fields.front().list->Count();
    });
}

void TellMissing(const ReadFile& read, std::size_t field, std::size_t record, int count, Findings& findings) {
    const LineRange& lines = read.trace.records[record];
    const bool missing = count == 0;
    findings.push_back(
        {.file = read.file.name,
         .line = lines.first,
         .record = static_cast<int>(record) + 1,
         .name = NameOf(read.file, static_cast<int>(record) + 1),
         .field = std::string(read.file.fields[field].tag),
         .fault = missing ? "the record lacks this field"
                          : "the record has this field " + std::to_string(count) + " times",
         .meaning =
             "The lists of the file are out of step: behind this record the values of the field belong "
             "to other records, and the planner cannot save the file."});
}

// Which records make the lists of the kind unequal. The last one may be open where the file was cut.
void TellUnequalLists(const ReadFile& read, Findings& findings) {
    const ScanTrace& trace = read.trace;
    for (std::size_t field = 0; field < trace.values.size(); ++field) {
        std::size_t place = 0;
        for (std::size_t record = 0; record < trace.records.size(); ++record) {
            const bool cut = trace.records[record].last == 0 && !read.complete;
            const int count = ValuesIn(trace.values[field], trace.records[record], place);
            if (count != 1 && !cut) {
                TellMissing(read, field, record, count, findings);
            }
        }
    }
}

void TellStrayFields(const ReadFile& read, Findings& findings) {
    for (std::size_t field = 0; field < read.trace.values.size(); ++field) {
        for (const LineRange& value : read.trace.values[field]) {
            if (RecordAt(read.trace, value.first) == 0) {
                findings.push_back({.file = read.file.name,
                                    .line = value.first,
                                    .field = std::string(read.file.fields[field].tag),
                                    .fault = "the field stands outside of a record",
                                    .meaning =
                                        "The planner reads it as one of the next record, and the lists "
                                        "of the file are out of step behind it."});
            }
        }
    }
}

void TellCut(const ReadFile& read, Findings& findings) {
    const ScanTrace& trace = read.trace;
    const bool open = !trace.records.empty() && trace.records.back().last == 0;
    findings.push_back(
        {.file = read.file.name,
         .line = open ? trace.records.back().first : trace.lastLine,
         .record = open ? static_cast<int>(trace.records.size()) : 0,
         .name = open ? NameOf(read.file, static_cast<int>(trace.records.size())) : "",
         .fault = open ? "the record is not closed with " + ClosingTag(read.file.record)
                       : "the file ends without " + ClosingTag(read.file.root),
         .meaning = open ? "The file was cut within this record: the planner shows it only if all its fields "
                           "are there, and knows of nothing behind it."
                         : "The file may have been cut behind this line: the planner reads what stands in "
                           "front of it and knows of nothing behind."});
}

} // namespace

void CheckStructure(const ReadFile& read, Findings& findings) {
    for (const TaggedLines& dropped : read.trace.dropped) {
        TellDropped(read, dropped, findings);
    }
    for (const TaggedLines& field : read.trace.swallowing) {
        TellSwallowing(read, field, findings);
    }
    if (IsOutOfStep(read.file)) {
        TellUnequalLists(read, findings);
        TellStrayFields(read, findings);
    }
    if (!read.fault.empty()) {
        TellFailure(read, findings);
    } else if (!read.complete) {
        TellCut(read, findings);
    }
}
