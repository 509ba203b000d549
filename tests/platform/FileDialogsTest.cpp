// The dialog for saving a file, as it stands on the screen.
#include "platform/FileDialogs.h"

#include "support/ChildProcess.h"
#include "support/FileBytes.h"
#include "support/TemporaryDrive.h"
#include "toolkit/Modal.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace {

namespace fs = std::filesystem;

class SaveDialog : public testing::Test {
protected:
    // An application can be made once in a process, so each dialog has a process of its own. The steps are
    // taken one after another, each as soon as it says that it could be.
    bool HoldsFor(const std::function<void(const std::optional<fs::path>&)>& chosen,
                  std::vector<std::function<bool()>> steps) {
        return SucceedsInChild([&] {
            ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
            QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                               QString::fromStdString((drive.root / "settings").string()));
            int count = 1;
            char name[] = "save";
            char* arguments[] = {name, nullptr};
            const QApplication application(count, arguments);
            std::size_t step = 0;
            QTimer poll;
            QObject::connect(&poll, &QTimer::timeout, [&] {
                if (step < steps.size() && steps[step]()) {
                    ++step;
                }
            });
            poll.start(1);
            chosen(GetSaveFileName(question));
            EXPECT_EQ(step, steps.size()) << "not all steps could be taken";
        });
    }

    // The file dialog, once it is on the screen.
    static QFileDialog* Dialog() {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        return dialog != nullptr && dialog->isVisible() ? dialog : nullptr;
    }

    static std::function<bool()> Enter(const QString& name) {
        return [name] {
            QFileDialog* const dialog = Dialog();
            if (dialog != nullptr) {
                dialog->findChild<QLineEdit*>()->setText(name);
                QMetaObject::invokeMethod(dialog, &QDialog::accept, Qt::QueuedConnection);
            }
            return dialog != nullptr;
        };
    }

    // Answers the question whether a file is replaced.
    static std::function<bool()> AnswerReplace(QMessageBox::StandardButton button) {
        return [button] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box != nullptr) {
                box->button(button)->click();
            }
            return box != nullptr;
        };
    }

    static bool Cancel() {
        QFileDialog* const dialog = Dialog();
        if (dialog != nullptr) {
            dialog->reject();
        }
        return dialog != nullptr;
    }

    TemporaryDrive drive;
    SaveQuestion question{"Export Tasks",
                          drive.root,
                          {"pa\xC5\xBA List.html"},
                          "HTML Files (*.html)|*.html|HTM Files (*.htm)|*.htm|All Files (*.*)|*.*",
                          "html"};
};

TEST_F(SaveDialog, OpensInTheFolderOnTheNameWithTheFilters) {
    EXPECT_TRUE(HoldsFor(
        [](const auto& chosen) { EXPECT_EQ(chosen, std::nullopt); }, {[this] {
            QFileDialog* const dialog = Dialog();
            if (dialog == nullptr) {
                return false;
            }
            EXPECT_EQ(dialog->windowTitle(), "Export Tasks");
            EXPECT_EQ(dialog->directory().absolutePath().toStdString(), drive.root.string());
            EXPECT_EQ(dialog->findChild<QLineEdit*>()->text(), QString::fromUtf8("pa\xC5\xBA List.html"));
            EXPECT_EQ(dialog->nameFilters(),
                      (QStringList{"HTML Files (*.html)", "HTM Files (*.htm)", "All Files (*.*)"}));
            EXPECT_EQ(dialog->acceptMode(), QFileDialog::AcceptSave);
            dialog->reject();
            return true;
        }}));
}

TEST_F(SaveDialog, CountsAsAModalDialogAsLongAsItIsOpen) {
    EXPECT_TRUE(HoldsFor([](const auto& /*chosen*/) { EXPECT_FALSE(ModalDialogIsOpen()); }, {[] {
                             QFileDialog* const dialog = Dialog();
                             if (dialog == nullptr) {
                                 return false;
                             }
                             EXPECT_TRUE(ModalDialogIsOpen());
                             dialog->reject();
                             return true;
                         }}));
}

TEST_F(SaveDialog, GivesThePlaceWithTheEndingBehindANameWithoutOne) {
    const auto expect = [this](const char* name) {
        return [this, name](const std::optional<fs::path>& chosen) { EXPECT_EQ(chosen, drive.root / name); };
    };
    EXPECT_TRUE(HoldsFor(expect("My list.html"), {Enter("My list")}));
    EXPECT_TRUE(HoldsFor(expect("My list.txt"), {Enter("My list.txt")}));
    EXPECT_TRUE(HoldsFor(expect("pa\xC5\xBA List.html"), {Enter(QString::fromUtf8("pa\xC5\xBA List.html"))}));
}

TEST_F(SaveDialog, AsksBeforeItReplacesTheFileOfTheWholeName) {
    SetBytes(drive.root / "My list.html", "old");
    EXPECT_TRUE(HoldsFor([this](const auto& chosen) { EXPECT_EQ(chosen, drive.root / "My list.html"); },
                         {Enter("My list"), AnswerReplace(QMessageBox::Yes)}));
    EXPECT_TRUE(HoldsFor([](const auto& chosen) { EXPECT_EQ(chosen, std::nullopt); },
                         {Enter("My list"), AnswerReplace(QMessageBox::No), Cancel}));
}

TEST_F(SaveDialog, RemembersNothing) {
    const auto settings = [this](const auto&) {
        EXPECT_FALSE(QSettings(QSettings::UserScope, "QtProject").childGroups().contains("FileDialog"));
        EXPECT_TRUE(fs::exists(drive.root / "settings/QtProject.conf")) << "or this looks in the wrong place";
    };
    EXPECT_TRUE(HoldsFor(settings, {Enter("My list")}));
    EXPECT_TRUE(HoldsFor(settings, {Cancel}));
}

} // namespace
