// The link between two instances, through a real lock file and a real socket in a runtime folder of its own.
#include "platform/InstanceLink.h"

#include "support/ChildProcess.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLocalSocket>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

#include <cerrno>
#include <future>
#include <sys/syscall.h>
#include <thread>

namespace {

// In a process of its own, with its own runtime folder.
bool SucceedsAlone(const std::function<void(const QTemporaryDir& folder)>& expectations) {
    return SucceedsInChild([&] {
        const QTemporaryDir folder;
        qputenv("XDG_RUNTIME_DIR", folder.path().toUtf8());
        int argc = 0;
        const QCoreApplication application(argc, nullptr);
        expectations(folder);
    });
}

// The same: the expectations run beside a first instance that answers so and remembers what it was told.
struct FirstInstance {
    bool accepts = true;
    std::vector<std::string> commands{};
};

void BesideAFirstInstance(FirstInstance first, const std::function<void(FirstInstance&)>& expectations) {
    EXPECT_TRUE(SucceedsAlone([&](const QTemporaryDir&) {
        ASSERT_TRUE(ClaimFirstInstance());
        ASSERT_TRUE(ReceiveLinkCommands("Planovarium", "Transfer Control", [&](const std::string& command) {
            first.commands.push_back(command);
            return first.accepts;
        }));
        std::thread second([&] {
            expectations(first);
            QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
        });
        QCoreApplication::exec();
        second.join();
    }));
}

LinkResult TakeControl() {
    return SendLinkCommand("Planovarium", "Transfer Control", "Take Control");
}

// What the first instance answers to these bytes.
QByteArray AnswerTo(const QByteArray& bytes) {
    QLocalSocket socket;
    socket.connectToServer(qEnvironmentVariable("XDG_RUNTIME_DIR") + "/planovarium.socket");
    socket.write(bytes);
    socket.waitForDisconnected(3000);
    return socket.readAll();
}

} // namespace

TEST(InstanceLink, CarriesTheCommandAndItsAcceptance) {
    BesideAFirstInstance({}, [](FirstInstance& first) {
        EXPECT_EQ(TakeControl(), LinkResult::Accepted);
        EXPECT_EQ(SendLinkCommand("Planovarium", "Transfer Control", "anything"), LinkResult::Accepted);
        EXPECT_EQ(first.commands, (std::vector<std::string>{"Take Control", "anything"}));
    });
}

TEST(InstanceLink, CarriesTheRefusal) {
    BesideAFirstInstance({.accepts = false},
                         [](FirstInstance&) { EXPECT_EQ(TakeControl(), LinkResult::Refused); });
}

TEST(InstanceLink, RefusesAnotherApplicationOrTopicWithoutAsking) {
    BesideAFirstInstance({}, [](FirstInstance& first) {
        EXPECT_EQ(SendLinkCommand("Another", "Transfer Control", "Take Control"), LinkResult::Refused);
        EXPECT_EQ(SendLinkCommand("Planovarium", "Other", "Take Control"), LinkResult::Refused);
        EXPECT_TRUE(first.commands.empty());
    });
}

TEST(InstanceLink, HangsUpOnARequestWithoutAnEnd) {
    BesideAFirstInstance({}, [](FirstInstance& first) {
        EXPECT_EQ(AnswerTo(QByteArray(2000, 'x')), QByteArray());
        EXPECT_EQ(AnswerTo("Planovarium|Transfer Control\nTake Control\n"), QByteArray("accepted\n"));
        EXPECT_EQ(first.commands, std::vector<std::string>{"Take Control"});
    });
}

TEST(InstanceLink, HasOneFirstInstanceAtATime) {
    BesideAFirstInstance(
        {}, [](FirstInstance&) { EXPECT_TRUE(SucceedsInChild([] { EXPECT_FALSE(ClaimFirstInstance()); })); });
}

TEST(InstanceLink, TakesOverWhatADeadInstanceLeft) {
    EXPECT_TRUE(SucceedsAlone([](const QTemporaryDir& folder) {
        EXPECT_TRUE(SucceedsInChild([] { EXPECT_TRUE(ClaimFirstInstance()); })); // and goes without a word
        EXPECT_TRUE(QFile::exists(folder.filePath("planovarium.lock")));
        EXPECT_TRUE(ClaimFirstInstance());
    }));
}

TEST(InstanceLink, TakesOverTheEmptyLockFileOfAnInstanceThatDiedAsItStarted) {
    EXPECT_TRUE(SucceedsAlone([](const QTemporaryDir& folder) {
        QFile lock(folder.filePath("planovarium.lock"));
        ASSERT_TRUE(lock.open(QIODevice::WriteOnly));
        lock.close();
        EXPECT_TRUE(ClaimFirstInstance());
        EXPECT_TRUE(SucceedsInChild([] { EXPECT_FALSE(ClaimFirstInstance()); }));
    }));
}

TEST(InstanceLink, WaitsForAFirstInstanceThatDoesNotListenYet) {
    EXPECT_TRUE(SucceedsAlone([](const QTemporaryDir&) {
        std::promise<void> knocks;
        LinkResult result = LinkResult::Failed;
        std::thread second([&] {
            knocks.set_value();
            result = TakeControl();
            QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
        });
        knocks.get_future().wait();
        // Time enough for some knocks at a closed door.
        QTimer::singleShot(200, qApp, [] {
            ReceiveLinkCommands("Planovarium", "Transfer Control", [](const std::string&) { return true; });
        });
        QCoreApplication::exec();
        second.join();
        EXPECT_EQ(result, LinkResult::Accepted);
    }));
}

TEST(InstanceLink, FailsWithoutAFirstInstance) {
    EXPECT_TRUE(SucceedsAlone([](const QTemporaryDir&) { EXPECT_EQ(TakeControl(), LinkResult::Failed); }));
}

TEST(InstanceLink, HasOneInstanceADriveWhereverItsUserRunsIt) {
    EXPECT_TRUE(SucceedsAlone([](const QTemporaryDir&) {
        const QTemporaryDir drive;
        const QTemporaryDir otherDrive;
        EXPECT_TRUE(ClaimDrive(drive.path().toStdString()));
        EXPECT_TRUE(SucceedsAlone([&](const QTemporaryDir&) {
            EXPECT_TRUE(ClaimFirstInstance());
            EXPECT_FALSE(ClaimDrive(drive.path().toStdString()));
            EXPECT_TRUE(ClaimDrive(otherDrive.path().toStdString()));
        }));
        EXPECT_TRUE(QDir(drive.path()).isEmpty()) << "the lock is no file";
    }));
}

TEST(InstanceLink, AnotherUserFindsTheDriveTaken) {
    EXPECT_TRUE(SucceedsAlone([](const QTemporaryDir&) {
        const QTemporaryDir drive;
        ASSERT_TRUE(QFile::setPermissions(drive.path(), QFile::Permissions(0x7755)));
        ASSERT_TRUE(ClaimDrive(drive.path().toStdString()));
        EXPECT_TRUE(SucceedsInChild([&] {
            DropPrivileges();
            EXPECT_FALSE(ClaimDrive(drive.path().toStdString()));
        }));
    }));
}

TEST(InstanceLink, ADeadInstancesDriveIsFree) {
    EXPECT_TRUE(SucceedsAlone([](const QTemporaryDir&) {
        const QTemporaryDir drive;
        EXPECT_TRUE(SucceedsInChild([&] { EXPECT_TRUE(ClaimDrive(drive.path().toStdString())); }));
        EXPECT_TRUE(ClaimDrive(drive.path().toStdString()));
    }));
}

TEST(InstanceLink, ADriveThatCannotBeHeldIsNobodys) {
    EXPECT_TRUE(SucceedsAlone([](const QTemporaryDir&) {
        const QTemporaryDir drive;
        ASSERT_TRUE(ClaimDrive(drive.path().toStdString()));
        EXPECT_TRUE(ClaimDrive("/no/such/folder"));
        for (const int error : {ENOLCK, EOPNOTSUPP}) {
            EXPECT_TRUE(SucceedsInChild([&] {
                FailSystemCall(SYS_flock, error);
                EXPECT_TRUE(ClaimDrive(drive.path().toStdString()));
            }));
        }
    }));
}
