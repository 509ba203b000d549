// Tests that spoil their process (system calls that fail, limits, another user) run in a child of it.
#include "support/ChildProcess.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <cstddef>
#include <cstdio>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr uid_t Nobody = 65534;

void Require(bool done, const char* what) {
    if (!done) {
        std::perror(what);
        ::_exit(2);
    }
}

} // namespace

bool SucceedsInChild(const std::function<void()>& procedure) {
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        procedure();
        std::fflush(nullptr);
        ::_exit(testing::Test::HasFailure() ? 1 : 0);
    }
    int status = 0;
    return child > 0 && ::waitpid(child, &status, 0) == child && WIFEXITED(status) &&
           WEXITSTATUS(status) == 0;
}

void FailSystemCall(int number, int error) {
    std::array<sock_filter, 4> filter{{
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<unsigned>(number), 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | static_cast<unsigned>(error)),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    }};
    sock_fprog program{filter.size(), filter.data()};
    Require(::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0, "PR_SET_NO_NEW_PRIVS");
    Require(::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0, "PR_SET_SECCOMP");
}

void DropPrivileges() {
    if (::geteuid() == 0) {
        Require(::setresgid(Nobody, Nobody, Nobody) == 0, "setresgid");
        Require(::setresuid(Nobody, Nobody, Nobody) == 0, "setresuid");
    }
}

bool KilledAtStop(int stop, const std::function<void()>& procedure) {
    const pid_t child = ::fork();
    if (child == 0) {
        ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        ::raise(SIGSTOP);
        procedure();
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSTOPPED(status)) << "a process has to be allowed to trace its child here";
    for (int i = 0; i < stop && WIFSTOPPED(status); ++i) {
        ::ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
        ::waitpid(child, &status, 0);
    }
    if (WIFEXITED(status)) {
        EXPECT_EQ(WEXITSTATUS(status), 0);
        return false;
    }
    ::kill(child, SIGKILL);
    ::waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status));
    return true;
}
