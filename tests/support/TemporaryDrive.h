// A smart drive in a folder of its own for a test, gone with it.
#pragma once

#include <filesystem>
#include <string>

// Sets the four variables of the drive to folders below a new temporary one. The planner's folders are not
// made yet. Its end restores the current folder and removes all of it.
struct TemporaryDrive {
    TemporaryDrive();
    ~TemporaryDrive();
    TemporaryDrive(const TemporaryDrive&) = delete;
    TemporaryDrive& operator=(const TemporaryDrive&) = delete;

    std::filesystem::path root;
    std::filesystem::path previousFolder;
};

// The bytes of a file of the data folder; a text that says so where there is none.
std::string DataFile(const std::string& name);

// The bytes of a file of the backup folder, likewise.
std::string BackupFile(const std::string& name);

// Makes a file of the data folder with these bytes.
void SetDataFile(const std::string& name, const std::string& bytes);

inline const std::string NoFile = "(no file)";
