// The schedule of a day in Events mode: half hours from midnight on, and the boxes of the events over them.
#include "mainwindow/day/DaySchedule.h"

#include "core/RowLists.h"
#include "mainwindow/day/DayLayout.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/grid/ViewParts.h"
#include "mainwindow/panels/ShowBox.h"
#include "planner/lists/DayTotals.h"
#include "planner/lists/EventSelection.h"
#include "planner/lists/RowSorts.h"
#include "planner/recurrence/EventOccursOn.h"
#include "planner/rows/Colors.h"
#include "toolkit/Text.h"
#include "toolkit/WindowColors.h"
#include "toolkit/grid/ListPainting.h"
#include "toolkit/grid/ListScroll.h"

namespace {

constexpr SurfaceFont LabelFont{Face::List, 9, true};
constexpr int LabelRight = TimeColumnWidth - 60;
constexpr int LabelBelowLine = 60;
constexpr int RowsLeft = 720;
constexpr int BoxTextIndent = 90;
constexpr int BoxTextTop = 60;

void DrawHalfHours(PictureBox& grid, int firstRow) {
    const int right = RowsRight(grid.WidthInUnits());
    for (int top = 0; top < grid.HeightInUnits(); top += SlotUnits) {
        const int halfHour = HalfHourAt(top, firstRow);
        const QString label = FromStore(HalfHourLabel(halfHour));
        if (!label.isEmpty()) {
            grid.DrawText(LabelRight - TextWidth(label, LabelFont), top + LabelBelowLine, label, LabelFont,
                          HourLabelColor);
        }
        grid.FillRectangle(RowsLeft, top, right - RowsLeft, SlotUnits, HalfHourColor(halfHour));
        grid.DrawLine(RowsLeft, top, right, top, HalfHourLineColor(halfHour));
    }
    grid.DrawLine(0, 0, right, 0, EdgeLineColor);
    grid.DrawLine(TimeColumnWidth, 0, TimeColumnWidth, grid.HeightInUnits(), EdgeLineColor);
}

void DrawEventBox(PictureBox& grid, int row, const UnitRect& box, bool current) {
    const QString text = ShownEventText(row, box.width);
    grid.FillRectangle(box.left, box.top, box.width, box.height, EventRowBackColor.Item(row));
    grid.DrawFrame(box.left, box.top, box.width, box.height, ColorBlack);
    if (current) {
        grid.DrawFrame(box.left + UnitsPerPixel, box.top + UnitsPerPixel, box.width - 2 * UnitsPerPixel,
                       box.height - 2 * UnitsPerPixel, CurrentColor);
    }
    grid.DrawText(box.left + BoxTextIndent, box.top + BoxTextTop, text, ListFont,
                  EventRowForeColor.Item(row));
}

void DrawEventBoxes(PictureBox& grid, int firstRow, int currentEvent) {
    for (int row = 1; row <= EventRows.Count(); ++row) {
        const UnitRect box = EventBoxOf(row, firstRow);
        if (box.top < grid.HeightInUnits() && box.top + box.height > 0) {
            DrawEventBox(grid, row, box, row == currentEvent);
        }
    }
}

// The half hour on which the keys stand.
void DrawCurrentHalfHour(PictureBox& grid, int halfHour, int firstRow) {
    grid.DrawFrame(0, HalfHourTop(halfHour, firstRow), RowsRight(grid.WidthInUnits()),
                   SlotUnits + UnitsPerPixel, CurrentColor);
}

// The scroll bar ends with the half hour of 11 PM; the one behind it comes into view with the keys.
int FirstRowOfDay(const frmMain& window) {
    const bool atEnd = window.VSGridScroll->value() == window.VSGridScroll->maximum();
    return atEnd && window.CurrentHalfHour == HalfHours - 1
               ? FirstRowShowing(HalfHours, window.FirstRow, window.RowsVisible)
               : window.FirstRow;
}

} // namespace

QString ShownEventText(int eventRow, int boxWidth) {
    return ShortenedText(FromStore(EventBoxText(eventRow)), ListFont, boxWidth - 2 * BoxTextIndent);
}

void frmMain::LayoutEventGrid() {
    LeaveList(*this);
    PlaceScrollBar(*this);
    picGrid->Clear();
    HeaderHeight = 0;
    RowsVisible = WholeRows(picGrid->height(), HeaderHeight, SlotHeight);
    PaintStatusBar();
}

void frmMain::FillEventDay() {
    ShowTopTitlesOfDay(*this, "Events for ");
    const std::vector<int> eventsOfDay = EventsOn(ClickedDate);
    const EventDayBoxes boxes = EventDayTotals(eventsOfDay);
    ShowBox(TextBoxSchedStudy, boxes.TextBoxSchedStudy);
    ShowBox(TextBoxClasses, boxes.TextBoxClasses);
    ShowBox(TextBoxOtherEvents, boxes.TextBoxOtherEvents);
    SelectEventsForDay(ClickedDate, eventsOfDay, CurrentFilter());
    SortEventRowsByDuration(SortDirection);
    LayoutDayEvents(picGrid->WidthInUnits());
    SortEventRowsByColumn();
    RowCount = DayRowCount;
    SetGridScroll(*this);
    CurrentEvent = EventInHalfHour(CurrentHalfHour, CurrentEvent);
    FirstRow = FirstRowOfDay(*this);
    DrawHalfHours(*picGrid, FirstRow);
    if (CurrentHalfHour >= 0) {
        DrawCurrentHalfHour(*picGrid, CurrentHalfHour, FirstRow);
    }
    DrawEventBoxes(*picGrid, FirstRow, CurrentEvent);
}
