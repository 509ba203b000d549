// The records of any bytes of a kind, the present file's, a backup's or those of one that waits, and how two
// of them differ.
#pragma once

#include "persistence/modIO.h"

#include <string>
#include <string_view>
#include <vector>

struct RecordTexts {
    std::string id;
    std::string name;
    std::string all; // of its fields
};

// The whole records of the bytes. The lists of the kind and its counter are as before.
std::vector<RecordTexts> RecordsIn(const RecordFile& file, std::string_view bytes);

// Records are alike by their ids.
struct Difference {
    std::vector<std::string> onlyInFirst;  // names
    std::vector<std::string> onlyInSecond; // names
    int changed = 0;
};

Difference Differ(const std::vector<RecordTexts>& first, const std::vector<RecordTexts>& second);

// The first few names, in quotes, and how many more there are.
std::string NamesText(const std::vector<std::string>& names);
