// The tip of the day: when it comes up, and what stays of it.
#include "mainwindow/flows/help/TipFlow.h"
#include "core/Module1.h"
#include "mainwindow/dialogs/TipTexts.h"
#include "mainwindow/dialogs/frmTip.h"
#include "mainwindow/flows/PreferencesFlow.h"
#include "mainwindow/frame/Load.h"
#include "mainwindow/frame/Unload.h"
#include "support/WindowTest.h"
#include "toolkit/Modal.h"
#include "toolkit/Text.h"

namespace {

class TipOfTheDay : public WindowTest {
protected:
    void Load(const std::string& preferences) {
        WriteData("Prefs.ini", preferences);
        LoadWindow();
    }

    // The text of the tip that the action brings up; its box is left as told.
    QString TipShownBy(const std::function<void()>& action, bool wantsMore = true) {
        QString text;
        WhenDialogOpens([&](QWidget* dialog) {
            EXPECT_EQ(dialog, TipDialog);
            EXPECT_TRUE(ModalDialogIsOpen());
            text = TipDialog->LabelTip->text();
            TipDialog->CheckBoxShowTips->setChecked(wantsMore);
            TipDialog->ButtonClose->click();
        });
        action();
        return text;
    }

    void Tick() { FireTimer(window->TimerTip); }
};

} // namespace

TEST_F(TipOfTheDay, TimerIsStartedByTheLoadForHalfASecondAndOnce) {
    window = std::make_unique<frmMain>();
    MainWindow = window.get();
    ASSERT_FALSE(window->TimerTip->isActive());
    ASSERT_TRUE(LoadPlanner(*window));
    EXPECT_TRUE(window->TimerTip->isActive());
    EXPECT_TRUE(window->TimerTip->isSingleShot());
    EXPECT_EQ(window->TimerTip->interval(), 500);
    window->TimerTip->stop();
}

TEST_F(TipOfTheDay, ComesUpWithTheNumberThatThePreferencesHold) {
    Load("CurrentTip=7\n");
    window->ButtonSelectTerm->setFocus();
    EXPECT_EQ(TipShownBy([this] { Tick(); }), FromStore(TipText(7)));
    EXPECT_EQ(window->tempCurrentTip, 8);
    EXPECT_EQ(window->tempShowTipsAtStartup, "Yes");
    EXPECT_EQ(window->focusWidget(), window->picGrid);
}

TEST_F(TipOfTheDay, DoesNotComeUpWhileTheWindowIsHidden) {
    Load("CurrentTip=7\n");
    window->hide();
    Tick();
    EXPECT_EQ(TipDialog, nullptr);
    EXPECT_EQ(window->tempCurrentTip, 7);
}

TEST_F(TipOfTheDay, ComesUpWhileTheWindowIsMinimized) {
    Load("CurrentTip=7\n");
    window->showMinimized();
    EXPECT_EQ(TipShownBy([this] { Tick(); }), FromStore(TipText(7)));
}

TEST_F(TipOfTheDay, DoesNotComeUpWhereNoneIsWanted) {
    Load("ShowTipsAtStartup=No\nCurrentTip=7\n");
    Tick();
    EXPECT_EQ(TipDialog, nullptr);
    EXPECT_EQ(window->tempCurrentTip, 7);
    EXPECT_EQ(window->tempShowTipsAtStartup, "No");
}

TEST_F(TipOfTheDay, UntickedBoxEndsThemUntilTheMenuWantsThemAgain) {
    Load("CurrentTip=30\n");
    EXPECT_EQ(TipShownBy([this] { Tick(); }, false), FromStore(TipText(30)));
    EXPECT_EQ(window->tempShowTipsAtStartup, "No");
    EXPECT_EQ(window->tempCurrentTip, 0);
    WritePreferences(*window);
    EXPECT_NE(ReadData("Prefs.ini").find("ShowTipsAtStartup=No\n"), std::string::npos);
    Tick();
    EXPECT_TRUE(TipDialog->isHidden());
    EXPECT_EQ(TipShownBy([this] { window->MenuShowTips->trigger(); }), FromStore(TipText(0)));
    EXPECT_EQ(window->tempShowTipsAtStartup, "Yes");
    EXPECT_EQ(window->tempCurrentTip, 1);
}

TEST_F(TipOfTheDay, HasOneWindow) {
    Load("CurrentTip=7\n");
    TipShownBy([this] { Tick(); });
    const frmTip* first = TipDialog;
    TipShownBy([this] { Tick(); });
    EXPECT_EQ(TipDialog, first);
    window.reset();
    EXPECT_EQ(TipDialog, nullptr) << "it goes with the main window";
}

TEST_F(TipOfTheDay, NextOnesCountToo) {
    Load("CurrentTip=3\n");
    WhenDialogOpens([](QWidget*) {
        TipDialog->ButtonNextTip->click();
        TipDialog->ButtonNextTip->click();
        TipDialog->close();
    });
    Tick();
    EXPECT_EQ(window->tempCurrentTip, 6);
}

TEST_F(TipOfTheDay, ClosedByTheShutdownChangesNothing) {
    Load("CurrentTip=3\n");
    WhenDialogOpens([this](QWidget*) {
        TipDialog->CheckBoxShowTips->setChecked(false);
        Unload(*window);
    });
    Tick();
    EXPECT_EQ(window->tempCurrentTip, 3);
    EXPECT_EQ(window->tempShowTipsAtStartup, "Yes");
}

// Chosen in the menu within the half second of the start.
TEST_F(TipOfTheDay, TimerThatMeetsTheTipLeavesItAlone) {
    Load("CurrentTip=3\n");
    WhenDialogOpens([this](QWidget*) {
        TipDialog->ButtonNextTip->click();
        Tick();
        EXPECT_TRUE(TipDialog->isVisible());
        EXPECT_EQ(TipDialog->LabelTip->text(), FromStore(TipText(4)));
        TipDialog->ButtonNextTip->click();
        EXPECT_EQ(TipDialog->LabelTip->text(), FromStore(TipText(5)));
        TipDialog->close();
    });
    window->MenuShowTips->trigger();
    EXPECT_EQ(window->tempCurrentTip, 6);
}

TEST_F(TipOfTheDay, StandsBesideTheWindowAtFirstAndThenWhereItWasLeft) {
    Load("CurrentTip=3\n");
    window->move(40, 30);
    WhenDialogOpens([this](QWidget* dialog) {
        EXPECT_EQ(dialog->pos(), window->pos() + QPoint(250, 50));
        dialog->move(333, 222);
        dialog->close();
    });
    Tick();
    WhenDialogOpens([](QWidget* dialog) {
        EXPECT_EQ(dialog->pos(), QPoint(333, 222));
        dialog->close();
    });
    Tick();
}
