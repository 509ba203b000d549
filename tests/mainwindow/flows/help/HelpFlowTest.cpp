// What the Help menu, the question mark and the homework help open.
#include "core/Module1.h"
#include "core/ProgramFacts.h"
#include "mainwindow/dialogs/frmAbout.h"
#include "support/WindowTest.h"

namespace {

class Help : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        LoadWindow();
    }

    void ExpectBookOpened() const {
        ASSERT_EQ(Script.processes.size(), 1U);
        EXPECT_EQ(Script.processes[0].program, "xdg-open");
        EXPECT_EQ(Script.processes[0].arguments,
                  std::vector<std::string>{(drive / "Planovarium" / "Help" / "index.html").string()});
    }

    bool MarkerExists(long number) const {
        return std::filesystem::exists(drive / "Host" / (std::to_string(number) + ".PID"));
    }

    std::vector<std::string> HomeworkHelp() const {
        return {(drive / "Planovarium" / "Homework Help" / "index.html").string()};
    }
};

} // namespace

TEST_F(Help, ItemOpensTheBookAndLeavesTheMarkerOfItsProcess) {
    Script.startedProcess = 815;
    window->MenuHelpDB->trigger();
    ExpectBookOpened();
    EXPECT_TRUE(MarkerExists(815));
    EXPECT_EQ(std::filesystem::file_size(drive / "Host" / "815.PID"), 0U);
}

TEST_F(Help, QuestionMarkOpensTheBook) {
    QTest::mouseClick(window->picHelp, Qt::LeftButton);
    ExpectBookOpened();
}

TEST_F(Help, KeyOpensTheBook) {
    QTest::keyClick(window->picGrid, Qt::Key_F1);
    ExpectBookOpened();
}

TEST_F(Help, ThatCannotBeStartedLeavesNoMarkerAndShowsNothing) {
    Script.startedProcess = 0;
    window->MenuHelpDB->trigger();
    EXPECT_FALSE(MarkerExists(0));
    EXPECT_TRUE(Script.boxes.empty());
}

TEST_F(Help, MarkerThatCannotBeWrittenIsPassedOver) {
    std::filesystem::remove_all(drive / "Host");
    window->MenuHelpDB->trigger();
    ExpectBookOpened();
    EXPECT_TRUE(Script.boxes.empty());
    std::filesystem::create_directories(drive / "Host");
}

TEST_F(Help, HomeworkHelpIsThePageOfTheProgramFolder) {
    ASSERT_TRUE(HomeworkHelpPage().empty());
    window->MenuHomeworkHelp->trigger();
    EXPECT_EQ(Script.opened, HomeworkHelp());
    EXPECT_TRUE(Script.processes.empty());
}

TEST_F(Help, PictureAndWordOfTheBarOpenTheHomeworkHelp) {
    QTest::mouseClick(window->PictureBarWeb, Qt::LeftButton);
    EXPECT_EQ(Script.opened, HomeworkHelp());
    QTest::mouseClick(window->LabelBarWeb, Qt::LeftButton);
    EXPECT_EQ(Script.opened.size(), 2U);
}

TEST_F(Help, AboutStandsBesideTheWindowAtFirstAndThenWhereItWasLeft) {
    window->move(40, 30);
    window->ButtonSelectTerm->setFocus();
    QPoint first, second;
    WhenDialogOpens([&first](QWidget* dialog) {
        EXPECT_EQ(dialog, AboutDialog);
        first = dialog->pos();
        dialog->move(333, 222);
        dialog->close();
    });
    window->MenuAbout->trigger();
    EXPECT_EQ(first, window->pos() + QPoint(250, 50));
    EXPECT_FALSE(AboutDBFirstOpen);
    WhenDialogOpens([&second](QWidget* dialog) {
        second = dialog->pos();
        dialog->close();
    });
    window->MenuAbout->trigger();
    EXPECT_EQ(second, QPoint(333, 222));
    EXPECT_EQ(window->focusWidget(), window->picGrid);
}

TEST_F(Help, AboutOpensOnItsButtonWhateverHadTheKeysTheLastTime) {
    WhenDialogOpens([](QWidget* dialog) {
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
        ASSERT_EQ(dialog->focusWidget(), AboutDialog->lblDescription);
        dialog->close();
    });
    window->MenuAbout->trigger();
    WhenDialogOpens([](QWidget* dialog) {
        EXPECT_EQ(dialog->focusWidget(), AboutDialog->cmdOK);
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
        EXPECT_TRUE(dialog->isHidden());
        dialog->close();
    });
    window->MenuAbout->trigger();
    EXPECT_TRUE(Script.opened.empty());
}
