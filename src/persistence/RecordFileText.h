// Record files as text: the tags, and all that a kind's lists hold.
#pragma once

#include "persistence/modIO.h"

std::string OpeningTag(std::string_view tag);
std::string ClosingTag(std::string_view tag);

// The whole file with so many records of its lists: deleted ones too, every field on a line of its own,
// values as they are. Raises the run-time error when a list is shorter than that.
std::string RecordFileText(const RecordFile& file, int records);
