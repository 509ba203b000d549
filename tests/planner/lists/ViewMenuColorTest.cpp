// The colours of the words in the view menu.
#include "planner/lists/ViewMenuColor.h"
#include "planner/rows/Colors.h"

#include <gtest/gtest.h>

TEST(ViewMenuColor, EachWordHasItsColor) {
    EXPECT_EQ(ViewMenuColor("All"), ColorAll);
    EXPECT_EQ(ViewMenuColor("Done"), ColorDone);
    EXPECT_EQ(ViewMenuColor("Other Events"), ColorDone);
    EXPECT_EQ(ViewMenuColor("Events"), ColorDone);
    EXPECT_EQ(ViewMenuColor("Not Done"), ColorNotDone);
    EXPECT_EQ(ViewMenuColor("Homework"), ColorNotDone);
    EXPECT_EQ(ViewMenuColor("Classes"), ColorTasks);
    EXPECT_EQ(ViewMenuColor("Tasks"), ColorTasks);
}

TEST(ViewMenuColor, AnotherWordHasNone) {
    EXPECT_EQ(ViewMenuColor(""), std::nullopt);
    EXPECT_EQ(ViewMenuColor("all"), std::nullopt);
}
