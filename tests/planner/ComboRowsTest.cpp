// The rows of the editors' combo boxes.
#include "planner/ComboRows.h"

#include <gtest/gtest.h>

TEST(ComboRowTables, OfEstimatesHaveQuartersThenHours) {
    const auto rows = EstimateRows();
    const std::array<std::string, 27> expected{
        "00 : 15", "00 : 30", "00 : 45", "01 : 00", "01 : 15", "01 : 30", "01 : 45", "02 : 00", "02 : 15",
        "02 : 30", "02 : 45", "03 : 00", "03 : 15", "03 : 30", "03 : 45", "04 : 00", "04 : 15", "04 : 30",
        "04 : 45", "05 : 00", "06 : 00", "07 : 00", "08 : 00", "09 : 00", "10 : 00", "15 : 00", "20 : 00"};
    EXPECT_EQ(rows, expected);
}

TEST(ComboRowTables, OfTimesRunThroughTheDayByQuarters) {
    const auto rows = TimeOfDayRows();
    EXPECT_EQ(rows[0], "12:00 AM");
    EXPECT_EQ(rows[1], "12:15 AM");
    EXPECT_EQ(rows[4], "1:00 AM");
    EXPECT_EQ(rows[36], "9:00 AM");
    EXPECT_EQ(rows[47], "11:45 AM");
    EXPECT_EQ(rows[48], "12:00 PM");
    EXPECT_EQ(rows[52], "1:00 PM");
    EXPECT_EQ(rows[95], "11:45 PM");
}

TEST(ComboRowTables, OfDurationsAndLeadTimesDifferAtFortyFiveMinutes) {
    EXPECT_EQ(DurationRows[3], "45 Minutes");
    EXPECT_EQ(DurationRows[2], "30 Minutes");
    EXPECT_EQ(DurationRows.back(), "8 Hours");
    EXPECT_EQ(LeadTimeRows[2], "30 Minutes");
    EXPECT_EQ(LeadTimeRows[3], "1 Hour");
    EXPECT_EQ(LeadTimeRows.back(), "3 Days");
    EXPECT_EQ(SnoozeRows.front(), "5 Minutes");
    EXPECT_EQ(SnoozeRows.back(), "3 Days");
}
