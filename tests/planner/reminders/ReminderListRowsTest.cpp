// The order of the rows of the reminder window.
#include "planner/reminders/ReminderListRows.h"
#include "core/RunTimeError.h"
#include "core/Values.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>

namespace {

using Texts = std::vector<std::string>;

constexpr int Time = static_cast<int>(ReminderListColumn::Time);

void AddRow(ReminderListRows& rows, const std::string& mode, const std::string& type, const std::string& name,
            double key) {
    const int number = rows.ReminderIds.Count() + 1;
    rows.ReminderIds.Add(std::to_string(number));
    rows.ReminderModes.Add(mode);
    rows.ReminderTypes.Add(type);
    rows.ReminderNames.Add(name);
    rows.ReminderWhens.Add("when " + std::to_string(number));
    rows.ReminderSortKeys.Add(key);
    rows.ReminderForeColors.Add(number);
    rows.ReminderBackColors.Add(-number);
}

ReminderListRows SampleRows() {
    ReminderListRows rows;
    AddRow(rows, "Task", "home", "Sweep", 1);
    AddRow(rows, "Homework", "Biology", "essay", -3);
    AddRow(rows, "Event", "Work", "Dentist", 120);
    AddRow(rows, "Task", "Home", "Call", 121);
    AddRow(rows, "Event", "", "Party", 1);
    return rows;
}

Texts Sorted(int column, int direction) {
    ReminderListRows rows = SampleRows();
    SortReminderListRows(rows, {column, direction});
    return rows.ReminderIds.values;
}

// Passes over adjacent rows, swapping those out of order, until a pass swaps nothing.
std::vector<int> BubbleSorted(const std::vector<double>& keys, int direction) {
    std::vector<int> rows;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        rows.push_back(static_cast<int>(i));
    }
    const auto key = [&](int row) { return keys[static_cast<std::size_t>(row)]; };
    for (bool swapped = true; swapped;) {
        swapped = false;
        for (std::size_t i = 0; i + 1 < rows.size(); ++i) {
            if (direction == Ascending ? key(rows[i]) > key(rows[i + 1]) : key(rows[i]) < key(rows[i + 1])) {
                std::swap(rows[i], rows[i + 1]);
                swapped = true;
            }
        }
    }
    return rows;
}

} // namespace

TEST(ReminderListOrder, ByModeKeepsTheOrderOfTies) {
    EXPECT_EQ(Sorted(1, Ascending), (Texts{"3", "5", "2", "1", "4"}));
    EXPECT_EQ(Sorted(1, Descending), (Texts{"1", "4", "2", "3", "5"}));
}

TEST(ReminderListOrder, ByTypeAndNameIgnoresCase) {
    EXPECT_EQ(Sorted(2, Ascending), (Texts{"5", "2", "1", "4", "3"}));
    EXPECT_EQ(Sorted(3, Ascending), (Texts{"4", "3", "2", "5", "1"}));
    EXPECT_EQ(Sorted(3, Descending), (Texts{"1", "5", "2", "3", "4"}));
}

TEST(ReminderListOrder, ByTimeComparesDaysWithMinutes) {
    EXPECT_EQ(Sorted(4, Ascending), (Texts{"2", "1", "5", "3", "4"}));
    EXPECT_EQ(Sorted(4, Descending), (Texts{"4", "3", "1", "5", "2"}));
}

TEST(ReminderListOrder, ByAnyOtherColumnStays) {
    EXPECT_EQ(Sorted(0, Ascending), (Texts{"1", "2", "3", "4", "5"}));
    EXPECT_EQ(Sorted(9, Descending), (Texts{"1", "2", "3", "4", "5"}));
}

TEST(ReminderItems, AreTheModeAndIdOfTheirRowAndNothingOfRowZero) {
    const ReminderListRows rows = SampleRows();
    EXPECT_EQ(ItemOfRow(rows, 2).mode, "Homework");
    EXPECT_EQ(ItemOfRow(rows, 2).id, "2");
    EXPECT_EQ(ItemOfRow(rows, 0).mode, "");
    EXPECT_EQ(ItemOfRow(rows, 0).id, "");
    EXPECT_THROW(ItemOfRow(rows, 6), RunTimeError);
}

TEST(ReminderItems, AreFoundByBothModeAndId) {
    ReminderListRows rows = SampleRows();
    rows.ReminderIds.values = {"1", "1", "1", "2", "3"};
    EXPECT_EQ(RowOfItem(rows, {"Task", "1"}), 1);
    EXPECT_EQ(RowOfItem(rows, {"Homework", "1"}), 2);
    EXPECT_EQ(RowOfItem(rows, {"Event", "1"}), 3);
    EXPECT_EQ(RowOfItem(rows, {"Task", "2"}), 4);
    EXPECT_EQ(RowOfItem(rows, {"Event", "3"}), 5);
    EXPECT_EQ(RowOfItem(rows, {"Homework", "2"}), 0);
    EXPECT_EQ(RowOfItem(rows, {}), 0);
    EXPECT_EQ(RowOfItem({}, {"Task", "1"}), 0);
    for (int row = 1; row <= 5; ++row) {
        EXPECT_EQ(RowOfItem(rows, ItemOfRow(rows, row)), row);
    }
}

TEST(ReminderListOrder, OfFewerThanTwoRowsIsNoMatter) {
    ReminderListRows rows;
    SortReminderListRows(rows, {Time, Ascending});
    EXPECT_EQ(rows.ReminderIds.Count(), 0);
    AddRow(rows, "Task", "", "Call", 1);
    SortReminderListRows(rows, {Time, Ascending});
    EXPECT_EQ(rows.ReminderIds.Count(), 1);
}

RC_GTEST_PROP(ReminderListOrderProperties, IsThatOfABubbleSortInAllEightLists, ()) {
    const auto keys = *rc::gen::container<std::vector<int>>(rc::gen::inRange(-3, 4));
    const int direction = *rc::gen::element(Ascending, Descending);
    ReminderListRows rows;
    for (const int key : keys) {
        AddRow(rows, "Task", "", "Call", key);
    }
    SortReminderListRows(rows, {Time, direction});
    const std::vector<int> expected = BubbleSorted({keys.begin(), keys.end()}, direction);
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const int number = expected[i] + 1;
        const int row = static_cast<int>(i) + 1;
        RC_ASSERT(rows.ReminderIds.Item(row) == std::to_string(number));
        RC_ASSERT(rows.ReminderWhens.Item(row) == "when " + std::to_string(number));
        RC_ASSERT(rows.ReminderSortKeys.Item(row) == keys[static_cast<std::size_t>(expected[i])]);
        RC_ASSERT(rows.ReminderForeColors.Item(row) == number);
        RC_ASSERT(rows.ReminderBackColors.Item(row) == -number);
    }
}
