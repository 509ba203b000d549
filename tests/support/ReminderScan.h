// The fixture of the tests of the reminder engine: an empty store at noon of 2009-10-14 and a window to tick.
#pragma once

#include "support/Reminders.h"
#include "support/ScriptedPlatform.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

class ReminderScan : public testing::Test {
protected:
    void SetUp() override {
        ResetScript();
        ResetStore();
    }

    void TearDown() override { ResetStore(); }

    void ExpectNothing() const {
        EXPECT_EQ(window.Standing(), std::vector<std::string>{});
        EXPECT_FALSE(window.flags.ReminderShowWindow);
        EXPECT_FALSE(window.flags.ReminderTasksChanged || window.flags.ReminderHomeworkChanged ||
                     window.flags.ReminderEventsChanged);
    }

    void ExpectRow(int row, const std::vector<std::string>& texts, double key, int forecolor,
                   int backcolor) const {
        EXPECT_EQ((std::vector<std::string>{
                      window.rows.ReminderModes.Item(row), window.rows.ReminderNames.Item(row),
                      window.rows.ReminderTypes.Item(row), window.rows.ReminderWhens.Item(row)}),
                  texts);
        EXPECT_EQ(window.rows.ReminderSortKeys.Item(row), key);
        EXPECT_EQ(window.rows.ReminderForeColors.Item(row), forecolor);
        EXPECT_EQ(window.rows.ReminderBackColors.Item(row), backcolor);
    }

    ReminderWindow window;
};
