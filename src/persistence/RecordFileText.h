// Record files as text: the tags, and all that a kind's lists hold.
#pragma once

#include "persistence/modIO.h"

inline constexpr std::string_view RecordFileHeader = R"(<?xml version="1.0" encoding="ISO-8859-1"?>)";

std::string OpeningTag(std::string_view tag);
std::string ClosingTag(std::string_view tag);

// The whole file: every record, deleted ones too, every field on a line of its own, values as they are.
// Raises the run-time error when a list is shorter than the one whose count tells the number of records.
std::string RecordFileText(const RecordFile& file);
