// Processes, environment and signals of the operating system.
#include "platform/Process.h"

#include "support/ChildProcess.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

TEST(Process, BeyondTheLimitOfAFilesSizeFailsToWriteAndLivesOn) {
    EXPECT_TRUE(SucceedsInChild([] {
        std::FILE* file = std::tmpfile();
        ASSERT_NE(file, nullptr);
        IgnoreFileSizeSignal();
        const rlimit limit{4, 4};
        ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
        EXPECT_EQ(::write(::fileno(file), "abcdef", 6), 4);
        EXPECT_EQ(::write(::fileno(file), "ef", 2), -1);
        EXPECT_EQ(errno, EFBIG);
    }));
}

TEST(Process, VariableThatIsNotSetIsEmpty) {
    ::unsetenv("PLANOVARIUM_NO_SUCH_VARIABLE");
    EXPECT_EQ(EnvironmentValue("PLANOVARIUM_NO_SUCH_VARIABLE"), "");
    ::setenv("PLANOVARIUM_NO_SUCH_VARIABLE", "a b", 1);
    EXPECT_EQ(EnvironmentValue("PLANOVARIUM_NO_SUCH_VARIABLE"), "a b");
    ::unsetenv("PLANOVARIUM_NO_SUCH_VARIABLE");
}

TEST(Process, PathOfAVariableBecomesAbsoluteAndAnEmptyOneStays) {
    EXPECT_TRUE(SucceedsInChild([] {
        ASSERT_EQ(::chdir("/usr"), 0);
        for (const auto& [given, made] : {std::pair{"lib", "/usr/lib"}, std::pair{"/tmp/a b", "/tmp/a b"},
                                          std::pair{"../tmp", "/usr/../tmp"}, std::pair{"", ""}}) {
            ::setenv("PLANOVARIUM_PATH", given, 1);
            MakePathAbsolute("PLANOVARIUM_PATH");
            EXPECT_EQ(EnvironmentValue("PLANOVARIUM_PATH"), made);
        }
        MakePathAbsolute("PLANOVARIUM_NO_SUCH_VARIABLE");
        EXPECT_EQ(std::getenv("PLANOVARIUM_NO_SUCH_VARIABLE"), nullptr);
    }));
}

TEST(Process, ExistsUntilItHasEnded) {
    EXPECT_TRUE(ProcessExists(ProcessNumber()));
    const pid_t child = ::fork();
    if (child == 0) {
        ::_exit(0);
    }
    EXPECT_TRUE(ProcessExists(child)) << "nobody has asked how it ended";
    ASSERT_EQ(::waitpid(child, nullptr, 0), child);
    EXPECT_FALSE(ProcessExists(child));
    for (const long none : {0L, -1L, 1L << 40}) {
        EXPECT_FALSE(ProcessExists(none));
    }
}

TEST(Process, OfAnotherUserExistsToo) {
    EXPECT_TRUE(SucceedsInChild([] {
        DropPrivileges();
        ASSERT_EQ(::kill(1, 0), -1);
        ASSERT_EQ(errno, EPERM);
        EXPECT_TRUE(ProcessExists(1));
    }));
}

TEST(Process, StartupFolderIsThatOfTheDesktopSession) {
    EXPECT_TRUE(SucceedsInChild([] {
        ::setenv("XDG_CONFIG_HOME", "/tmp/config", 1);
        EXPECT_EQ(StartupFolder(), "/tmp/config/autostart");
    }));
}

TEST(Process, ThatCannotBeStartedHasNoNumber) {
    EXPECT_EQ(StartProcess("/no/such/program", {}), 0);
}

TEST(Process, StartedHasANumber) {
    EXPECT_GT(StartProcess("/bin/true", {"argument"}), 0);
}

TEST(Process, FileIsHandedToTheDeviceOrNot) {
    std::FILE* file = std::tmpfile();
    ASSERT_NE(file, nullptr);
    std::fputs("text", file);
    EXPECT_TRUE(SyncToDevice(file));
    std::fclose(file);
    std::FILE* full = std::fopen("/dev/full", "w");
    ASSERT_NE(full, nullptr);
    std::fputs("text", full);
    EXPECT_FALSE(SyncToDevice(full));
    std::fclose(full);
}

TEST(Process, FolderIsHandedToTheDeviceOrNot) {
    EXPECT_TRUE(SyncFolder("/tmp"));
    EXPECT_FALSE(SyncFolder("/no/such/folder"));
    EXPECT_FALSE(SyncFolder("/dev/null"));
    EXPECT_TRUE(SucceedsInChild([] {
        FailSystemCall(SYS_fsync, EIO);
        EXPECT_FALSE(SyncFolder("/tmp"));
    }));
}
