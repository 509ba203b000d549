// frmAbout: what the program is and where its maker is found.
#include "core/ProgramFacts.h"
#include "mainwindow/dialogs/frmAbout.h"
#include "support/ScriptedPlatform.h"
#include "toolkit/Text.h"

#include <QRegularExpression>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class About : public testing::Test {
protected:
    void SetUp() override {
        ResetScript();
        dialog.show();
    }

    const std::vector<std::string> home{HomePage()};
    frmAbout dialog{nullptr};
};

} // namespace

TEST_F(About, TellsNameVersionAndHome) {
    EXPECT_EQ(dialog.lblTitle->text(), "Planovarium Homework System");
    EXPECT_TRUE(
        QRegularExpression("^Version \\d+\\.\\d+\\.\\d+$").match(dialog.lblVersion->text()).hasMatch())
        << dialog.lblVersion->text().toStdString();
    EXPECT_TRUE(dialog.lblDescription->text().endsWith(
        "For questions, orders and upgrades, visit the website at " + FromStore(HomePage())));
}

TEST_F(About, ClickOnTheDescriptionOpensTheHomePage) {
    QTest::mouseClick(dialog.lblDescription, Qt::LeftButton);
    EXPECT_EQ(Script.opened, home);
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(About, KeysOpenTheHomePageFromTheDescriptionAlone) {
    dialog.cmdOK->setFocus();
    dialog.lblDescription->setFocus();
    QTest::keyClick(dialog.lblDescription, Qt::Key_Space);
    EXPECT_EQ(Script.opened, home);
    QTest::keyClick(dialog.lblDescription, Qt::Key_Return);
    EXPECT_EQ(Script.opened.size(), 2U);
    QTest::keyClick(dialog.lblDescription, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(Script.opened.size(), 3U);
    EXPECT_TRUE(dialog.isVisible());
    dialog.cmdOK->setFocus();
    QTest::keyClick(dialog.cmdOK, Qt::Key_Return);
    EXPECT_TRUE(dialog.isHidden());
    EXPECT_EQ(Script.opened.size(), 3U);
}

TEST_F(About, OkEscapeAndTheCloseBoxHideIt) {
    QTest::mouseClick(dialog.cmdOK, Qt::LeftButton);
    EXPECT_TRUE(dialog.isHidden());
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_TRUE(dialog.isHidden());
    dialog.show();
    EXPECT_FALSE(dialog.close());
    EXPECT_TRUE(dialog.isHidden());
    EXPECT_TRUE(Script.opened.empty());
}
