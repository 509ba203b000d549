// frmTip, the tip of the day.
#include "mainwindow/dialogs/TipTexts.h"
#include "mainwindow/dialogs/frmTip.h"
#include "toolkit/Text.h"

#include <QTest>

#include <gtest/gtest.h>

namespace {

class Tips : public testing::Test {
protected:
    QString Shown() const { return dialog.LabelTip->text(); }

    frmTip dialog{nullptr};
};

} // namespace

TEST_F(Tips, EachShowingBeginsWithTheNextTipAndTheBoxTicked) {
    dialog.CurrentTip = 4;
    dialog.show();
    EXPECT_EQ(Shown(), FromStore(TipText(4)));
    EXPECT_EQ(dialog.CurrentTip, 5);
    QTest::mouseClick(dialog.CheckBoxShowTips, Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_EQ(dialog.ShowTips, "No");
    dialog.hide();
    dialog.show();
    EXPECT_TRUE(dialog.CheckBoxShowTips->isChecked());
    EXPECT_EQ(dialog.ShowTips, "Yes");
    EXPECT_EQ(Shown(), FromStore(TipText(5)));
    EXPECT_EQ(dialog.focusWidget(), dialog.ButtonNextTip);
}

TEST_F(Tips, ComingBackToItShowsTheSameTip) {
    dialog.show();
    QEvent activated(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&dialog, &activated);
    EXPECT_EQ(Shown(), FromStore(TipText(0)));
    EXPECT_EQ(dialog.CurrentTip, 1);
}

TEST_F(Tips, ButtonShowsTheNextOneAndTheFirstBehindTheLast) {
    dialog.CurrentTip = 29;
    dialog.show();
    QTest::mouseClick(dialog.ButtonNextTip, Qt::LeftButton);
    EXPECT_EQ(Shown(), FromStore(TipText(30)));
    QTest::mouseClick(dialog.ButtonNextTip, Qt::LeftButton);
    EXPECT_EQ(Shown(), FromStore(TipText(0)));
    EXPECT_EQ(dialog.CurrentTip, 1);
}

TEST_F(Tips, BoxSaysWhetherTheNextStartShowsOne) {
    dialog.show();
    dialog.CheckBoxShowTips->setChecked(false);
    EXPECT_EQ(dialog.ShowTips, "No");
    dialog.CheckBoxShowTips->setChecked(true);
    EXPECT_EQ(dialog.ShowTips, "Yes");
}

TEST_F(Tips, WindowHasItsWords) {
    EXPECT_EQ(dialog.windowTitle(), "Planovarium Tip of the Day");
    EXPECT_EQ(dialog.LabelTitle->text(), "Did you know...");
    EXPECT_EQ(dialog.LabelVideo->text(), "Don't miss the Video Tutorials in the Help Menu!");
}

TEST_F(Tips, EnterShowsTheNextOne) {
    dialog.CurrentTip = 4;
    dialog.show();
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(Shown(), FromStore(TipText(5)));
}

TEST_F(Tips, CloseEscapeAndTheCloseBoxHideIt) {
    dialog.show();
    QTest::mouseClick(dialog.ButtonClose, Qt::LeftButton);
    EXPECT_TRUE(dialog.isHidden());
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_TRUE(dialog.isHidden());
    dialog.show();
    EXPECT_FALSE(dialog.close());
    EXPECT_TRUE(dialog.isHidden());
}

TEST_F(Tips, NoTipMakesTheWindowGrowOrIsCut) {
    dialog.CurrentTip = 0;
    dialog.show();
    const QSize size = dialog.size();
    for (int tip = 0; tip <= TotalTips + 1; ++tip) {
        dialog.LabelTip->setText(FromStore(TipText(tip)));
        QCoreApplication::processEvents();
        EXPECT_EQ(dialog.size(), size) << tip;
        EXPECT_LE(dialog.LabelTip->heightForWidth(dialog.LabelTip->width()), dialog.LabelTip->height())
            << tip;
    }
}
