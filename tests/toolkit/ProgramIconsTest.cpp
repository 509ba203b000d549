// The icons that the windows share.
#include "toolkit/WindowStyle.h"

#include <QApplication>
#include <QStyle>

#include <gtest/gtest.h>

TEST(ProgramIcons, OfOnePictureAreOneIcon) {
    const QIcon help = ProgramIcon(QStringLiteral("picHelp.svg"));
    EXPECT_FALSE(help.pixmap(16, 16).isNull());
    EXPECT_EQ(help.cacheKey(), ProgramIcon(QStringLiteral("picHelp.svg")).cacheKey());
    EXPECT_NE(help.cacheKey(), ProgramIcon(QStringLiteral("picTip.svg")).cacheKey());
}

TEST(ProgramIcons, ArrowOfTheMenuBarIsThisPrograms) {
    const QIcon arrow = QApplication::style()->standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton);
    EXPECT_EQ(arrow.pixmap(16).toImage(), ProgramIcon(QStringLiteral("menuMore.svg")).pixmap(16).toImage());
    EXPECT_FALSE(arrow.pixmap(16).isNull());
}
