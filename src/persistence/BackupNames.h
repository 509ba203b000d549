// What the files of the backup folder are called.
#pragma once

#include <string>
#include <string_view>

inline constexpr int Generations = 3;

// The name of a record file's backup: "tasks_backup1.xml" is the newest one.
std::string GenerationName(const std::string& fileName, int generation);

// The first name that is free in the backup folder for a copy of the file. With the suffix "_damaged" and no
// first number "tasks_damaged.xml", "tasks_damaged2.xml" and so on; with the first number "1"
// "tasks_damaged1.xml", "tasks_damaged2.xml" and so on.
std::string FreeBackupName(const std::string& fileName, std::string_view suffix,
                           std::string_view firstNumber);
