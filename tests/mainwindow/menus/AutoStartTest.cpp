// The items of "Launch on System Startup".
#include "mainwindow/frame/Unload.h"
#include "support/WindowTest.h"
#include "toolkit/Text.h"

#include <fstream>

namespace {

constexpr const char* ShortcutName = "Planovarium Startup Shortcut.desktop";

class AutoStart : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        Script.startupFolder = drive / "Startup";
        std::filesystem::create_directory(Script.startupFolder);
        std::ofstream(drive / "Planovarium" / ShortcutName) << "shortcut";
    }

    void Load(const std::string& preferences) {
        WriteData("Prefs.ini", preferences);
        LoadWindow();
    }

    QStringList Checked() const {
        QStringList captions;
        for (const QAction* item :
             {window->MenuStartFull, window->MenuStartMin, window->MenuStartTray, window->MenuStartNo}) {
            if (item->isChecked()) {
                captions.append(WithoutMnemonics(item->text()));
            }
        }
        return captions;
    }

    bool ShortcutIsThere() const { return std::filesystem::exists(Script.startupFolder / ShortcutName); }
};

} // namespace

TEST_F(AutoStart, ItemOfThePreferencesAloneIsChecked) {
    const std::array<std::pair<const char*, const char*>, 4> items{{
        {"Full", "Yes - Open Full"},
        {"Min", "Yes - Open Minimized"},
        {"Tray", "Yes - Stay in System Tray"},
        {"No", "No"},
    }};
    for (const auto& [word, caption] : items) {
        Load("AutoStart=" + std::string(word) + "\n");
        EXPECT_EQ(Checked(), QStringList{caption});
        EXPECT_EQ(window->AutoStart, word);
        EXPECT_FALSE(ShortcutIsThere()) << "reading copies nothing";
    }
}

TEST_F(AutoStart, WithoutPreferencesItStaysInTheTray) {
    LoadWindow();
    EXPECT_EQ(Checked(), QStringList{"Yes - Stay in System Tray"});
}

TEST_F(AutoStart, BadValueChecksNoItem) {
    Load("AutoStart=Sometimes\n");
    EXPECT_EQ(Checked(), QStringList{});
    EXPECT_EQ(window->AutoStart, "Tray");
}

TEST_F(AutoStart, BadValueAfterAGoodOneChecksNoItemAndLeavesTheGoodOne) {
    Load("AutoStart=Min\nAutoStart=Sometimes\n");
    EXPECT_EQ(Checked(), QStringList{});
    EXPECT_EQ(window->AutoStart, "Min");
}

TEST_F(AutoStart, ItemCanBeChosenAfterABadValue) {
    Load("AutoStart=Sometimes\n");
    window->MenuStartTray->trigger();
    EXPECT_EQ(Checked(), QStringList{"Yes - Stay in System Tray"});
    EXPECT_TRUE(ShortcutIsThere());
}

TEST_F(AutoStart, YesItemsCheckThemselvesAloneAndCopyTheShortcut) {
    const std::array<std::pair<QAction * frmMain::*, const char*>, 3> items{{
        {&frmMain::MenuStartFull, "Full"},
        {&frmMain::MenuStartMin, "Min"},
        {&frmMain::MenuStartTray, "Tray"},
    }};
    Load("AutoStart=No\n");
    for (const auto& [item, word] : items) {
        std::filesystem::remove(Script.startupFolder / ShortcutName);
        (window.get()->*item)->trigger();
        EXPECT_EQ(Checked(), QStringList{WithoutMnemonics((window.get()->*item)->text())}) << word;
        EXPECT_EQ(window->AutoStart, word);
        EXPECT_TRUE(ShortcutIsThere()) << word;
    }
}

TEST_F(AutoStart, NoTakesTheShortcutAway) {
    Load("AutoStart=Full\n");
    window->MenuStartMin->trigger();
    window->MenuStartNo->trigger();
    EXPECT_EQ(Checked(), QStringList{"No"});
    EXPECT_EQ(window->AutoStart, "No");
    EXPECT_FALSE(ShortcutIsThere());
}

TEST_F(AutoStart, CheckedItemDoesNothing) {
    Load("AutoStart=Full\n");
    window->MenuStartFull->trigger();
    EXPECT_EQ(Checked(), QStringList{"Yes - Open Full"});
    EXPECT_FALSE(ShortcutIsThere());
}

TEST_F(AutoStart, ChoiceIsKeptInThePreferences) {
    Load("AutoStart=Full\n");
    window->MenuStartNo->trigger();
    Unload(*window);
    EXPECT_NE(ReadData("Prefs.ini").find("\nAutoStart=No\n"), std::string::npos);
}

TEST_F(AutoStart, MenuIsNotOfferedAndNeitherIsTheDataFolder) {
    LoadWindow();
    EXPECT_FALSE(window->MenuStartup->menuAction()->isVisible());
    EXPECT_FALSE(window->MenuStartup->menuAction()->isEnabled());
    EXPECT_FALSE(window->MenuData->isVisible());
    EXPECT_FALSE(window->MenuData->isEnabled());
    EXPECT_FALSE(window->mnuHelpBar1->isEnabled());
}
