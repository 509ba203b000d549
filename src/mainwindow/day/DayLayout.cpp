// The schedule of a day.
#include "mainwindow/day/DayLayout.h"

#include "core/DateText.h"
#include "core/Module1.h"
#include "core/RowLists.h"
#include "planner/dates/DateHelpers.h"
#include "planner/rows/Colors.h"
#include "planner/rows/RowTexts.h"
#include "toolkit/WindowColors.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <cmath>

namespace {

constexpr int MinutesPerSlot = 5;
constexpr int LeastLength = 5; // slots behind the first one
constexpr int ClickMargin = 30;

constexpr std::array<std::string_view, 24> HourLabels{
    "12 AM", "1 AM", "2 AM", "3 AM", "4 AM", "5 AM", "6 AM", "7 AM", "8 AM", "9 AM", "10 AM", "11 AM",
    "12 PM", "1 PM", "2 PM", "3 PM", "4 PM", "5 PM", "6 PM", "7 PM", "8 PM", "9 PM", "10 PM", "11 PM",
};

// The last one has no blank, as is meant.
constexpr std::array<std::string_view, HalfHours> StartTimes{
    "12:00 AM", "12:30 AM", "1:00 AM", "1:30 AM", "2:00 AM",  "2:30 AM",  "3:00 AM",  "3:30 AM",
    "4:00 AM",  "4:30 AM",  "5:00 AM", "5:30 AM", "6:00 AM",  "6:30 AM",  "7:00 AM",  "7:30 AM",
    "8:00 AM",  "8:30 AM",  "9:00 AM", "9:30 AM", "10:00 AM", "10:30 AM", "11:00 AM", "11:30 AM",
    "12:00 PM", "12:30 PM", "1:00 PM", "1:30 PM", "2:00 PM",  "2:30 PM",  "3:00 PM",  "3:30 PM",
    "4:00 PM",  "4:30 PM",  "5:00 PM", "5:30 PM", "6:00 PM",  "6:30 PM",  "7:00 PM",  "7:30 PM",
    "8:00 PM",  "8:30 PM",  "9:00 PM", "9:30 PM", "10:00 PM", "10:30 PM", "11:00 PM", "11:30PM",
};

// The ground changes at these half hours.
constexpr int MorningHalfHour = 12;
constexpr int EveningHalfHour = 36;

using SlotSet = std::bitset<DaySlots>;

SlotSet SlotsOf(DaySpan span) {
    SlotSet slots;
    for (int slot = span.first; slot <= span.last; ++slot) {
        slots.set(static_cast<std::size_t>(slot));
    }
    return slots;
}

int RoomForBoxes(int gridWidth) {
    return std::max(RowsRight(gridWidth) - TimeColumnWidth, 0);
}

} // namespace

DaySpan SpanOf(std::string_view time, std::string_view duration) {
    const auto minutes =
        std::chrono::floor<std::chrono::minutes>(TimeIn(time).value_or(TimeOfDay{0})).count();
    const int first = static_cast<int>(minutes) / MinutesPerSlot;
    const double length = std::trunc((EventLength(duration) - 1) / MinutesPerSlot);
    const double last = first + std::max<double>(length, LeastLength);
    return {first, static_cast<int>(std::min<double>(last, DaySlots - 1))};
}

DayColumns ColumnsOfDay(std::span<const DaySpan> spans) {
    DayColumns day;
    std::vector<SlotSet> taken;
    for (const DaySpan& span : spans) {
        const SlotSet slots = SlotsOf(span);
        auto column =
            std::ranges::find_if(taken, [&](const SlotSet& other) { return (other & slots).none(); });
        if (column == taken.end()) {
            column = taken.insert(taken.end(), SlotSet{});
        }
        *column |= slots;
        day.columns.push_back(static_cast<int>(column - taken.begin()));
    }
    day.count = static_cast<int>(taken.size());
    return day;
}

void LayoutDayEvents(int gridWidth) {
    ClearLists(EventBoxLists);
    std::vector<DaySpan> spans;
    for (const int event : EventRows) {
        spans.push_back(SpanOf(Store.EventRecord.time.Item(event), Store.EventRecord.duration.Item(event)));
    }
    const DayColumns day = ColumnsOfDay(spans);
    const int width = RoomForBoxes(gridWidth) / std::max(day.count, 1);
    for (std::size_t i = 0; i < spans.size(); ++i) {
        EventBoxColumn.Add(day.columns[i]);
        EventBoxLeft.Add(TimeColumnWidth + day.columns[i] * width);
        EventBoxWidth.Add(width);
        EventBoxTop.Add(spans[i].first * SlotScale);
        EventBoxHeight.Add((spans[i].last - spans[i].first + 1) * SlotScale);
    }
}

std::string EventBoxText(int eventRow) {
    const std::string& type = EventRowType.Item(eventRow);
    const std::string& desc = Store.EventRecord.desc.Item(EventRows.Item(eventRow));
    const std::string text = TypeAndDescription(type, desc);
    return type.empty() || desc.empty() ? " " + text : text;
}

int HalfHourTop(int halfHour, int firstRow) {
    return (PlaceOfRow(halfHour + 1, firstRow) - 1) * SlotUnits;
}

UnitRect EventBoxOf(int eventRow, int firstRow) {
    return {EventBoxLeft.Item(eventRow), EventBoxTop.Item(eventRow) + HalfHourTop(0, firstRow),
            EventBoxWidth.Item(eventRow), EventBoxHeight.Item(eventRow)};
}

int EventBoxAt(int x, int y, int firstRow) {
    for (int row = EventBoxLeft.Count(); row >= 1; --row) {
        const UnitRect box = EventBoxOf(row, firstRow);
        const UnitRect around{box.left - ClickMargin, box.top - ClickMargin, box.width + 2 * ClickMargin,
                              box.height + 2 * ClickMargin};
        if (Holds(around, x, y)) {
            return row;
        }
    }
    return 0;
}

int HalfHourAt(int y, int firstRow) {
    return RowAtPlace(y / SlotUnits + 1, firstRow) - 1;
}

std::vector<int> EventRowsInHalfHour(int halfHour) {
    const int top = halfHour * SlotUnits;
    std::vector<int> rows;
    for (int row = 1; row <= EventBoxTop.Count(); ++row) {
        const int boxTop = EventBoxTop.Item(row);
        if (boxTop < top + SlotUnits && boxTop + EventBoxHeight.Item(row) > top) {
            rows.push_back(row);
        }
    }
    return rows;
}

int HalfHourOfEvent(int eventRow, int halfHour) {
    const int top = EventBoxTop.Item(eventRow);
    const int bottom = top + EventBoxHeight.Item(eventRow);
    return std::clamp(halfHour, top / SlotUnits, (bottom - 1) / SlotUnits);
}

int EventInHalfHour(int halfHour, int wanted) {
    const std::vector<int> rows = EventRowsInHalfHour(halfHour);
    if (rows.empty() || std::ranges::find(rows, wanted) != rows.end()) {
        return rows.empty() ? 0 : wanted;
    }
    return rows.front();
}

std::string_view HalfHourLabel(int halfHour) {
    const auto hour = static_cast<std::size_t>(halfHour / 2);
    return halfHour % 2 == 0 && hour < HourLabels.size() ? HourLabels[hour] : std::string_view{};
}

int HalfHourColor(int halfHour) {
    const bool night = halfHour < MorningHalfHour || (halfHour >= EveningHalfHour && halfHour < HalfHours);
    return night ? NightColor : ColorWhite;
}

int HalfHourLineColor(int halfHour) {
    return halfHour % 2 == 0 ? HourLineColor : ThinLineColor;
}

std::string_view StartTimeOfHalfHour(int halfHour) {
    return StartTimes[static_cast<std::size_t>(std::clamp(halfHour, 0, HalfHours - 1))];
}
