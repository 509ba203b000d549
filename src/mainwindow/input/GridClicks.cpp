// The clicks on the grid and on its titles, and what they open.
#include "core/RowLists.h"
#include "mainwindow/day/DayLayout.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/input/GridAccessible.h"
#include "mainwindow/input/GridPointer.h"
#include "planner/reminders/ReminderItems.h"

namespace {

bool OnSurface(const PictureBox& grid, int x, int y) {
    return Holds({0, 0, grid.WidthInUnits(), grid.HeightInUnits()}, x, y);
}

// What ClickedRow becomes: the cell of the month from 0, the box of the day or 0, the row under the titles.
int RowUnder(const frmMain& window, int x, int y) {
    switch (window.CurrentMode()) {
    case Mode::Calendar:
        return CalendarCellAt(window.CalendarGrid, x, y).value_or(NoRow);
    case Mode::Events:
        return EventBoxAt(x, y, window.FirstRow);
    default:
        return RowAt(x, y, window.picGrid->WidthInUnits());
    }
}

void ClickCalendar(frmMain& window, int x, int y, bool right) {
    const int cell = window.ClickedRow;
    if (cell == NoRow) {
        return;
    }
    const CalendarLayout clicked = window.CalendarGrid; // a day of another month lays its month out anew
    window.GoToDate(window.Month.CellDate[static_cast<std::size_t>(cell)]);
    if (const auto icon = CalendarIconAt(clicked, cell, x, y)) {
        window.ShowDayMenu(*icon);
    } else if (right) {
        window.ShowCalendarMenu();
    }
}

void ClickDay(frmMain& window, int y, bool right) {
    const bool onBox = window.ClickedRow > 0;
    const int halfHour = HalfHourAt(y, window.FirstRow);
    if (!onBox) {
        window.EventClickedStartTime = StartTimeOfHalfHour(halfHour);
    }
    if (right) {
        window.ShowEventListMenu();
    } else if (onBox) {
        window.OpenEventBox(window.ClickedRow, halfHour);
    } else {
        window.OpenHalfHour(halfHour);
    }
}

// The keys go on from the row that is opened.
void MoveCurrentRow(frmMain& window, int row) {
    if (row != window.CurrentRow) {
        window.CurrentRow = row;
        window.RepaintGrid();
        NotifyGridMoved(window);
    }
}

// The same for the half hour, and the event row in it or 0.
void MoveCurrentHalfHour(frmMain& window, int halfHour, int eventRow) {
    if (halfHour != window.CurrentHalfHour || eventRow != window.CurrentEvent) {
        window.CurrentHalfHour = halfHour;
        window.CurrentEvent = eventRow;
        window.RepaintGrid();
        NotifyGridMoved(window);
    }
}

void ClickList(frmMain& window, bool right) {
    if ((right && window.ShowListMenu()) || window.ClickedRow == NoRow) {
        return;
    }
    const Mode mode = window.CurrentMode();
    const int row = window.FirstRow + window.ClickedRow - 1;
    if (row <= window.RowCount) {
        window.OpenRow(row);
    } else if (mode == Mode::Homework) {
        window.NewAssignment();
    } else if (mode == Mode::Tasks) {
        window.NewTask();
    }
}

// The event of a reminder is the occurrence of the row's date, so that day counts as the clicked one.
void EditReminder(frmMain& window, int row) {
    const std::string& kind = ReminderRowKind.Item(row);
    const int position = ReminderRows.Item(row);
    if (kind == HomeworkMode) {
        window.EditAssignment(position);
    } else if (kind == TaskMode) {
        window.EditTask(position);
    } else {
        window.ClickedDate = ReminderRowDate.Item(row);
        window.EditEvent(position);
        window.ClickedDate = window.SelectedDate;
    }
}

} // namespace

void frmMain::BindGrid() {
    InstallGridKeys();
    InstallGridPointer(*this);
    VSGridScroll->setFocusPolicy(Qt::NoFocus);
    VSGridScroll->setFocusProxy(picGrid);
    connect(VSGridScroll, &QScrollBar::valueChanged, this, &frmMain::GridScrolled);
    connect(picGrid, &PictureBox::Pressed, this, &frmMain::GridPressed);
    connect(picGrid, &PictureBox::Released, this, &frmMain::GridReleased);
    // The window's own resize comes before its surfaces have their new sizes, so this hangs on the surface.
    connect(picGrid, &PictureBox::Resized, this, &frmMain::RefreshAfterResize);
    for (std::size_t i = 0; i < picColHeader.size(); ++i) {
        connect(picColHeader[i], &PictureBox::Clicked, this,
                [this, i] { ColumnClicked(static_cast<int>(i)); });
    }
}

void frmMain::ResortGrid() {
    const bool scrolled = VSGridScroll->value() != 1;
    ScrollGridTo(1);
    if (scrolled) {
        picGrid->setFocus();
    }
}

void frmMain::ColumnClicked(int column) {
    if (column == 0) {
        picGrid->setFocus();
        return;
    }
    if (column == SortColumn) {
        SortDirection = SortDirection == Ascending ? Descending : Ascending;
    }
    SortColumn = column;
    ResortGrid();
}

void frmMain::GridPressed(int x, int y) {
    ClickedRow = RowUnder(*this, x, y);
}

// Press and release must fall on one row.
void frmMain::GridReleased(int x, int y, Qt::MouseButton button) {
    if (!OnSurface(*picGrid, x, y) || RowUnder(*this, x, y) != ClickedRow) {
        return;
    }
    const bool right = button == Qt::RightButton;
    PointPopupAt(x, y);
    switch (CurrentMode()) {
    case Mode::Calendar:
        return ClickCalendar(*this, x, y, right);
    case Mode::Events:
        return ClickDay(*this, y, right);
    case Mode::None:
        return;
    default:
        return ClickList(*this, right);
    }
}

void frmMain::PointPopupAt(int x, int y) {
    PopupPoint = picGrid->mapToGlobal(QPoint(x / UnitsPerPixel, y / UnitsPerPixel));
}

bool frmMain::ShowListMenu() {
    switch (CurrentMode()) {
    case Mode::Homework:
        ShowHomeworkListMenu();
        return true;
    case Mode::Tasks:
        ShowTaskListMenu();
        return true;
    default:
        return false;
    }
}

void frmMain::OpenRow(int row) {
    MoveCurrentRow(*this, row);
    const int place = row - FirstRow + 1;
    HighlightRow(place, true);
    switch (CurrentMode()) {
    case Mode::Homework:
    case Mode::StudySessions:
        EditAssignment(HomeworkRows.Item(row));
        break;
    case Mode::Tasks:
        EditTask(TaskRows.Item(row));
        break;
    case Mode::Reminders:
        EditReminder(*this, row);
        break;
    default:
        break;
    }
    HighlightRow(place, false);
}

void frmMain::OpenEventBox(int row, int halfHour) {
    MoveCurrentHalfHour(*this, HalfHourOfEvent(row, halfHour), row);
    EditEvent(EventRows.Item(row));
}

void frmMain::OpenHalfHour(int halfHour) {
    MoveCurrentHalfHour(*this, std::min(halfHour, HalfHours - 1), 0);
    EventClickedStartTime = StartTimeOfHalfHour(halfHour);
    NewEvent();
}
