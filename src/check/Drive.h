// Which drive is asked for, and whether a planner is at work on it.
#pragma once

#include <filesystem>
#include <string>

// Sets DocumentFolder, DataFolder and BackupFolder to those of the drive. The text names the drive, its
// document folder or the data folder; without one the drive's variables tell it, else the place of this
// program. False where no data folder is there.
bool FindDrive(const std::string& text);

// Why nothing may be changed: a planner has the drive, or a process that may be looked at was started for it.
// Empty where there is neither; then this process holds the drive until its end, and no planner starts on it.
std::string WhyInUse();
