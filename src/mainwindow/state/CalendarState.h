// The calendars: the controls of the small one in the left panel, the month that both show, the selected day.
#pragma once

#include "mainwindow/state/LargeCalendarLayout.h"
#include "planner/lists/MonthCells.h"
#include "platform/Clock.h"

#include <array>

class ClickLabel;
class PictureBox;
class QTimer;
class QWidget;
class TileBorder;

inline constexpr int UnknownMonth = 13;

struct CalendarState {
    QWidget* PictureBoxCalendar = nullptr; // the small calendar
    ClickLabel* LabelMonth = nullptr;
    PictureBox *picCalMonthUp = nullptr, *picCalMonthDown = nullptr;
    PictureBox *picCalDayUp = nullptr, *picCalDayDown = nullptr; // over the view
    std::array<ClickLabel*, DaysPerWeek> LabelCalDay{};
    std::array<ClickLabel*, MonthCells> LabelCalDate{};
    TileBorder* LabelCalTileBorder = nullptr; // the frame around today
    PictureBox *picToday = nullptr, *picTomorrow = nullptr;
    ClickLabel *LabelToday = nullptr, *LabelTomorrow = nullptr;
    PictureBox* picLock = nullptr; // over the small calendar in Reminders mode
    QTimer* TimerButton = nullptr; // repeats what a held stepper does

    Date ClickedDate{};            // the date that the next build of the month is to show
    Date SelectedDate{};           // the date that the last one did show
    int ShownMonth = UnknownMonth; // month of which the marks are; 13 forces them anew
    int ShownYear = 0;             // and the year of that month
    CalendarMonth Month;           // the month that both calendars show
    CalendarLayout CalendarGrid;   // where the large calendar was painted
    bool StepperHeld = false;      // a stepper of the calendar is pressed
    std::size_t HeldStepper = 0;   // the one pressed last
};
