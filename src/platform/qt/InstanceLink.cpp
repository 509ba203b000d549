// The single-instance link: locks on a file in the user's runtime folder and on the drive's folder tell who
// is first, a local socket beside the file carries one conversation a connection: the address and the command
// in two lines, the answer in one. The system gives a lock up with its process, so none is ever stale.
#include "platform/InstanceLink.h"

#include "platform/posix/FileLock.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>

#include <fcntl.h>
#include <memory>

namespace {

constexpr int AnswerMilliseconds = 3000;
constexpr int KnockMilliseconds = 20; // between two tries to connect
constexpr int GreatestRequest = 1024; // bytes; nobody says more
constexpr const char* Accepted = "accepted\n";
constexpr const char* Refused = "refused\n";

struct LinkState {
    QLocalServer server;
    QByteArray address;
    std::function<bool(const std::string&)> receive;
};

std::unique_ptr<LinkState> linkState;
bool isFirstInstance = false;

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

bool Connects(QLocalSocket& socket, int milliseconds) {
    socket.connectToServer(SocketName());
    return socket.waitForConnected(milliseconds);
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
    isFirstInstance = LockForLife(LockName().toStdString(), O_RDWR | O_CREAT) != Lock::HeldByAnother;
    return isFirstInstance;
}

LinkResult SendLinkCommand(std::string_view application, std::string_view topic, std::string_view command) {
    const QDeadlineTimer deadline(AnswerMilliseconds);
    const auto remaining = [&deadline] { return static_cast<int>(deadline.remainingTime()); };
    QLocalSocket socket;
    while (!Connects(socket, remaining())) {
        // The first instance may have started just now and not listen yet.
        if (isFirstInstance || deadline.hasExpired()) {
            return LinkResult::Failed;
        }
        QThread::msleep(KnockMilliseconds);
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
    linkState = std::make_unique<LinkState>();
    linkState->address = AddressLine(application, topic);
    linkState->receive = std::move(receive);
    QObject::connect(&linkState->server, &QLocalServer::newConnection, &linkState->server, &MeetCallers);
    QLocalServer::removeServer(SocketName()); // what a dead instance left
    linkState->server.setSocketOptions(QLocalServer::UserAccessOption);
    return linkState->server.listen(SocketName());
}
