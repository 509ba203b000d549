// Changes to the data folder that the student asked for. None of them loses what is there: the present file
// and one that waits are kept beside the backups, under names of their own, before anything is replaced.
#pragma once

#include "persistence/modIO.h"

#include <string>
#include <vector>

// What was done, or why not.
struct ChangeResult {
    bool done = false;
    std::string text{};              // why not, or what is in the file's place now
    std::vector<std::string> kept{}; // names of what was kept in the backup folder
};

// Puts the copy of that word in the file's place.
ChangeResult RestoreFile(const RecordFile& file, const std::string& word);

// Takes the record at the position among the file's records out of the file; its lines, as they stand, go
// into a file of their own.
ChangeResult SetRecordAside(const RecordFile& file, int record);
