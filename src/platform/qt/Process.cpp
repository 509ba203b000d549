// Processes, environment and signals of the operating system.
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
#include <cstdlib>
#include <fcntl.h>
#include <limits>
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

long ProcessNumber() {
    return static_cast<long>(QCoreApplication::applicationPid());
}

bool ProcessExists(long number) {
    return number > 0 && number <= std::numeric_limits<pid_t>::max() &&
           (::kill(static_cast<pid_t>(number), 0) == 0 || errno != ESRCH);
}

std::string EnvironmentValue(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::string{} : std::string(value);
}

void MakePathAbsolute(const char* name) {
    const std::string value = EnvironmentValue(name);
    std::error_code error;
    const std::filesystem::path path = std::filesystem::absolute(value, error);
    if (!value.empty() && !error) {
        ::setenv(name, path.c_str(), 1);
    }
}

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

void IgnoreFileSizeSignal() {
    std::signal(SIGXFSZ, SIG_IGN);
}

bool SyncToDevice(std::FILE* file) {
    return std::fflush(file) == 0 && ::fsync(::fileno(file)) == 0;
}

bool SyncFolder(const std::filesystem::path& folder) {
    const int opened = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (opened == -1) {
        return false;
    }
    const bool synced = ::fsync(opened) == 0;
    ::close(opened);
    return synced;
}
