// The grades, opened from the menus: where the window stands, what it shows and what it keeps.
#include "core/Module1.h"
#include "core/RunTimeError.h"
#include "mainwindow/dialogs/frmGPA.h"
#include "mainwindow/flows/ReadDialogs.h"
#include "mainwindow/flows/RunCommand.h"
#include "support/StoreRecords.h"
#include "support/WindowTest.h"

namespace {

class GPAFlow : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        WriteData("terms.xml", TermsFile({{}}));
        LoadWindow();
        AddClassRecord({.id = "1", .name = "Algebra", .credits = "3"});
        AddAssignmentRecord({.class_ = "1", .score = "95", .total = "100"});
    }

    // Opens the window by the action, looks at it and closes it.
    static void Look(const std::function<void()>& open, const std::function<void()>& look) {
        bool opened = false;
        WhenDialogOpens([&](QWidget* dialog) {
            opened = dialog == GPADialog;
            look();
            GPADialog->ButtonOK->click();
        });
        open();
        EXPECT_TRUE(opened);
        EXPECT_FALSE(GPADialog->isVisible());
    }

    void LookFromMenu(const std::function<void()>& look) {
        Look([this] { window->MenuGPA->trigger(); }, look);
    }
};

} // namespace

TEST_F(GPAFlow, OpensFromTheFileMenuWithTheTotals) {
    LookFromMenu([] {
        EXPECT_EQ(GPADialog->windowTitle(), "Grade Point Average");
        EXPECT_EQ(GPADialog->ComboClassNameList->currentText(), "Total");
        EXPECT_EQ(GPADialog->TextboxPercent->text(), "4.00");
    });
}

TEST_F(GPAFlow, OpensFromThePopupMenus) {
    Look([this] { RunPopupItem(*window, "homework GPA"); }, [] {});
}

TEST_F(GPAFlow, StandsBesideTheMainWindowAtFirstAndStaysWhereItWasLeft) {
    window->move(20, 30);
    LookFromMenu([] {
        EXPECT_EQ(GPADialog->pos(), QPoint(270, 180));
        EXPECT_FALSE(GPADBFirstOpen);
        GPADialog->move(50, 60);
    });
    LookFromMenu([] { EXPECT_EQ(GPADialog->pos(), QPoint(50, 60)); });
}

TEST_F(GPAFlow, CountsAnewAtEachOpeningAndShowsTheTotalsAgain) {
    LookFromMenu([] { GPADialog->ComboClassNameList->setCurrentIndex(1); });
    Store.Assignment.score.Replace(1, "85");
    LookFromMenu([] {
        EXPECT_EQ(GPADialog->ComboClassNameList->currentText(), "Total");
        EXPECT_EQ(GPADialog->TextboxPercent->text(), "3.00");
    });
}

TEST_F(GPAFlow, OpensWithTheKeysInTheListOfClassesEachTime) {
    for (int opening = 1; opening <= 2; ++opening) {
        LookFromMenu([] {
            EXPECT_EQ(GPADialog->focusWidget(), GPADialog->ComboClassNameList);
            GPADialog->CheckBoxChroma->setFocus();
            ASSERT_EQ(GPADialog->focusWidget(), GPADialog->CheckBoxChroma);
        });
    }
}

TEST_F(GPAFlow, KeepsPlusAndMinusWithinTheRun) {
    LookFromMenu([] {
        EXPECT_FALSE(GPADialog->CheckBoxChroma->isChecked());
        GPADialog->CheckBoxChroma->setChecked(true);
    });
    Store.Assignment.score.Replace(1, "91");
    LookFromMenu([] {
        EXPECT_TRUE(GPADialog->CheckBoxChroma->isChecked());
        EXPECT_EQ(GPADialog->TextboxPercent->text(), "3.70");
    });
}

TEST_F(GPAFlow, ItsHelpButtonOpensTheHelpBook) {
    LookFromMenu([] { GPADialog->picHelp->click(); });
    ASSERT_EQ(Script.processes.size(), 1U);
    EXPECT_EQ(Script.processes[0].arguments, std::vector<std::string>{HelpFile.string()});
}

TEST_F(GPAFlow, ABadScoreIsTheErrorBeforeTheWindowShows) {
    Store.Assignment.score.Replace(1, "many");
    EXPECT_THROW(ShowGPA(*window), RunTimeError);
    EXPECT_FALSE(GPADialog->isVisible());
    EXPECT_TRUE(GPADBFirstOpen);
}
