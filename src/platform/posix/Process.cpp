// Processes, environment, and files that have to be on their device: what needs no toolkit.
#include "platform/Process.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <limits>
#include <unistd.h>

long ProcessNumber() {
    return ::getpid();
}

bool ProcessExists(long number) {
    return number > 0 && number <= std::numeric_limits<pid_t>::max() &&
           (::kill(static_cast<pid_t>(number), 0) == 0 || errno != ESRCH);
}

std::string EnvironmentValue(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::string{} : std::string(value);
}

void MakePathAbsolute(const char* name) {
    const std::string value = EnvironmentValue(name);
    std::error_code error;
    const std::filesystem::path path = std::filesystem::absolute(value, error);
    if (!value.empty() && !error) {
        ::setenv(name, path.c_str(), 1);
    }
}

void IgnoreFileSizeSignal() {
    std::signal(SIGXFSZ, SIG_IGN);
}

bool SyncToDevice(std::FILE* file) {
    return std::fflush(file) == 0 && ::fsync(::fileno(file)) == 0;
}

bool SyncFolder(const std::filesystem::path& folder) {
    const int opened = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (opened == -1) {
        return false;
    }
    const bool synced = ::fsync(opened) == 0;
    ::close(opened);
    return synced;
}
