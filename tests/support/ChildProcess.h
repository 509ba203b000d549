// Tests that spoil their process (system calls that fail, limits, another user) run in a child of it.
#pragma once

#include <functional>

// Runs the procedure in a child process. True when it came to its end and no expectation in it failed.
bool SucceedsInChild(const std::function<void()>& procedure);

// From here on the system call of that number fails with the error in this process, and in nothing else.
void FailSystemCall(int number, int error);

// Becomes a user without privileges where the process has them, so that a read-only folder is one.
void DropPrivileges();

// Runs the procedure in a child process that is killed as it enters or leaves a system call for the given
// time. True when it was, false when the procedure came to its end before that.
bool KilledAtStop(int stop, const std::function<void()>& procedure);
