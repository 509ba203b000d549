// Record files as text: the tags, and all that a kind's lists hold.
#pragma once

#include "core/TextFiles.h"
#include "persistence/modIO.h"

std::string OpeningTag(std::string_view tag);
std::string ClosingTag(std::string_view tag);

// The date with "/" in place of every "." and "-".
std::string WithSlashes(std::string_view date);

// Writes the whole file with so many records of its lists: deleted ones too, every field on a line of its
// own, values as they are. Raises the run-time error when a list is shorter than that, or the writing fails.
void WriteRecords(OutputFile& output, const RecordFile& file, int records);
