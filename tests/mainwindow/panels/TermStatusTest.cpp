// What the term panel says of the active term.
#include "mainwindow/panels/TermStatus.h"

#include "core/Module1.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

class TermPanel : public testing::Test {
protected:
    void SetUp() override {
        ResetStore();
        ActiveTermName = "Fall 2009";
        ActiveTermID = 1;
        ActiveTermEnd = Date{2009y / 12 / 18};
    }

    void TearDown() override { ResetStore(); }
};

} // namespace

TEST_F(TermPanel, NamesTheTermAndCountsTheDaysToItsEnd) {
    const TermStatus status = TermStatusOn(Date{2009y / 10 / 14});
    EXPECT_EQ(status.term, "Fall 2009");
    EXPECT_EQ(status.daysLeft, "65 days left in the term");
    EXPECT_EQ(TermStatusOn(Date{2009y / 12 / 16}).daysLeft, "2 days left in the term");
}

TEST_F(TermPanel, EndTomorrowIsOneDay) {
    EXPECT_EQ(TermStatusOn(Date{2009y / 12 / 17}).daysLeft, "1 day left in the term");
}

TEST_F(TermPanel, EndTodayIsNoDay) {
    EXPECT_EQ(TermStatusOn(Date{2009y / 12 / 18}).daysLeft, "0 Days Left in Term");
}

TEST_F(TermPanel, TermThatHasEndedHasNoDay) {
    EXPECT_EQ(TermStatusOn(Date{2009y / 12 / 19}).daysLeft, "0 Days Left in Term");
    EXPECT_EQ(TermStatusOn(Date{2012y / 1 / 1}).daysLeft, "0 Days Left in Term");
}

TEST_F(TermPanel, NoTermIsNoneSelected) {
    ActiveTermName.clear();
    ActiveTermID = 0;
    const TermStatus status = TermStatusOn(Date{2009y / 10 / 14});
    EXPECT_EQ(status.term, "No Term Selected");
    EXPECT_EQ(status.daysLeft, "");
}

TEST_F(TermPanel, DeletedTermIsNoneSelected) {
    ActiveTermName = "DELETED RECORD";
    const TermStatus status = TermStatusOn(Date{2009y / 10 / 14});
    EXPECT_EQ(status.term, "No Term Selected");
    EXPECT_EQ(status.daysLeft, "");
}
