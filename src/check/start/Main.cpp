// plancheck: tells what is at fault in a drive's files, shows their backups, and gets one back.
#include "check/Commands.h"

#include "platform/Process.h"

#include <cstdio>
#include <string>
#include <vector>

int main(int argc, char** argv) {
    IgnoreFileSizeSignal();
    const CommandResult result = RunCommand(std::vector<std::string>(argv + 1, argv + argc));
    std::fwrite(result.output.data(), 1, result.output.size(), stdout);
    std::fwrite(result.errors.data(), 1, result.errors.size(), stderr);
    return result.status;
}
