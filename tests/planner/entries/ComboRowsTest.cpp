// The rows of the editors' combo boxes.
#include "planner/entries/ComboRows.h"

#include <gtest/gtest.h>

#include <span>

namespace {

std::string Joined(std::span<const std::string_view> rows) {
    std::string text;
    for (const std::string_view row : rows) {
        text += (text.empty() ? "" : ", ") + std::string(row);
    }
    return text;
}

} // namespace

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

TEST(ComboRowTables, OfDurationsAreTheOnlyOnesWithFortyFiveMinutes) {
    EXPECT_EQ(Joined(DurationRows),
              "0 Minutes, 15 Minutes, 30 Minutes, 45 Minutes, 1 Hour, 1.5 Hours, 2 Hours, 2.5 Hours, "
              "3 Hours, 3.5 Hours, 4 Hours, 5 Hours, 6 Hours, 7 Hours, 8 Hours");
}

TEST(ComboRowTables, OfLeadTimesReachFromNothingToThreeDays) {
    EXPECT_EQ(Joined(LeadTimeRows),
              "0 Minutes, 15 Minutes, 30 Minutes, 1 Hour, 1.5 Hours, 2 Hours, 2.5 Hours, 3 Hours, "
              "3.5 Hours, 4 Hours, 5 Hours, 6 Hours, 7 Hours, 8 Hours, 9 Hours, 12 Hours, 18 Hours, 1 Day, "
              "2 Days, 3 Days");
}

TEST(ComboRowTables, OfSnoozesReachFromFiveMinutesToThreeDays) {
    EXPECT_EQ(Joined(SnoozeRows),
              "5 Minutes, 15 Minutes, 30 Minutes, 1 Hour, 1.5 Hours, 2 Hours, 2.5 Hours, 3 Hours, "
              "3.5 Hours, 4 Hours, 5 Hours, 6 Hours, 7 Hours, 8 Hours, 9 Hours, 12 Hours, 18 Hours, 1 Day, "
              "2 Days, 3 Days");
}
