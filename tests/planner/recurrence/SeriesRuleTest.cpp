// The fields of a series as plain values.
#include "planner/recurrence/SeriesRule.h"

#include "core/DateText.h"
#include "core/RunTimeError.h"
#include "support/EventRecords.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

class SeriesFields : public testing::Test {
protected:
    void SetUp() override { ResetStore(); }
};

} // namespace

TEST_F(SeriesFields, TellAnEventThatRepeatsFromASingleOne) {
    EXPECT_FALSE(IsSeries(AddEventRecord({.recurrence = "None"})));
    for (const char* recurrence : {"Day", "Month", "Year", "Fortnight", "none", ""}) {
        EXPECT_TRUE(IsSeries(AddEventRecord({.recurrence = recurrence}))) << recurrence;
    }
}

TEST_F(SeriesFields, HoldTheEndWhereItIsSwitchedOn) {
    EXPECT_EQ(EndDate(AddEventRecord({.end = "True", .end_date = "2009/12/18"})), Date{2009y / 12 / 18});
    EXPECT_EQ(EndDate(AddEventRecord({.end = "False", .end_date = "2009/12/18"})), LastStoredDate);
}

TEST_F(SeriesFields, ReadAnEndThatIsSwitchedOnAlone) {
    EXPECT_EQ(EndDate(AddEventRecord({.end = "False", .end_date = "//"})), LastStoredDate);
    EXPECT_THROW(EndDate(AddEventRecord({.end = "True", .end_date = "//"})), RunTimeError);
    EXPECT_THROW(EndDate(AddEventRecord({.end = "", .end_date = "2009/12/18"})), RunTimeError);
}
