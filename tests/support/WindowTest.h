// A window test: the real main window over the scripted platform, with a smart drive in a folder of its own.
#pragma once

#include "mainwindow/frmMain.h"
#include "support/ScriptedPlatform.h"

#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

// A term as terms.xml holds it.
struct TermText {
    int id = 1;
    std::string name = "Fall 2009";
    std::string start = "2009/08/24";
    std::string end = "2009/12/18";
};

// A terms.xml with these terms.
std::string TermsFile(const std::vector<TermText>& terms);

class WindowTest : public testing::Test {
protected:
    // A fresh platform, an empty store and an empty drive; the window is not yet loaded.
    void SetUp() override;
    void TearDown() override;

    // Puts a file of the data folder onto the drive. Lines end with LF here and with CR LF on the drive.
    void WriteData(const std::string& name, const std::string& text);
    std::string ReadData(const std::string& name) const;
    bool DataExists(const std::string& name) const;

    // Loads the main window as the start of the program does, shows it and lets it settle.
    void LoadWindow();

    std::filesystem::path drive;
    std::filesystem::path data;
    std::unique_ptr<frmMain> window;

private:
    QTemporaryDir folder;
};

// Handles events until the condition holds, for at most five seconds; gives whether it does.
bool WaitUntil(const std::function<bool()>& condition);

// Runs the action as soon as a modal dialog is open, which its argument is; the dialog's exec goes on
// meanwhile. Fails the test when no dialog opens within five seconds.
void WhenDialogOpens(const std::function<void(QWidget*)>& action);

// Makes the dialogs, and controls of dialogs, that come only when they are asked for.
void MakeAllDialogs(frmMain& window);

// Lets the timer's next tick come now.
void FireTimer(QTimer* timer);

// From now on cancels every modal dialog as soon as it has opened, for as long as the owner lives.
void CancelDialogsAsTheyOpen(QObject* owner);

// The texts drawn on a surface, in order.
QStringList DrawnTexts(const PictureBox& surface);
