// The large calendar, painted on the grid in Calendar mode.
#include "mainwindow/frmMain.h"
#include "mainwindow/grid/ViewParts.h"
#include "mainwindow/state/LargeCalendarLayout.h"
#include "planner/dates/DateTitles.h"
#include "toolkit/Text.h"
#include "toolkit/WindowColors.h"

namespace {

constexpr int TextLeft = 270; // of a line's text behind the left of its picture

constexpr SurfaceFont HeadFont{Face::List, 9, true};
constexpr SurfaceFont LineFont{Face::List, 9, false};
constexpr double DayPoints = 10;

// By CalendarIcon: in the shown month and beside it.
constexpr std::array<std::array<const char*, 2>, CalendarIcons> IconPictures{{
    {"picStashCalHomework.svg", "picStashCalHomeworkDim.svg"},
    {"picStashCalTask.svg", "picStashCalTaskDim.svg"},
    {"picStashCalEvent.svg", "picStashCalEventDim.svg"},
}};

void DrawCentred(PictureBox& surface, const UnitRect& box, const QString& text, const SurfaceFont& font,
                 int color) {
    surface.DrawText(box.left + (box.width - TextWidth(text, font)) / 2,
                     box.top + (box.height - TextHeight(font)) / 2, text, font, color);
}

void PaintHeads(PictureBox& surface, const CalendarLayout& layout, std::string_view startDayOfWeek) {
    surface.FillRectangle(0, 0, surface.WidthInUnits(), CalendarHeadHeight, HeadGroundColor);
    const std::array<std::string_view, DaysPerWeek> heads = WeekdayHeads(startDayOfWeek);
    for (std::size_t column = 0; column < heads.size(); ++column) {
        DrawCentred(surface, layout.head[column], FromStore(heads[column]), HeadFont, HeadTextColor);
    }
}

void PaintGrounds(PictureBox& surface, const CalendarLayout& layout, const CalendarMonth& month) {
    for (std::size_t index = 0; index < MonthCells; ++index) {
        if (month.CellInMonth[index] == 0) {
            const UnitRect& area = layout.cell[index].area;
            surface.FillRectangle(area.left, area.top, area.width, area.height, OutOfMonthColor);
        }
    }
}

// A cell's line runs along its top and its right edge, where the frame of its tab covers it.
void PaintGridLines(PictureBox& surface, const CalendarLayout& layout) {
    const int right = surface.WidthInUnits();
    const int bottom = surface.HeightInUnits();
    surface.DrawLine(0, 0, right, 0, EdgeLineColor);
    for (int index = 0; index < MonthCells; index += DaysPerWeek) {
        const int top = layout.cell[static_cast<std::size_t>(index)].area.top;
        surface.DrawLine(0, top, right, top, EdgeLineColor);
    }
    surface.DrawLine(0, bottom - UnitsPerPixel, right, bottom - UnitsPerPixel, EdgeLineColor);
    surface.DrawLine(0, 0, 0, bottom, EdgeLineColor);
    for (const UnitRect& head : layout.head) {
        const int edge = head.left + head.width - UnitsPerPixel;
        surface.DrawLine(edge, 0, edge, bottom, EdgeLineColor);
    }
}

void PaintTab(PictureBox& surface, const UnitRect& tab, const CalendarMonth& month, std::size_t index) {
    surface.FillRectangle(tab.left, tab.top, tab.width, tab.height, month.CellBackColor[index]);
    surface.DrawFrame(tab.left, tab.top, tab.width, tab.height, EdgeLineColor);
    DrawCentred(surface, tab, FromStore(month.CellText[index]),
                {Face::Title, DayPoints, month.CellSelected[index]}, month.CellForeColor[index]);
}

void PaintTodayFrame(PictureBox& surface, const UnitRect& area) {
    for (int inset = 0; inset < TodayFrameWidth; inset += UnitsPerPixel) {
        surface.DrawFrame(area.left + inset, area.top + inset, area.width - 2 * inset,
                          area.height - 2 * inset, BarColor);
    }
}

void PaintLine(PictureBox& surface, const UnitRect& box, const char* picture, const QString& text,
               int color) {
    surface.DrawPicture(box.left, box.top, CalendarIconSize, CalendarIconSize, QLatin1String(picture));
    surface.DrawText(box.left + TextLeft, box.top + (CalendarIconSize - TextHeight(LineFont)) / 2, text,
                     LineFont, color);
}

struct LineText {
    QString text;
    int color = ColorBlack;
};

LineText CountText(int done, int left) {
    return {FromStore(DoneOfAll(done, left)), left > 0 ? ColorSelectedNotDone : ColorBlack};
}

void PaintLines(PictureBox& surface, const CalendarCell& cell, const CalendarMonth& month,
                std::size_t index) {
    const std::array<LineText, CalendarIcons> texts{{
        CountText(month.HomeworkDoneCount[index], month.HomeworkLeftCount[index]),
        CountText(month.TaskDoneCountByDay[index], month.TaskLeftCountByDay[index]),
        {QString::number(month.EventCountByDay[index]), ColorBlack},
    }};
    for (std::size_t line = 0; line < texts.size(); ++line) {
        if (cell.icon[line] != UnitRect{}) {
            const char* picture = IconPictures[line][month.CellInMonth[index] != 0 ? 0 : 1];
            PaintLine(surface, cell.icon[line], picture, texts[line].text, texts[line].color);
        }
    }
}

} // namespace

void frmMain::LayoutCalendarGrid() {
    VSGridScroll->hide();
    LeaveList(*this);
    CalendarGrid = LayOutCalendar(picGrid->WidthInUnits(), picGrid->HeightInUnits(), Month);
    picGrid->Clear();
    PaintGrounds(*picGrid, CalendarGrid, Month);
    PaintHeads(*picGrid, CalendarGrid, StartDayOfWeek);
    PaintGridLines(*picGrid, CalendarGrid);
    for (std::size_t index = 0; index < MonthCells; ++index) {
        const CalendarCell& cell = CalendarGrid.cell[index];
        PaintTab(*picGrid, cell.tab, Month, index);
        if (Month.CellToday[index]) {
            PaintTodayFrame(*picGrid, cell.area);
        }
        PaintLines(*picGrid, cell, Month, index);
    }
    PaintStatusBar();
}

void frmMain::ShowCalendarTitles() {
    ShowTopTitles(*this, FromScreen(MonthTitle(ClickedDate)));
}
