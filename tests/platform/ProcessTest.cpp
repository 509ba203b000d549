// Processes, environment and signals of the operating system.
#include "platform/Process.h"

#include "support/ChildProcess.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

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
