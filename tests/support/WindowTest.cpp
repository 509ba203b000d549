// A window test: the real main window over the scripted platform, with a smart drive in a folder of its own.
#include "support/WindowTest.h"

#include "core/Module1.h"
#include "editors/FrmTask.h"
#include "editors/frmAssignment.h"
#include "editors/frmCourseSchedule.h"
#include "editors/frmEvent.h"
#include "mainwindow/dialogs/frmAbout.h"
#include "mainwindow/dialogs/frmGPA.h"
#include "mainwindow/dialogs/frmTip.h"
#include "mainwindow/frame/Load.h"
#include "support/StoreRecords.h"

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>

#include <fstream>
#include <iterator>

namespace {

constexpr int LimitMilliseconds = 5000;

void SetVariable(const char* name, const std::filesystem::path& value) {
    qputenv(name, QByteArray::fromStdString(value.string()));
}

// Once a test has had the program exit, every loop of events ends at once, until the main loop starts anew.
void ForgetExit() {
    QTimer::singleShot(0, qApp, [] { QApplication::exit(); });
    QApplication::exec();
}

} // namespace

std::string TermsFile(const std::vector<TermText>& terms) {
    std::string text = "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n<term_data>\n";
    for (const TermText& term : terms) {
        text += "<term>\n  <id>" + std::to_string(term.id) + "</id>\n  <name>" + term.name +
                "</name>\n  <start>" + term.start + "</start>\n  <end>" + term.end + "</end>\n</term>\n";
    }
    return text + "</term_data>\n";
}

void WindowTest::SetUp() {
    ForgetExit();
    ResetScript();
    ResetStore();
    drive = folder.path().toStdString();
    data = drive / "Documents" / "Planovarium" / "Data";
    for (const char* name : {"Host", "Documents", "Planovarium"}) {
        std::filesystem::create_directories(drive / name);
    }
    SetVariable("U3_DEVICE_PATH", drive);
    SetVariable("U3_DEVICE_EXEC_PATH", drive / "Planovarium");
    SetVariable("U3_DEVICE_DOCUMENT_PATH", drive / "Documents");
    SetVariable("U3_HOST_EXEC_PATH", drive / "Host");
}

void WindowTest::TearDown() {
    window.reset();
    MainWindow = nullptr;
    std::filesystem::current_path(std::filesystem::temp_directory_path()); // off the drive that goes now
}

void WindowTest::WriteData(const std::string& name, const std::string& text) {
    std::filesystem::create_directories(data);
    std::string bytes;
    for (const char character : text) {
        bytes += character == '\n' ? "\r\n" : std::string(1, character);
    }
    std::ofstream(data / name, std::ios::binary) << bytes;
}

std::string WindowTest::ReadData(const std::string& name) const {
    std::ifstream file(data / name, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(file), {}};
    std::erase(bytes, '\r');
    return bytes;
}

bool WindowTest::DataExists(const std::string& name) const {
    return std::filesystem::exists(data / name);
}

void WindowTest::LoadWindow() {
    window = std::make_unique<frmMain>();
    MainWindow = window.get();
    ASSERT_TRUE(LoadPlanner(*window));
    window->TimerTip->stop(); // no tip comes between the steps of a test
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get(), LimitMilliseconds));
}

bool WaitUntil(const std::function<bool()>& condition) {
    return QTest::qWaitFor(condition, LimitMilliseconds);
}

void WhenDialogOpens(const std::function<void(QWidget*)>& action) {
    auto* poll = new QTimer(qApp);
    QElapsedTimer waited;
    waited.start();
    QObject::connect(poll, &QTimer::timeout, poll, [poll, waited, action] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (dialog == nullptr && waited.elapsed() < LimitMilliseconds) {
            return;
        }
        poll->stop();
        poll->deleteLater();
        if (dialog == nullptr) {
            ADD_FAILURE() << "No dialog has opened";
            return;
        }
        dialog->activateWindow();
        action(dialog);
    });
    poll->start(1);
}

void MakeAllDialogs(frmMain& window) {
    AssignmentDialog->MakeControls();
    TermDialog->MakeControls();
    TaskDialog->MakeControls();
    EventDialog->MakeControls();
    TipDialog = new frmTip(&window);
    AboutDialog = new frmAbout(&window);
    GPADialog = new frmGPA(&window);
}

void FireTimer(QTimer* timer) {
    ASSERT_TRUE(QMetaObject::invokeMethod(timer, "timeout"));
}

void CancelDialogsAsTheyOpen(QObject* owner) {
    auto* poll = new QTimer(owner);
    QObject::connect(poll, &QTimer::timeout, poll, [] {
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            dialog->reject();
        }
    });
    poll->start(1);
}

QStringList DrawnTexts(const PictureBox& surface) {
    QStringList texts;
    for (const DrawnItem& item : surface.Drawn()) {
        if (item.kind == DrawnKind::Text) {
            texts.append(item.text);
        }
    }
    return texts;
}
