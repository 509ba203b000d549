// Runs the step that lays out a smart drive, for the tests of that step and of the drive that comes with the
// program.
#pragma once

#include <filesystem>
#include <string>

inline const std::filesystem::path SampleDrive = std::filesystem::path(PLANOVARIUM_SOURCE_DIR) / "drive";

struct LayoutResult {
    bool succeeded = false;
    std::string output; // what the step said, errors included
};

// Lays the source out in the target; for today where the day ("2009-10-14") is empty.
LayoutResult LayOutDrive(const std::filesystem::path& source, const std::filesystem::path& target,
                         const std::string& day);

// Brings the program folder of the drive in the target up to that of the source.
LayoutResult RenewDrive(const std::filesystem::path& source, const std::filesystem::path& target);

// Brings the program into the program folder of the drive in the target.
LayoutResult BringProgram(const std::filesystem::path& program, const std::filesystem::path& target);

std::string BytesOf(const std::filesystem::path& file);
