// frmColorsName: one name of the student's own.
#include "customise/ColorsFixture.h"

namespace {

class ColorsName : public EditorTest {
protected:
    static void Open(std::string_view defaultName, std::string_view customName) {
        ColorsNameDialog->Fill(defaultName, customName);
        ShowAlone(*ColorsNameDialog);
    }
};

} // namespace

TEST_F(ColorsName, ShowsBothNamesAndOnlyOneIsTyped) {
    Open("Home", "Chores");
    EXPECT_EQ(ColorsNameDialog->windowTitle(), "Change Default Name");
    EXPECT_EQ(ColorsNameDialog->TextBoxDefaultName->text(), "Home");
    EXPECT_TRUE(ColorsNameDialog->TextBoxDefaultName->isReadOnly());
    EXPECT_EQ(ColorsNameDialog->TextBoxCustomName->text(), "Chores");
    EXPECT_EQ(ColorsNameDialog->focusWidget(), ColorsNameDialog->TextBoxCustomName);
    EXPECT_FALSE(ColorsNameDialog->ChangeFlag) << "filling is no change";
    QTest::keyClicks(ColorsNameDialog->TextBoxCustomName, "x");
    EXPECT_EQ(ColorsNameDialog->TextBoxCustomName->text(), "x") << "the old name is selected";
    EXPECT_TRUE(ColorsNameDialog->ChangeFlag);
}

TEST_F(ColorsName, OkAndEnterAccept) {
    Open("Home", "");
    Click(ColorsNameDialog->ButtonOK);
    EXPECT_FALSE(ColorsNameDialog->isVisible());
    EXPECT_FALSE(ColorsNameDialog->CancelledFlag);
    Open("Home", "");
    QTest::keyClick(ColorsNameDialog->TextBoxCustomName, Qt::Key_Return);
    EXPECT_FALSE(ColorsNameDialog->isVisible());
    EXPECT_FALSE(ColorsNameDialog->CancelledFlag);
    EXPECT_TRUE(Script.boxes.empty());
}

TEST_F(ColorsName, TheNameIsTrimmedAndKeptWithinTheSet) {
    Open("Home", "");
    Type(ColorsNameDialog->TextBoxCustomName, "  My ");
    ColorsNameDialog->TextBoxCustomName->insert(QStringLiteral("\u0436ome  "));
    EXPECT_EQ(ColorsNameDialog->CustomName(), "My ?ome");
    Type(ColorsNameDialog->TextBoxCustomName, "   ");
    EXPECT_EQ(ColorsNameDialog->CustomName(), "");
}

TEST_F(ColorsName, CancelEscapeAndTheCloseBoxAskOnlyWhenSomethingWasTyped) {
    const std::vector<std::function<void()>> ways{
        [] { Click(ColorsNameDialog->ButtonCancel); },
        [] { QTest::keyClick(ColorsNameDialog, Qt::Key_Escape); },
        [] { PressCloseBox(*ColorsNameDialog); },
    };
    for (const auto& leave : ways) {
        Script.boxes.clear();
        Open("Home", "Chores");
        leave();
        EXPECT_FALSE(ColorsNameDialog->isVisible());
        EXPECT_TRUE(ColorsNameDialog->CancelledFlag);
        EXPECT_TRUE(Script.boxes.empty());

        Open("Home", "Chores");
        EXPECT_FALSE(ColorsNameDialog->CancelledFlag) << "of the last opening";
        QTest::keyClicks(ColorsNameDialog->TextBoxCustomName, "x");
        Script.answers = {Answer::No};
        leave();
        EXPECT_TRUE(ColorsNameDialog->isVisible());
        EXPECT_FALSE(ColorsNameDialog->CancelledFlag);
        Script.answers = {Answer::Yes};
        leave();
        EXPECT_FALSE(ColorsNameDialog->isVisible());
        EXPECT_TRUE(ColorsNameDialog->CancelledFlag);
        EXPECT_EQ(Script.boxes, std::vector(2, Question("Cancel this change?")));
    }
}

TEST_F(ColorsName, LongNamesDoNotWidenIt) {
    Open("Home", "");
    const int width = ColorsNameDialog->sizeHint().width();
    ColorsNameDialog->hide();
    Open(std::string(200, 'W'), std::string(200, 'W'));
    EXPECT_EQ(ColorsNameDialog->sizeHint().width(), width);
}
