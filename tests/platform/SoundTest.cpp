// Sounds, as the sound library of the machine is asked for them; one that notes them stands for it.
#include "platform/Sound.h"

#include "support/ChildProcess.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <thread>

namespace {

namespace fs = std::filesystem;

class Sounds : public testing::Test {
protected:
    void SetUp() override {
        fs::remove(log);
        ::setenv("SOUND_LOG", log.c_str(), 1);
        ::unsetenv("SOUND_LASTS");
    }

    void TearDown() override { fs::remove(log); }

    std::string Heard() const {
        std::ifstream file(log);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    static bool WaitUntil(const std::function<bool()>& condition) {
        const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds{5};
        while (!condition() && std::chrono::steady_clock::now() < limit) {
            std::this_thread::yield();
        }
        return condition();
    }

    // Plays the sound again and again until it has been heard as often.
    bool PlayUntilHeard(const std::string& lines) const {
        return WaitUntil([&] {
            if (Heard() != lines) {
                PlaySound("/drive/Reminder.wav");
            }
            return Heard() == lines;
        });
    }

    const fs::path log = fs::temp_directory_path() / ("sounds-" + std::to_string(::getpid()));
};

} // namespace

// What is played once stays with the process, so each test has one of its own.
TEST_F(Sounds, AreAskedForByTheirFile) {
    EXPECT_TRUE(SucceedsInChild([this] {
        PlaySound("/drive/Reminder.wav");
        EXPECT_TRUE(WaitUntil([this] { return Heard() == "/drive/Reminder.wav\n"; })) << Heard();
    }));
}

TEST_F(Sounds, FollowOneThatHasEnded) {
    EXPECT_TRUE(SucceedsInChild([this] {
        EXPECT_TRUE(PlayUntilHeard("/drive/Reminder.wav\n"));
        EXPECT_TRUE(PlayUntilHeard("/drive/Reminder.wav\n/drive/Reminder.wav\n"));
    }));
}

TEST_F(Sounds, DoNotInterruptOneThatIsHeard) {
    EXPECT_TRUE(SucceedsInChild([this] {
        ::setenv("SOUND_LASTS", "1", 1);
        PlaySound("/drive/Reminder.wav");
        ASSERT_TRUE(WaitUntil([this] { return !Heard().empty(); }));
        for (int again = 0; again < 20; ++again) {
            PlaySound("/drive/Other.wav");
        }
        ::unsetenv("SOUND_LASTS");
        EXPECT_EQ(Heard(), "/drive/Reminder.wav\n");
    }));
}

TEST_F(Sounds, ThatCouldNotBeHeardLetTheNextOneBe) {
    EXPECT_TRUE(SucceedsInChild([this] {
        ::unsetenv("SOUND_LOG");
        PlaySound("/drive/Reminder.wav");
        ::setenv("SOUND_LOG", log.c_str(), 1);
        EXPECT_TRUE(PlayUntilHeard("/drive/Reminder.wav\n"));
    }));
}
