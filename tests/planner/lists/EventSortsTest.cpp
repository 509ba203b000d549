// The orders of the Events and Reminders lists by each of their columns, and of the day schedule.
#include "planner/lists/SortedRows.h"

namespace {

using Numbers = std::vector<int>;
using Texts = std::vector<std::string>;

// Sorts up, then down, and expects the rows by their positions in the store.
void ExpectEvents(EventColumn column, const Numbers& up, const Numbers& down) {
    SortEventRows(Up(column));
    EXPECT_EQ(EventRows.values, up);
    SortEventRows(Up(EventColumn::Name));
    SortEventRows(Down(column));
    EXPECT_EQ(EventRows.values, down);
}

} // namespace

// --- Events ---

TEST_F(RowSorts, OfEventsByNameTakeAnEmptyOneAsItIs) {
    AddEventRowOf({.desc = "party"});
    AddEventRowOf({.desc = ""});
    AddEventRowOf({.desc = "Dinner"});
    SortEventRows(Up(EventColumn::Name));
    EXPECT_EQ(EventRows.values, (Numbers{2, 3, 1}));
    SortEventRows(Down(EventColumn::Name));
    EXPECT_EQ(EventRows.values, (Numbers{1, 3, 2}));
}

TEST_F(RowSorts, OfEventsByTypeHoldThoseWithoutAtTheEndBothWays) {
    AddEventRowOf({.desc = "1"}, "");
    AddEventRowOf({.desc = "2"}, "home");
    AddEventRowOf({.desc = "3"}, "None");
    AddEventRowOf({.desc = "4"}, "Birthday");
    ExpectEvents(EventColumn::Type, {4, 2, 1, 3}, {2, 4, 1, 3});
}

TEST_F(RowSorts, OfEventsByTypeCompareTheSentinelAsAText) {
    AddEventRowOf({.desc = "1"}, "zzzzzz");
    AddEventRowOf({.desc = "2"}, "None");
    AddEventRowOf({.desc = "3"}, "AAAA");
    ExpectEvents(EventColumn::Type, {3, 2, 1}, {1, 2, 3});
}

TEST_F(RowSorts, OfEventsByTheDateOfTheOccurrence) {
    AddEventRowOf({.date = "2001/01/01", .desc = "1"}, "", Wednesday + std::chrono::days{1});
    AddEventRowOf({.date = "2009/10/14", .desc = "2"}, "", Wednesday);
    AddEventRowOf({.date = "2008/01/01", .desc = "3"}, "", Wednesday + std::chrono::days{1});
    ExpectEvents(EventColumn::Day, {2, 1, 3}, {1, 3, 2});
}

TEST_F(RowSorts, OfEventsByTimeTakeNoTimeAsMidnightAndMinutesAsWhole) {
    AddEventRowOf({.time = "01:00 PM", .desc = "1"});
    AddEventRowOf({.time = "None", .desc = "2"});
    AddEventRowOf({.time = "9:00:40 AM", .desc = "3"});
    AddEventRowOf({.time = "09:00 AM", .desc = "4"});
    AddEventRowOf({.time = "12:00 AM", .desc = "5"});
    ExpectEvents(EventColumn::Time, {2, 5, 3, 4, 1}, {1, 3, 4, 2, 5});
}

TEST_F(RowSorts, OfEventsByRecurrenceHoldNoneAtTheEndBothWays) {
    AddEventRowOf({.desc = "1", .recurrence = "None"});
    AddEventRowOf({.desc = "2", .recurrence = "Month"});
    AddEventRowOf({.desc = "3", .recurrence = "Day"});
    AddEventRowOf({.desc = "4", .recurrence = "Year"});
    ExpectEvents(EventColumn::Recurrence, {3, 2, 4, 1}, {4, 2, 3, 1});
}

TEST_F(RowSorts, OfEventsByDurationTakeMinutesHoursAndDays) {
    AddEventRowOf({.duration = "2 Hours"});
    AddEventRowOf({.duration = "1 Day"});
    AddEventRowOf({.duration = "45 Minutes"});
    AddEventRowOf({.duration = "0.5 Days"});
    AddEventRowOf({.duration = "120 Minutes"});
    SortEventRowsByDuration(Ascending);
    EXPECT_EQ(EventRows.values, (Numbers{3, 1, 5, 4, 2}));
    SortEventRowsByDuration(Descending);
    EXPECT_EQ(EventRows.values, (Numbers{2, 4, 1, 5, 3}));
}

TEST_F(RowSorts, OfTheDayScheduleByItsColumnsMoveTheBoxes) {
    const auto addBox = [](int column) {
        AddEventRowOf({}, "type " + std::to_string(column));
        EventBoxColumn.Add(column);
        EventBoxLeft.Add(100 * column);
        EventBoxTop.Add(EventRows.Count());
        EventBoxWidth.Add(10 + EventRows.Count());
        EventBoxHeight.Add(20 + EventRows.Count());
    };
    for (const int column : {2, 0, 1, 0}) {
        addBox(column);
    }
    SortEventRowsByColumn();
    EXPECT_EQ(EventRows.values, (Numbers{2, 4, 3, 1}));
    EXPECT_EQ(EventRowType.values, (Texts{"type 0", "type 0", "type 1", "type 2"}));
    EXPECT_EQ(EventRowForeColor.values, (Numbers{2, 4, 3, 1}));
    EXPECT_EQ(EventRowBackColor.values, (Numbers{20, 40, 30, 10}));
    EXPECT_EQ(EventBoxColumn.values, (Numbers{0, 0, 1, 2}));
    EXPECT_EQ(EventBoxLeft.values, (Numbers{0, 0, 100, 200}));
    EXPECT_EQ(EventBoxTop.values, (Numbers{2, 4, 3, 1}));
    EXPECT_EQ(EventBoxWidth.values, (Numbers{12, 14, 13, 11}));
    EXPECT_EQ(EventBoxHeight.values, (Numbers{22, 24, 23, 21}));
}

TEST_F(RowSorts, MoveEveryListOfEvents) {
    AddEventRowOf({.desc = "b"}, "Home", Wednesday);
    AddEventRowOf({.desc = "a"}, "Work", Wednesday + std::chrono::days{1});
    SortEventRows(Up(EventColumn::Name));
    EXPECT_EQ(EventRows.values, (Numbers{2, 1}));
    EXPECT_EQ(EventRowDate.values, (std::vector<Date>{Wednesday + std::chrono::days{1}, Wednesday}));
    EXPECT_EQ(EventRowType.values, (Texts{"Work", "Home"}));
    EXPECT_EQ(EventRowForeColor.values, (Numbers{2, 1}));
    EXPECT_EQ(EventRowBackColor.values, (Numbers{20, 10}));
}

// --- Reminders ---

struct ReminderColumnCase {
    const char* name;
    ReminderColumn column;
    Numbers up;
    Numbers down;
};

class ReminderSorts : public RowSorts, public testing::WithParamInterface<ReminderColumnCase> {
protected:
    void SetUp() override {
        RowSorts::SetUp();
        AddReminderRow("Task", "", "Home", "call", 3);
        AddReminderRow("homework", "Biology", "Quiz", "Answers", -2);
        AddReminderRow("Event", "", "", "Zoo", 10);
        AddReminderRow("Homework", "algebra", "home", "Birds", 3);
    }
};

TEST_P(ReminderSorts, FollowTheColumn) {
    SortReminderRows(Up(GetParam().column));
    EXPECT_EQ(ReminderRows.values, GetParam().up);
    EXPECT_EQ(ReminderRowForeColor.values, GetParam().up);
}

TEST_P(ReminderSorts, FollowTheColumnDownwards) {
    SortReminderRows(Down(GetParam().column));
    EXPECT_EQ(ReminderRows.values, GetParam().down);
}

INSTANTIATE_TEST_SUITE_P(
    Columns, ReminderSorts,
    testing::Values(ReminderColumnCase{"For", ReminderColumn::For, {3, 2, 4, 1}, {1, 2, 4, 3}},
                    ReminderColumnCase{"Class", ReminderColumn::Class, {4, 2, 1, 3}, {2, 4, 1, 3}},
                    ReminderColumnCase{"Type", ReminderColumn::Type, {3, 1, 4, 2}, {2, 1, 4, 3}},
                    ReminderColumnCase{
                        "Description", ReminderColumn::Description, {2, 4, 1, 3}, {3, 1, 4, 2}},
                    ReminderColumnCase{"When", ReminderColumn::When, {2, 1, 4, 3}, {3, 1, 4, 2}},
                    ReminderColumnCase{"Day", ReminderColumn::Day, {2, 1, 4, 3}, {3, 1, 4, 2}}),
    [](const auto& each) { return each.param.name; });

TEST_F(RowSorts, OfRemindersByClassCompareTheSentinelAsAText) {
    AddReminderRow("Task", "zzzzzzzzzzz", "", "", 1);
    AddReminderRow("Task", "", "", "", 2);
    AddReminderRow("Task", "  ", "", "", 3); // less than ten blanks
    SortReminderRows(Up(ReminderColumn::Class));
    EXPECT_EQ(ReminderRows.values, (Numbers{3, 2, 1}));
    SortReminderRows(Down(ReminderColumn::Class));
    EXPECT_EQ(ReminderRows.values, (Numbers{1, 2, 3}));
}

TEST_F(RowSorts, OfRemindersByClassCountThoseWithoutOneAsTenLettersOrTenBlanks) {
    AddReminderRow("Task", "zzzzzzzzzz", "", "", 1);
    AddReminderRow("Task", "", "", "", 2);
    AddReminderRow("Task", "zzzzzzzzzz", "", "", 3);
    SortReminderRows(Up(ReminderColumn::Class));
    EXPECT_EQ(ReminderRows.values, (Numbers{1, 2, 3}));
    ReminderRowClass.values = {std::string(10, ' '), "", std::string(10, ' ')};
    SortReminderRows(Down(ReminderColumn::Class));
    EXPECT_EQ(ReminderRows.values, (Numbers{1, 2, 3}));
}

TEST_F(RowSorts, MoveEveryListOfReminders) {
    AddReminderRow("Task", "x", "Home", "b", 3);
    AddReminderRow("Event", "y", "Work", "a", 1);
    SortReminderRows(Up(ReminderColumn::Description));
    EXPECT_EQ(ReminderRows.values, (Numbers{2, 1}));
    EXPECT_EQ(ReminderRowKind.values, (Texts{"Event", "Task"}));
    EXPECT_EQ(ReminderRowClass.values, (Texts{"y", "x"}));
    EXPECT_EQ(ReminderRowType.values, (Texts{"Work", "Home"}));
    EXPECT_EQ(ReminderRowText.values, (Texts{"a", "b"}));
    EXPECT_EQ(ReminderRowDays.values, (Numbers{1, 3}));
    EXPECT_EQ(ReminderRowDate.values,
              (std::vector<Date>{Wednesday + std::chrono::days{1}, Wednesday + std::chrono::days{3}}));
    EXPECT_EQ(ReminderRowForeColor.values, (Numbers{2, 1}));
    EXPECT_EQ(ReminderRowBackColor.values, (Numbers{20, 10}));
}
