// A smart drive in a folder of its own for a test, gone with it.
#pragma once

#include <filesystem>
#include <string>

// The folder below which drives are made: in memory where the system has such a folder, since every save
// waits for its device, else the one for temporary files.
std::filesystem::path FolderOfDrives();

// Sets the four variables of the drive to folders below a new temporary one. The planner's folders are not
// made yet. Its end restores the current folder and removes all of it.
struct TemporaryDrive {
    explicit TemporaryDrive(const std::filesystem::path& parent = FolderOfDrives());
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
