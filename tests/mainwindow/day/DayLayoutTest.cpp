// The schedule of a day: boxes beside each other, the half hours behind them, and what lies under a point.
#include "mainwindow/day/DayLayout.h"

#include "core/RowLists.h"
#include "core/RunTimeError.h"
#include "support/CaseName.h"
#include "support/EventRecords.h"
#include "support/ScriptedPlatform.h"
#include "support/StoreRecords.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>

namespace {

constexpr int GridWidth = 560 * UnitsPerPixel;
constexpr int Room = GridWidth - 705 - 255;

class DayLayout : public testing::Test {
protected:
    void SetUp() override {
        ResetScript();
        ResetStore();
    }

    // Puts an event into the store and onto the day.
    void AddRow(const std::string& time, const std::string& duration) {
        EventRows.Add(AddEventRecord({.time = time, .duration = duration}));
    }
};

struct SpanCase {
    const char* time;
    const char* duration;
    DaySpan span;
};

class EventSpan : public testing::TestWithParam<SpanCase> {};

} // namespace

TEST_P(EventSpan, IsInSlotsFromMidnight) {
    EXPECT_EQ(SpanOf(GetParam().time, GetParam().duration), GetParam().span)
        << GetParam().time << ", " << GetParam().duration;
}

INSTANTIATE_TEST_SUITE_P(
    DayLayout, EventSpan,
    testing::Values(
        SpanCase{"09:00 AM", "1 Hour", {108, 119}}, SpanCase{"10:00 AM", "1 Hour", {120, 131}},
        SpanCase{"12:00 AM", "30 Minutes", {0, 5}}, SpanCase{"12:30 AM", "30 Minutes", {6, 11}},
        SpanCase{"12:00 PM", "30 Minutes", {144, 149}}, SpanCase{"01:15 PM", "45 Minutes", {159, 167}},
        SpanCase{"11:30PM", "30 Minutes", {282, 287}}, SpanCase{"09:04 AM", "30 Minutes", {108, 113}},
        SpanCase{"09:00 AM", "0 Minutes", {108, 113}}, SpanCase{"09:00 AM", "15 Minutes", {108, 113}},
        SpanCase{"09:00 AM", "30", {108, 113}}, SpanCase{"09:00 AM", "31 Minutes", {108, 114}},
        SpanCase{"09:00 AM", "35 Minutes", {108, 114}}, SpanCase{"09:00 AM", "36 Minutes", {108, 115}},
        SpanCase{"09:00 AM", "1.5 Hours", {108, 125}}, SpanCase{"12:00 AM", "24 Hours", {0, 287}},
        SpanCase{"09:00 AM", "1 Day", {108, 287}}, SpanCase{"12:00 AM", "2 Days", {0, 287}},
        SpanCase{"11:00 PM", "3 Hours", {276, 287}}, SpanCase{"11:59 PM", "1 Hour", {287, 287}},
        SpanCase{"12:00 AM", "99999999999 Days", {0, 287}}, SpanCase{"", "1 Hour", {0, 11}},
        SpanCase{"noon", "1 Hour", {0, 11}}),
    [](const auto& each) { return CaseName(std::string(each.param.time) + " " + each.param.duration); });

TEST_F(DayLayout, ADurationWithoutANumberIsAnError) {
    AddRow("09:00 AM", "long");
    EXPECT_THROW(LayoutDayEvents(GridWidth), RunTimeError);
}

TEST_F(DayLayout, AnEventAloneHasTheWholeWidth) {
    AddRow("09:00 AM", "1 Hour");
    LayoutDayEvents(GridWidth);
    EXPECT_EQ(EventBoxOf(1, 1), (UnitRect{705, 108 * 60, Room, 720}));
    EXPECT_EQ(EventBoxColumn.Item(1), 0);
}

TEST_F(DayLayout, ABoxCoversTheHalfHoursOfItsEvent) {
    AddRow("10:30 AM", "30 Minutes");
    LayoutDayEvents(GridWidth);
    EXPECT_EQ(EventBoxTop.Item(1), 21 * SlotUnits);
    EXPECT_EQ(EventBoxHeight.Item(1), SlotUnits);
}

TEST_F(DayLayout, NineToTenAndTenToElevenShareAColumn) {
    AddRow("09:00 AM", "1 Hour");
    AddRow("10:00 AM", "1 Hour");
    LayoutDayEvents(GridWidth);
    EXPECT_EQ(EventBoxColumn, (NumberList{{0, 0}}));
    EXPECT_EQ(EventBoxWidth.Item(1), Room);
    EXPECT_EQ(EventBoxTop.Item(1) + EventBoxHeight.Item(1), EventBoxTop.Item(2));
}

TEST_F(DayLayout, TwoEventsAtTheSameTimeStandSideBySideAtHalfTheWidth) {
    AddRow("09:00 AM", "1 Hour");
    AddRow("09:00 AM", "1 Hour");
    LayoutDayEvents(GridWidth);
    EXPECT_EQ(EventBoxColumn, (NumberList{{0, 1}}));
    EXPECT_EQ(EventBoxWidth, (NumberList{{Room / 2, Room / 2}}));
    EXPECT_EQ(EventBoxLeft, (NumberList{{705, 705 + Room / 2}}));
}

TEST_F(DayLayout, ADayThatNeedsThreeColumnsOnceHasAThirdOfTheWidthThroughout) {
    for (int i = 0; i < 3; ++i) {
        AddRow("09:00 AM", "1 Hour");
    }
    AddRow("03:00 PM", "1 Hour");
    LayoutDayEvents(GridWidth);
    EXPECT_EQ(EventBoxColumn, (NumberList{{0, 1, 2, 0}}));
    EXPECT_EQ(EventBoxWidth, (NumberList{{Room / 3, Room / 3, Room / 3, Room / 3}}));
}

TEST_F(DayLayout, AnEventTakesTheFirstColumnThatIsFreeOverItsWholeLength) {
    AddRow("09:00 AM", "1 Hour");
    AddRow("09:30 AM", "2 Hours");
    AddRow("10:00 AM", "30 Minutes");
    AddRow("10:00 AM", "2 Hours");
    LayoutDayEvents(GridWidth);
    EXPECT_EQ(EventBoxColumn, (NumberList{{0, 1, 0, 2}}));
}

TEST_F(DayLayout, EventsUntilMidnightKeepTheLastSlotToThemselves) {
    AddRow("11:00 PM", "1 Hour");
    AddRow("11:59 PM", "30 Minutes");
    LayoutDayEvents(GridWidth);
    EXPECT_EQ(EventBoxColumn, (NumberList{{0, 1}}));
    EXPECT_EQ(EventBoxTop.Item(1) + EventBoxHeight.Item(1), HalfHours * SlotUnits);
    EXPECT_EQ(EventBoxTop.Item(2) + EventBoxHeight.Item(2), HalfHours * SlotUnits);
}

TEST_F(DayLayout, ADayWithoutEventsHasNoBoxes) {
    AddRow("09:00 AM", "1 Hour");
    LayoutDayEvents(GridWidth);
    EventRows.Clear();
    LayoutDayEvents(GridWidth);
    EXPECT_EQ(EventBoxLeft.Count() + EventBoxTop.Count() + EventBoxWidth.Count() + EventBoxHeight.Count() +
                  EventBoxColumn.Count(),
              0);
}

TEST_F(DayLayout, ScrollingMovesTheBoxesByHalfHours) {
    AddRow("09:00 AM", "1 Hour");
    LayoutDayEvents(GridWidth);
    EXPECT_EQ(EventBoxOf(1, 11).top, (18 - 10) * SlotUnits);
    EXPECT_EQ(EventBoxOf(1, 20).top, -SlotUnits);
}

TEST_F(DayLayout, AClickFindsTheBoxAndTwoPixelsAroundIt) {
    AddRow("09:00 AM", "1 Hour");
    LayoutDayEvents(GridWidth);
    const UnitRect box = EventBoxOf(1, 11);
    EXPECT_EQ(EventBoxAt(box.left, box.top, 11), 1);
    EXPECT_EQ(EventBoxAt(box.left - 30, box.top - 30, 11), 1);
    EXPECT_EQ(EventBoxAt(box.left + box.width + 29, box.top + box.height + 29, 11), 1);
    EXPECT_EQ(EventBoxAt(box.left - 31, box.top, 11), 0);
    EXPECT_EQ(EventBoxAt(box.left, box.top + box.height + 30, 11), 0);
}

TEST_F(DayLayout, OfTwoBoxesThatMeetTheLastIsFound) {
    AddRow("09:00 AM", "1 Hour");
    AddRow("10:00 AM", "1 Hour");
    LayoutDayEvents(GridWidth);
    const UnitRect second = EventBoxOf(2, 1);
    EXPECT_EQ(EventBoxAt(2000, second.top - 30, 1), 2);
    EXPECT_EQ(EventBoxAt(2000, second.top - 31, 1), 1);
}

TEST_F(DayLayout, ADayWithoutABoxUnderThePointGivesNone) {
    EXPECT_EQ(EventBoxAt(2000, 2000, 1), 0);
}

TEST_F(DayLayout, EventsOfAHalfHourAreThoseWhoseBoxesTouchIt) {
    AddRow("09:00 AM", "1 Hour");
    AddRow("10:00 AM", "1 Hour");
    AddRow("09:45 AM", "30 Minutes");
    LayoutDayEvents(GridWidth);
    EXPECT_EQ(EventRowsInHalfHour(17), (std::vector<int>{}));
    EXPECT_EQ(EventRowsInHalfHour(18), (std::vector<int>{1}));
    EXPECT_EQ(EventRowsInHalfHour(19), (std::vector<int>{1, 3}));
    EXPECT_EQ(EventRowsInHalfHour(20), (std::vector<int>{2, 3}));
}

TEST_F(DayLayout, TheEventOfAHalfHourIsTheOneWantedOrTheFirst) {
    AddRow("09:00 AM", "1 Hour");
    AddRow("09:00 AM", "1 Hour");
    LayoutDayEvents(GridWidth);
    EXPECT_EQ(EventInHalfHour(18, 0), 1);
    EXPECT_EQ(EventInHalfHour(18, 2), 2);
    EXPECT_EQ(EventInHalfHour(20, 2), 0);
    EXPECT_EQ(EventInHalfHour(-1, 1), 0);
}

TEST_F(DayLayout, TheHalfHourOfAnEventIsTheNextOneThatItsBoxTouches) {
    AddRow("09:15 AM", "1 Hour");
    LayoutDayEvents(GridWidth);
    EXPECT_EQ(HalfHourOfEvent(1, 0), 18);
    EXPECT_EQ(HalfHourOfEvent(1, 19), 19);
    EXPECT_EQ(HalfHourOfEvent(1, 20), 20);
    EXPECT_EQ(HalfHourOfEvent(1, 40), 20);
}

TEST_F(DayLayout, TheHalfHourOfAnEventEndsBeforeTheNextBegins) {
    AddRow("09:00 AM", "1 Hour");
    LayoutDayEvents(GridWidth);
    EXPECT_EQ(HalfHourOfEvent(1, 20), 19);
}

TEST_F(DayLayout, ABoxShowsTypeAndDescription) {
    const auto shown = [](const std::string& type, const std::string& desc) {
        EventRows.Add(AddEventRecord({.desc = desc}));
        EventRowType.Clear();
        for (int row = 0; row < EventRows.Count(); ++row) {
            EventRowType.Add(type);
        }
        return EventBoxText(EventRows.Count());
    };
    EXPECT_EQ(shown("Club", "Chess"), "Club - Chess");
    EXPECT_EQ(shown("Club", ""), " Club");
    EXPECT_EQ(shown("", "Chess"), " Chess");
}

TEST(DaySchedule, LabelsStandOnTheHours) {
    EXPECT_EQ(HalfHourLabel(0), "12 AM");
    EXPECT_EQ(HalfHourLabel(1), "");
    EXPECT_EQ(HalfHourLabel(2), "1 AM");
    EXPECT_EQ(HalfHourLabel(23), "");
    EXPECT_EQ(HalfHourLabel(24), "12 PM");
    EXPECT_EQ(HalfHourLabel(46), "11 PM");
    EXPECT_EQ(HalfHourLabel(47), "");
}

TEST(DaySchedule, GroundIsGreyAtNight) {
    EXPECT_EQ(HalfHourColor(0), 0xF2F2F2);
    EXPECT_EQ(HalfHourColor(11), 0xF2F2F2);
    EXPECT_EQ(HalfHourColor(12), 0xFFFFFF);
    EXPECT_EQ(HalfHourColor(35), 0xFFFFFF);
    EXPECT_EQ(HalfHourColor(36), 0xF2F2F2);
    EXPECT_EQ(HalfHourColor(47), 0xF2F2F2);
}

TEST(DaySchedule, TallScreensShowEmptyWhiteRowsBehindTheDay) {
    for (int halfHour = 48; halfHour < 500; ++halfHour) {
        EXPECT_EQ(HalfHourLabel(halfHour), "");
        EXPECT_EQ(HalfHourColor(halfHour), 0xFFFFFF);
        EXPECT_EQ(StartTimeOfHalfHour(halfHour), "11:30PM");
    }
}

TEST(DaySchedule, LinesTellHoursFromHalfHours) {
    EXPECT_EQ(HalfHourLineColor(18), 198 * 0x010101);
    EXPECT_EQ(HalfHourLineColor(19), 236 * 0x010101);
}

TEST(DaySchedule, EveryHalfHourHasItsStartTime) {
    for (int halfHour = 0; halfHour < 47; ++halfHour) {
        const int hour = halfHour / 2;
        const std::string shown = std::to_string(hour % 12 == 0 ? 12 : hour % 12) +
                                  (halfHour % 2 == 0 ? ":00" : ":30") + (hour < 12 ? " AM" : " PM");
        EXPECT_EQ(StartTimeOfHalfHour(halfHour), shown);
    }
}

TEST(DaySchedule, TheLastStartTimeHasNoBlank) {
    EXPECT_EQ(StartTimeOfHalfHour(47), "11:30PM");
}

TEST(DaySchedule, AClickGivesTheHalfHourUnderIt) {
    EXPECT_EQ(HalfHourAt(0, 1), 0);
    EXPECT_EQ(HalfHourAt(SlotUnits - 1, 1), 0);
    EXPECT_EQ(HalfHourAt(SlotUnits, 1), 1);
    EXPECT_EQ(HalfHourAt(8 * SlotUnits, 11), 18);
}

RC_GTEST_PROP(DayColumnsProperty, NoTwoSpansOfAColumnMeetAndNoColumnIsWasted, ()) {
    const auto starts = *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 288));
    std::vector<DaySpan> spans;
    for (const int start : starts) {
        spans.push_back({start, std::min(start + *rc::gen::inRange(5, 60), 287)});
    }
    const DayColumns day = ColumnsOfDay(spans);
    RC_ASSERT(day.columns.size() == spans.size());
    for (std::size_t i = 0; i < spans.size(); ++i) {
        std::vector<bool> occupied(static_cast<std::size_t>(day.count), false);
        for (std::size_t j = 0; j < i; ++j) {
            if (spans[j].first <= spans[i].last && spans[i].first <= spans[j].last) {
                occupied[static_cast<std::size_t>(day.columns[j])] = true;
            }
        }
        const auto mine = static_cast<std::size_t>(day.columns[i]);
        RC_ASSERT(!occupied[mine]);
        for (std::size_t column = 0; column < mine; ++column) {
            RC_ASSERT(occupied[column]); // else it would have been taken
        }
    }
}
