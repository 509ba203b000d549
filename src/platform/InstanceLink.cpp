// The single-instance link: a lock file in the user's runtime folder tells who is first, a local socket
// beside it carries one conversation a connection: the address and the command in two lines, the answer in
// one.
#include "platform/InstanceLink.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QStandardPaths>

#include <memory>

namespace {

constexpr int AnswerMilliseconds = 3000;
constexpr int GreatestRequest = 1024; // bytes; nobody says more
constexpr const char* Accepted = "accepted\n";
constexpr const char* Refused = "refused\n";

struct LinkState {
    std::unique_ptr<QLockFile> lock;
    QLocalServer server;
    QByteArray address;
    std::function<bool(const std::string&)> receive;
};

std::unique_ptr<LinkState> linkState;

QString RuntimeFile(const char* name) {
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty()) {
        folder = QDir::tempPath();
    }
    return folder + QLatin1Char('/') + QLatin1String(name);
}

QString LockName() {
    return RuntimeFile("planovarium.lock");
}

QString SocketName() {
    return RuntimeFile("planovarium.socket");
}

QByteArray AddressLine(std::string_view application, std::string_view topic) {
    return QByteArray::fromStdString(std::string(application) + "|" + std::string(topic));
}

bool HoldsRequest(const QByteArray& bytes) {
    return bytes.count('\n') >= 2;
}

void Answer(QLocalSocket* caller) {
    const QByteArray request = caller->peek(GreatestRequest);
    if (!HoldsRequest(request)) {
        if (request.size() >= GreatestRequest) {
            caller->abort();
        }
        return;
    }
    caller->readAll();
    const QList<QByteArray> lines = request.split('\n');
    const bool accepted = lines[0] == linkState->address && linkState->receive(lines[1].toStdString());
    caller->write(accepted ? Accepted : Refused);
    caller->disconnectFromServer();
}

void MeetCallers() {
    while (QLocalSocket* caller = linkState->server.nextPendingConnection()) {
        QObject::connect(caller, &QLocalSocket::readyRead, caller, [caller] { Answer(caller); });
        QObject::connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
        Answer(caller);
    }
}

} // namespace

bool ClaimFirstInstance() {
    auto state = std::make_unique<LinkState>();
    state->lock = std::make_unique<QLockFile>(LockName());
    state->lock->setStaleLockTime(0); // only a dead owner's lock is taken over, however old a living one's is
    if (!state->lock->tryLock(0) && state->lock->error() == QLockFile::LockFailedError) {
        return false;
    }
    // Callers may already knock while the data is read; they are answered when events are handled again.
    QLocalServer::removeServer(SocketName());
    state->server.setSocketOptions(QLocalServer::UserAccessOption);
    state->server.listen(SocketName());
    linkState = std::move(state);
    return true;
}

LinkResult SendLinkCommand(std::string_view application, std::string_view topic, std::string_view command) {
    const QDeadlineTimer deadline(AnswerMilliseconds);
    const auto remaining = [&deadline] { return static_cast<int>(deadline.remainingTime()); };
    QLocalSocket socket;
    socket.connectToServer(SocketName());
    if (!socket.waitForConnected(remaining())) {
        return LinkResult::Failed;
    }
    socket.write(AddressLine(application, topic) + '\n' + QByteArray::fromStdString(std::string(command)) +
                 '\n');
    while (!socket.canReadLine()) {
        if (!socket.waitForReadyRead(remaining())) {
            return LinkResult::Failed;
        }
    }
    const QByteArray answer = socket.readLine();
    if (answer == Accepted) {
        return LinkResult::Accepted;
    }
    return answer == Refused ? LinkResult::Refused : LinkResult::Failed;
}

bool ReceiveLinkCommands(std::string_view application, std::string_view topic,
                         std::function<bool(const std::string& command)> receive) {
    linkState->address = AddressLine(application, topic);
    linkState->receive = std::move(receive);
    QObject::connect(&linkState->server, &QLocalServer::newConnection, &linkState->server, &MeetCallers);
    QMetaObject::invokeMethod(&linkState->server, &MeetCallers, Qt::QueuedConnection);
    return linkState->server.isListening();
}
