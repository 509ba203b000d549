// The tables of the modes: the words of the filter menus, the steps of a refresh.
#include "mainwindow/modes/ModeTables.h"

#include "planner/lists/ViewMenuColor.h"
#include "support/CaseName.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

struct RefreshCase {
    std::string_view reason;
    std::string_view homework, calendar, studySessions, tasks, events, reminders;
};

class RefreshTable : public testing::TestWithParam<RefreshCase> {};

constexpr std::array<std::string_view, 8> Reasons{ReasonModeChange,     ReasonViewChange, ReasonCalendar,
                                                  ReasonStartDayOfWeek, ReasonNewRecord,  ReasonNewTerm,
                                                  ReasonColorChange,    ReasonResize};

} // namespace

TEST_P(RefreshTable, HasTheStepsOfEachMode) {
    const RefreshCase& row = GetParam();
    EXPECT_EQ(RefreshSteps(row.reason, Mode::Homework), row.homework);
    EXPECT_EQ(RefreshSteps(row.reason, Mode::Calendar), row.calendar);
    EXPECT_EQ(RefreshSteps(row.reason, Mode::StudySessions), row.studySessions);
    EXPECT_EQ(RefreshSteps(row.reason, Mode::Tasks), row.tasks);
    EXPECT_EQ(RefreshSteps(row.reason, Mode::Events), row.events);
    EXPECT_EQ(RefreshSteps(row.reason, Mode::Reminders), row.reminders);
}

INSTANTIATE_TEST_SUITE_P(
    Reasons, RefreshTable,
    testing::Values(RefreshCase{"Mode Change", "LBFA", "LBLFA", "LBF", "LBF", "LBFAS", "LDMFbT"},
                    RefreshCase{"ViewChange", "BLF", "BLF", "BLF", "BLF", "BLF", "CMLFbT"},
                    RefreshCase{"Calendar", "bLF", "bLF", "bLF", "bLF", "bLF", "MLFbT"},
                    RefreshCase{"StartDayofWeek", "B", "BLF", "B", "B", "B", "B"},
                    RefreshCase{"NewRecord", "BLFA", "BLFA", "BLF", "BLF", "BLFA", "CMLFbT"},
                    RefreshCase{"NewTerm", "BLFA", "BLFA", "BLF", "", "", ""},
                    RefreshCase{"ColorChange", "LF", "LF", "LF", "LF", "LF", "LF"},
                    RefreshCase{"Resize", "LF", "LF", "LF", "LF", "LF", "LF"}),
    [](const auto& each) { return CaseName(std::string(each.param.reason)); });

TEST(RefreshSteps, AnyOtherReasonAsksForNothing) {
    for (const std::string_view reason : {"None", "", "mode change", "Scroll"}) {
        EXPECT_EQ(RefreshSteps(reason, Mode::Calendar), "") << reason;
    }
}

TEST(RefreshSteps, NothingRunsWhileNoModeIsChecked) {
    for (const std::string_view reason : Reasons) {
        EXPECT_EQ(RefreshSteps(reason, Mode::None), "") << reason;
    }
}

TEST(FilterRows, OfferWordsThatHaveAColor) {
    for (const FilterRow& row : FilterRows) {
        for (const std::string_view word : row.list) {
            EXPECT_EQ(ViewMenuColor(word).has_value(), !word.empty()) << word;
        }
    }
}

TEST(FilterRows, StartWithWordsThatTheMenusOffer) {
    for (const FilterRow& row : FilterRows) {
        EXPECT_TRUE(std::ranges::count(row.list, row.startList) == 1) << row.startList;
        EXPECT_TRUE(std::ranges::count(row.range, row.startRange) == 1) << row.startRange;
    }
}
