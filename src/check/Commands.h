// What plancheck is asked for on its command line.
#pragma once

#include <string>
#include <vector>

// What the process ends with: nothing found, something found, or it could not look or do what it was told.
enum ExitStatus { CleanStatus = 0, FoundStatus = 1, FailedStatus = 2 };

struct CommandResult {
    int status = FailedStatus;
    std::string output{};
    std::string errors{};
};

// Runs what the arguments ask for. Nothing on the drive is changed unless they say so.
CommandResult RunCommand(const std::vector<std::string>& arguments);
