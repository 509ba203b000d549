// What the toolkit knows of processes, signals and the desktop session.
#include "platform/Process.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QProcess>
#include <QSocketNotifier>
#include <QStandardPaths>
#include <QUrl>

#include <cerrno>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr std::initializer_list<int> TerminationSignals{SIGTERM, SIGINT, SIGHUP};

int signalPipe[2] = {-1, -1}; // a handler writes to the first end, the window thread reads from the second

void NoteSignal(int) {
    const int interrupted = errno; // which the code that was at work may be about to read
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = ::write(signalPipe[0], &byte, 1);
    errno = interrupted;
}

} // namespace

void ShellOpen(std::string_view address) {
    QDesktopServices::openUrl(QUrl::fromUserInput(QString::fromStdString(std::string(address))));
}

long StartProcess(const std::string& program, std::initializer_list<std::string> arguments) {
    QStringList list;
    for (const std::string& argument : arguments) {
        list.append(QString::fromStdString(argument));
    }
    qint64 number = 0;
    const bool started = QProcess::startDetached(QString::fromStdString(program), list, QString(), &number);
    return started ? static_cast<long>(number) : 0;
}

std::filesystem::path ProgramFile() {
    return QCoreApplication::applicationFilePath().toStdU16String();
}

std::filesystem::path StartupFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::ConfigLocation).toStdString() + "/autostart";
}

void OnTermination(const std::function<void()>& end) {
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, signalPipe) != 0) {
        return;
    }
    auto* notifier = new QSocketNotifier(signalPipe[1], QSocketNotifier::Read, QCoreApplication::instance());
    QObject::connect(notifier, &QSocketNotifier::activated, notifier, [notifier, end] {
        notifier->setEnabled(false); // the first word of the end is enough
        end();
    });
    for (const int signal : TerminationSignals) {
        std::signal(signal, &NoteSignal);
    }
    QObject::connect(
        qGuiApp, &QGuiApplication::commitDataRequest, notifier, [end] { end(); }, Qt::DirectConnection);
}
