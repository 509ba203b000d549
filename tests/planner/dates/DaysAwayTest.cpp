// How far away an item is.
#include "planner/dates/DaysAway.h"

#include <gtest/gtest.h>

TEST(DaysAway, TellsTheDistanceInDays) {
    EXPECT_EQ(DaysAway(30), "30 Days");
    EXPECT_EQ(DaysAway(2), "2 Days");
    EXPECT_EQ(DaysAway(1), "Tomorrow");
    EXPECT_EQ(DaysAway(0), "Today");
    EXPECT_EQ(DaysAway(-1), "Yesterday");
    EXPECT_EQ(DaysAway(-2), "2 Days Ago");
    EXPECT_EQ(DaysAway(-365), "365 Days Ago");
}
