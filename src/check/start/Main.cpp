// plancheck: tells what is at fault in a drive's files, shows their backups, and gets one back.
#include "check/Commands.h"

#include "platform/Process.h"

#include <cstdio>
#include <string>
#include <vector>

namespace {

// False where the text could not be told.
bool Tell(std::FILE* stream, const std::string& text) {
    return std::fwrite(text.data(), 1, text.size(), stream) == text.size() && std::fflush(stream) == 0;
}

} // namespace

int main(int argc, char** argv) {
    IgnoreFileSizeSignal();
    const CommandResult result = RunCommand(std::vector<std::string>(argv + 1, argv + argc));
    const bool told = Tell(stdout, result.output);
    return Tell(stderr, result.errors) && told ? result.status : FailedStatus;
}
