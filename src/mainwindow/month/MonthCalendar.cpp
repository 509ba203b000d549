// The small calendar: the month computed once for both calendars, and its cells.
#include "mainwindow/frmMain.h"
#include "mainwindow/month/MonthMarks.h"
#include "planner/dates/DateTitles.h"
#include "toolkit/Pressable.h"
#include "toolkit/Text.h"

namespace {

using std::chrono::days;
using std::chrono::year_month_day;

// The mode whose marks the month shows. The order differs from that of CurrentMode and is meant to: Study
// Sessions entered from Calendar leaves both checked, and then the marks are those of Study Sessions.
Mode MarkedMode(const frmMain& window) {
    const std::array<std::pair<const QAction*, Mode>, ModeCount> order{{
        {window.MenuStudySessions, Mode::StudySessions},
        {window.MenuTasks, Mode::Tasks},
        {window.MenuEvents, Mode::Events},
        {window.MenuHomework, Mode::Homework},
        {window.MenuCalendar, Mode::Calendar},
        {window.MenuReminders, Mode::Reminders},
    }};
    for (const auto& [item, mode] : order) {
        if (item->isChecked()) {
            return mode;
        }
    }
    return Mode::None;
}

} // namespace

void frmMain::BuildMonth() {
    ClickedDate = WithinCalendar(ClickedDate);
    LabelMonth->setText(FromScreen(MonthTitle(ClickedDate)));
    const year_month_day shown{ClickedDate};
    const int month = static_cast<int>(static_cast<unsigned>(shown.month()));
    const int year = static_cast<int>(shown.year());
    if (month != ShownMonth || year != ShownYear) {
        ShownMonth = month;
        ShownYear = year;
        MarkMonth(Month, FirstCellDate(ClickedDate, StartDayOfWeek), MarkedMode(*this), CurrentFilter());
    }
    ComputeMonthCells(Month, ClickedDate, Today(), StartDayOfWeek, CurrentMode() == Mode::Calendar);
    SelectedDate = ClickedDate;
    PaintTodayButtons();
    PaintMonthCells();
    PictureBoxCalendar->repaint(); // the day is seen before the list behind it is filled
}

void frmMain::PaintTodayButtons() {
    const Date today = Today();
    const bool isToday = ClickedDate == today;
    const int tomorrowColor = isToday && MenuReminders->isChecked() ? ColorOutMonth : ColorBlack;
    PaintDayButton(picToday, LabelToday, QStringLiteral("picStashToday"), isToday, ColorBlack);
    PaintDayButton(picTomorrow, LabelTomorrow, QStringLiteral("picStashTomorrow"),
                   ClickedDate == today + days{1}, tomorrowColor);
}

void frmMain::PaintMonthCells() {
    LabelCalTileBorder->Surround(nullptr);
    for (std::size_t cell = 0; cell < LabelCalDate.size(); ++cell) {
        PaintDayLabel(LabelCalDate[cell], FromStore(Month.CellText[cell]), Month.CellForeColor[cell],
                      Month.CellBackColor[cell], Month.CellSelected[cell]);
        DescribeName(LabelCalDate[cell], FromScreen(FormatDate(Month.CellDate[cell], "Long Date")));
        if (Month.CellToday[cell]) {
            LabelCalTileBorder->Surround(LabelCalDate[cell]);
        }
    }
    picLock->raise();
}
