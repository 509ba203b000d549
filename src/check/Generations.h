// The backups of the record files, as they lie in the backup folder.
#pragma once

#include "persistence/modIO.h"
#include "platform/Clock.h"

#include <optional>
#include <string>
#include <vector>

// A copy of a file and what it has beside the present one.
struct FileCopy {
    std::string file; // whose copy it is
    std::string name; // its own
    std::string word; // by which it is restored: "1" to "3", or "waiting"
    std::optional<Moment> written{};
    bool readable = false;
    int records = 0;
    std::vector<std::string> onlyHere{};      // names of records
    std::vector<std::string> onlyInPresent{}; // names of records
    int changed = 0;
};

inline constexpr const char* WaitingWord = "waiting";

// Where the copy of that word lies; empty for a word that names none.
std::filesystem::path PathOfCopy(const RecordFile& file, const std::string& word);

// The copies of the file that are there: what waits first, then the generations, the newest first.
std::vector<FileCopy> CopiesOf(const RecordFile& file);

// Those of all record files, also of assignment files that only have copies.
struct DriveCopies {
    std::vector<FileCopy> copies;
    bool lookedAtAll = true; // false where a copy could not be read, or a folder not be listed
};

DriveCopies AllCopies();
