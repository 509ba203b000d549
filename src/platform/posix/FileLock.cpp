// Locks on files and folders, and the one that keeps a drive to one planner.
#include "platform/posix/FileLock.h"

#include "platform/InstanceLink.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

Lock LockForLife(const std::string& path, int flags) {
    const int file = ::open(path.c_str(), flags | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file < 0) {
        return Lock::Impossible;
    }
    if (::flock(file, LOCK_EX | LOCK_NB) == 0) {
        return Lock::Taken;
    }
    const bool held = errno == EWOULDBLOCK;
    ::close(file);
    return held ? Lock::HeldByAnother : Lock::Impossible;
}

bool ClaimDrive(const std::string& folder) {
    return LockForLife(folder, O_RDONLY | O_DIRECTORY) != Lock::HeldByAnother;
}
