// The startup shortcut, copied from the program's folder and taken away again.
#include "mainwindow/menus/StartupShortcut.h"

#include "support/ScriptedPlatform.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

constexpr const char* ShortcutName = "Planovarium Startup Shortcut.desktop";
constexpr const char* OlderName = "Planovarium Startup Shortcut.lnk";

class StartupShortcut : public testing::Test {
protected:
    void SetUp() override {
        ResetScript();
        std::string pattern = (std::filesystem::temp_directory_path() / "planovarium-XXXXXX").string();
        folder = ::mkdtemp(pattern.data());
        program = folder / "Planovarium";
        Script.startupFolder = folder / "Startup";
        for (const auto& each : {program, Script.startupFolder}) {
            std::filesystem::create_directory(each);
        }
        ::setenv("U3_DEVICE_EXEC_PATH", program.c_str(), 1);
        Write(program, "new");
    }

    void TearDown() override { std::filesystem::remove_all(folder); }

    static void Write(const std::filesystem::path& place, const std::string& text) {
        std::ofstream(place / ShortcutName) << text;
    }

    static std::string Installed() {
        std::ifstream file(Script.startupFolder / ShortcutName);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    static bool IsInstalled() { return std::filesystem::exists(Script.startupFolder / ShortcutName); }

    std::filesystem::path folder, program;
};

} // namespace

TEST_F(StartupShortcut, IsCopiedFromTheProgramFolder) {
    PutStartupShortcut();
    EXPECT_EQ(Installed(), "new\n");
    EXPECT_TRUE(std::filesystem::exists(program / ShortcutName));
}

TEST_F(StartupShortcut, OlderCopyIsReplaced) {
    Write(Script.startupFolder, "an older and longer one");
    PutStartupShortcut();
    EXPECT_EQ(Installed(), "new\n");
}

TEST_F(StartupShortcut, OlderCopyGoesEvenWhereThereIsNoNewOne) {
    Write(Script.startupFolder, "old");
    std::filesystem::remove(program / ShortcutName);
    PutStartupShortcut();
    EXPECT_FALSE(IsInstalled());
}

TEST_F(StartupShortcut, IsTakenAway) {
    PutStartupShortcut();
    RemoveStartupShortcut();
    EXPECT_FALSE(IsInstalled());
}

TEST_F(StartupShortcut, FolderIsMadeWhereItIsMissing) {
    std::filesystem::remove_all(Script.startupFolder);
    EXPECT_NO_THROW(RemoveStartupShortcut());
    PutStartupShortcut();
    EXPECT_EQ(Installed(), "new\n");
}

TEST_F(StartupShortcut, FolderThatCannotBeMadeIsIgnored) {
    std::filesystem::remove_all(Script.startupFolder);
    std::ofstream(Script.startupFolder) << "in the way";
    EXPECT_NO_THROW(PutStartupShortcut());
    EXPECT_NO_THROW(RemoveStartupShortcut());
}

TEST_F(StartupShortcut, ThatOfTheOlderReleaseGoes) {
    for (const auto& act : {&PutStartupShortcut, &RemoveStartupShortcut}) {
        std::ofstream(Script.startupFolder / OlderName) << "old";
        act();
        EXPECT_FALSE(std::filesystem::exists(Script.startupFolder / OlderName));
    }
}

TEST_F(StartupShortcut, CommandSetsTheDrivesVariablesAndPassesOneArgument) {
    ::setenv("U3_DEVICE_PATH", "/media/drive", 1);
    ::setenv("U3_DEVICE_DOCUMENT_PATH", "/media/drive/My Documents", 1);
    ::setenv("U3_HOST_EXEC_PATH", "/home/host", 1);
    ::setenv("U3_DEVICE_EXEC_PATH", program.c_str(), 1);
    Script.programFile = "/media/drive/planovarium";
    Write(program, "[Desktop Entry]\nName=Planner\nExec=planovarium \"Startup Folder\"\nTerminal=false\n");
    PutStartupShortcut();
    EXPECT_EQ(Installed(), "[Desktop Entry]\nName=Planner\n"
                           "Exec=env \"U3_HOST_EXEC_PATH=/home/host\" \"U3_DEVICE_PATH=/media/drive\" "
                           "\"U3_DEVICE_DOCUMENT_PATH=/media/drive/My Documents\" \"U3_DEVICE_EXEC_PATH=" +
                               program.string() +
                               "\" \"/media/drive/planovarium\" \"Startup Folder\"\nTerminal=false\n");
}

TEST_F(StartupShortcut, WhatMeansSomethingInACommandIsEscaped) {
    Script.programFile = "/a\"b`c$d\\e%f";
    Write(program, "Exec=x\n");
    PutStartupShortcut();
    EXPECT_NE(Installed().find(R"("/a\\"b\\`c\\$d\\\\e%%f" "Startup Folder")"), std::string::npos);
}
