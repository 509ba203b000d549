// The icons that the windows share.
#include "toolkit/WindowStyle.h"

#include <gtest/gtest.h>

TEST(ProgramIcons, OfOnePictureAreOneIcon) {
    const QIcon help = ProgramIcon(QStringLiteral("picHelp.svg"));
    EXPECT_FALSE(help.pixmap(16, 16).isNull());
    EXPECT_EQ(help.cacheKey(), ProgramIcon(QStringLiteral("picHelp.svg")).cacheKey());
    EXPECT_NE(help.cacheKey(), ProgramIcon(QStringLiteral("picTip.svg")).cacheKey());
}
