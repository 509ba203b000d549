// Record files as text: the tags, and all that a kind's lists hold.
#pragma once

#include "core/TextFiles.h"
#include "persistence/modIO.h"

std::string OpeningTag(std::string_view tag);
std::string ClosingTag(std::string_view tag);

// What stands around the value of a field.
struct FieldFrame {
    std::string opening;
    std::string closing;
};

// The tags of each field, with that text before the opening and behind the closing one.
std::vector<FieldFrame> FramesOf(const std::vector<RecordField>& fields, std::string_view before = {},
                                 std::string_view behind = {});

// The date with "/" in place of every "." and "-".
std::string WithSlashes(std::string_view date);

// Writes the whole file with so many records of its lists: deleted ones too, every field on a line of its
// own, values as they are. Raises the run-time error when a list is shorter than that, or the writing fails.
void WriteRecords(OutputFile& output, const RecordFile& file, int records);
