// The schedule of a day: where the boxes of its events stand beside each other, the half hours behind them,
// and what lies under a point. In units of 15 to the pixel.
#pragma once

#include "toolkit/layout/GridLayout.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

inline constexpr int TimeColumnWidth = 705; // of the hour labels
inline constexpr int SlotHeight = 24;       // pixels of a half hour
inline constexpr int SlotUnits = SlotHeight * UnitsPerPixel;
inline constexpr int DaySlots = 288; // of five minutes
inline constexpr int SlotsPerRow = 6;
inline constexpr int SlotScale = SlotUnits / SlotsPerRow; // height of a slot
inline constexpr int DayRowCount = 47;                    // rows that the schedule scrolls over
inline constexpr int HalfHours = 48;

// The slots that an event takes, numbered from 0, both included.
struct DaySpan {
    int first = 0;
    int last = 0;

    friend bool operator==(const DaySpan&, const DaySpan&) = default;
};

// From the event's `time` and `duration`: at least half an hour and not beyond midnight. A text that is no
// time counts as midnight; a duration without a number raises the run-time error.
DaySpan SpanOf(std::string_view time, std::string_view duration);

// The columns from 0 in which the spans stand, one a span, and their number.
struct DayColumns {
    std::vector<int> columns;
    int count = 0;
};

// Gives each span, in order, the first column that is free over all its slots, or a new one.
DayColumns ColumnsOfDay(std::span<const DaySpan> spans);

// Fills EventBoxLeft, EventBoxTop, EventBoxWidth, EventBoxHeight and EventBoxColumn for the events of
// EventRows, in their order. Tops are counted from midnight. All boxes share the grid's width between the
// labels and the scroll bar by the number of columns that the whole day needs.
void LayoutDayEvents(int gridWidth);

// What stands in the box of an event row: its type and its description, joined by " - "; one alone has a
// blank in front of it.
std::string EventBoxText(int eventRow);

// The upper edge of a half hour on a schedule that begins with that row.
int HalfHourTop(int halfHour, int firstRow);

// Where the box of an event row stands on a schedule that begins with that row.
UnitRect EventBoxOf(int eventRow, int firstRow);

// The event row whose box lies under the point, two pixels around it included; of several the last. 0
// without.
int EventBoxAt(int x, int y, int firstRow);

// The half hour under a height, counted from 0 at midnight; on a tall screen it may lie beyond the day.
int HalfHourAt(int y, int firstRow);

// The event rows whose boxes touch the half hour, in their order.
std::vector<int> EventRowsInHalfHour(int halfHour);

// Of the half hours that the event's box touches, the one next to this one.
int HalfHourOfEvent(int eventRow, int halfHour);

// The event row wanted, when it is one of these; else the first of them, or 0 without.
int EventInHalfHour(int halfHour, int wanted);

// What the schedule shows of the half hour: a label on the hours and none beyond the day.
std::string_view HalfHourLabel(int halfHour);

// The ground behind it: grey at night, white by day and beyond the day.
int HalfHourColor(int halfHour);

// The line over it.
int HalfHourLineColor(int halfHour);

// The start time of an event that is made by a click on the half hour; beyond the day the last one.
std::string_view StartTimeOfHalfHour(int halfHour);
