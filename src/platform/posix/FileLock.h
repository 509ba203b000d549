// Locks on files and folders that end with their process, whichever way that ends.
#pragma once

#include <string>

enum class Lock { Taken, HeldByAnother, Impossible };

// Takes the lock on a file or folder, opened with those flags, for as long as this process lives.
Lock LockForLife(const std::string& path, int flags);
