// What the check tells, as text for a person and as JSON for a program. Both are UTF-8.
#pragma once

#include "check/Generations.h"
#include "check/faults/DriveCheck.h"

#include <string>
#include <vector>

// The store's text in UTF-8.
std::string Utf8(std::string_view text);

// A line for each finding, and one that sums up.
std::string CheckText(const CheckResult& result);
std::string CheckJson(const CheckResult& result);

// A line for each copy and what differs, under the name of its file.
std::string CopiesText(const std::vector<FileCopy>& copies);
std::string CopiesJson(const std::vector<FileCopy>& copies);
